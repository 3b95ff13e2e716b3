// A surveyor triangulates classified points in space: beside the classifications he types a number
// and ticks an option. What this dialog has in common with the one in plan is tested with the list
// of both.
#include "Clasificaciones.h"

#include <algorithm>

namespace {

using Cotana::CTriangulacion3DDlg;

constexpr int Valor = IDC_TRIANGULACION_3D_VALOR;
constexpr int Entero = IDC_TRIANGULACION_3D_ENTERO;

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

TEST_F(Triangulacion3DDlg, OkWithoutASelectionLeavesTheNumberAndTheOptionToo) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.press(Ninguna);
        dialogo.type(Valor, L"7");
        dialogo.click(Entero);
        dialogo.command(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(valor, 7);
    EXPECT_EQ(entero, 1);
}

TEST_F(Triangulacion3DDlg, OkStopsWhereItsOwnExchangeIsRefused) {
    const auto dlg = Crea<CDesconfiado<CTriangulacion3DDlg>>();
    const auto resultado = Abre(*dlg, [&](kit::Dialog& dialogo) {
        dialogo.press(IDOK);
        EXPECT_EQ(dlg->m_Seleccion, Filas{});
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg->m_Seleccion, Filas{0});
}

TEST_F(Triangulacion3DDlg, OptionOutsideItsRangeComesBackAsItIsShown) {
    for (const int antes : {2, 7}) {
        entero = antes;
        EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); }), IDCANCEL);
        EXPECT_EQ(entero, antes);
        LRESULT mostrado = -1;
        const auto resultado = Abre([&](kit::Dialog& dialogo) {
            // How a box of two states shows a third one is the system's choice.
            mostrado = SendMessageW(dialogo.control(Entero), BM_GETCHECK, 0, 0);
            EXPECT_EQ(mostrado != BST_UNCHECKED, antes == 2);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(entero, mostrado);
    }
}

TEST_F(Triangulacion3DDlg, OkReadsTheNumberThenTheOptionThenTheCheckBox) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(LeidosPorOk(dialogo, {Casilla, Entero, Valor}),
                  (std::vector<int>{Valor, Entero, Casilla, Valor, Entero, Casilla}));
    });
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

TEST_F(Triangulacion3DDlg, BadNumberIsRefusedOnceAndTheSelectionIsTakenByTheOkThatSucceeds) {
    const auto dlg = Crea();
    const auto resultado = Abre(*dlg, {AFX_IDP_PARSE_REAL}, [&](kit::Dialog& dialogo) {
        dialogo.list(Lista).choose({0, 2});
        dialogo.type(Valor, L"2,5");
        dialogo.click(Entero);
        dialogo.click(Casilla);
        dialogo.press(IDOK);
        // The number is exchanged first: neither box is read.
        EXPECT_EQ(dlg->m_Casilla, 1);
        EXPECT_EQ(dialogo.focus(), Valor);
        EXPECT_EQ(dialogo.text(Valor), L"2,5");
        EXPECT_EQ(valor, 2.5);
        EXPECT_EQ(entero, 0);
        EXPECT_EQ(dlg->m_Seleccion, Filas{});
        dialogo.type(Valor, L"3.5");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(valor, 3.5);
    EXPECT_EQ(entero, 1);
    EXPECT_EQ(dlg->m_Seleccion, (Filas{0, 2}));
}

TEST_F(Triangulacion3DDlg, CancelAfterABadNumberTakesNoSelection) {
    const auto dlg = Crea();
    const auto resultado = Abre(*dlg, {AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(valor, 2.5);
    EXPECT_EQ(dlg->m_Seleccion, Filas{});
}

/// Shows the members that a derived class sees.
class ConMiembros : public CTriangulacion3DDlg {
public:
    using CTriangulacion3DDlg::CTriangulacion3DDlg;

    std::vector<const void*> EnSuOrden() const {
        return {&m_Clasificaciones, &m_ListaClasificaciones,
                &m_ActivarCasilla,  &m_pValor,
                &m_pEntero,         &m_Seleccion,
                &m_Casilla};
    }
};

TEST_F(Triangulacion3DDlg, MembersFollowEachOtherInTheirOrder) {
    const auto dlg = Crea<ConMiembros>();
    EXPECT_TRUE(std::ranges::is_sorted(dlg->EnSuOrden()));
    EXPECT_EQ(dlg->m_Casilla, 0);
}

} // namespace
