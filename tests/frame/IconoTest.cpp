// A dialog comes up in the middle of its owner, with its icon in the caption.
#include "cuadros/frame/Icono.h"

#include "DialogoPrueba.h"
#include "kit/kit.h"

namespace {

HICON IconoDe(const kit::Dialog& vista, WPARAM cual) {
    return reinterpret_cast<HICON>(SendMessageW(vista.handle(), WM_GETICON, cual, 0));
}

} // namespace

TEST(Icono, IsTheSmallOneOnly) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { Cuadros::PonIcono(prueba, IDI_PRUEBA); });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        const HICON propio = LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(IDI_PRUEBA));
        ASSERT_NE(propio, nullptr);
        EXPECT_EQ(IconoDe(vista, ICON_SMALL), propio);
        EXPECT_EQ(IconoDe(vista, ICON_BIG), nullptr);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Icono, NumberThatNoModuleHasLeavesNone) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { Cuadros::PonIcono(prueba, 29999); });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        EXPECT_EQ(IconoDe(vista, ICON_SMALL), nullptr);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Icono, DialogIsCentredOnItsOwner) {
    CDialogoPrueba dentro(
        [](CDialogoPrueba& prueba) { Cuadros::CentraConIcono(prueba, IDI_PRUEBA); });
    CDialogoPrueba fuera([](CDialogoPrueba& prueba) {
        prueba.SetWindowPos(nullptr, 300, 200, 600, 400, SWP_NOZORDER);
    });
    fuera.AlAceptar([&](CDialogoPrueba&) { dentro.DoModal(); });
    kit::Script script;
    RECT marcoFuera{};
    script.onDialog([&](kit::Dialog& vista) {
        marcoFuera = vista.rect();
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    script.onDialog([&](kit::Dialog& vista) {
        const RECT marco = vista.rect();
        EXPECT_NEAR(marco.left + marco.right, marcoFuera.left + marcoFuera.right, 1);
        EXPECT_NEAR(marco.top + marco.bottom, marcoFuera.top + marcoFuera.bottom, 1);
        EXPECT_NE(IconoDe(vista, ICON_SMALL), nullptr);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return fuera.DoModal(); }), IDCANCEL);
}
