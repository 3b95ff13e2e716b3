#include "cotana/entidad/TipoDat.h"

namespace Cotana {

CTipoDat::CTipoDat(const CString& codigo, bool grafico) : m_Codigo(codigo), m_Grafico(grafico) {}

bool CTipoDat::ComparaCodigo(const CString& codigo) const {
    return m_Codigo == codigo;
}

} // namespace Cotana
