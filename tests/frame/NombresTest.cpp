// The user selects several files in the host's prompt; what comes back is one line of names. These
// tests read such lines as the dialogs do.
#include "cuadros/frame/Nombres.h"

#include "kit/kit.h"

#include <shlobj.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

namespace {

std::vector<std::wstring> Separados(const wchar_t* linea) {
    std::vector<std::wstring> nombres;
    for (const CString& nombre : Cuadros::ListaNombres(CString(linea)))
        nombres.emplace_back(nombre.GetString());
    return nombres;
}

int Cuenta(const wchar_t* linea) {
    return Cuadros::CuentaNombres(CString(linea));
}

using Nombres = std::vector<std::wstring>;

} // namespace

TEST(Nombres, AreSeparatedByBlanksLineEndsAndByteOrderMarks) {
    EXPECT_EQ(Separados(L"a.dat b.dat"), (Nombres{L"a.dat", L"b.dat"}));
    EXPECT_EQ(Separados(L"a\r\nb\nc\r\n"), (Nombres{L"a", L"b", L"c"}));
    EXPECT_EQ(Separados(L"a\rb"), (Nombres{L"a", L"b"}));
    EXPECT_EQ(Separados(L"\uFEFFa\uFEFFb"), (Nombres{L"a", L"b"}));
    EXPECT_EQ(Separados(L"   a   b   "), (Nombres{L"a", L"b"}));
}

TEST(Nombres, EmptyLineAndBlanksHoldNone) {
    EXPECT_EQ(Cuenta(L""), 0);
    EXPECT_EQ(Cuenta(L" \r\n \uFEFF"), 0);
    EXPECT_TRUE(Separados(L"").empty());
}

TEST(Nombres, TabIsPartOfAName) {
    EXPECT_EQ(Cuenta(L"a\tb"), 1);
    EXPECT_EQ(Separados(L"a\tb c"), (Nombres{L"a\tb", L"c"}));
}

TEST(Nombres, QuotedNameKeepsItsSeparators) {
    EXPECT_EQ(Cuenta(L"\"two words\""), 1);
    EXPECT_EQ(Separados(L"\"C:\\my files\\a.dat\" b"), (Nombres{L"C:\\my files\\a.dat", L"b"}));
    EXPECT_EQ(Separados(L"\"a\nb\uFEFFc\""), (Nombres{L"a\nb\uFEFFc"}));
}

TEST(Nombres, NullCharacterIsPartOfAName) {
    const auto nombres = Cuadros::ListaNombres(CString(L"a\0b c", 5));
    ASSERT_EQ(nombres.size(), 2U);
    EXPECT_EQ(nombres[0], CString(L"a\0b", 3));
    EXPECT_EQ(nombres[1], L"c");
}

TEST(Nombres, OpeningQuoteEndsTheNameBeforeIt) {
    EXPECT_EQ(Cuenta(L"text\"quoted one\""), 2);
    EXPECT_EQ(Separados(L"abc\"d e\"f"), (Nombres{L"abc", L"d e", L"f"}));
    EXPECT_EQ(Separados(L"\"a\"\"b\""), (Nombres{L"a", L"b"}));
}

TEST(Nombres, QuotesAloneAreAnEmptyName) {
    EXPECT_EQ(Separados(L"\"\""), (Nombres{L""}));
    EXPECT_EQ(Separados(L"\""), (Nombres{L""}));
    EXPECT_EQ(Separados(L"a \"\" b"), (Nombres{L"a", L"", L"b"}));
}

TEST(Nombres, UnterminatedQuoteEndsWithTheLine) {
    EXPECT_EQ(Separados(L"\"unterminated name"), (Nombres{L"unterminated name"}));
}

TEST(Nombres, FewerWantedThanThereAreLeavesTheRest) {
    std::array<CString, 3> nombres{L"x", L"y", L"z"};
    EXPECT_EQ(Cuadros::SeparaNombres(CString(L"a b c"), 2, nombres.data()), 2);
    EXPECT_EQ(nombres[0], L"a");
    EXPECT_EQ(nombres[1], L"b");
    EXPECT_EQ(nombres[2], L"z");
}

TEST(Nombres, MoreWantedThanThereAreEmptiesThem) {
    std::array<CString, 3> nombres{L"x", L"y", L"z"};
    EXPECT_EQ(Cuadros::SeparaNombres(CString(L"a"), 2, nombres.data()), 1);
    EXPECT_EQ(nombres[0], L"a");
    EXPECT_TRUE(nombres[1].IsEmpty());
    EXPECT_EQ(nombres[2], L"z");
}

TEST(Nombres, BlanksEmptyTheWantedNames) {
    CString nombre(L"x");
    EXPECT_EQ(Cuadros::SeparaNombres(CString(L"  "), 1, &nombre), 0);
    EXPECT_TRUE(nombre.IsEmpty());
}

TEST(Nombres, NothingIsTouchedWithoutALineOrAWantedCount) {
    CString nombre(L"kept");
    EXPECT_EQ(Cuadros::SeparaNombres(CString(), 1, &nombre), 0);
    EXPECT_EQ(nombre, L"kept");
    EXPECT_EQ(Cuadros::SeparaNombres(CString(L"a b"), 0, &nombre), 0);
    EXPECT_EQ(nombre, L"kept");
}

namespace {

/// The paths that come out of a drop of these.
Nombres Soltadas(const Nombres& rutas) {
    std::wstring lista;
    for (const std::wstring& ruta : rutas)
        lista += ruta + L'\0';
    lista += L'\0';
    const std::size_t bytes = lista.size() * sizeof(wchar_t);
    const HGLOBAL memoria = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + bytes);
    auto* const cabecera = static_cast<DROPFILES*>(GlobalLock(memoria));
    cabecera->pFiles = sizeof(DROPFILES);
    cabecera->fWide = TRUE;
    std::memcpy(cabecera + 1, lista.data(), bytes);
    GlobalUnlock(memoria);
    const auto soltados = static_cast<HDROP>(memoria);
    Nombres nombres;
    for (const CString& ruta : Cuadros::RutasSoltadas(soltados))
        nombres.emplace_back(ruta.GetString(), static_cast<std::size_t>(ruta.GetLength()));
    DragFinish(soltados);
    return nombres;
}

} // namespace

TEST(Nombres, DroppedPathsComeWholeAndInTheirOrder) {
    const auto ruta = [](std::size_t longitud) { return std::wstring(longitud - 1, L'k') + L'z'; };
    for (const Nombres& rutas :
         {Nombres{L"C:\\z.xyz"}, Nombres{L"C:\\z.xyz", L"C:\\a b.xyz", L"C:\\"},
          Nombres{ruta(258), ruta(259), ruta(260), ruta(261), ruta(3000), L"C:\\last.xyz"}})
        EXPECT_EQ(Soltadas(rutas), rutas);
}
