// A translator has lost a control; a host takes a dialog, or the window under it, away while the
// user reads that his text is no number. What comes then is not nice, but the host lives on: a
// dialog goes on without what it lacks, or ends with -1.
#include "Apertura.h"
#include "Plantilla.h"
#include "dialogs/Caso.h"

#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

/// Whether a modal dialog may end so.
bool TieneFin(INT_PTR resultado) {
    return resultado == -1 || resultado == IDOK || resultado == IDCANCEL;
}

class DialogosRotos : public testing::TestWithParam<Caso> {
protected:
    /// Opens the dialog from this template and uses it, OK included.
    static INT_PTR Usa(const Plantilla& plantilla) {
        const auto conversacion = GetParam().hazla(nullptr);
        conversacion->Dialogo().InitModalIndirect(plantilla.Datos());
        Apertura apertura(conversacion->Dialogo());
        return apertura.Ejecuta([](HWND ventana) {
            UsaControles(ventana);
            SendMessageW(ventana, WM_HELP, 0, 0);
            SendMessageW(ventana, WM_COMMAND, ID_HELP, 0);
            SendMessageW(ventana, WM_COMMAND, IDOK, 0);
        });
    }

    /// Opens the dialog, writes letters into all its edits, and uses the control of this place
    /// among those that are no labels; when something opens then, `alAbrirse` is called with the
    /// dialog.
    ///
    /// @return false when there is no such control.
    template <class AlAbrirse>
    static bool UsaUno(CWnd* padre, std::size_t lugar, AlAbrirse alAbrirse) {
        bool esta = false;
        const auto conversacion = GetParam().hazla(padre);
        CDialog& dialogo = conversacion->Dialogo();
        Apertura apertura(dialogo);
        const INT_PTR resultado = apertura.Ejecuta([&](HWND ventana) {
            std::vector<HWND> controles = ControlesDe(ventana);
            std::erase_if(controles, [](HWND control) {
                return SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC;
            });
            esta = lugar < controles.size();
            if (!esta)
                return;
            kit::app.cancelFilePrompt(); // where a button asks for a file all the same
            // A key in an edit may be refused already: that is dismissed.
            EscribeLetras(ventana);
            apertura.alAviso = [&] { alAbrirse(dialogo); };
            UsaControl(controles[lugar]);
        });
        EXPECT_TRUE(TieneFin(resultado)) << resultado << ", control " << lugar;
        EXPECT_EQ(dialogo.m_hWnd, nullptr);
        return esta;
    }
};

std::string Nombre(const testing::TestParamInfo<Caso>& caso) {
    return caso.param.nombre;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(All, DialogosRotos, testing::ValuesIn(Casos()), Nombre);

TEST_P(DialogosRotos, LiveOnWithoutAnyOneOfTheirControls) {
    const std::vector<int> controles = Plantilla(GetParam().plantilla).Controles();
    EXPECT_FALSE(controles.empty());
    for (const int control : controles) {
        SCOPED_TRACE("without control " + std::to_string(control));
        Plantilla incompleta(GetParam().plantilla);
        incompleta.Quita(control);
        EXPECT_FALSE(std::ranges::count(incompleta.Controles(), control));
        const INT_PTR resultado = Usa(incompleta);
        EXPECT_TRUE(TieneFin(resultado)) << resultado;
    }
}

// Nothing can be exchanged, so that the opening itself fails.
TEST_P(DialogosRotos, EndWithMinusOneWithoutAllOfTheirControls) {
    Plantilla vacia(GetParam().plantilla);
    for (const int control : vacia.Controles())
        vacia.Quita(control);
    EXPECT_EQ(Usa(vacia), -1);
}

TEST_P(DialogosRotos, MayBeTakenAwayUnderAMessageOfTheirs) {
    for (std::size_t lugar = 0;
         UsaUno(nullptr, lugar, [](CDialog& dialogo) { dialogo.DestroyWindow(); }); ++lugar) {
    }
}

TEST_P(DialogosRotos, MayLoseTheirOwnerUnderAMessageOfTheirs) {
    bool queda = true;
    for (std::size_t lugar = 0; queda; ++lugar) {
        const HWND duena = CreateWindowExW(0, L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                           60, 40, 900, 600, nullptr, nullptr, nullptr, nullptr);
        queda = UsaUno(CWnd::FromHandle(duena), lugar, [&](CDialog&) { DestroyWindow(duena); });
        if (IsWindow(duena))
            DestroyWindow(duena);
    }
}
