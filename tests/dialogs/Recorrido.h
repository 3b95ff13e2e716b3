// The controls of a dialog that its user can reach, and what he reads at each.
#pragma once

#include "kit/kit.h"

#include <string>
#include <vector>

/// One that takes the keyboard or the mouse.
struct Parada {
    int numero;
    HWND ventana;
    std::wstring nombre; ///< its caption or, of an input, that of the label before it

    bool esBoton() const;   ///< of any kind
    bool esCasilla() const; ///< a check box
    bool esEdicion() const; ///< one that can be typed into
    /// Whether its name is seen: of some edits only a screen reader knows it.
    bool seLeeSuNombre() const;
    /// Whether Tab stops at it: of the buttons of a radio group, at the chosen one.
    bool conTabulador() const;
    /// The letter that is underlined in its name, in lower case; 0 for none.
    wchar_t letra() const;
};

/// Those that are visible and enabled, in the order in which the eye comes upon them.
std::vector<Parada> Recorrido(const kit::Dialog& dialogo);

/// The numbers and names of all, under the dialog's own: as nombres.txt has them.
std::string Nombres(UINT plantilla, const kit::Dialog& dialogo);

/// What nombres.txt has of the dialog with this template, nothing where it is not there.
std::string NombresEscritos(UINT plantilla);
