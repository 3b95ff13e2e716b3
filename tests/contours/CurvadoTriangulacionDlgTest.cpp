// A surveyor draws contours straight from a triangulation. He says at which interval and under
// which code; OK wants an interval above zero and a code, and the host reads both from the dialog.
#include "cuadros/contours/CurvadoTriangulacionDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/StringIds.h"

namespace {

using Cotana::CCurvadoTriangulacionDlg;

constexpr int Equidistancia = IDC_CURVADO_TRIANGULACION_EQUIDISTANCIA;
constexpr int Cadena = IDC_CURVADO_TRIANGULACION_CADENA;

class CurvadoTriangulacionDlg : public ConDialogo {
protected:
    INT_PTR Ejecuta(CWnd* padre) override {
        CCurvadoTriangulacionDlg dlg(equidistancia, cadena, padre);
        const auto resultado = dlg.DoModal();
        leida = dlg.m_Equidistancia;
        codigo = dlg.m_Cadena;
        return resultado;
    }

    double equidistancia = 2.5;
    CString cadena = L"CV";

    // What the dialog has afterwards.
    double leida = -1;
    CString codigo;
};

// What the user sees first.

TEST_F(CurvadoTriangulacionDlg, ShowsTheIntervalAndTheCode) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Contours from a Triangulation");
        EXPECT_EQ(dialogo.text(Equidistancia), L"2.5");
        EXPECT_EQ(dialogo.text(Cadena), L"CV");
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.picture(L"CurvadoTriangulacionDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoTriangulacionDlg, OpensByOneExchange) {
    ConDiario<CCurvadoTriangulacionDlg> conDiario(equidistancia, cadena);
    Abre(conDiario, [](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(conDiario.diario, (Diario{"M", "centre", "icon"}));
}

// OK.

TEST_F(CurvadoTriangulacionDlg, HostReadsBothAfterOk) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Equidistancia, L"1e1");
                  dialogo.type(Cadena, L"Curva \u00F1 5");
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(leida, 10);
    EXPECT_EQ(codigo, L"Curva \u00F1 5");
    EXPECT_EQ(cadena, L"CV") << "the host's own text is only copied";
}

TEST_F(CurvadoTriangulacionDlg, NeitherHasALargestValue) {
    const CString larga(L'k', 300);
    EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                  dialogo.type(Equidistancia, L"1e300");
                  dialogo.setText(Cadena, larga.GetString());
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(leida, 1e300);
    EXPECT_EQ(codigo, larga);
    // A negative one is refused by the dialog's own check alone.
    EXPECT_EQ(Abre({19076},
                   [](kit::Dialog& dialogo) {
                       dialogo.type(Equidistancia, L"-1e300");
                       dialogo.press(IDOK);
                       dialogo.press(IDCANCEL);
                   }),
              IDCANCEL);
}

TEST_F(CurvadoTriangulacionDlg, IntervalComesBackRoundedTo15DigitsByOkAlone) {
    equidistancia = 0.1 + 0.2;
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  EXPECT_EQ(dialogo.text(Equidistancia), L"0.3");
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(leida, 0.3);
    Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(leida, 0.1 + 0.2);
}

TEST_F(CurvadoTriangulacionDlg, IntervalsAboveTheToleranceAreTaken) {
    const struct {
        const wchar_t* texto;
        double valor;
    } casos[] = {{L"0.0000002", 2e-7}, {L"1.1e-7", 1.1e-7}, {L"1000000", 1e6}};
    for (const auto& caso : casos) {
        const auto resultado = Abre([&](kit::Dialog& dialogo) {
            dialogo.type(Equidistancia, caso.texto);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(leida, caso.valor);
    }
}

TEST_F(CurvadoTriangulacionDlg, IntervalsUpToTheToleranceAreRefused) {
    const struct {
        const wchar_t* texto;
        double valor;
    } casos[] = {{L"0.00000005", 5e-8}, {L"1e-7", 1e-7},   {L"0", 0},
                 {L"-1e-7", -1e-7},     {L"-2e-7", -2e-7}, {L"-5", -5}};
    for (const auto& caso : casos) {
        const auto resultado = Abre({IDS_VALOR_NO_POSITIVO}, [&](kit::Dialog& dialogo) {
            dialogo.type(Equidistancia, caso.texto);
            dialogo.press(IDOK);
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(resultado, IDCANCEL);
        // As the exchange left it.
        EXPECT_EQ(leida, caso.valor);
        EXPECT_EQ(codigo, L"CV");
    }
}

TEST_F(CurvadoTriangulacionDlg, EmptyCodeIsRefused) {
    EXPECT_EQ(Abre({IDS_TEXTO_OBLIGATORIO},
                   [](kit::Dialog& dialogo) {
                       dialogo.type(Cadena, L"");
                       dialogo.press(IDOK);
                       dialogo.press(IDCANCEL);
                   }),
              IDCANCEL);
    EXPECT_EQ(codigo, L"");
    EXPECT_EQ(cadena, L"CV");
}

TEST_F(CurvadoTriangulacionDlg, CodeOfOneBlankIsTaken) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Cadena, L" ");
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(codigo, L" ");
}

TEST_F(CurvadoTriangulacionDlg, IntervalIsRefusedBeforeTheEmptyCode) {
    const auto resultado =
        Abre({IDS_VALOR_NO_POSITIVO, IDS_TEXTO_OBLIGATORIO}, [](kit::Dialog& dialogo) {
            dialogo.type(Equidistancia, L"-1");
            dialogo.type(Cadena, L"");
            dialogo.press(IDOK); // one message, not two
            dialogo.type(Equidistancia, L"1");
            dialogo.press(IDOK);
            dialogo.type(Cadena, L"C");
            dialogo.press(IDOK);
        });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(leida, 1);
    EXPECT_EQ(codigo, L"C");
}

TEST_F(CurvadoTriangulacionDlg, NegativeIntervalAndEmptyCodeGiveOneMessage) {
    const auto resultado = Abre({IDS_VALOR_NO_POSITIVO}, [](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"-1");
        dialogo.type(Cadena, L"");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(leida, -1);
    EXPECT_EQ(codigo, L"");
}

TEST_F(CurvadoTriangulacionDlg, RefusalStaysOpenAndMovesNoFocus) {
    Abre({IDS_VALOR_NO_POSITIVO, IDS_TEXTO_OBLIGATORIO}, [](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"0");
        dialogo.focusOn(Cadena);
        kit::keyboard::press(VK_RETURN);
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        EXPECT_EQ(dialogo.focus(), Cadena);
        EXPECT_EQ(dialogo.text(Equidistancia), L"0");

        dialogo.type(Cadena, L"");
        dialogo.type(Equidistancia, L"1");
        kit::keyboard::press(VK_RETURN);
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        EXPECT_EQ(dialogo.focus(), Equidistancia);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoTriangulacionDlg, OkReadsTheIntervalFirst) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(LeidosPorOk(dialogo, {Cadena, Equidistancia}),
                  (std::vector<int>{Equidistancia, Cadena, Equidistancia, Cadena}));
    });
}

// Texts that are no numbers.

TEST_F(CurvadoTriangulacionDlg, BadIntervalIsRefusedTwiceByOk) {
    for (const wchar_t* const malo : {L"", L"wide", L"2,5", L"2 m"}) {
        const auto resultado =
            Abre({AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL}, [&](kit::Dialog& dialogo) {
                dialogo.type(Equidistancia, malo);
                dialogo.type(Cadena, L"");
                dialogo.press(IDOK);
                EXPECT_EQ(dialogo.focus(), Equidistancia);
                EXPECT_EQ(dialogo.text(Equidistancia), malo);
                dialogo.press(IDCANCEL);
            });
        EXPECT_EQ(resultado, IDCANCEL);
        // The interval is exchanged first, so that not even the empty code was read.
        EXPECT_EQ(leida, 2.5);
        EXPECT_EQ(codigo, L"CV");
    }
}

TEST_F(CurvadoTriangulacionDlg, BadIntervalIsFollowedByTheChecksOfTheValuesBefore) {
    equidistancia = 0;
    Abre({AFX_IDP_PARSE_REAL, IDS_VALOR_NO_POSITIVO}, [](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"wide");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    equidistancia = 1;
    cadena.Empty();
    Abre({AFX_IDP_PARSE_REAL, IDS_TEXTO_OBLIGATORIO}, [](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"wide");
        dialogo.type(Cadena, L"C");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoTriangulacionDlg, OkGoesOnAfterARefusedExchangeOfItsOwn) {
    CDesconfiado<CCurvadoTriangulacionDlg> dlg(equidistancia, cadena);
    EXPECT_EQ(Abre(dlg, [](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
}

// Cancel.

TEST_F(CurvadoTriangulacionDlg, CancelReadsNothing) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Equidistancia, L"7");
                  dialogo.type(Cadena, L"C");
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(leida, 2.5);
    EXPECT_EQ(codigo, L"CV");
}

// A host's own class on top of the dialog.

TEST_F(CurvadoTriangulacionDlg, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<CCurvadoTriangulacionDlg> contador(equidistancia, cadena);
    const auto resultado = Abre(contador, {IDS_TEXTO_OBLIGATORIO}, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "M");
        dialogo.type(Cadena, L"");
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(IDOK);
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.type(Cadena, L"C");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "SS");
}

TEST_F(CurvadoTriangulacionDlg, CodeIsCopiedWhenTheDialogIsMade) {
    CCurvadoTriangulacionDlg dlg(equidistancia, cadena);
    cadena = L"Changed";
    EXPECT_EQ(dlg.m_Equidistancia, 2.5);
    EXPECT_EQ(dlg.m_Cadena, L"CV");
    Abre(dlg, [](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Cadena), L"CV");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoTriangulacionDlg, HostFillsItsMembersBeforeItOpens) {
    CCurvadoTriangulacionDlg dlg(equidistancia, cadena);
    dlg.m_Equidistancia = 4;
    dlg.m_Cadena = L"D";
    EXPECT_EQ(Abre(dlg, {},
                   [](kit::Dialog& dialogo) {
                       EXPECT_EQ(dialogo.text(Equidistancia), L"4");
                       EXPECT_EQ(dialogo.text(Cadena), L"D");
                       dialogo.press(IDOK);
                   }),
              IDOK);
    EXPECT_EQ(dlg.m_Equidistancia, 4);
    EXPECT_EQ(dlg.m_Cadena, L"D");
}

TEST_F(CurvadoTriangulacionDlg, MembersFollowEachOtherInTheirOrder) {
    const CCurvadoTriangulacionDlg dlg(equidistancia, cadena);
    EXPECT_LT(static_cast<const void*>(&dlg.m_Equidistancia),
              static_cast<const void*>(&dlg.m_Cadena));
}

TEST_F(CurvadoTriangulacionDlg, HostCallsTheHandlerItself) {
    CCurvadoTriangulacionDlg dlg(equidistancia, cadena);
    const auto resultado = Abre(dlg, {IDS_TEXTO_OBLIGATORIO}, [&](kit::Dialog& dialogo) {
        dialogo.type(Cadena, L"");
        dlg.OnOK();
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        dialogo.type(Cadena, L"C");
        dlg.OnOK();
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg.m_Cadena, L"C");
}

} // namespace
