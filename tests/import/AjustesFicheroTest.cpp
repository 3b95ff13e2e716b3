// A host keeps what a user chose in a file that it names, and shows it the next time, in this
// installation or in another one.
#include "Registros.h"
#include "framework/modules/ModuleFiles.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>
#include <vector>

namespace {

const CString Seccion = L"Importar";

class AjustesFichero : public testing::Test {
protected:
    CString Ruta(const wchar_t* nombre = L"ajustes.ini") const {
        return (carpeta.path() / nombre).c_str();
    }

    /// The file holds these lines.
    void Pon(const std::string& lineas) const {
        std::ofstream(std::filesystem::path(Ruta().GetString()), std::ios::binary) << lineas;
    }

    /// The lines of the file, without blank ones.
    std::vector<std::string> Lineas() const {
        std::ifstream fichero(std::filesystem::path(Ruta().GetString()));
        std::vector<std::string> lineas;
        for (std::string linea; std::getline(fichero, linea);) {
            if (!linea.empty())
                lineas.push_back(linea);
        }
        return lineas;
    }

    /// A record after reading this value of a key.
    CDataImportarGTOPO30 Leido(const std::string& linea) const {
        Pon("[Importar]\r\n" + linea + "\r\n");
        auto data = Relleno<CDataImportarGTOPO30>();
        data.GetPrivateProfile(Ruta(), Seccion);
        return data;
    }

    /// The text that is written for the lowest x.
    std::string Escrito(double valor) const {
        CDataImportarGrid data;
        data.m_Extension.m_Minimo.m_X = valor;
        data.WritePrivateProfile(Ruta(), Seccion);
        return Lineas().at(1);
    }

    TemporaryFolder carpeta;
    ConLocal local{""};
};

} // namespace

TEST_F(AjustesFichero, KeepsTheChoiceOfAGrid) {
    const auto data = Relleno<CDataImportarGrid>();
    data.WritePrivateProfile(Ruta(), Seccion);
    CDataImportarGrid leido;
    leido.GetPrivateProfile(Ruta(), Seccion);
    EXPECT_EQ(Guardado(leido), Guardado(data));
}

TEST_F(AjustesFichero, KeepsTheChoiceOfATile) {
    const auto data = Relleno<CDataImportarGTOPO30>();
    data.WritePrivateProfile(Ruta(), Seccion);
    CDataImportarGTOPO30 leido;
    leido.GetPrivateProfile(Ruta(), Seccion);
    EXPECT_EQ(Guardado(leido), Guardado(data));
}

TEST_F(AjustesFichero, HasNothingButTheChoiceInItsOrder) {
    Relleno<CDataImportarGTOPO30>().WritePrivateProfile(Ruta(), Seccion);
    EXPECT_EQ(Lineas(), (std::vector<std::string>{"[Importar]", "Huso=29", "TipoProyeccion=2",
                                                  "XMinima=-6.123456", "XMaxima=437200.250000",
                                                  "YMinima=-0.500000", "YMaxima=4486300.125000",
                                                  "Razon=3", "NoData=-32768"}));
}

TEST_F(AjustesFichero, GridOfATileWritesItsOwnAlone) {
    const auto data = Relleno<CDataImportarGTOPO30>();
    static_cast<const CDataImportarGrid&>(data).WritePrivateProfile(Ruta(), Seccion);
    EXPECT_EQ(Lineas(),
              (std::vector<std::string>{"[Importar]", "XMinima=-6.123456", "XMaxima=437200.250000",
                                        "YMinima=-0.500000", "YMaxima=4486300.125000", "Razon=3",
                                        "NoData=-32768"}));
}

TEST_F(AjustesFichero, ReadingChangesNothingElse) {
    CDataImportarGTOPO30().WritePrivateProfile(Ruta(), Seccion);
    auto data = Relleno<CDataImportarGTOPO30>();
    auto esperado = data;
    data.GetPrivateProfile(Ruta(), Seccion);
    for (auto* esquina : {&esperado.m_Extension.m_Maximo, &esperado.m_Extension.m_Minimo})
        esquina->m_X = esquina->m_Y = 0;
    esperado.m_Razon = 1;
    esperado.m_NoData = -9999;
    esperado.m_Huso = 30;
    esperado.m_TipoProyeccion = 1;
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_F(AjustesFichero, LeavesEveryFieldWhereTheSectionIsMissing) {
    Pon("[Otra]\r\nRazon=9\r\nXMinima=9\r\n");
    auto data = Relleno<CDataImportarGTOPO30>();
    data.m_Extension.m_Maximo.m_X = 0.12345678901;
    const auto antes = data;
    data.GetPrivateProfile(Ruta(), Seccion);
    EXPECT_EQ(Campos(data), Campos(antes));
    data.GetPrivateProfile(Ruta(L"no hay.ini"), Seccion);
    EXPECT_EQ(Campos(data), Campos(antes));
}

TEST_F(AjustesFichero, LeavesTheFieldOfAKeyThatIsMissingOrEmpty) {
    const auto antes = Relleno<CDataImportarGTOPO30>();
    EXPECT_EQ(Campos(Leido("")), Campos(antes));
    EXPECT_EQ(Campos(Leido("XMinima=\r\nYMaxima=   \r\nRazon=\r\nHuso=")), Campos(antes));
    auto esperado = antes;
    esperado.m_Extension.m_Minimo.m_Y = 7.25;
    EXPECT_EQ(Campos(Leido("YMinima=7.25")), Campos(esperado));
    esperado = antes;
    esperado.m_NoData = 0;
    EXPECT_EQ(Campos(Leido("NoData=0")), Campos(esperado));
}

TEST_F(AjustesFichero, TextThatIsNoNumberIsZero) {
    const auto data = Leido("Huso=abc\r\nTipoProyeccion=abc\r\nXMinima=abc\r\nXMaxima=abc\r\n"
                            "YMinima=abc\r\nYMaxima=abc\r\nRazon=abc\r\nNoData=abc");
    EXPECT_EQ(Guardado(data), std::make_tuple(0, 0, 0.0, 0.0, 0.0, 0.0, 0, 0));
}

TEST_F(AjustesFichero, NumberEndsWhereItsDigitsEnd) {
    EXPECT_EQ(Leido("Razon=0x10").m_Razon, 0);
    EXPECT_EQ(Leido("Razon=4 nodes").m_Razon, 4);
    EXPECT_EQ(Leido("Razon=2.9").m_Razon, 2);
    EXPECT_EQ(Leido("XMinima=1.5 m").m_Extension.m_Minimo.m_X, 1.5);
    EXPECT_EQ(Leido("XMinima=2,5").m_Extension.m_Minimo.m_X, 2);
    EXPECT_EQ(Leido("XMinima=\"2.5\"").m_Extension.m_Minimo.m_X, 2.5);
}

TEST_F(AjustesFichero, WritesWithADecimalPointInACountryOfCommas) {
    const ConLocal aleman("German");
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(Escrito(0.5), "XMinima=0.500000");
    EXPECT_EQ(Leido("XMinima=0.500000").m_Extension.m_Minimo.m_X, 0.5);
    EXPECT_EQ(Leido("XMinima=0,500000").m_Extension.m_Minimo.m_X, 0);
}

TEST_F(AjustesFichero, WritesSixDecimals) {
    EXPECT_EQ(Escrito(1.0 / 3), "XMinima=0.333333");
    EXPECT_EQ(Escrito(-0.0000004), "XMinima=-0.000000");
    EXPECT_EQ(Escrito(1e15), "XMinima=1000000000000000.000000");
}

TEST_F(AjustesFichero, WholeRangeOfIntegersComesBack) {
    for (const int numero :
         {-9999, 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        CDataImportarGrid data;
        data.m_Razon = data.m_NoData = numero;
        data.WritePrivateProfile(Ruta(), Seccion);
        EXPECT_EQ(Lineas().at(5), "Razon=" + std::to_string(numero));
        EXPECT_EQ(Lineas().at(6), "NoData=" + std::to_string(numero));
        CDataImportarGrid leido;
        leido.GetPrivateProfile(Ruta(), Seccion);
        EXPECT_EQ(leido.m_Razon, numero);
        EXPECT_EQ(leido.m_NoData, numero);
    }
}

// 255 characters go in: 248 digits, the point and six decimals.
TEST_F(AjustesFichero, ValueThatIsTooLongIsLeftEmpty) {
    EXPECT_EQ(Escrito(1.5e247).size(), 8U + 255U);
    EXPECT_EQ(Escrito(-1.5e246).size(), 8U + 255U);
    for (const double valor : {1.5e248, -1.5e247, 1e300, -std::numeric_limits<double>::max()})
        EXPECT_EQ(Escrito(valor), "XMinima=") << valor;

    CDataImportarGrid data;
    data.m_Extension.m_Minimo.m_X = 1.5e247;
    data.m_Extension.m_Maximo.m_X = 1.5e248;
    data.m_Razon = 5;
    data.WritePrivateProfile(Ruta(), Seccion);
    CDataImportarGrid leido;
    leido.m_Extension.m_Maximo.m_X = 7;
    leido.GetPrivateProfile(Ruta(), Seccion);
    EXPECT_EQ(leido.m_Extension.m_Minimo.m_X, 1.5e247);
    EXPECT_EQ(leido.m_Extension.m_Maximo.m_X, 7);
    EXPECT_EQ(leido.m_Razon, 5);
}

TEST_F(AjustesFichero, WhatIsNoFiniteNumberLeavesTheOthersWhole) {
    for (const double valor : {std::nan(""), std::numeric_limits<double>::infinity(), -HUGE_VAL}) {
        auto data = Relleno<CDataImportarGrid>();
        data.m_Extension.m_Maximo.m_X = valor;
        data.WritePrivateProfile(Ruta(), Seccion);
        CDataImportarGrid leido;
        leido.GetPrivateProfile(Ruta(), Seccion);
        data.m_Extension.m_Maximo.m_X = leido.m_Extension.m_Maximo.m_X;
        EXPECT_EQ(Guardado(leido), Guardado(data)) << valor;
    }
}

TEST_F(AjustesFichero, LeavesWhatElseTheFileHas) {
    Pon("; mine\r\n[Otra]\r\nRazon=9\r\n[Importar]\r\nColor=red\r\nRazon=9\r\n");
    CDataImportarGrid data;
    data.m_Razon = 4;
    data.WritePrivateProfile(Ruta(), Seccion);
    const std::vector<std::string> lineas = Lineas();
    ASSERT_EQ(lineas.size(), 11U);
    EXPECT_EQ(std::vector<std::string>(lineas.begin(), lineas.begin() + 6),
              (std::vector<std::string>{"; mine", "[Otra]", "Razon=9", "[Importar]", "Color=red",
                                        "Razon=4"}));
}

TEST_F(AjustesFichero, TakesOddNamesOfFilesAndSections) {
    auto data = Relleno<CDataImportarGTOPO30>();
    for (const wchar_t* nombre : {L"two words.ini", L"no extension", L"a=b;c[d].ini"}) {
        for (const wchar_t* seccion :
             {L"two words", L"a=b", L"; no comment", L"Sección", L"C:\\maps\\tile", L"[a"}) {
            ++data.m_Razon;
            data.WritePrivateProfile(Ruta(nombre), seccion);
            CDataImportarGTOPO30 leido;
            leido.GetPrivateProfile(Ruta(nombre), seccion);
            EXPECT_EQ(Guardado(leido), Guardado(data))
                << kit::utf8(nombre) << " " << kit::utf8(seccion);
        }
    }
}

TEST_F(AjustesFichero, NameMayBeOfAnyLanguage) {
    const auto data = Relleno<CDataImportarGrid>();
    data.WritePrivateProfile(Ruta(L"Rejilla señal 中.ini"), Seccion);
    EXPECT_TRUE(std::filesystem::exists(carpeta.path() / L"Rejilla señal 中.ini"));
    CDataImportarGrid leido;
    leido.GetPrivateProfile(Ruta(L"Rejilla señal 中.ini"), Seccion);
    EXPECT_EQ(Guardado(leido), Guardado(data));
}

TEST_F(AjustesFichero, SectionMayBeLong) {
    const CString seccion(L's', 1000);
    const auto data = Relleno<CDataImportarGrid>();
    data.WritePrivateProfile(Ruta(), seccion);
    CDataImportarGrid leido;
    leido.GetPrivateProfile(Ruta(), seccion);
    EXPECT_EQ(Guardado(leido), Guardado(data));
}

TEST_F(AjustesFichero, PathThatCannotBeIsNoFailure) {
    auto data = Relleno<CDataImportarGTOPO30>();
    const auto antes = data;
    for (const CString& ruta :
         {Ruta() + CString(L'x', 40000), Ruta(L"no folder\\a.ini"), CString(L"?:\\a|b.ini")}) {
        data.WritePrivateProfile(ruta, Seccion);
        data.GetPrivateProfile(ruta, Seccion);
        EXPECT_EQ(Campos(data), Campos(antes));
    }
}

// As the platform has it: its own folder, not the current one.
TEST_F(AjustesFichero, NameWithoutAFolderIsInTheWindowsFolder) {
    wchar_t windows[MAX_PATH];
    ::GetWindowsDirectoryW(windows, MAX_PATH);
    const std::wstring nombre =
        L"import-test-" + std::to_wstring(::GetCurrentProcessId()) + L".ini";
    const std::filesystem::path fichero = std::filesystem::path(windows) / nombre;
    Relleno<CDataImportarGrid>().WritePrivateProfile(nombre.c_str(), Seccion);
    EXPECT_TRUE(std::filesystem::exists(fichero));
    CDataImportarGrid leido;
    leido.GetPrivateProfile(nombre.c_str(), Seccion);
    EXPECT_EQ(leido.m_Razon, 3);
    std::filesystem::remove(fichero);
}
