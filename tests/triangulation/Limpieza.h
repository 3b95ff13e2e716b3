// The two cleaning dialogs for their tests: what each has of its own, and how it is opened.
#pragma once

#include "checks/ConDialogo.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/LimpiarRelieveDlg.h"
#include "cuadros/triangulation/LimpiarRelieveRangoZDlg.h"

template <class Dlg>
struct DeLimpieza;

template <>
struct DeLimpieza<Cotana::CLimpiarRelieveDlg> {
    using Data = Cotana::CDataLimpiarRelieve;
    static constexpr int A = IDC_LIMPIAR_RELIEVE_VALOR_A;
    static constexpr int B = IDC_LIMPIAR_RELIEVE_VALOR_B;
};

template <>
struct DeLimpieza<Cotana::CLimpiarRelieveRangoZDlg> {
    using Data = Cotana::CDataLimpiarRelieveRangoZ;
    static constexpr int A = IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_A;
    static constexpr int B = IDC_LIMPIAR_RELIEVE_RANGO_Z_VALOR_B;
};

/// A test of a cleaning dialog: its record with two values, and the dialog over it.
template <class Dlg>
class ConLimpieza : public ConDialogo {
protected:
    using Dialogo = Dlg;
    using De = DeLimpieza<Dlg>;

    static constexpr int A = De::A;
    static constexpr int B = De::B;

    ConLimpieza() {
        data.m_ValorA = 12.5;
        data.m_ValorB = -0.25;
    }

    INT_PTR Ejecuta(CWnd* padre) override { return Dlg(data, padre).DoModal(); }

    /// Types both texts and takes OK.
    void Acepta(const wchar_t* textoA, const wchar_t* textoB,
                kit::Where donde = kit::Where::current()) {
        const auto resultado = Abre(
            [&](kit::Dialog& dialogo) {
                dialogo.type(A, textoA);
                dialogo.type(B, textoB);
                dialogo.press(IDOK);
            },
            donde);
        EXPECT_EQ(resultado, IDOK);
    }

    typename De::Data data;
};
