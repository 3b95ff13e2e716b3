#include "cuadros/import/DataImportarGrid.h"

#include "cuadros/import/Ajustes.h"

namespace {

/// Does something with each setting and its key, in the order that every store has.
template <class Data, class Accion>
void ConCadaAjuste(Data& data, const Accion& accion) {
    accion(L"XMinima", data.m_Extension.m_Minimo.m_X);
    accion(L"XMaxima", data.m_Extension.m_Maximo.m_X);
    accion(L"YMinima", data.m_Extension.m_Minimo.m_Y);
    accion(L"YMaxima", data.m_Extension.m_Maximo.m_Y);
    accion(L"Razon", data.m_Razon);
    accion(L"NoData", data.m_NoData);
}

} // namespace

CDataImportarGrid::CDataImportarGrid() : m_Paso(0.0, 0.0, 0.0, 0) {
    // What the corners begin with is up to the host's own classes.
    for (Cotana::CMaximas<double>* extension : {&m_ExtensionFichero, &m_Extension}) {
        for (Cotana::CCoor3D<double>* esquina : {&extension->m_Maximo, &extension->m_Minimo})
            esquina->m_X = esquina->m_Y = 0.0;
    }
}

CDataImportarGrid::CDataImportarGrid(const CDataImportarGrid&) = default;
CDataImportarGrid& CDataImportarGrid::operator=(const CDataImportarGrid&) = default;
CDataImportarGrid::~CDataImportarGrid() = default;

void CDataImportarGrid::GetProfile(const CString& section) {
    ConCadaAjuste(*this, Cuadros::LectorPerfil(section));
}

void CDataImportarGrid::WriteProfile(const CString& section) const {
    ConCadaAjuste(*this, Cuadros::EscritorPerfil(section));
}

void CDataImportarGrid::GetPrivateProfile(const CString& file, const CString& section) {
    ConCadaAjuste(*this, Cuadros::LectorFichero(file, section));
}

void CDataImportarGrid::WritePrivateProfile(const CString& file, const CString& section) const {
    ConCadaAjuste(*this, Cuadros::EscritorFichero(file, section));
}
