// The user has accepted the contour options. The host draws what the record says.
#include "sample/DibujoCurvas.h"

#include "kit/kit.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr int Columnas = 21;
constexpr int Filas = 11;
constexpr double Celda = 10;

/// A plane that rises to the east, 1 m in each cell: from 100 m to 120 m. Its contours are straight
/// lines from south to north.
ElevationGrid Plano() {
    std::vector<double> cotas;
    for (int fila = 0; fila < Filas; ++fila)
        for (int columna = 0; columna < Columnas; ++columna)
            cotas.push_back(100 + columna);
    return {Columnas, Celda, {437200, 4486300}, std::move(cotas)};
}

using Textos = std::vector<std::string>;
using Cotas = std::vector<double>;

std::string Lee(const CString& fichero) {
    std::ifstream entrada(std::wstring(fichero).c_str(), std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

/// The values of an attribute, in their order.
Textos Valores(const std::string& texto, const std::string& antes) {
    Textos valores;
    for (size_t i = texto.find(antes); i != texto.npos; i = texto.find(antes, i)) {
        i += antes.size();
        valores.push_back(texto.substr(i, texto.find_first_of("\"\r\n", i) - i));
    }
    return valores;
}

class DibujoCurvas : public testing::Test {
protected:
    DibujoCurvas() {
        terreno.modelo = Plano();
        wchar_t carpeta[MAX_PATH];
        GetTempPathW(MAX_PATH, carpeta);
        wchar_t nombre[MAX_PATH];
        GetTempFileNameW(carpeta, L"cur", 0, nombre);
        DeleteFileW(nombre);
        CreateDirectoryW(nombre, nullptr);
        terreno.carpetaDibujos = nombre;
        Cotana::CDataCurvado& data = terreno.curvado;
        data.m_Escala = 1000;
        data.m_Equidistancia = 2;
        data.m_EquidistanciaMaestra = 10;
        data.m_RangoCota = FALSE;
        data.m_TextoCurvas = FALSE;
        data.m_CodigoCurvas1 = L"CN";
        data.m_CodigoCurvas2 = L"CNM";
        data.m_CodigoCurvas5 = L"CNT";
    }
    ~DibujoCurvas() override {
        DeleteFileW(Ruta(L"contours.dxf"));
        DeleteFileW(Ruta(L"contours.svg"));
        RemoveDirectoryW(terreno.carpetaDibujos);
    }

    CString Ruta(const wchar_t* nombre) const { return terreno.carpetaDibujos + L"\\" + nombre; }

    /// The elevations of the contours that are in the drawing, the lowest first.
    std::vector<double> Dibuja() {
        const Hecho hecho = DibujaCurvas(terreno);
        EXPECT_FALSE(hecho.fallo) << hecho.texto.GetString();
        EXPECT_EQ(hecho.dibujo, L"contours.svg");
        std::vector<double> cotas;
        for (const std::string& cota : Valores(Lee(Ruta(L"contours.svg")), "data-elevation=\""))
            cotas.push_back(std::stod(cota));
        std::ranges::sort(cotas); // master contours are drawn over the others
        return cotas;
    }

    /// What is drawn, in the DXF file.
    std::string Dxf() const {
        const std::string dxf = Lee(Ruta(L"contours.dxf"));
        return dxf.substr(std::min(dxf.find("ENTITIES"), dxf.size()));
    }
    Textos CapasDeCurvas() const { return Valores(Dxf(), "\r\nPOLYLINE\r\n8\r\n"); }
    Textos CapasDeRotulos() const { return Valores(Dxf(), "\r\nTEXT\r\n8\r\n"); }

    Terreno terreno;
};

} // namespace

TEST_F(DibujoCurvas, ContoursStandAtTheInterval) {
    EXPECT_EQ(Dibuja(), (Cotas{102, 104, 106, 108, 110, 112, 114, 116, 118, 120}));
}

TEST_F(DibujoCurvas, OnlyTheRangeIsDrawnBothBoundsIncluded) {
    terreno.curvado.m_RangoCota = TRUE;
    terreno.curvado.m_CotaMinima = 104;
    terreno.curvado.m_CotaMaxima = 110;
    EXPECT_EQ(Dibuja(), (Cotas{104, 106, 108, 110}));
}

TEST_F(DibujoCurvas, RangeThatIsNotTickedCountsForNothing) {
    terreno.curvado.m_CotaMinima = 104;
    terreno.curvado.m_CotaMaxima = 110;
    EXPECT_EQ(Dibuja().size(), 10U);
}

TEST_F(DibujoCurvas, CodesAreTheLayersAndMastersHaveTheirOwn) {
    terreno.curvado.m_TextoCurvas = TRUE;
    terreno.curvado.m_TextoValor1 = 2;
    terreno.curvado.m_TextoValor2 = 50;
    Dibuja();
    EXPECT_EQ(CapasDeCurvas(),
              (Textos{"CN", "CN", "CN", "CN", "CNM", "CN", "CN", "CN", "CN", "CNM"}));
    const Textos rotulos = CapasDeRotulos();
    EXPECT_FALSE(rotulos.empty());
    for (const std::string& capa : rotulos)
        EXPECT_EQ(capa, "CNT");
}

TEST_F(DibujoCurvas, LabelsComeWithTheirBoxOnly) {
    EXPECT_NE(DibujaCurvas(terreno).texto.Find(L"10 contours and 0 labels drawn"), -1);
    terreno.curvado.m_TextoCurvas = TRUE;
    terreno.curvado.m_TextoValor1 = 2;
    terreno.curvado.m_TextoValor2 = 50;
    terreno.curvado.m_OpcionTexto = TRUE;
    terreno.curvado.m_TextoEntero = 1;
    Dibuja();
    for (const char* const rotulo : {"110.0", "120.0"})
        EXPECT_NE(Dxf().find("\r\n1\r\n" + std::string(rotulo) + "\r\n"), std::string::npos);
    EXPECT_EQ(Dxf().find("\r\n1\r\n112.0\r\n"), std::string::npos);
}

TEST_F(DibujoCurvas, LayerWithoutACodeHasANameAllTheSame) {
    terreno.curvado.m_CodigoCurvas1.Empty();
    Dibuja();
    EXPECT_EQ(CapasDeCurvas().at(0), "CONTOURS");
}

TEST_F(DibujoCurvas, TooManyContoursAreRefused) {
    terreno.curvado.m_Equidistancia = 1e-6;
    const Hecho hecho = DibujaCurvas(terreno);
    EXPECT_TRUE(hecho.fallo);
    EXPECT_NE(hecho.texto.Find(L"10000"), -1) << hecho.texto.GetString();
    EXPECT_EQ(hecho.dibujo, L"");
    EXPECT_EQ(GetFileAttributesW(Ruta(L"contours.dxf")), INVALID_FILE_ATTRIBUTES);
}

TEST_F(DibujoCurvas, FolderThatIsGoneIsSaid) {
    const CString carpeta = terreno.carpetaDibujos;
    terreno.carpetaDibujos += L"\\gone";
    const Hecho hecho = DibujaCurvas(terreno);
    EXPECT_TRUE(hecho.fallo);
    EXPECT_NE(hecho.texto.Find(L"contours.dxf: "), -1) << hecho.texto.GetString();
    terreno.carpetaDibujos = carpeta;
}
