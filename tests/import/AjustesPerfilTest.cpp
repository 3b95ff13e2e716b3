// A host keeps what a user chose in the profile of its own application, which is a file or the
// registry.
#include "Registros.h"
#include "frame/OtraAplicacion.h"
#include "framework/modules/ModuleFiles.h"
#include "kit/app/RecordingApp.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <vector>

namespace {

const CString Seccion = L"Importar";

enum class Lugar { Fichero, Registro };

const auto nombreDeLugar = [](const auto& info) {
    return std::string(info.param == Lugar::Fichero ? "file" : "registry");
};

/// An application whose profile is nobody else's.
class Aplicacion : public CWinApp {
public:
    Aplicacion() : CWinApp(L"Host") {}

    void EnFichero(const std::filesystem::path& fichero) {
        std::free(const_cast<LPTSTR>(m_pszProfileName));
        m_pszProfileName = ::_wcsdup(fichero.c_str());
    }
    void EnRegistro() { SetRegistryKey(L"Company"); }
};

/// For its life a key of the test stands in for the user's part of the registry.
class RegistroPropio {
public:
    RegistroPropio() {
        EXPECT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, m_Nombre.c_str(), 0, nullptr,
                                    REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &m_Clave,
                                    nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(::RegOverridePredefKey(HKEY_CURRENT_USER, m_Clave), ERROR_SUCCESS);
    }
    ~RegistroPropio() {
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        ::RegCloseKey(m_Clave);
        EXPECT_EQ(::RegDeleteTreeW(HKEY_CURRENT_USER, m_Nombre.c_str()), ERROR_SUCCESS);
    }
    RegistroPropio(const RegistroPropio&) = delete;
    RegistroPropio& operator=(const RegistroPropio&) = delete;

private:
    std::wstring m_Nombre = L"Software\\import-test-" + std::to_wstring(::GetCurrentProcessId());
    HKEY m_Clave = nullptr;
};

/// The host's application object has its profile in one of the two places.
class AjustesPerfil : public testing::TestWithParam<Lugar> {
protected:
    AjustesPerfil() {
        if (GetParam() == Lugar::Fichero)
            aplicacion.EnFichero(Fichero());
        else
            aplicacion.EnRegistro();
    }

    std::filesystem::path Fichero() const { return carpeta.path() / L"profile.ini"; }

    void Pon(LPCTSTR clave, LPCTSTR texto) {
        ASSERT_TRUE(aplicacion.WriteProfileString(Seccion, clave, texto));
    }

    /// A record after reading.
    CDataImportarGTOPO30 Leido() const {
        auto data = Relleno<CDataImportarGTOPO30>();
        data.GetProfile(Seccion);
        return data;
    }

    TemporaryFolder carpeta;
    RegistroPropio registro;
    Aplicacion aplicacion;
    OtraAplicacion actual{&aplicacion};
    ConLocal local{""};
};

class AjustesPerfilFichero : public AjustesPerfil {};
class AjustesPerfilRegistro : public AjustesPerfil {};

INSTANTIATE_TEST_SUITE_P(In, AjustesPerfil, testing::Values(Lugar::Fichero, Lugar::Registro),
                         nombreDeLugar);
INSTANTIATE_TEST_SUITE_P(In, AjustesPerfilFichero, testing::Values(Lugar::Fichero), nombreDeLugar);
INSTANTIATE_TEST_SUITE_P(In, AjustesPerfilRegistro, testing::Values(Lugar::Registro),
                         nombreDeLugar);

} // namespace

TEST_P(AjustesPerfil, KeepsTheChoiceOfAGrid) {
    const auto data = Relleno<CDataImportarGrid>();
    data.WriteProfile(Seccion);
    CDataImportarGrid leido;
    leido.GetProfile(Seccion);
    EXPECT_EQ(Guardado(leido), Guardado(data));
}

TEST_P(AjustesPerfil, KeepsTheChoiceOfATile) {
    const auto data = Relleno<CDataImportarGTOPO30>();
    data.WriteProfile(Seccion);
    CDataImportarGTOPO30 leido;
    leido.GetProfile(Seccion);
    EXPECT_EQ(Guardado(leido), Guardado(data));
    leido = CDataImportarGTOPO30();
    leido.GetProfile(L"Other");
    EXPECT_EQ(Campos(leido), Campos(CDataImportarGTOPO30()));
}

TEST_P(AjustesPerfil, ReadingChangesNothingElse) {
    CDataImportarGTOPO30().WriteProfile(Seccion);
    auto esperado = Relleno<CDataImportarGTOPO30>();
    for (auto* esquina : {&esperado.m_Extension.m_Maximo, &esperado.m_Extension.m_Minimo})
        esquina->m_X = esquina->m_Y = 0;
    esperado.m_Razon = 1;
    esperado.m_NoData = -9999;
    esperado.m_Huso = 30;
    esperado.m_TipoProyeccion = 1;
    EXPECT_EQ(Campos(Leido()), Campos(esperado));
}

TEST_P(AjustesPerfil, GridOfATileWritesItsOwnAlone) {
    const auto data = Relleno<CDataImportarGTOPO30>();
    static_cast<const CDataImportarGrid&>(data).WriteProfile(Seccion);
    CDataImportarGTOPO30 leido;
    leido.GetProfile(Seccion);
    EXPECT_EQ(leido.m_Huso, 30);
    EXPECT_EQ(leido.m_TipoProyeccion, 1);
    EXPECT_EQ(leido.m_Razon, 3);
}

TEST_P(AjustesPerfil, MissingSidesAreRoundedToSixDecimals) {
    auto data = Relleno<CDataImportarGTOPO30>();
    data.m_Extension.m_Minimo = {1.23456789, -0.00000049, 31.123456789, 3};
    data.m_Extension.m_Maximo = {437200.1234565001, 1e-7, -31.123456789, 4};
    data.m_Paso.m_X = 1.23456789;
    auto esperado = data;
    esperado.m_Extension.m_Minimo.m_X = 1.234568;
    esperado.m_Extension.m_Minimo.m_Y = 0;
    esperado.m_Extension.m_Maximo.m_X = 437200.123457;
    esperado.m_Extension.m_Maximo.m_Y = 0;
    data.GetProfile(Seccion);
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_P(AjustesPerfil, EachMissingSideIsItsOwnDefault) {
    Pon(L"XMaxima", L"5.5");
    const auto data = Leido();
    auto esperado = Relleno<CDataImportarGTOPO30>();
    esperado.m_Extension.m_Maximo.m_X = 5.5;
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_P(AjustesPerfil, EmptySideIsZero) {
    for (const wchar_t* clave : {L"XMinima", L"XMaxima", L"YMinima", L"YMaxima"})
        Pon(clave, L"");
    const auto data = Leido();
    auto esperado = Relleno<CDataImportarGTOPO30>();
    for (auto* esquina : {&esperado.m_Extension.m_Maximo, &esperado.m_Extension.m_Minimo})
        esquina->m_X = esquina->m_Y = 0;
    EXPECT_EQ(Campos(data), Campos(esperado));
}

// In the registry this is a text where a number should be.
TEST_P(AjustesPerfil, TextThatIsNoNumberIsZero) {
    for (const wchar_t* clave : {L"Huso", L"TipoProyeccion", L"XMinima", L"XMaxima", L"YMinima",
                                 L"YMaxima", L"Razon", L"NoData"})
        Pon(clave, L"abc");
    EXPECT_EQ(Guardado(Leido()), std::make_tuple(0, 0, 0.0, 0.0, 0.0, 0.0, 0, 0));
}

TEST_P(AjustesPerfil, SidesHaveADecimalPointInACountryOfCommas) {
    const ConLocal aleman("German");
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    const auto data = Relleno<CDataImportarGrid>();
    data.WriteProfile(Seccion);
    EXPECT_EQ(aplicacion.GetProfileString(Seccion, L"XMinima"), L"-6.123456");
    CDataImportarGrid leido;
    leido.GetProfile(Seccion);
    EXPECT_EQ(Guardado(leido), Guardado(data));
    leido.GetProfile(L"Other");
    EXPECT_EQ(Guardado(leido), Guardado(data));
}

TEST_P(AjustesPerfil, EveryFiniteSideComesBack) {
    for (const double valor : {1e247, -1e248, 1e300, std::numeric_limits<double>::max(),
                               -std::numeric_limits<double>::max()}) {
        CDataImportarGrid data;
        data.m_Extension.m_Maximo.m_Y = valor;
        data.WriteProfile(Seccion);
        CDataImportarGrid leido;
        leido.GetProfile(Seccion);
        EXPECT_EQ(leido.m_Extension.m_Maximo.m_Y, valor);
        data.GetProfile(L"Other");
        EXPECT_EQ(data.m_Extension.m_Maximo.m_Y, valor);
    }
}

TEST_P(AjustesPerfil, WhatIsNoFiniteNumberLeavesTheOthersWhole) {
    for (const double valor : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
        auto data = Relleno<CDataImportarGrid>();
        data.m_Extension.m_Minimo.m_X = valor;
        data.WriteProfile(Seccion);
        CDataImportarGrid leido;
        leido.GetProfile(Seccion);
        data.m_Extension.m_Minimo.m_X = leido.m_Extension.m_Minimo.m_X;
        EXPECT_EQ(Guardado(leido), Guardado(data)) << valor;
    }
}

TEST_P(AjustesPerfil, WholeRangeOfIntegersComesBack) {
    for (const int numero :
         {-9999, 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        CDataImportarGTOPO30 data;
        data.m_Razon = data.m_NoData = data.m_Huso = data.m_TipoProyeccion = numero;
        data.WriteProfile(Seccion);
        EXPECT_EQ(static_cast<int>(aplicacion.GetProfileInt(Seccion, L"NoData", 1)), numero);
        EXPECT_EQ(Guardado(Leido()),
                  std::make_tuple(numero, numero, 0.0, 0.0, 0.0, 0.0, numero, numero));
    }
}

TEST_P(AjustesPerfil, TakesOddNamesOfSections) {
    auto data = Relleno<CDataImportarGTOPO30>();
    for (const wchar_t* seccion :
         {L"two words", L"a=b", L"; no comment", L"Sección", L"maps\\tile"}) {
        ++data.m_Razon;
        data.WriteProfile(seccion);
        CDataImportarGTOPO30 leido;
        leido.GetProfile(seccion);
        EXPECT_EQ(Guardado(leido), Guardado(data)) << kit::utf8(seccion);
    }
}

TEST_P(AjustesPerfilFichero, HasNothingButTheChoiceInItsOrder) {
    Relleno<CDataImportarGTOPO30>().WriteProfile(Seccion);
    std::ifstream fichero(Fichero());
    std::string texto;
    for (std::string linea; std::getline(fichero, linea);)
        texto += linea.empty() ? "" : linea + "\n";
    EXPECT_EQ(texto, "[Importar]\nHuso=29\nTipoProyeccion=2\nXMinima=-6.123456\n"
                     "XMaxima=437200.250000\nYMinima=-0.500000\nYMaxima=4486300.125000\n"
                     "Razon=3\nNoData=-32768\n");
}

TEST_P(AjustesPerfilFichero, IntegerMayBeHexadecimal) {
    Pon(L"Razon", L"0x10");
    EXPECT_EQ(Leido().m_Razon, 16);
}

TEST_P(AjustesPerfilRegistro, HasNothingButTheChoice) {
    Relleno<CDataImportarGTOPO30>().WriteProfile(Seccion);
    const HKEY seccion = aplicacion.GetSectionKey(Seccion);
    DWORD valores = 0;
    EXPECT_EQ(::RegQueryInfoKeyW(seccion, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                 &valores, nullptr, nullptr, nullptr, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(valores, 8U);
    for (const wchar_t* clave : {L"Huso", L"TipoProyeccion", L"Razon", L"NoData"}) {
        DWORD tipo = 0;
        EXPECT_EQ(::RegQueryValueExW(seccion, clave, nullptr, &tipo, nullptr, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(tipo, static_cast<DWORD>(REG_DWORD)) << kit::utf8(clave);
    }
    for (const wchar_t* clave : {L"XMinima", L"XMaxima", L"YMinima", L"YMaxima"}) {
        DWORD tipo = 0;
        EXPECT_EQ(::RegQueryValueExW(seccion, clave, nullptr, &tipo, nullptr, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(tipo, static_cast<DWORD>(REG_SZ)) << kit::utf8(clave);
    }
    ::RegCloseKey(seccion);
}

TEST_P(AjustesPerfilRegistro, IntegerAsATextIsZero) {
    Pon(L"Razon", L"5");
    EXPECT_EQ(Leido().m_Razon, 0);
}

TEST(AjustesSinPerfil, HostWithoutApplicationObjectKeepsNothing) {
    const OtraAplicacion ninguna(nullptr);
    auto data = Relleno<CDataImportarGTOPO30>();
    data.m_Extension.m_Minimo.m_X = 1.23456789;
    const auto antes = data;
    data.WriteProfile(Seccion);
    data.GetProfile(Seccion);
    EXPECT_EQ(Campos(data), Campos(antes));
    static_cast<CDataImportarGrid&>(data).GetProfile(Seccion);
    EXPECT_EQ(Campos(data), Campos(antes));
}
