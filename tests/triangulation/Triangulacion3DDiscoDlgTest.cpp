#include "cuadros/triangulation/Triangulacion3DDiscoDlg.h"

#include "ListaFicheros.h"
#include "cuadros/resources/StringIds.h"

namespace {

constexpr int Opcion1 = IDC_TRIANGULACION_3D_DISCO_OPCION_1;
constexpr int Opcion2 = IDC_TRIANGULACION_3D_DISCO_OPCION_2;

struct Triangulacion3DDisco {
    using Clase = Cotana::CTriangulacion3DDiscoDlg;
    static constexpr auto AlSumar = &Clase::OnSumarArchivos;
    static constexpr auto AlRestar = &Clase::OnRestarArchivos;
    static constexpr auto AlElegir = &Clase::OnSelchangeListaHojas;

    static Mensaje SinFicheros() { return {L"Error", TextoDe(IDS_SIN_FICHEROS), MB_ICONERROR}; }

    template <class D = Clase>
    D Dialogo(CWnd* padre = nullptr) {
        return D(ficheros, plantilla, valor, opcion, padre);
    }

    std::vector<CString> ficheros;
    CDocTemplate* plantilla = nullptr;
    double valor = 5;
    int opcion = 0;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Triangulacion3DDiscoDlg, ListaFicheros, Triangulacion3DDisco);

// What this dialog has beyond the common list: the choice.
class Triangulacion3DDiscoDlg : public ListaFicheros<Triangulacion3DDisco> {};

TEST_F(Triangulacion3DDiscoDlg, ShowsItsListItsNumberAndItsChoice) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"3D Triangulation of Files");
        dialogo.drop({L"C:\\survey\\north slope\\sheet-0412.xyz",
                      L"C:\\survey\\north slope\\sheet-0413.xyz", L"C:\\survey\\river.xyz"});
        dialogo.listBox(Hojas).choose({1});
        dialogo.picture(L"Triangulacion3DDiscoDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion3DDiscoDlg, ChoiceIsTheIndexOfItsButton) {
    for (const int elegida : {1, 0}) {
        opcion = 1 - elegida;
        const auto resultado = Abre([elegida](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.radio(Opcion1, Opcion2), Opcion1 + 1 - elegida);
            dialogo.drop(CincoFicheros);
            dialogo.click(Opcion1 + elegida);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(opcion, elegida);
    }
}

TEST_F(Triangulacion3DDiscoDlg, ChoiceOutOfRangeShowsNoneAndComesBackAsNone) {
    for (const int fuera : {-1, 2, 5, -7}) {
        opcion = fuera;
        const auto resultado = Abre([](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.radio(Opcion1, Opcion2), 0);
            dialogo.drop(CincoFicheros);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(opcion, -1);
    }
}

TEST_F(Triangulacion3DDiscoDlg, CancelKeepsTheChoiceThatAddingExchanged) {
    kit::app.cancelFilePrompt();
    const auto resultado = Abre([this](kit::Dialog& dialogo) {
        dialogo.click(Opcion2);
        EXPECT_EQ(opcion, 0); // the click alone exchanges nothing
        dialogo.press(Sumar);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(opcion, 1);
}

// The number is exchanged first: where it is refused the choice is not reached.
TEST_F(Triangulacion3DDiscoDlg, BadNumberKeepsTheChoiceOfBefore) {
    kit::app.answerFilePrompt(L"C:\\a.xyz");
    Abre({AFX_IDP_PARSE_REAL}, [this](kit::Dialog& dialogo) {
        dialogo.click(Opcion2);
        dialogo.type(Valor, L"x");
        dialogo.press(Sumar);
        EXPECT_EQ(opcion, 0);
        EXPECT_EQ(dialogo.radio(Opcion1, Opcion2), Opcion1);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(Triangulacion3DDiscoDlg, RefusedOkThenCancelKeepsTheChoiceThatOkExchanged) {
    const auto resultado = Abre({SinFicheros()}, [this](kit::Dialog& dialogo) {
        dialogo.click(Opcion2);
        dialogo.command(IDOK);
        EXPECT_EQ(opcion, 1);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(opcion, 1);
}

TEST_F(Triangulacion3DDiscoDlg, BadNumberAtOkThenCancelKeepsTheChoiceOfBefore) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.click(Opcion2);
        dialogo.type(Valor, L"x");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(opcion, 0);
}

/// Lets the test at the member that the common list has not.
class CConOpcion : public CDerivado<Cotana::CTriangulacion3DDiscoDlg> {
public:
    using CDerivado::CDerivado;
    using CTriangulacion3DDiscoDlg::m_pOpcion;
};

TEST_F(Triangulacion3DDiscoDlg, KeepsTheChoiceBetweenTheNumberAndTheList) {
    auto dialogo = Dialogo<CConOpcion>();
    EXPECT_EQ(dialogo.m_pOpcion, &opcion);
    CompruebaCrecientes({&dialogo.m_pValor, &dialogo.m_pOpcion, &dialogo.m_ListaHojas});
}

TEST_F(Triangulacion3DDiscoDlg, ArrowKeysMoveTheChoice) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.focusOn(Opcion1);
        kit::keyboard::press(VK_DOWN);
        EXPECT_EQ(dialogo.focus(), Opcion2);
        EXPECT_EQ(dialogo.radio(Opcion1, Opcion2), Opcion2);
        kit::keyboard::press(VK_RETURN);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(opcion, 1);
}

} // namespace
