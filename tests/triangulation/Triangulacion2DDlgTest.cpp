// A surveyor triangulates classified points in plan: beside the classifications he types a number
// and a name. What this dialog has in common with the one in space is tested with the list of both.
#include "Clasificaciones.h"

#include <algorithm>

namespace {

using Cotana::CTriangulacion2DDlg;

constexpr int Valor = IDC_TRIANGULACION_2D_VALOR;
constexpr int Nombre = IDC_TRIANGULACION_2D_NOMBRE;

class Triangulacion2DDlg : public ConClasificaciones<CTriangulacion2DDlg> {
protected:
    /// Types the number's text and takes OK.
    void Acepta(const wchar_t* texto, kit::Where donde = kit::Where::current()) {
        const auto resultado = Abre(
            [&](kit::Dialog& dialogo) {
                dialogo.type(Valor, texto);
                dialogo.press(IDOK);
            },
            donde);
        EXPECT_EQ(resultado, IDOK);
    }
};

TEST_F(Triangulacion2DDlg, ShowsTheNumberWithThreeDecimalsAndTheName) {
    clasificaciones = {
        Cotana::CInfoClasificacion(2, 148210, L"Ground"),
        Cotana::CInfoClasificacion(3, 20415, L"Low vegetation"),
        Cotana::CInfoClasificacion(5, 96330, L"High vegetation"),
        Cotana::CInfoClasificacion(6, 5120, L"Buildings"),
        Cotana::CInfoClasificacion(9, 733, L"Water"),
    };
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor), L"2.500");
        EXPECT_EQ(dialogo.text(Nombre), L"North slope");
        dialogo.picture(L"Triangulacion2DDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion2DDlg, OkLeavesTheNumberAndTheNameInTheVariables) {
    const auto dlg = Crea();
    const auto resultado = Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"-12.5");
        dialogo.type(Nombre, L"South slope");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(valor, -12.5);
    EXPECT_EQ(nombre, L"South slope");
    EXPECT_EQ(dlg->m_Seleccion, Filas{0});
}

TEST_F(Triangulacion2DDlg, OkWithoutASelectionLeavesTheNumberAndTheNameToo) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.press(Ninguna);
        dialogo.type(Valor, L"7");
        dialogo.type(Nombre, L"South slope");
        dialogo.command(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(valor, 7);
    EXPECT_EQ(nombre, L"South slope");
}

TEST_F(Triangulacion2DDlg, ResultOfOksOwnExchangeIsNotLookedAt) {
    const auto dlg = Crea<CDesconfiado<CTriangulacion2DDlg>>();
    const auto resultado = Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"7");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(valor, 7);
    EXPECT_EQ(dlg->m_Seleccion, Filas{0});
}

TEST_F(Triangulacion2DDlg, NumberAndSelectionAreThereWhenTheFrameworksExchangeIsRefused) {
    const auto dlg = Crea<CDesconfiado<CTriangulacion2DDlg>>();
    dlg->rechazado = 2;
    dlg->alRechazar = [&] {
        EXPECT_EQ(valor, 7);
        EXPECT_EQ(dlg->m_Seleccion, Filas{0});
    };
    const auto resultado = Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"7");
        dialogo.press(IDOK);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg->m_Seleccion, (Filas{0, 0}));
}

TEST_F(Triangulacion2DDlg, OkReadsTheNumberThenTheNameThenTheCheckBox) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(LeidosPorOk(dialogo, {Casilla, Nombre, Valor}),
                  (std::vector<int>{Valor, Nombre, Casilla, Valor, Nombre, Casilla}));
    });
}

TEST_F(Triangulacion2DDlg, TypedDecimalsAreAllTaken) {
    Acepta(L"1.23456");
    EXPECT_EQ(valor, 1.23456);
}

TEST_F(Triangulacion2DDlg, UntouchedNumberComesBackWithThreeDecimals) {
    valor = 1.23456;
    Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); });
    EXPECT_EQ(valor, 1.235);
}

TEST_F(Triangulacion2DDlg, LargestNumbersComeBack) {
    for (const double grande : {1e300, -1e300}) {
        valor = grande;
        EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
        EXPECT_EQ(valor, grande);
    }
}

TEST_F(Triangulacion2DDlg, SmallNegativeNumberIsShownAsMinusZero) {
    valor = -0.0004;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor), L"-0.000");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion2DDlg, NoNumberIsZero) {
    Acepta(L"");
    EXPECT_EQ(valor, 0);
    valor = 1;
    Acepta(L"wide");
    EXPECT_EQ(valor, 0);
}

TEST_F(Triangulacion2DDlg, TextIsReadAsFarAsItIsANumber) {
    Acepta(L"2,5");
    EXPECT_EQ(valor, 2);
    Acepta(L" 7.5 m");
    EXPECT_EQ(valor, 7.5);
}

TEST_F(Triangulacion2DDlg, NameKeepsAccentsAndMayBeEmpty) {
    nombre = L"Añón, Ðúníñ, Ωμέγα";
    const auto acepta = [](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Nombre), L"Añón, Ðúníñ, Ωμέγα");
        dialogo.press(IDOK);
    };
    EXPECT_EQ(Abre(acepta), IDOK);
    EXPECT_EQ(nombre, L"Añón, Ðúníñ, Ωμέγα");
    const auto vacia = [](kit::Dialog& dialogo) {
        dialogo.type(Nombre, L"");
        dialogo.press(IDOK);
    };
    EXPECT_EQ(Abre(vacia), IDOK);
    EXPECT_TRUE(nombre.IsEmpty());
}

TEST_F(Triangulacion2DDlg, CancelForgetsWhatWasTyped) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"7");
        dialogo.type(Nombre, L"Typed");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(valor, 2.5);
    EXPECT_EQ(nombre, L"North slope");
}

/// Shows the members that a derived class sees.
class ConMiembros : public CTriangulacion2DDlg {
public:
    using CTriangulacion2DDlg::CTriangulacion2DDlg;

    std::vector<const void*> EnSuOrden() const {
        return {&m_Clasificaciones, &m_ListaClasificaciones,
                &m_ActivarCasilla,  &m_TextoValor,
                &m_pNombre,         &m_pValor,
                &m_Seleccion,       &m_Casilla};
    }
};

TEST_F(Triangulacion2DDlg, MembersFollowEachOtherInTheirOrder) {
    const auto dlg = Crea<ConMiembros>();
    EXPECT_TRUE(std::ranges::is_sorted(dlg->EnSuOrden()));
    EXPECT_EQ(dlg->m_Casilla, 0);
}

} // namespace
