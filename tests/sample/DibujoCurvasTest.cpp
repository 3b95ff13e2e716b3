// The user has accepted the contour options. The host draws what the record says.
#include "sample/DibujoCurvas.h"

#include "kit/kit.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "DrawingsFolder.h"

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

/// A square pit, 100.5 m high in its middle and 1 m higher with each cell off it. Its contours are
/// rings round lower ground.
ElevationGrid Hoyo() {
    constexpr int lado = 21, medio = lado / 2;
    std::vector<double> cotas;
    for (int fila = 0; fila < lado; ++fila)
        for (int columna = 0; columna < lado; ++columna)
            cotas.push_back(100.5 + std::max(std::abs(fila - medio), std::abs(columna - medio)));
    return {lado, Celda, {437200, 4486300}, std::move(cotas)};
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
        terreno.carpetaDibujos = carpeta.Name();
        Cotana::CDataCurvado& data = terreno.curvado;
        data.m_Escala = 5000; // the plane is 40 mm by 20 mm on paper
        data.m_Equidistancia = 2;
        data.m_EquidistanciaMaestra = 10;
        data.m_RangoCota = FALSE;
        data.m_TextoCurvas = FALSE;
        data.m_CodigoCurvas1 = L"CN";
        data.m_CodigoCurvas2 = L"CNM";
        data.m_CodigoCurvas3 = L"CND";
        data.m_CodigoCurvas4 = L"CNMD";
        data.m_CodigoCurvas5 = L"CNT";
    }

    CString Ruta(const wchar_t* nombre) const { return carpeta.File(nombre); }

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

    /// The value that each of the labels has in a group of the DXF file.
    Textos DeRotulos(int grupo) const {
        Textos valores;
        std::istringstream lineas(Dxf());
        std::string codigo, valor, cosa;
        for (std::getline(lineas, valor); std::getline(lineas, codigo);) {
            std::getline(lineas, valor);
            valor.pop_back(); // the carriage return
            if (std::stoi(codigo) == 0)
                cosa = valor;
            else if (cosa == "TEXT" && std::stoi(codigo) == grupo)
                valores.push_back(valor);
        }
        return valores;
    }

    /// Asks for labels; lengths in mm on paper.
    void PideRotulos(double altura, double separacion, bool soloMaestras) {
        terreno.curvado.m_TextoCurvas = TRUE;
        terreno.curvado.m_TextoValor1 = altura;
        terreno.curvado.m_TextoValor2 = separacion;
        terreno.curvado.m_OpcionTexto = soloMaestras;
    }

    const DrawingsFolder carpeta;
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
    PideRotulos(2, 50, true);
    Dibuja();
    EXPECT_EQ(CapasDeCurvas(),
              (Textos{"CN", "CN", "CN", "CN", "CNM", "CN", "CN", "CN", "CN", "CNM"}));
    EXPECT_EQ(DeRotulos(8), (Textos{"CNT", "CNT"}));
}

TEST_F(DibujoCurvas, LabelsComeWithTheirBoxOnly) {
    EXPECT_NE(DibujaCurvas(terreno).texto.Find(L"10 contours and 0 labels drawn"), -1);
    PideRotulos(2, 50, true);
    terreno.curvado.m_TextoEntero = 1;
    Dibuja();
    EXPECT_EQ(DeRotulos(1), (Textos{"110.0", "120.0"}));
}

TEST_F(DibujoCurvas, AllContoursAreLabelledWhereTheRecordSaysSo) {
    PideRotulos(0.5, 50, false);
    Dibuja();
    EXPECT_EQ(DeRotulos(1),
              (Textos{"102", "104", "106", "108", "110", "112", "114", "116", "118", "120"}));
}

TEST_F(DibujoCurvas, LabelsHaveTheRecordsHeightAndSpacing) {
    PideRotulos(0.4, 5, true);
    Dibuja();
    EXPECT_EQ(DeRotulos(40), Textos(8, "2.000")); // 4 on each of the two lines of 20 mm
    PideRotulos(0.6, 10, true);
    Dibuja();
    EXPECT_EQ(DeRotulos(40), Textos(4, "3.000"));
}

TEST_F(DibujoCurvas, WithoutItsLabelsItIsDrawnAllTheSame) {
    PideRotulos(0, 50, true);
    EXPECT_EQ(Dibuja().size(), 10U);
    const CString texto = DibujaCurvas(terreno).texto;
    EXPECT_NE(texto.Find(L"10 contours and 0 labels drawn: contours.dxf"), -1);
    EXPECT_NE(texto.Find(L". No labels: the height and the spacing of labels have to be above 0."),
              -1)
        << texto.GetString();
}

TEST_F(DibujoCurvas, RingsRoundLowerGroundHaveCodesOfTheirOwn) {
    terreno.modelo = Hoyo();
    EXPECT_EQ(Dibuja(), (Cotas{102, 104, 106, 108, 110}));
    EXPECT_EQ(CapasDeCurvas(), (Textos{"CND", "CND", "CND", "CND", "CNMD"}));
}

TEST_F(DibujoCurvas, HasItsTitleAndTheRecordsScale) {
    Dibuja();
    const std::string svg = Lee(Ruta(L"contours.svg"));
    EXPECT_NE(svg.find("<title>Contours</title>"), svg.npos);
    EXPECT_NE(svg.find("; scale 1:5000<"), svg.npos);
    EXPECT_EQ(Valores(svg, "mm\" height=\""), Textos{"20.000mm"});
}

TEST_F(DibujoCurvas, WhatIsLeftOutIsSaid) {
    Cotana::CDataCurvado& data = terreno.curvado;
    data.m_TipoSuavizado = -1;
    EXPECT_EQ(DibujaCurvas(terreno).texto.Find(L"without"), -1);
    const auto dice = [&](const wchar_t* que) {
        const CString texto = DibujaCurvas(terreno).texto;
        EXPECT_NE(texto.Find(CString(L" drawn, without ") + que + L": contours.dxf"), -1)
            << texto.GetString();
    };
    data.m_TipoSuavizado = 1;
    dice(L"the smoothing");
    data.m_Limite = TRUE;
    dice(L"the boundary and the smoothing");
    data.m_RespetarCurvas = TRUE;
    dice(L"the boundary, the contours to respect and the smoothing");
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

TEST_F(DibujoCurvas, HalfADrawingIsSaid) {
    CreateDirectoryW(Ruta(L"contours.svg"), nullptr);
    const Hecho hecho = DibujaCurvas(terreno);
    EXPECT_TRUE(hecho.fallo);
    EXPECT_NE(hecho.texto.Find(L"contours.svg: the file cannot be written"), -1);
    EXPECT_NE(hecho.texto.Find(L"; contours.dxf was written"), -1) << hecho.texto.GetString();
    EXPECT_FALSE(Dxf().empty());
    RemoveDirectoryW(Ruta(L"contours.svg"));
}

TEST_F(DibujoCurvas, FolderThatIsGoneIsSaid) {
    terreno.carpetaDibujos += L"\\gone";
    const Hecho hecho = DibujaCurvas(terreno);
    EXPECT_TRUE(hecho.fallo);
    EXPECT_NE(hecho.texto.Find(L"contours.dxf: "), -1) << hecho.texto.GetString();
}
