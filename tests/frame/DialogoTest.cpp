// A dialog comes up in the middle of its owner, with its icon in the caption. The user presses OK,
// and it refuses what he entered: a box says why, and when it is read the dialog is there as
// before. He asks for help, and the host's help file opens at the page of the dialog.
#include "cuadros/frame/Dialogo.h"

#include "DialogoPrueba.h"
#include "OtraAplicacion.h"
#include "cuadros/resources/IconIds.h"
#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <vector>

namespace {

HICON IconoDe(const kit::Dialog& vista, WPARAM cual) {
    return reinterpret_cast<HICON>(SendMessageW(vista.handle(), WM_GETICON, cual, 0));
}

} // namespace

TEST(Dialogo, HasItsIconAsTheSmallOneOnly) {
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

TEST(Dialogo, HasNoIconWhereNoModuleHasTheNumber) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { Cuadros::PonIcono(prueba, 29999); });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        EXPECT_EQ(IconoDe(vista, ICON_SMALL), nullptr);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

// There each call of the system's makes a new icon.
TEST(Dialogo, IconOfAModuleThatIsMappedAsDataIsLoadedOnce) {
    const HMODULE idioma = LoadLibraryExW(
        L"CuadrosENU.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    ASSERT_NE(idioma, nullptr);
    const auto abre = [&] {
        HICON primero = nullptr;
        CDialogoPrueba dialogo([&](CDialogoPrueba& prueba) {
            const HINSTANCE propio = AfxGetResourceHandle();
            AfxSetResourceHandle(idioma);
            for (int i = 0; i < 1000; ++i)
                Cuadros::PonIcono(prueba, IDI_PERFILES);
            AfxSetResourceHandle(propio);
            primero = prueba.GetIcon(FALSE);
            EXPECT_NE(primero, nullptr);
            prueba.EndDialog(IDCANCEL);
        });
        EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
        return primero;
    };
    const HICON icono = abre();
    const auto antes = kit::Handles::now();
    EXPECT_EQ(abre(), icono);
    EXPECT_EQ(kit::Handles::now(), antes);
    FreeLibrary(idioma);
}

TEST(Dialogo, IsCentredOnItsOwner) {
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

TEST(Dialogo, RefusesInABoxThatTheDialogOwns) {
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

TEST(Dialogo, RefusesUnderACaptionOfItsOwn) {
    CDialogoPrueba dialogo(NadaAlAbrir);
    dialogo.AlAceptar(
        [](CDialogoPrueba& prueba) { Cuadros::Rechaza(prueba, L"There is nothing.", L"Error"); });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    script.expectMessage(L"Error", L"There is nothing.", MB_ICONERROR)
        .buttons(MB_OK)
        .ownedByDialog();
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Dialogo, AsksYesOrNoWithoutACaption) {
    CDialogoPrueba dialogo(NadaAlAbrir);
    std::vector<bool> respuestas;
    dialogo.AlAceptar([&](CDialogoPrueba& prueba) {
        respuestas.push_back(Cuadros::Pregunta(prueba, IDS_PRUEBA_MENSAJE));
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.press(IDOK);
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    for (const int respuesta : {IDYES, IDNO})
        script.expectMessage(L"", L"Something is wrong.", MB_ICONQUESTION)
            .buttons(MB_YESNO)
            .defaultButton(IDYES)
            .ownedByDialog()
            .answer(respuesta);
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
    EXPECT_EQ(respuestas, (std::vector<bool>{true, false}));
}

TEST(Dialogo, CopiesOfItsValuesAreWrittenBackByOkAlone) {
    for (const INT_PTR resultado : {INT_PTR{IDOK}, INT_PTR{IDCANCEL}, INT_PTR{-1}, INT_PTR{0}}) {
        CString texto(L"before");
        std::vector<int> lista{1, 2};
        double valor = 1.5;
        Cuadros::EditaCopia(
            [&](CString& suTexto, std::vector<int>& suLista, double& suValor) {
                EXPECT_EQ(suTexto, L"before");
                EXPECT_EQ(suLista, (std::vector<int>{1, 2}));
                suTexto = L"after";
                suLista.push_back(3);
                suValor = 2.5;
                EXPECT_EQ(texto, L"before");
                EXPECT_EQ(lista.size(), 2U);
                EXPECT_EQ(valor, 1.5);
                return resultado;
            },
            texto, lista, valor);
        EXPECT_EQ(texto, resultado == IDOK ? L"after" : L"before");
        EXPECT_EQ(lista.size(), resultado == IDOK ? 3U : 2U);
        EXPECT_EQ(valor, resultado == IDOK ? 2.5 : 1.5);
    }
}

TEST(Dialogo, HelpContextIsTheTemplateNumberAboveItsBase) {
    EXPECT_EQ(Cuadros::ContextoAyuda(19011), 150083U);
    EXPECT_EQ(Cuadros::ContextoAyuda(20107), 151179U);
    EXPECT_EQ(Cuadros::ContextoAyuda(38132), 169204U);
}

TEST(Dialogo, HelpIsAskedOfTheHostsApplication) {
    Cuadros::AbreAyuda(19001);
    EXPECT_EQ(kit::app.takeHelpRequests(), (std::vector<kit::HelpRequest>{{150073, 15}}));
}

TEST(Dialogo, HostWithoutApplicationObjectGivesNoHelp) {
    {
        const OtraAplicacion ninguna(nullptr);
        Cuadros::AbreAyuda(19001);
    }
    EXPECT_TRUE(kit::app.takeHelpRequests().empty());
}
