// A surveyor triangulates classified points in space: beside the classifications he types a number
// and ticks an option. What this dialog has in common with the one in plan is tested with the list
// of both.
#include "Clasificaciones.h"

namespace {

using Cotana::CTriangulacion3DDlg;

constexpr int Valor = IDC_TRIANGULACION_3D_VALOR;
constexpr int Entero = IDC_TRIANGULACION_3D_ENTERO;

static_assert(IDD_TRIANGULACION_3D == 12101);
static_assert(Valor == 38487);
static_assert(Entero == 20246);

using Triangulacion3DDlg = ConClasificaciones<CTriangulacion3DDlg>;

TEST_F(Triangulacion3DDlg, ShowsTheNumberAndTheOption) {
    clasificaciones = {
        Cotana::CInfoClasificacion(2, 148210, L"Ground"),
        Cotana::CInfoClasificacion(3, 20415, L"Low vegetation"),
        Cotana::CInfoClasificacion(5, 96330, L"High vegetation"),
        Cotana::CInfoClasificacion(6, 5120, L"Buildings"),
        Cotana::CInfoClasificacion(9, 733, L"Water"),
    };
    entero = 1;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor), L"2.5");
        EXPECT_TRUE(dialogo.checked(Entero));
        dialogo.picture(L"Triangulacion3DDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion3DDlg, OptionThatIsNotChosenIsClear) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.checked(Entero));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion3DDlg, OkLeavesTheNumberAndTheOptionInTheVariables) {
    const auto dlg = Crea();
    const auto resultado = Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"-12.5");
        dialogo.click(Entero);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(valor, -12.5);
    EXPECT_EQ(entero, 1);
    EXPECT_EQ(dlg->m_Seleccion, Filas{0});
    EXPECT_EQ(nombre, L"North slope");
}

TEST_F(Triangulacion3DDlg, NumberIsRoundedTo15DigitsByOk) {
    valor = 0.1 + 0.2;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor), L"0.3");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(valor, 0.3);
}

TEST_F(Triangulacion3DDlg, CancelForgetsWhatWasTyped) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"7");
        dialogo.click(Entero);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(valor, 2.5);
    EXPECT_EQ(entero, 0);
}

TEST_F(Triangulacion3DDlg, BadNumberIsRefusedTwiceAndTheSelectionIsAppendedAgain) {
    const auto dlg = Crea();
    const auto resultado = Abre(
        *dlg,
        [&](kit::Dialog& dialogo) {
            dialogo.list(Lista).choose({0, 2});
            dialogo.type(Valor, L"2,5");
            dialogo.click(Entero);
            dialogo.press(IDOK);
            EXPECT_EQ(dialogo.focus(), Valor);
            EXPECT_EQ(dialogo.text(Valor), L"2,5");
            EXPECT_EQ(valor, 2.5);
            EXPECT_EQ(entero, 0);
            EXPECT_EQ(dlg->m_Seleccion, (Filas{0, 2}));
            dialogo.type(Valor, L"3.5");
            dialogo.press(IDOK);
        },
        2);
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(valor, 3.5);
    EXPECT_EQ(entero, 1);
    EXPECT_EQ(dlg->m_Seleccion, (Filas{0, 2, 0, 2}));
}

TEST_F(Triangulacion3DDlg, CancelAfterABadNumberKeepsTheAppendedSelection) {
    const auto dlg = Crea();
    const auto resultado = Abre(
        *dlg,
        [](kit::Dialog& dialogo) {
            dialogo.type(Valor, L"");
            dialogo.press(IDOK);
            dialogo.press(IDCANCEL);
        },
        2);
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(valor, 2.5);
    EXPECT_EQ(dlg->m_Seleccion, Filas{0});
}

TEST_F(Triangulacion3DDlg, KeyboardReachesEveryControlInReadingOrder) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(
            RecorreConTabulador(dialogo),
            (std::vector<int>{Lista, Todas, Ninguna, Valor, Entero, Casilla, IDOK, IDCANCEL}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion3DDlg, MnemonicsReachTheirControls) {
    Abre([](kit::Dialog& dialogo) {
        kit::keyboard::mnemonic(L'p');
        EXPECT_EQ(dialogo.focus(), Valor);
        kit::keyboard::mnemonic(L'u');
        EXPECT_EQ(dialogo.focus(), Entero);
        EXPECT_TRUE(dialogo.checked(Entero));
        kit::keyboard::mnemonic(L't');
        EXPECT_EQ(dialogo.focus(), Casilla);
        EXPECT_FALSE(dialogo.checked(Casilla));
        kit::keyboard::mnemonic(L'c');
        EXPECT_EQ(dialogo.focus(), Lista);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion3DDlg, HasClassInformationOfItsOwn) {
    const auto* const clase = Crea()->GetRuntimeClass();
    EXPECT_EQ(clase, RUNTIME_CLASS(CTriangulacion3DDlg));
    EXPECT_STREQ(clase->m_lpszClassName, "CTriangulacion3DDlg");
    EXPECT_EQ(clase->m_pfnGetBaseClass(), RUNTIME_CLASS(CDialog));
}

} // namespace
