// What the tests of every dialog know of one: its traits, and how it is opened.
#pragma once

#include "checks/Comprobaciones.h"

#include <afxwin.h>

#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <typeinfo>
#include <utility>
#include <vector>

/// How a dialog answers who asks for help.
struct Ayuda {
    bool conF1;
    bool conBoton;    ///< has a Help button, and a help that a derived class may replace
    DWORD_PTR pagina; ///< of the host's help file, its context number
};

constexpr Ayuda Propia(DWORD_PTR pagina) {
    return {true, true, pagina};
}
constexpr Ayuda SoloF1(DWORD_PTR pagina) {
    return {true, false, pagina};
}
constexpr Ayuda SinAyuda{false, false, 0};

/// In the place of an icon's number.
constexpr UINT SinIcono = 0;

/// Whether a class declares information of its own.
enum class Informacion : bool { No, Si };

/// A dialog of a class that the host has derived from the dialog's, over variables of its own.
class Conversacion {
public:
    virtual ~Conversacion() = default;

    virtual CDialog& Dialogo() = 0;
    INT_PTR DoModal() { return Dialogo().DoModal(); }
    /// The exchanges since the last call, as of `ConIntercambios`.
    virtual std::string Intercambios() = 0;
    /// Calls the dialog's handler of a request for help.
    virtual BOOL PideAyuda() = 0;

    bool conAyudaPropia = false; ///< help is the derived class's, which only counts
    int ayudas = 0;
};

template <class Dlg>
class DelHost : public ConIntercambios<Dlg> {
public:
    using ConIntercambios<Dlg>::ConIntercambios;

    /// Stands in the place of the dialog's own help, if it has one.
    virtual void OnHelp() {
        ++conversacion->ayudas;
        if (!conversacion->conAyudaPropia)
            Dlg::OnHelp();
    }
    BOOL PideAyuda() { return this->OnHelpInfo(nullptr); }

    Conversacion* conversacion = nullptr;
};

template <class Dlg, class Variables>
class Sobre : public Conversacion {
public:
    Sobre(Variables variables, CWnd* padre)
        : m_Variables(std::move(variables)),
          m_Dialogo(std::apply([&](auto&... suyas) { return DelHost<Dlg>(suyas..., padre); },
                               m_Variables)) {
        m_Dialogo.conversacion = this;
    }

    CDialog& Dialogo() override { return m_Dialogo; }
    std::string Intercambios() override { return m_Dialogo.Intercambios(); }
    BOOL PideAyuda() override { return m_Dialogo.PideAyuda(); }

private:
    Variables m_Variables;
    DelHost<Dlg> m_Dialogo;
};

/// A dialog with the traits that every one has.
struct Caso {
    using Uso = std::function<void(kit::Dialog&)>;
    /// The least and the largest number that edits take, as they are shown.
    using Rangos = std::map<int, std::vector<const wchar_t*>>;

    std::string nombre; ///< of its class
    UINT plantilla;
    UINT icono;
    Ayuda ayuda;
    Informacion informacion;
    Uso usa;       ///< what its user does until OK would be taken and every control is enabled
    Rangos rangos; ///< of the edits that do not take the whole range of their type
    const CRuntimeClass* clase;
    std::function<std::unique_ptr<Conversacion>(CWnd*)> hazla;
};

inline std::ostream& operator<<(std::ostream& salida, const Caso& caso) {
    return salida << caso.nombre;
}

inline void NoHaceNada(kit::Dialog& /*dialogo*/) {}

/// The name of a class, without its namespace.
std::string NombreDe(const std::type_info& clase);

/// The case of the dialogs of class `Dlg`.
///
/// @param variables gives a tuple of what stands before the owner in the constructor; each control
///                  is in use over them.
template <class Dlg, class Variables>
Caso De(UINT plantilla, UINT icono, Ayuda ayuda, Informacion informacion, Variables variables,
        Caso::Uso usa = NoHaceNada, Caso::Rangos rangos = {}) {
    using Tupla = decltype(variables());
    return {.nombre = NombreDe(typeid(Dlg)),
            .plantilla = plantilla,
            .icono = icono,
            .ayuda = ayuda,
            .informacion = informacion,
            .usa = std::move(usa),
            .rangos = std::move(rangos),
            .clase = Dlg::GetThisClass(),
            .hazla = [variables](CWnd* padre) {
                return std::make_unique<Sobre<Dlg, Tupla>>(variables(), padre);
            }};
}

/// One line for each dialog of the library, and of the host's that it opens. One that has several
/// templates, icons or pages of help has a line for each.
const std::vector<Caso>& Casos();
