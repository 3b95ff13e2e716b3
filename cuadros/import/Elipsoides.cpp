#include "cuadros/import/Elipsoides.h"

namespace Cuadros {

const std::array<Cotana::CElipsoide, 28>& Elipsoides() {
    static const std::array<Cotana::CElipsoide, 28> tabla = {{
        {-1, L"Definido por el usuario", 0.0, 0.0},
        {1, L"ATS-77", 6378135.0, 0.006694385},
        {2, L"Airy", 6377563.396, 0.00667054},
        {3, L"Airy Modificado", 6377340.189, 0.00667054},
        {4, L"Australian National", 6378160.0, 0.006694542},
        {5, L"Beijing-54", 6378245.0, 0.006693422},
        {6, L"Bessel 1841", 6377397.155, 0.006674372},
        {7, L"Bessel 1841 (Namibia)", 6377484.0, 0.006674372},
        {8, L"Clarke 1866", 6378206.4, 0.006768658},
        {9, L"Clarke 1880", 6378249.145, 0.006803511},
        {10, L"Everest", 6377276.345, 0.006637847},
        {11, L"Everest Brunei/E.Malasia", 6377298.556, 0.006637847},
        {12, L"Everest W.Malasia/Singapur", 6377304.063, 0.006637847},
        {13, L"Fischer 1960 (Mercury)", 6378166.0, 0.006693422},
        {14, L"Fischer 1960 (Sur de Asia)", 6378155.0, 0.006693422},
        {15, L"Fischer 1968", 6378150.0, 0.006693422},
        {16, L"GRS 1967", 6378160.0, 0.006694605},
        {17, L"GRS 1980", 6378137.0, 0.00669438},
        {18, L"Helmert 1906", 6378200.0, 0.006693422},
        {19, L"Hough 1956", 6378270.0, 0.00672267},
        {20, L"Internacional (Hayford)", 6378388.0, 0.00672267},
        {21, L"Krassowski", 6378245.0, 0.006693422},
        {22, L"Sud-Americano 1969", 6378160.0, 0.006694542},
        {23, L"WGS 60", 6378165.0, 0.006693422},
        {24, L"WGS 66", 6378145.0, 0.006694542},
        {25, L"WGS-72", 6378135.0, 0.006694318},
        {26, L"WGS-84", 6378137.0, 0.00669438},
        {27, L"Xi'an-80", 6378140.0, 0.006694385},
    }};
    return tabla;
}

namespace {

// The table is built while the library is loaded, or for a static object that asks earlier.
[[maybe_unused]] const auto& alCargar = Elipsoides();

} // namespace

} // namespace Cuadros
