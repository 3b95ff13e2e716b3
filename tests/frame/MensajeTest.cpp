// The user presses OK, and the dialog refuses what he entered: a box says why, and when it is read
// the dialog is there as before.
#include "cuadros/frame/Mensaje.h"

#include "DialogoPrueba.h"
#include "kit/kit.h"

TEST(Mensaje, RefusesInABoxThatTheDialogOwns) {
    CDialogoPrueba dialogo(NadaAlAbrir);
    dialogo.AlAceptar([](CDialogoPrueba& prueba) { Cuadros::Rechaza(prueba, IDS_PRUEBA_MENSAJE); });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.focusOn(IDC_PRUEBA_TEXTO);
        vista.command(IDOK);
        EXPECT_EQ(vista.focus(), IDC_PRUEBA_TEXTO);
        vista.press(IDCANCEL);
    });
    script.expectMessage(L"The caption of messages", L"Something is wrong.", MB_ICONERROR)
        .buttons(MB_OK)
        .ownedByDialog();
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}
