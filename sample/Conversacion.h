#pragma once

#include <afxwin.h>

#include <vector>

#include "sample/Ficha.h"
#include "sample/Hecho.h"
#include "sample/Terreno.h"
#include "sample/Visita.h"

/// One conversation that the host can have: a command of the launcher and a stop of the tour.
struct Conversacion {
    const wchar_t* subsistema;
    const wchar_t* titulo;
    const wchar_t* raiz; ///< Name of its pictures, and of its page in docs/dialogs.
    DWORD_PTR ayuda;     ///< Its help context; 0 for none.

    /// Fills the record from the terrain; called before each opening.
    void (*prepara)(Terreno&);
    /// Opens the dialog over the record; the result is DoModal's.
    INT_PTR (*abre)(Terreno&, CWnd* padre);
    /// The record, to be shown.
    Ficha (*ficha)(const Terreno&);
    /// What the tour does in the dialog.
    void (*conduce)(Visita&);
    /// The command that the host carries out over an accepted record; null where it has none here.
    Hecho (*ejecuta)(const Terreno&) = nullptr;
};

/// All of them, those of a subsystem one after another. A new dialog is one more row.
const std::vector<Conversacion>& Conversaciones();
