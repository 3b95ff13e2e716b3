#include "cotana/entidad/DigiTab.h"

#include <algorithm>

namespace Cotana {

CDigiTab::CDigiTab() = default;
CDigiTab::CDigiTab(const CDigiTab&) = default;
CDigiTab& CDigiTab::operator=(const CDigiTab&) = default;
CDigiTab::~CDigiTab() = default;

unsigned int CDigiTab::Cantidad() const {
    return static_cast<unsigned int>(m_Elementos.size());
}

CElementoDigiTab& CDigiTab::operator[](unsigned int indice) {
    return m_Elementos[indice];
}

const CElementoDigiTab& CDigiTab::operator[](unsigned int indice) const {
    return m_Elementos[indice];
}

bool CDigiTab::Inserta(const CElementoDigiTab& elemento, bool repetido) {
    if (elemento.GetCodigo().IsEmpty() || (!repetido && Busca(elemento) != NoEsta))
        return false;
    m_Elementos.push_back(elemento);
    return true;
}

unsigned int CDigiTab::Busca(const CElementoDigiTab& elemento) const {
    for (unsigned int i = 0; i < Cantidad(); ++i) {
        if (m_Elementos[i].ComparaCodigo(elemento.GetCodigo()))
            return i;
    }
    return NoEsta;
}

void CDigiTab::Borra(unsigned int indice, unsigned int siguientes) {
    if (indice >= Cantidad())
        return;
    const auto primero = m_Elementos.begin() + indice;
    const unsigned int cuantos = std::min(siguientes, Cantidad() - indice - 1) + 1;
    m_Elementos.erase(primero, primero + cuantos);
}

void CDigiTab::clear() {
    m_Elementos.clear();
}

} // namespace Cotana
