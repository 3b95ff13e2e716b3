#pragma once

#include "cotana/entidad/TipoDat.h"

namespace Cotana {

/// One entry of a code table: a code, what it stands for, and how it is drawn.
class COTANA_API CElementoDigiTab : public CTipoDat {
public:
    /// @param codigo      code of the entry.
    /// @param nemotecnico text that tells a person what the code stands for.
    /// @param estilo      number of the drawing style; negative when the code is in no table.
    /// @param grafico     true when the code is of a drawn entity.
    explicit CElementoDigiTab(const CString& codigo = CString(),
                              const CString& nemotecnico = CString(), int estilo = 0,
                              bool grafico = false);
    CElementoDigiTab(const CElementoDigiTab&);
    CElementoDigiTab& operator=(const CElementoDigiTab&);
    virtual ~CElementoDigiTab();

    const CString& GetNemotecnico() const { return m_Nemotecnico; }
    void SetNemotecnico(const CString& nemotecnico) { m_Nemotecnico = nemotecnico; }

    int GetEstilo() const { return m_Estilo; }
    virtual void SetEstilo(int estilo);

private:
    CString m_Nemotecnico;
    int m_Estilo;
};

} // namespace Cotana
