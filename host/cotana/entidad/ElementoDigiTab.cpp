#include "cotana/entidad/ElementoDigiTab.h"

namespace Cotana {

CElementoDigiTab::CElementoDigiTab(const CString& codigo, const CString& nemotecnico, int estilo,
                                   bool grafico)
    : CTipoDat(codigo, grafico), m_Nemotecnico(nemotecnico), m_Estilo(estilo) {}

CElementoDigiTab::CElementoDigiTab(const CElementoDigiTab&) = default;
CElementoDigiTab& CElementoDigiTab::operator=(const CElementoDigiTab&) = default;
CElementoDigiTab::~CElementoDigiTab() = default;

void CElementoDigiTab::SetEstilo(int estilo) {
    m_Estilo = estilo;
}

} // namespace Cotana
