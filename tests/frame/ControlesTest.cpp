// The user ticks a box, and the controls that belong to it wake up; the host wants no row of
// controls, and the dialog opens without it.
#include "cuadros/frame/Controles.h"

#include "DialogoPrueba.h"
#include "kit/kit.h"

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
