#pragma once

#include "cuadros/import/DataImportarGrid.h"

/// Options of importing a GTOPO30 tile, whose nodes lie at degrees of longitude (x) and latitude
/// (y): those of a grid, and how the nodes are projected.
class CUADROS_API CDataImportarGTOPO30 : public CDataImportarGrid {
public:
    CDataImportarGTOPO30();
    CDataImportarGTOPO30(const CDataImportarGTOPO30&);
    CDataImportarGTOPO30& operator=(const CDataImportarGTOPO30&);
    ~CDataImportarGTOPO30() override;

    // As those of the grid, with two more numbers before its own: Huso and TipoProyeccion.

    void GetProfile(const CString& section);
    void WriteProfile(const CString& section) const;
    void GetPrivateProfile(const CString& file, const CString& section);
    void WritePrivateProfile(const CString& file, const CString& section) const;

    /// The UTM zone.
    int m_Huso = 30;
    /// How the nodes are projected, counted from 0 as the dialog lists it: of three, of which the
    /// second needs the zone and the ellipsoid.
    int m_TipoProyeccion = 1;
};
