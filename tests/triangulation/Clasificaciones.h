// The two selection dialogs for their tests: the classifications that they offer, and how each is
// opened.
#pragma once

#include "checks/ConDialogo.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/Triangulacion2DDlg.h"
#include "cuadros/triangulation/Triangulacion3DDlg.h"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

using Filas = std::vector<int>;
using Textos = std::vector<std::wstring>;

// Both dialogs give the same numbers to what they have in common.
constexpr int Lista = IDC_TRIANGULACION_2D_CLASIFICACIONES;
constexpr int Todas = IDC_TRIANGULACION_2D_TODAS;
constexpr int Ninguna = IDC_TRIANGULACION_2D_NINGUNA;
constexpr int Casilla = IDC_TRIANGULACION_2D_CASILLA;

/// A test of a selection dialog: three classifications, the host's variables, and the dialog.
template <class Dlg>
class ConClasificaciones : public ConDialogo {
protected:
    std::vector<Cotana::CInfoClasificacion> clasificaciones{
        Cotana::CInfoClasificacion(2, 148210, L"Ground"),
        Cotana::CInfoClasificacion(6, 5120, L"Buildings"),
        Cotana::CInfoClasificacion(9, 733, L"Water")};
    double valor = 2.5;
    CString nombre = L"North slope";
    int entero = 0;
    int activarCasilla = 1;

    /// A dialog over the host's variables; of class `De`, where the test has its own.
    template <class De = Dlg>
    std::unique_ptr<De> Crea(CWnd* duena = nullptr) {
        if constexpr (std::is_base_of_v<Cotana::CTriangulacion2DDlg, Dlg>)
            return std::make_unique<De>(clasificaciones, valor, nombre, activarCasilla, duena);
        else
            return std::make_unique<De>(clasificaciones, valor, entero, activarCasilla, duena);
    }

    INT_PTR Ejecuta(CWnd* padre) override { return Crea(padre)->DoModal(); }
};
