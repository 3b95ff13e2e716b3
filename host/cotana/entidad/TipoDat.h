#pragma once

#include <afx.h>

#include "cotana/Exporta.h"

namespace Cotana {

/// What a surveyed point is: the code that the surveyor gave it.
class COTANA_API CTipoDat {
public:
    /// @param codigo  code of the point, compared letter by letter with its case.
    /// @param grafico true when the code is of a drawn entity, false when of a surveyed point.
    explicit CTipoDat(const CString& codigo = CString(), bool grafico = false);

    const CString& GetCodigo() const { return m_Codigo; }
    void SetCodigo(const CString& codigo) { m_Codigo = codigo; }

    /// True when this code and `codigo` are the same, letter by letter with its case.
    bool ComparaCodigo(const CString& codigo) const;

    bool EsGrafico() const { return m_Grafico; }

private:
    CString m_Codigo;
    bool m_Grafico;
};

} // namespace Cotana
