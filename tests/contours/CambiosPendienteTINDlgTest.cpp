// A surveyor draws where the slope of a triangulated network changes. He types the least change,
// the labels' decimals and the code of the lines, and ticks which drawings he wants: OK is enabled
// while one of them is.
#include "cuadros/contours/CambiosPendienteTINDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/ContoursIds.h"

namespace {

constexpr int Valor = IDC_CAMBIOS_PENDIENTE_TIN_VALOR;
constexpr int NotaValor = IDC_CAMBIOS_PENDIENTE_TIN_NOTA_VALOR;
constexpr int Entero = IDC_CAMBIOS_PENDIENTE_TIN_ENTERO;
constexpr int Cadena = IDC_CAMBIOS_PENDIENTE_TIN_CADENA;
constexpr int NotaCadena = IDC_CAMBIOS_PENDIENTE_TIN_NOTA_CADENA;
constexpr int Dibujo1 = IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_1;
constexpr int Dibujo2 = IDC_CAMBIOS_PENDIENTE_TIN_DIBUJO_2;

class CambiosPendienteTINDlg : public ConDialogo {
protected:
    CambiosPendienteTINDlg() {
        data.m_EnteroCambio = 2;
        data.m_CadenaCambio = L"SC";
        data.m_ValorCambio = 12.5;
        data.m_GenerarDibujo1 = TRUE;
        data.m_GenerarDibujo2 = TRUE;
    }

    INT_PTR Ejecuta(CWnd* padre) override { return CCambiosPendienteTINDlg(data, padre).DoModal(); }

    Cotana::CDataCambiosPendiente data;
};

// What the user sees first.

TEST_F(CambiosPendienteTINDlg, ShowsTheRecord) {
    data.m_GenerarDibujo2 = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Slope Changes");
        EXPECT_EQ(dialogo.text(Entero), L"2");
        EXPECT_EQ(dialogo.text(Cadena), L"SC");
        EXPECT_EQ(dialogo.text(Valor), L"12.5");
        EXPECT_TRUE(dialogo.checked(Dibujo1));
        EXPECT_FALSE(dialogo.checked(Dibujo2));
        EXPECT_EQ(Ocultos(dialogo), Controles{});
        dialogo.picture(L"CambiosPendienteTINDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, EachBoxShowsItsOwnFlag) {
    data.m_GenerarDibujo1 = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.checked(Dibujo1));
        EXPECT_TRUE(dialogo.checked(Dibujo2));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, NotesAreDisabledAndStayIt) {
    const Controles notas = {NotaValor, NotaCadena};
    Abre([&](kit::Dialog& dialogo) {
        EXPECT_EQ(Deshabilitados(dialogo), notas);
        for (const int casilla : {Dibujo1, Dibujo1, Dibujo2, Dibujo2}) {
            dialogo.click(casilla);
            EXPECT_EQ(Deshabilitados(dialogo), notas);
        }
        for (const int nota : notas)
            EXPECT_FALSE(dialogo.text(nota).empty());
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, OpensInItsOrder) {
    data.m_GenerarDibujo1 = FALSE;
    data.m_GenerarDibujo2 = FALSE;
    ConDiario<CCambiosPendienteTINDlg> conDiario(data);
    Abre(conDiario, [](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(conDiario.diario, (Diario{"M", "centre", "icon", "disable 14501", "disable 14503",
                                        "M", "S", "disable 1"}));
}

TEST_F(CambiosPendienteTINDlg, RecordThatTheHostHasJustMadeAsksForBothDrawings) {
    data = {};
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        EXPECT_TRUE(dialogo.checked(Dibujo1));
        EXPECT_TRUE(dialogo.checked(Dibujo2));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
}

TEST_F(CambiosPendienteTINDlg, ValueIsRoundedTo15DigitsAtOpening) {
    data.m_ValorCambio = 0.1 + 0.2;
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor), L"0.3");
        EXPECT_EQ(data.m_ValorCambio, 0.3);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, FlagsOutsideTheirRangeAreReadBackAtOpening) {
    for (const int antes : {2, -1, 7}) {
        data.m_GenerarDibujo1 = 0;
        data.m_GenerarDibujo2 = antes;
        Abre([&](kit::Dialog& dialogo) {
            // How a box of two states shows a third one is the system's choice.
            EXPECT_EQ(data.m_GenerarDibujo2,
                      SendMessageW(dialogo.control(Dibujo2), BM_GETCHECK, 0, 0));
            EXPECT_EQ(data.m_GenerarDibujo2 != 0, antes == 2);
            EXPECT_EQ(dialogo.enabled(IDOK), antes == 2);
            dialogo.press(IDCANCEL);
        });
    }
}

// The two check boxes.

TEST_F(CambiosPendienteTINDlg, OkIsEnabledAtOpeningWhileADrawingIsTicked) {
    for (const int dibujo1 : {0, 1})
        for (const int dibujo2 : {0, 1}) {
            data.m_GenerarDibujo1 = dibujo1;
            data.m_GenerarDibujo2 = dibujo2;
            Abre([&](kit::Dialog& dialogo) {
                EXPECT_EQ(dialogo.enabled(IDOK), dibujo1 || dibujo2) << dibujo1 << dibujo2;
                EXPECT_TRUE(dialogo.enabled(IDCANCEL));
                EXPECT_TRUE(dialogo.enabled(ID_HELP));
                dialogo.press(IDCANCEL);
            });
        }
}

TEST_F(CambiosPendienteTINDlg, UntickingBothDisablesOkAtOnceAndEitherEnablesIt) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.click(Dibujo1);
        EXPECT_EQ(data.m_GenerarDibujo1, 0);
        EXPECT_EQ(data.m_GenerarDibujo2, 1);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.click(Dibujo2);
        EXPECT_EQ(data.m_GenerarDibujo2, 0);
        EXPECT_FALSE(dialogo.enabled(IDOK));

        dialogo.click(Dibujo1);
        EXPECT_EQ(data.m_GenerarDibujo1, 1);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.click(Dibujo1);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.click(Dibujo2);
        EXPECT_EQ(data.m_GenerarDibujo2, 1);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, BoxesEnableOkAndNothingElse) {
    Diario diario;
    Abre([&](kit::Dialog& dialogo) {
        const EscuchaControles escucha(dialogo.handle(), diario);
        for (const int casilla : {Dibujo1, Dibujo2, Dibujo2, Dibujo2, Dibujo1})
            dialogo.click(casilla);
        EXPECT_EQ(diario, (Diario{"disable 1", "enable 1", "disable 1", "enable 1"}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, TypingLeavesOkAsItIs) {
    data.m_GenerarDibujo1 = FALSE;
    data.m_GenerarDibujo2 = FALSE;
    Abre([](kit::Dialog& dialogo) {
        dialogo.type(Entero, L"3");
        dialogo.type(Cadena, L"C");
        dialogo.type(Valor, L"4");
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, FlagsCountAlsoWhereTheHostRefusesTheExchange) {
    data.m_GenerarDibujo2 = FALSE;
    CDesconfiado<CCambiosPendienteTINDlg> dlg(data);
    dlg.rechazado = 2; // the first one opens it
    Abre(dlg, [](kit::Dialog& dialogo) {
        dialogo.click(Dibujo1);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

// The boxes and the text are exchanged first: OK follows them whatever the numbers are.

TEST_F(CambiosPendienteTINDlg, BadDecimalsLeaveOnlyTheNumbersUnreadByTheClick) {
    for (const wchar_t* const malo : {L"", L"1.5", L"some", L"2147483648"}) {
        data.m_GenerarDibujo1 = TRUE;
        data.m_GenerarDibujo2 = TRUE;
        const auto resultado =
            Abre({AFX_IDP_PARSE_INT, AFX_IDP_PARSE_INT}, [&](kit::Dialog& dialogo) {
                dialogo.type(Entero, malo);
                dialogo.type(Cadena, L"Typed");
                dialogo.type(Valor, L"99");
                dialogo.click(Dibujo1);
                EXPECT_EQ(dialogo.focus(), Entero);
                EXPECT_EQ(dialogo.text(Entero), malo);
                EXPECT_TRUE(dialogo.enabled(IDOK));
                dialogo.click(Dibujo2);
                EXPECT_FALSE(dialogo.enabled(IDOK));
                dialogo.press(IDCANCEL);
            });
        EXPECT_EQ(resultado, IDCANCEL);
        EXPECT_EQ(data.m_EnteroCambio, 2);
        EXPECT_EQ(data.m_CadenaCambio, L"Typed");
        EXPECT_EQ(data.m_ValorCambio, 12.5);
        EXPECT_EQ(data.m_GenerarDibujo1, 0);
        EXPECT_EQ(data.m_GenerarDibujo2, 0);
    }
}

TEST_F(CambiosPendienteTINDlg, TickedBoxEnablesOkWhateverTheValueIs) {
    data.m_GenerarDibujo1 = FALSE;
    data.m_GenerarDibujo2 = FALSE;
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"steep");
        dialogo.click(Dibujo2);
        EXPECT_EQ(dialogo.focus(), Valor);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_ValorCambio, 12.5);
    EXPECT_EQ(data.m_GenerarDibujo1, 0);
    EXPECT_EQ(data.m_GenerarDibujo2, 1);
}

TEST_F(CambiosPendienteTINDlg, WhatComesBeforeABadValueIsInTheRecord) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(Entero, L"3");
        dialogo.type(Cadena, L"Typed");
        dialogo.type(Valor, L"steep");
        dialogo.click(Dibujo1);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_EnteroCambio, 3);
    EXPECT_EQ(data.m_CadenaCambio, L"Typed");
    EXPECT_EQ(data.m_ValorCambio, 12.5);
    EXPECT_EQ(data.m_GenerarDibujo1, 0);
}

TEST_F(CambiosPendienteTINDlg, OkFollowsTheRecordWhereTheHostChangesIt) {
    // The host never makes the second drawing.
    data.m_GenerarDibujo2 = FALSE;
    ConRetoque<CCambiosPendienteTINDlg> dlg(data);
    dlg.alGuardar = [this] { data.m_GenerarDibujo2 = FALSE; };
    Abre(dlg, [](kit::Dialog& dialogo) {
        dialogo.click(Dibujo1);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.click(Dibujo2);
        EXPECT_TRUE(dialogo.checked(Dibujo2));
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

// OK.

TEST_F(CambiosPendienteTINDlg, OkLeavesEverythingInTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Entero, L"3");
        dialogo.type(Cadena, L"C 5");
        dialogo.type(Valor, L"1e2");
        dialogo.click(Dibujo2);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_EnteroCambio, 3);
    EXPECT_EQ(data.m_CadenaCambio, L"C 5");
    EXPECT_EQ(data.m_ValorCambio, 100);
    EXPECT_EQ(data.m_GenerarDibujo1, 1);
    EXPECT_EQ(data.m_GenerarDibujo2, 0);
}

TEST_F(CambiosPendienteTINDlg, OkChecksNoRangeAndNoText) {
    const CString larga(L'k', 300);
    const struct {
        const wchar_t* entero;
        CString cadena;
        const wchar_t* valor;
    } casos[] = {{L"-2147483648", L"", L"-1e300"}, {L"2147483647", larga, L"1e300"}};
    for (const auto& caso : casos) {
        const auto resultado = Abre([&](kit::Dialog& dialogo) {
            dialogo.type(Entero, caso.entero);
            dialogo.setText(Cadena, caso.cadena.GetString());
            dialogo.type(Valor, caso.valor);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(data.m_EnteroCambio, _wtoi(caso.entero));
        EXPECT_EQ(data.m_CadenaCambio, caso.cadena);
        EXPECT_EQ(data.m_ValorCambio, _wtof(caso.valor));
    }
}

TEST_F(CambiosPendienteTINDlg, OkReadsTheBoxesTheTextAndThenTheNumbers) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(LeidosPorOk(dialogo, {Valor, Entero, Cadena, Dibujo2, Dibujo1}),
                  (std::vector<int>{Dibujo1, Dibujo2, Cadena, Entero, Valor}));
    });
}

TEST_F(CambiosPendienteTINDlg, OkCommandClosesItWithNeitherDrawing) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.click(Dibujo1);
        dialogo.click(Dibujo2);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.type(Cadena, L"Typed");
        dialogo.command(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_GenerarDibujo1, 0);
    EXPECT_EQ(data.m_GenerarDibujo2, 0);
    EXPECT_EQ(data.m_CadenaCambio, L"Typed");
}

TEST_F(CambiosPendienteTINDlg, NeitherDrawingIsNotConfirmedByMendingABadNumber) {
    const auto resultado = Abre({AFX_IDP_PARSE_INT, AFX_IDP_PARSE_INT}, [](kit::Dialog& dialogo) {
        dialogo.type(Entero, L"");
        dialogo.click(Dibujo1);
        dialogo.click(Dibujo2);
        dialogo.type(Entero, L"3");
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_EnteroCambio, 2);
}

TEST_F(CambiosPendienteTINDlg, BadNumberIsRefusedOnceByOk) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(Entero, L"3");
        dialogo.type(Valor, L"2,5");
        dialogo.press(IDOK);
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        EXPECT_EQ(dialogo.focus(), Valor);
        EXPECT_EQ(dialogo.text(Valor), L"2,5");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_EnteroCambio, 3);
    EXPECT_EQ(data.m_ValorCambio, 12.5);
}

TEST_F(CambiosPendienteTINDlg, OkStaysOpenWhereTheHostRefusesTheExchange) {
    CDesconfiado<CCambiosPendienteTINDlg> dlg(data);
    dlg.rechazado = 2; // the first one opens it
    EXPECT_EQ(Abre(dlg, {},
                   [](kit::Dialog& dialogo) {
                       dialogo.press(IDOK);
                       EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
                       dialogo.press(IDCANCEL);
                   }),
              IDCANCEL);
}

// Cancel.

TEST_F(CambiosPendienteTINDlg, CancelWithoutAClickKeepsTheRecord) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Entero, L"3");
                  dialogo.type(Cadena, L"Typed");
                  dialogo.type(Valor, L"4");
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(data.m_EnteroCambio, 2);
    EXPECT_EQ(data.m_CadenaCambio, L"SC");
    EXPECT_EQ(data.m_ValorCambio, 12.5);
    EXPECT_EQ(data.m_GenerarDibujo1, 1);
    EXPECT_EQ(data.m_GenerarDibujo2, 1);
}

TEST_F(CambiosPendienteTINDlg, CancelKeepsWhatTheClickExchanged) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Entero, L"3");
                  dialogo.type(Cadena, L"Typed");
                  dialogo.type(Valor, L"4");
                  dialogo.click(Dibujo2);
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(data.m_EnteroCambio, 3);
    EXPECT_EQ(data.m_CadenaCambio, L"Typed");
    EXPECT_EQ(data.m_ValorCambio, 4);
    EXPECT_EQ(data.m_GenerarDibujo1, 1);
    EXPECT_EQ(data.m_GenerarDibujo2, 0);
}

// By keyboard alone.

TEST_F(CambiosPendienteTINDlg, KeyboardPassesTheDisabledOk) {
    data.m_GenerarDibujo1 = FALSE;
    data.m_GenerarDibujo2 = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(RecorreConTabulador(dialogo),
                  (std::vector<int>{Valor, Entero, Cadena, Dibujo1, Dibujo2, IDCANCEL, ID_HELP}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, SpaceTicksABox) {
    data.m_GenerarDibujo1 = FALSE;
    data.m_GenerarDibujo2 = FALSE;
    Abre([this](kit::Dialog& dialogo) {
        dialogo.focusOn(Dibujo2);
        kit::keyboard::press(VK_SPACE);
        EXPECT_EQ(data.m_GenerarDibujo2, 1);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CambiosPendienteTINDlg, EnterPressesNoDisabledOk) {
    data.m_GenerarDibujo1 = FALSE;
    data.m_GenerarDibujo2 = FALSE;
    ConIntercambios<CCambiosPendienteTINDlg> contador(data);
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMS");
        for (const int control : {Valor, Cadena, Dibujo1}) {
            dialogo.focusOn(control);
            kit::keyboard::press(VK_RETURN);
            EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
            EXPECT_EQ(dialogo.focus(), control);
        }
        EXPECT_FALSE(dialogo.checked(Dibujo1));
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

// A host's own class on top of the dialog.

TEST_F(CambiosPendienteTINDlg, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<CCambiosPendienteTINDlg> contador(data);
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMS");
        dialogo.type(Valor, L"4");
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.click(Dibujo1);
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.click(Dibujo1);
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "S");
}

TEST_F(CambiosPendienteTINDlg, HostCallsTheHandlerItself) {
    CCambiosPendienteTINDlg dlg(data);
    Abre(dlg, [&](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"4");
        dlg.CheckDlgButton(Dibujo1, BST_UNCHECKED);
        dlg.CheckDlgButton(Dibujo2, BST_UNCHECKED);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dlg.OnBnClickedGenerarDibujo();
        EXPECT_EQ(data.m_GenerarDibujo1, 0);
        EXPECT_EQ(data.m_GenerarDibujo2, 0);
        EXPECT_EQ(data.m_ValorCambio, 4);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dlg.CheckDlgButton(Dibujo2, BST_CHECKED);
        dlg.OnBnClickedGenerarDibujo();
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

} // namespace
