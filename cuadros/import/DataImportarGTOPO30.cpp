#include "cuadros/import/DataImportarGTOPO30.h"

#include "cuadros/import/Ajustes.h"

namespace {

/// Does something with each setting that a grid has not, in the order that every store has.
template <class Data, class Accion>
void ConCadaAjuste(Data& data, const Accion& accion) {
    accion(L"Huso", data.m_Huso);
    accion(L"TipoProyeccion", data.m_TipoProyeccion);
}

} // namespace

CDataImportarGTOPO30::CDataImportarGTOPO30() = default;
CDataImportarGTOPO30::CDataImportarGTOPO30(const CDataImportarGTOPO30&) = default;
CDataImportarGTOPO30& CDataImportarGTOPO30::operator=(const CDataImportarGTOPO30&) = default;
CDataImportarGTOPO30::~CDataImportarGTOPO30() = default;

void CDataImportarGTOPO30::GetProfile(const CString& section) {
    ConCadaAjuste(*this, Cuadros::LectorPerfil(section));
    CDataImportarGrid::GetProfile(section);
}

void CDataImportarGTOPO30::WriteProfile(const CString& section) const {
    ConCadaAjuste(*this, Cuadros::EscritorPerfil(section));
    CDataImportarGrid::WriteProfile(section);
}

void CDataImportarGTOPO30::GetPrivateProfile(const CString& file, const CString& section) {
    ConCadaAjuste(*this, Cuadros::LectorFichero(file, section));
    CDataImportarGrid::GetPrivateProfile(file, section);
}

void CDataImportarGTOPO30::WritePrivateProfile(const CString& file, const CString& section) const {
    ConCadaAjuste(*this, Cuadros::EscritorFichero(file, section));
    CDataImportarGrid::WritePrivateProfile(file, section);
}
