// The user has accepted an import. The host writes the nodes that were counted, and counts them
// again.
#include "sample/ImportaTerreno.h"

#include "framework/modules/ModuleFiles.h"
#include "kit/kit.h"
#include "sample/terrain/AscGridFile.h"

#include <filesystem>
#include <fstream>
#include <string>

#include "Tiles.h"

namespace {

class ImportaTerreno : public testing::Test {
protected:
    ImportaTerreno() {
        terreno.ficheroRejilla = HILLS_FILE;
        terreno.ficheroTesela = TILE_FILE;
        terreno.carpetaDibujos = carpeta.path().c_str();
        EXPECT_EQ(PreparaImportacion(terreno), L"");
    }

    CString Ruta(const wchar_t* nombre) const { return (carpeta.path() / nombre).c_str(); }
    bool Hay(const wchar_t* nombre) const {
        return std::filesystem::exists(carpeta.path() / nombre);
    }

    std::string Escribe(const wchar_t* nombre, const std::string& bytes) const {
        std::ofstream(carpeta.path() / nombre, std::ios::binary) << bytes;
        return bytes;
    }

    /// The result of an import that was carried out, without the folders of the files.
    std::wstring Hecha(const Hecho& hecho) const {
        EXPECT_FALSE(hecho.fallo);
        EXPECT_EQ(hecho.dibujo, L"");
        return SinCarpeta(hecho.texto);
    }
    std::wstring Fallida(const Hecho& hecho) const {
        EXPECT_TRUE(hecho.fallo);
        return SinCarpeta(hecho.texto);
    }
    std::wstring SinCarpeta(CString texto) const {
        for (CString fichero : {CString(HILLS_FILE), Ruta(L"hills.asc")})
            texto.Replace(fichero.Left(fichero.GetLength() - 9), L"");
        texto.Replace(carpeta.path().c_str(), L"FOLDER");
        return texto.GetString();
    }

    TemporaryFolder carpeta;
    Terreno terreno;
};

} // namespace

TEST_F(ImportaTerreno, RecordsAreTheWholeFiles) {
    const CDataImportarGrid& rejilla = terreno.importarGrid;
    EXPECT_EQ(rejilla.m_ExtensionFichero.m_Minimo.m_X, 437200);
    EXPECT_EQ(rejilla.m_ExtensionFichero.m_Maximo.m_X, 438400);
    EXPECT_EQ(rejilla.m_ExtensionFichero.m_Minimo.m_Y, 4486300);
    EXPECT_EQ(rejilla.m_ExtensionFichero.m_Maximo.m_Y, 4487200);
    EXPECT_EQ(rejilla.m_Paso.m_X, 10);
    EXPECT_EQ(rejilla.m_Paso.m_Y, 10);
    EXPECT_EQ(rejilla.m_PuntosFichero, 120 * 90);
    EXPECT_EQ(rejilla.m_Razon, 1);

    const CDataImportarGTOPO30& tesela = terreno.importarGTOPO30;
    EXPECT_NEAR(tesela.m_Extension.m_Minimo.m_X, -6, 1e-9);
    EXPECT_NEAR(tesela.m_Extension.m_Maximo.m_X, -5, 1e-9);
    EXPECT_NEAR(tesela.m_Extension.m_Minimo.m_Y, 40.25, 1e-9);
    EXPECT_NEAR(tesela.m_Extension.m_Maximo.m_Y, 41, 1e-9);
    EXPECT_EQ(tesela.m_PuntosFichero, 120 * 90);
    EXPECT_EQ(tesela.m_Elipsoide.GetNombre(), L"WGS-84");
    EXPECT_EQ(tesela.m_Elipsoide.GetIndice(), 26);
}

TEST_F(ImportaTerreno, RecordsAreNotFilledFromABadFile) {
    terreno.ficheroTesela = Ruta(L"none.DEM");
    EXPECT_EQ(SinCarpeta(PreparaImportacion(terreno)), L"none.DEM: there is no such file");
    terreno.ficheroRejilla = Ruta(L"none.asc");
    EXPECT_EQ(SinCarpeta(PreparaImportacion(terreno)), L"none.asc: there is no such file");
}

TEST_F(ImportaTerreno, GridIsWrittenAtTheRatio) {
    CDataImportarGrid& data = terreno.importarGrid;
    data.m_Extension.m_Minimo.m_X = 437800;
    data.m_Razon = 7;
    data.m_PuntosImportar = 8 * 12;
    EXPECT_EQ(Hecha(ImportaRejilla(terreno)),
              L"96 nodes imported, as many as were counted: imported-grid.asc in FOLDER.");
    ElevationGrid escrita;
    ASSERT_EQ(ReadAscGridFile(Ruta(L"imported-grid.asc"), escrita), L"");
    EXPECT_EQ(escrita.Columns(), 8);
    EXPECT_EQ(escrita.Rows(), 12);
    EXPECT_EQ(escrita.CellSize(), 70);
    EXPECT_EQ(escrita.At(0, 11), (MapPoint{437805, 4486305}));
}

TEST_F(ImportaTerreno, ASingleNodeAndAMarkerThatIsNoNumberAreCounted) {
    Escribe(L"two.asc", "ncols 2 nrows 2 xllcorner 0 yllcorner 0 cellsize 1 nodata_value nan "
                        "1 2 nan 4");
    terreno.ficheroRejilla = Ruta(L"two.asc");
    ASSERT_EQ(PreparaImportacion(terreno), L"");
    terreno.importarGrid.m_Razon = 2;
    terreno.importarGrid.m_PuntosImportar = 1;
    EXPECT_EQ(Hecha(ImportaRejilla(terreno)),
              L"1 nodes imported, as many as were counted: imported-grid.asc in FOLDER.");
}

TEST_F(ImportaTerreno, AnotherCountThanTheDialogsIsAFailure) {
    terreno.importarGrid.m_PuntosImportar = 10801;
    EXPECT_EQ(Fallida(ImportaRejilla(terreno)),
              L"imported-grid.asc: there are 10800 nodes, 10800 by the header, but 10801 were "
              L"counted");
}

TEST_F(ImportaTerreno, WhereNoneWasCountedThereIsNoFileAndNoFailure) {
    terreno.importarGrid.m_Razon = 1000;
    terreno.importarGrid.m_PuntosImportar = 0;
    EXPECT_EQ(Hecha(ImportaRejilla(terreno)).find(L"No node is imported: hills.asc: the window "),
              0);
    EXPECT_FALSE(Hay(L"imported-grid.asc"));
}

TEST_F(ImportaTerreno, RectangleOutsideThatCountsIsAFailure) {
    // Its sides are negative, and so the dialog has counted some.
    Cotana::CMaximas<double>& extension = terreno.importarGTOPO30.m_Extension;
    extension.m_Minimo.m_X = extension.m_Minimo.m_Y = 10;
    extension.m_Maximo.m_X = extension.m_Maximo.m_Y = 11;
    terreno.importarGTOPO30.m_PuntosImportar = 100;
    EXPECT_EQ(Fallida(ImportaTesela(terreno)),
              L"W006N41.DEM: the window from 10, 10 to 11, 11 lies outside of the file");
    EXPECT_FALSE(Hay(L"imported-tile.asc"));
}

TEST_F(ImportaTerreno, TileStaysInDegreesAndTellsItsProjection) {
    CDataImportarGTOPO30& data = terreno.importarGTOPO30;
    data.m_Razon = 3;
    data.m_PuntosImportar = 40 * 30;
    data.m_Huso = 31;
    data.m_TipoProyeccion = 1;
    const std::wstring hecha =
        L"1200 nodes imported, as many as were counted: imported-tile.asc in FOLDER.";
    EXPECT_EQ(Hecha(ImportaTesela(terreno)),
              hecha + L" Projecting them is left to real hosts: UTM, zone 31, ellipsoid WGS-84.");
    ElevationGrid escrita;
    ASSERT_EQ(ReadAscGridFile(Ruta(L"imported-tile.asc"), escrita), L"");
    EXPECT_EQ(escrita.Columns(), 40);
    EXPECT_EQ(escrita.Rows(), 30);
    EXPECT_NEAR(escrita.At(0, 0).x, -6, 0.01);

    data.m_TipoProyeccion = 2;
    EXPECT_EQ(Hecha(ImportaTesela(terreno)),
              hecha + L" Projecting them is left to real hosts: equirectangular.");
    for (const int ninguna : {0, -1}) {
        data.m_TipoProyeccion = ninguna;
        EXPECT_EQ(Hecha(ImportaTesela(terreno)), hecha + L" They stay in longitude and latitude.");
    }
}

TEST_F(ImportaTerreno, BadFilesLeaveNoFile) {
    // The record was filled while the files were good.
    Escribe(L"cut.asc", "ncols 2 nrows 2 xllcorner 437200 yllcorner 4486300 cellsize 10 1 2 3");
    terreno.ficheroRejilla = Ruta(L"cut.asc");
    terreno.importarGrid.m_PuntosImportar = 4;
    EXPECT_EQ(Fallida(ImportaRejilla(terreno)),
              L"cut.asc(1): the file ends before row 2, column 2, of 2 rows of 2");
    EXPECT_FALSE(Hay(L"imported-grid.asc"));

    terreno.ficheroTesela = Ruta(L"w.DEM");
    EXPECT_EQ(Fallida(ImportaTesela(terreno)), L"w.DEM: there is no such file");
    Escribe(L"w.DEM", TileBytes({1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(Fallida(ImportaTesela(terreno)), L"w.HDR: there is no such file");
    Escribe(L"w.HDR", With(TileHeader, "BYTEORDER", "BYTEORDER I"));
    EXPECT_EQ(Fallida(ImportaTesela(terreno)), L"w.HDR(1): BYTEORDER is not M: I");
    Escribe(L"w.HDR", TileHeader);
    Escribe(L"w.DEM", TileBytes({1, 2, 3, 4, 5}));
    EXPECT_EQ(Fallida(ImportaTesela(terreno)),
              L"w.DEM: the file is too short: 10 bytes instead of 12 for 2 rows of 3");
    Escribe(L"w.DEM", TileBytes({1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(Fallida(ImportaTesela(terreno)),
              L"w.DEM: the file is too long: 14 bytes instead of 12 for 2 rows of 3");
    EXPECT_FALSE(Hay(L"imported-tile.asc"));
}

TEST_F(ImportaTerreno, NamesTheFileThatCannotBeWritten) {
    terreno.carpetaDibujos += L"\\gone";
    EXPECT_EQ(Fallida(ImportaRejilla(terreno)),
              L"gone\\imported-grid.asc: there is no such folder");
    EXPECT_EQ(Fallida(ImportaTesela(terreno)), L"gone\\imported-tile.asc: there is no such folder");
}
