// The user ticks a box, and the controls that belong to it wake up; the host wants no row of
// controls, and the dialog opens without it.
#include "cuadros/frame/Controles.h"

#include "DialogoPrueba.h"
#include "checks/Escucha.h"
#include "kit/kit.h"

#include <utility>
#include <vector>

namespace {

/// For its life writes down the controls of the test dialog that get `mensaje`, in their order.
class Orden {
public:
    Orden(CDialogoPrueba& prueba, UINT mensaje)
        : m_Texto(Apunta(prueba, IDC_PRUEBA_TEXTO, mensaje)),
          m_OtroTexto(Apunta(prueba, IDC_PRUEBA_OTRO_TEXTO, mensaje)) {}

    std::vector<int> controles;

private:
    Escucha Apunta(CDialogoPrueba& prueba, int control, UINT buscado) {
        return Escucha(prueba.GetDlgItem(control)->m_hWnd,
                       [this, control, buscado](UINT mensaje, WPARAM, LPARAM) {
                           if (mensaje == buscado)
                               controles.push_back(control);
                           return std::nullopt;
                       });
    }

    Escucha m_Texto;
    Escucha m_OtroTexto;
};

} // namespace

TEST(Controles, AreEnabledAndDisabledTogether) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        Cuadros::Habilita(prueba, FALSE, {IDC_PRUEBA_TEXTO, IDC_PRUEBA_OTRO_TEXTO, IDOK});
        Cuadros::Habilita(prueba, TRUE, {IDOK});
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        EXPECT_FALSE(vista.enabled(IDC_PRUEBA_TEXTO));
        EXPECT_FALSE(vista.enabled(IDC_PRUEBA_OTRO_TEXTO));
        EXPECT_TRUE(vista.enabled(IDC_PRUEBA_CASILLA));
        vista.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDOK);
}

TEST(Controles, FollowACheckBoxWhoseFlagIsAnyNumber) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        constexpr BOOL marcada = 7;
        Cuadros::Habilita(prueba, FALSE, {IDC_PRUEBA_TEXTO});
        Cuadros::Habilita(prueba, marcada, {IDC_PRUEBA_TEXTO});
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        EXPECT_TRUE(vista.enabled(IDC_PRUEBA_TEXTO));
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Controles, PassTheFocusOnBeforeTheyAreDisabled) {
    CDialogoPrueba dialogo([](CDialogoPrueba&) {});
    dialogo.AlAceptar([](CDialogoPrueba& prueba) {
        Cuadros::Habilita(prueba, FALSE, {IDC_PRUEBA_TEXTO, IDC_PRUEBA_OTRO_TEXTO});
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        for (const int control : {IDC_PRUEBA_TEXTO, IDC_PRUEBA_OTRO_TEXTO}) {
            vista.focusOn(control);
            vista.command(IDOK);
            EXPECT_FALSE(vista.enabled(control));
            EXPECT_NE(vista.focus(), 0);
            EXPECT_TRUE(vista.enabled(vista.focus())) << vista.focus();
            EnableWindow(vista.control(IDC_PRUEBA_TEXTO), TRUE);
            EnableWindow(vista.control(IDC_PRUEBA_OTRO_TEXTO), TRUE);
        }
        // Enabled ones keep it.
        vista.focusOn(IDC_PRUEBA_CASILLA);
        vista.command(IDOK);
        EXPECT_EQ(vista.focus(), IDC_PRUEBA_CASILLA);
        kit::keyboard::press(VK_ESCAPE);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Controles, AreHiddenAndShownTogether) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        Cuadros::Muestra(prueba, SW_HIDE, {IDC_PRUEBA_FILA_QUITA, IDC_PRUEBA_TEXTO});
        Cuadros::Muestra(prueba, SW_SHOWNORMAL, {IDC_PRUEBA_TEXTO});
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        EXPECT_FALSE(vista.visible(IDC_PRUEBA_FILA_QUITA));
        EXPECT_TRUE(vista.visible(IDC_PRUEBA_TEXTO));
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Controles, AreObjectsOfTheirClass) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        Cuadros::Control<CButton>(prueba, IDC_PRUEBA_CASILLA).SetCheck(BST_CHECKED);
        EXPECT_EQ(&Cuadros::Control<CListCtrl>(prueba, IDC_PRUEBA_LISTA), &prueba.m_Lista);
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        EXPECT_TRUE(vista.checked(IDC_PRUEBA_CASILLA));
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

namespace {

void UsaElQueFalta(CDialogoPrueba& prueba) {
    constexpr int ninguno = 29999;
    Cuadros::Control<CComboBox>(prueba, ninguno).SetCurSel(0);
    ADD_FAILURE() << "went on without the control";
}

} // namespace

TEST(Controles, ThatTheTemplateLacksEndTheOpening) {
    CDialogoPrueba dialogo(UsaElQueFalta);
    EXPECT_EQ(dialogo.DoModal(), -1);
}

TEST(Controles, ThatTheTemplateLacksAbandonWhatTheUserDid) {
    CDialogoPrueba dialogo(NadaAlAbrir);
    dialogo.AlAceptar(UsaElQueFalta);
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.press(IDOK);
        EXPECT_TRUE(vista.enabled(IDOK));
        vista.press(IDCANCEL);
    });
    CString noSePuede;
    ASSERT_TRUE(noSePuede.LoadString(AFX_IDS_NOT_SUPPORTED_EXCEPTION));
    script.expectMessage(AfxGetAppName(), noSePuede, MB_ICONSTOP);
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Controles, OfADialogThatIsGoneAbandonItInSilence) {
    CDialogoPrueba dialogo(NadaAlAbrir);
    dialogo.AlAceptar([](CDialogoPrueba& prueba) {
        prueba.DestroyWindow();
        UsaElQueFalta(prueba);
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) { vista.pressLater(IDOK); });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), -1);
}

TEST(Controles, AreVisitedInTheOrderOfTheList) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        const std::vector<int> alReves = {IDC_PRUEBA_OTRO_TEXTO, IDC_PRUEBA_TEXTO};
        const std::vector<int> alDerecho = {IDC_PRUEBA_TEXTO, IDC_PRUEBA_OTRO_TEXTO};
        Orden habilitados(prueba, WM_ENABLE);
        Cuadros::Habilita(prueba, FALSE, {IDC_PRUEBA_OTRO_TEXTO, IDC_PRUEBA_TEXTO});
        EXPECT_EQ(std::exchange(habilitados.controles, {}), alReves);
        Cuadros::Habilita(prueba, TRUE, {IDC_PRUEBA_TEXTO, IDC_PRUEBA_OTRO_TEXTO});
        EXPECT_EQ(habilitados.controles, alDerecho);
        Orden mostrados(prueba, WM_SHOWWINDOW);
        Cuadros::Muestra(prueba, SW_HIDE, {IDC_PRUEBA_OTRO_TEXTO, IDC_PRUEBA_TEXTO});
        EXPECT_EQ(mostrados.controles, alReves);
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

// A language file may lack any control, and a dialog that is gone lacks all.
TEST(Controles, ThatAreAbsentArePassedOver) {
    constexpr int ninguno = 4321;
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        const std::vector<int> los2 = {IDC_PRUEBA_TEXTO, IDC_PRUEBA_OTRO_TEXTO};
        Orden habilitados(prueba, WM_ENABLE);
        Cuadros::Habilita(prueba, FALSE,
                          {ninguno, IDC_PRUEBA_TEXTO, ninguno, IDC_PRUEBA_OTRO_TEXTO});
        EXPECT_EQ(habilitados.controles, los2);
        Orden mostrados(prueba, WM_SHOWWINDOW);
        Cuadros::Muestra(prueba, SW_HIDE,
                         {ninguno, IDC_PRUEBA_TEXTO, ninguno, IDC_PRUEBA_OTRO_TEXTO});
        EXPECT_EQ(mostrados.controles, los2);
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
    Cuadros::Habilita(dialogo, TRUE, {IDOK});
    Cuadros::Habilita(dialogo, FALSE, {IDOK});
    Cuadros::Muestra(dialogo, SW_HIDE, {IDOK});
    EXPECT_EQ(dialogo.m_hWnd, nullptr);
}
