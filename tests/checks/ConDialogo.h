// A conversation of one dialog over values of the test's own, and the diary of what happens to its
// controls.
#pragma once

#include "checks/Comprobaciones.h"

#include <afxcmn.h>

#include <functional>
#include <initializer_list>
#include <list>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// The text that is the title of the dialogs' messages.
constexpr UINT TituloMensajes = 15105;

/// A message box that comes meanwhile: title, text and icon.
struct Mensaje {
    /// Of the dialog, or of the framework's own prompts, by its text's number.
    Mensaje(UINT numero) : Mensaje(TextoDe(numero), numero >= AFX_IDP_PARSE_INT) {}
    /// Of the framework, with this text.
    static Mensaje DelMarco(const CString& texto) { return {texto, true}; }
    Mensaje(CString tituloSuyo, CString textoSuyo, UINT iconoSuyo)
        : titulo(std::move(tituloSuyo)), texto(std::move(textoSuyo)), icono(iconoSuyo) {}

    CString titulo;
    CString texto;
    UINT icono;

private:
    Mensaje(const CString& texto, bool delMarco)
        : Mensaje(delMarco ? CString(AfxGetAppName()) : TextoDe(TituloMensajes), texto,
                  delMarco ? MB_ICONEXCLAMATION : MB_ICONERROR) {}
};

/// Expects it next, with OK as its only answer.
inline void Espera(kit::Script& guion, const Mensaje& mensaje,
                   kit::Where donde = kit::Where::current()) {
    guion.expectMessage(mensaje.titulo, mensaje.texto, mensaje.icono, donde)
        .buttons(MB_OK)
        .ownedByDialog();
}

/// A test of one dialog, which the test's class opens over its own values.
class ConDialogo : public testing::Test {
protected:
    using Paso = std::function<void(kit::Dialog&)>;
    /// Refusals that come one after the other.
    using Mensajes = std::initializer_list<Mensaje>;

    /// Runs the dialog over the test's values.
    virtual INT_PTR Ejecuta(CWnd* padre) = 0;

    /// Opens the dialog and does `paso` in it; `mensajes` come meanwhile.
    INT_PTR Abre(Mensajes mensajes, const Paso& paso, kit::Where donde = kit::Where::current()) {
        return Conduce([this] { return Ejecuta(nullptr); }, mensajes, paso, donde);
    }
    INT_PTR Abre(const Paso& paso, kit::Where donde = kit::Where::current()) {
        return Abre({}, paso, donde);
    }

    /// The same with a dialog that the test has made.
    static INT_PTR Abre(CDialog& dialogo, Mensajes mensajes, const Paso& paso,
                        kit::Where donde = kit::Where::current()) {
        return Conduce([&] { return dialogo.DoModal(); }, mensajes, paso, donde);
    }
    static INT_PTR Abre(CDialog& dialogo, const Paso& paso,
                        kit::Where donde = kit::Where::current()) {
        return Abre(dialogo, {}, paso, donde);
    }

private:
    static INT_PTR Conduce(const std::function<INT_PTR()>& conversacion, Mensajes mensajes,
                           const Paso& paso, kit::Where donde) {
        kit::Script guion;
        guion.onDialog(paso, donde);
        for (const Mensaje& mensaje : mensajes)
            Espera(guion, mensaje, donde);
        return guion.run(conversacion, donde);
    }
};

/// The controls of a dialog, in its order.
inline std::vector<HWND> ControlesDe(HWND dialogo) {
    std::vector<HWND> controles;
    for (HWND control = GetWindow(dialogo, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        controles.push_back(control);
    return controles;
}

/// Controls of a dialog, by their numbers.
using Controles = std::set<int>;

/// Those for which `es` holds.
inline Controles ControlesQue(const kit::Dialog& dialogo, const std::function<bool(HWND)>& es) {
    Controles controles;
    for (const HWND control : ControlesDe(dialogo.handle()))
        if (es(control))
            controles.insert(GetDlgCtrlID(control));
    return controles;
}
inline Controles Deshabilitados(const kit::Dialog& dialogo) {
    return ControlesQue(dialogo, [](HWND control) { return !IsWindowEnabled(control); });
}
inline Controles Ocultos(const kit::Dialog& dialogo) {
    return ControlesQue(dialogo, [](HWND control) { return !IsWindowVisible(control); });
}

/// What happens, in its order: "hide 20239", "enable 20047" and the like for the controls, "centre"
/// and "icon" for the dialog, "M" and "S" for the exchanges as in `ConIntercambios`.
using Diario = std::vector<std::string>;

/// For its life writes down what is done to the controls of a dialog: hidden, shown, disabled,
/// enabled; "range 1024" of arrows, "select 0 in 20210" of lists, "12.00 in 20074" of labels.
class EscuchaControles {
public:
    EscuchaControles(HWND dialogo, Diario& diario) {
        for (const HWND control : ControlesDe(dialogo)) {
            wchar_t clase[10] = {};
            GetClassNameW(control, clase, 10);
            const bool rotulo = _wcsicmp(clase, L"static") == 0;
            const auto numero = std::to_string(GetDlgCtrlID(control));
            m_Escuchas.emplace_back(control, [=, &diario](UINT mensaje, WPARAM w, LPARAM l) {
                if (mensaje == WM_SHOWWINDOW)
                    diario.push_back((w ? "show " : "hide ") + numero);
                if (mensaje == WM_ENABLE)
                    diario.push_back((w ? "enable " : "disable ") + numero);
                if (mensaje == UDM_SETRANGE || mensaje == UDM_SETRANGE32)
                    diario.push_back("range " + numero);
                if (mensaje == CB_SETCURSEL)
                    diario.push_back("select " + std::to_string(static_cast<int>(w)) + " in " +
                                     numero);
                if (mensaje == WM_SETTEXT && rotulo)
                    diario.push_back(kit::utf8(reinterpret_cast<const wchar_t*>(l)) + " in " +
                                     numero);
                return std::optional<LRESULT>();
            });
        }
    }

private:
    std::list<Escucha> m_Escuchas;
};

/// A dialog of class `Dlg` that keeps a diary of its opening.
template <class Dlg>
class ConDiario : public Dlg {
public:
    using Dlg::Dlg;

    BOOL OnInitDialog() override {
        const EscuchaControles escucha(this->m_hWnd, diario);
        const Escucha marco(this->m_hWnd, [this](UINT mensaje, WPARAM cual, LPARAM) {
            if (mensaje == WM_WINDOWPOSCHANGING)
                diario.emplace_back("centre");
            if (mensaje == WM_SETICON)
                diario.emplace_back(cual == ICON_SMALL ? "icon" : "big icon");
            return std::optional<LRESULT>();
        });
        const BOOL resultado = Dlg::OnInitDialog();
        EXPECT_TRUE(resultado) << "the focus is the framework's to set";
        return resultado;
    }

    Diario diario;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        diario.emplace_back(pDX->m_bSaveAndValidate ? "S" : "M");
        Dlg::DoDataExchange(pDX);
    }
};
