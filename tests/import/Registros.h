// What the tests of the import records share: records of which no field is what it starts as, and
// their fields to compare.
#pragma once

#include "cuadros/import/DataImportarGTOPO30.h"
#include "cuadros/import/DataImportarGrid.h"

#include "kit/kit.h"

#include <clocale>
#include <string>
#include <tuple>

namespace {

inline auto Campos(const Cotana::CCoor3D<double>& lugar) {
    return std::make_tuple(lugar.m_X, lugar.m_Y, lugar.m_Z, lugar.m_Codigo);
}

inline auto Campos(const Cotana::CMaximas<double>& extension) {
    return std::make_tuple(Campos(extension.m_Maximo), Campos(extension.m_Minimo));
}

/// Every field of a record, to compare it with what it was.
inline auto Campos(const CDataImportarGrid& data) {
    return std::make_tuple(Campos(data.m_ExtensionFichero), Campos(data.m_Extension),
                           Campos(data.m_Paso), data.m_Razon, data.m_PuntosFichero,
                           data.m_PuntosImportar, data.m_NoData, data.m_Elipsoide.GetIndice(),
                           data.m_Elipsoide.GetNombre(), data.m_Elipsoide.GetSemieje(),
                           data.m_Elipsoide.GetExcentricidad2());
}

inline auto Campos(const CDataImportarGTOPO30& data) {
    return std::tuple_cat(Campos(static_cast<const CDataImportarGrid&>(data)),
                          std::make_tuple(data.m_Huso, data.m_TipoProyeccion));
}

/// What a store keeps of a record.
inline auto Guardado(const CDataImportarGrid& data) {
    return std::make_tuple(data.m_Extension.m_Minimo.m_X, data.m_Extension.m_Maximo.m_X,
                           data.m_Extension.m_Minimo.m_Y, data.m_Extension.m_Maximo.m_Y,
                           data.m_Razon, data.m_NoData);
}

inline auto Guardado(const CDataImportarGTOPO30& data) {
    return std::tuple_cat(std::make_tuple(data.m_Huso, data.m_TipoProyeccion),
                          Guardado(static_cast<const CDataImportarGrid&>(data)));
}

inline void Rellena(CDataImportarGrid& data) {
    data.m_ExtensionFichero.m_Maximo = {10.5, 20.5, 30.5, 1};
    data.m_ExtensionFichero.m_Minimo = {-10.5, -20.5, -30.5, 2};
    data.m_Extension.m_Maximo = {437200.25, 4486300.125, 31, 3};
    data.m_Extension.m_Minimo = {-6.123456, -0.5, -31, 4};
    data.m_Paso = {0.25, 0.75, 32, 5};
    data.m_Razon = 3;
    data.m_PuntosFichero = 10800;
    data.m_PuntosImportar = 1200;
    data.m_NoData = -32768;
    data.m_Elipsoide = Cotana::CElipsoide(26, L"WGS-84", 6378137.0, 0.00669438);
}

inline void Rellena(CDataImportarGTOPO30& data) {
    Rellena(static_cast<CDataImportarGrid&>(data));
    data.m_Huso = 29;
    data.m_TipoProyeccion = 2;
}

/// A record of which every field has another value than at first.
template <class Data>
Data Relleno() {
    Data data;
    Rellena(data);
    return data;
}

/// For its life the C runtime counts by this locale: "" is the user's.
class ConLocal {
public:
    explicit ConLocal(const char* local) : m_Antes(std::setlocale(LC_ALL, nullptr)) {
        EXPECT_NE(std::setlocale(LC_ALL, local), nullptr) << local;
    }
    ~ConLocal() { std::setlocale(LC_ALL, m_Antes.c_str()); }
    ConLocal(const ConLocal&) = delete;
    ConLocal& operator=(const ConLocal&) = delete;

private:
    std::string m_Antes;
};

} // namespace
