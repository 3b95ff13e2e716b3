#pragma once

#include <afxwin.h>

#include <vector>

#include "sample/Ficha.h"
#include "sample/Hecho.h"
#include "sample/Terreno.h"

/// One conversation that the host can have: a command of the launcher. Each is the one object of a
/// source in sample/conversaciones.
struct Conversacion {
    const wchar_t* subsistema;
    const wchar_t* titulo;
    const wchar_t* raiz; ///< Name of its page in docs/dialogs.
    DWORD_PTR ayuda = 0; ///< Its help context; 0 for none.

    /// Fills the record from the terrain; called before each opening.
    void (*prepara)(Terreno&) = [](Terreno&) {};
    /// Opens the dialog over the record; the result is DoModal's.
    INT_PTR (*abre)(Terreno&, CWnd* padre);
    /// The record, to be shown.
    Ficha (*ficha)(const Terreno&);
    /// The command that the host carries out over an accepted record; null where it has none here.
    Hecho (*ejecuta)(const Terreno&) = nullptr;
};

/// All of them, those of a subsystem one after another.
const std::vector<const Conversacion*>& Conversaciones();
