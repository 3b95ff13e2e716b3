// A surveyor is about to smooth a network. He types how strongly, and whether and how often the
// smoothing is repeated. The box that repeats it enables the number of times, and with its click
// all that he typed is in the record, whether he then takes OK or not.
#include "cuadros/triangulation/SuavizarTINDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/TriangulationIds.h"

namespace {

constexpr int Factor = IDC_SUAVIZAR_TIN_FACTOR;
constexpr int Iterar = IDC_SUAVIZAR_TIN_ITERAR;
constexpr int Iteraciones = IDC_SUAVIZAR_TIN_ITERACIONES;

class SuavizarTINDlg : public ConDialogo {
protected:
    SuavizarTINDlg() {
        data.m_Factor = 0.25;
        data.m_Iterar = TRUE;
        data.m_Iteraciones = 3;
    }

    INT_PTR Ejecuta(CWnd* padre) override { return CSuavizarTINDlg(data, padre).DoModal(); }

    Cotana::CDataSuavizarTIN data;
};

// What the user sees first.

TEST_F(SuavizarTINDlg, ShowsTheRecord) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Factor), L"0.25");
        EXPECT_TRUE(dialogo.checked(Iterar));
        EXPECT_EQ(dialogo.text(Iteraciones), L"3");
        EXPECT_TRUE(dialogo.enabled(Iteraciones));
        dialogo.picture(L"SuavizarTINDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(SuavizarTINDlg, SingleSmoothingStartsWithTheNumberOfTimesDisabled) {
    data.m_Iterar = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.checked(Iterar));
        EXPECT_EQ(dialogo.text(Iteraciones), L"3");
        EXPECT_FALSE(dialogo.enabled(Iteraciones));
        EXPECT_TRUE(dialogo.enabled(Factor));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(SuavizarTINDlg, FactorIsRoundedTo15DigitsAtOpening) {
    data.m_Factor = 0.1 + 0.2;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Factor), L"0.3");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_Factor, 0.3);
}

TEST_F(SuavizarTINDlg, FlagOutsideItsRangeIsReadBackAtOpening) {
    for (const int antes : {2, -1, 7}) {
        data.m_Iterar = antes;
        Abre([&](kit::Dialog& dialogo) {
            // How a box of two states shows a third one is the system's choice.
            const auto mostrado = SendMessageW(dialogo.control(Iterar), BM_GETCHECK, 0, 0);
            EXPECT_EQ(mostrado != BST_UNCHECKED, antes == 2);
            EXPECT_EQ(data.m_Iterar, mostrado);
            EXPECT_EQ(dialogo.enabled(Iteraciones), antes == 2);
            dialogo.press(IDCANCEL);
        });
    }
}

// The check box.

TEST_F(SuavizarTINDlg, RepetitionEnablesItsNumberOfTimes) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.click(Iterar);
        EXPECT_EQ(data.m_Iterar, 0);
        EXPECT_FALSE(dialogo.enabled(Iteraciones));
        dialogo.click(Iterar);
        EXPECT_EQ(data.m_Iterar, 1);
        EXPECT_TRUE(dialogo.enabled(Iteraciones));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(SuavizarTINDlg, BadNumberOfTimesLeavesTheFlagUnread) {
    for (const wchar_t* const malo : {L"-1", L"", L"2.5", L"many", L"4294967296"}) {
        const auto resultado = Abre({AFX_IDP_PARSE_UINT}, [&](kit::Dialog& dialogo) {
            dialogo.type(Factor, L"0.75");
            dialogo.type(Iteraciones, malo);
            dialogo.click(Iterar);
            // The number of times is exchanged first: neither the flag nor the factor is read, and
            // the flag of before enables.
            EXPECT_FALSE(dialogo.checked(Iterar));
            EXPECT_EQ(data.m_Iterar, 1);
            EXPECT_EQ(data.m_Iteraciones, 3U);
            EXPECT_EQ(data.m_Factor, 0.25);
            EXPECT_TRUE(dialogo.enabled(Iteraciones));
            EXPECT_EQ(dialogo.focus(), Iteraciones);
            EXPECT_EQ(dialogo.text(Iteraciones), malo);
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(resultado, IDCANCEL);
        EXPECT_EQ(data.m_Iterar, 1) << kit::inQuotes(malo);
    }
}

TEST_F(SuavizarTINDlg, RefusedNumberThatIsThenDisabledLeavesTheKeyboardAlive) {
    data.m_Iterar = FALSE;
    const auto resultado = Abre({AFX_IDP_PARSE_UINT}, [](kit::Dialog& dialogo) {
        // The host enables the number of times although nothing is repeated.
        EnableWindow(dialogo.control(Iteraciones), TRUE);
        dialogo.type(Iteraciones, L"many");
        dialogo.click(Iterar);
        EXPECT_FALSE(dialogo.enabled(Iteraciones));
        EXPECT_EQ(dialogo.focus(), Iterar);
        kit::keyboard::press(VK_ESCAPE);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

TEST_F(SuavizarTINDlg, CorrectedNumberOfTimesReadsTheFlagWithOk) {
    const auto resultado = Abre({AFX_IDP_PARSE_UINT}, [&](kit::Dialog& dialogo) {
        dialogo.type(Iteraciones, L"");
        dialogo.click(Iterar);
        dialogo.type(Iteraciones, L"12");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Iterar, 0);
    EXPECT_EQ(data.m_Iteraciones, 12U);
}

TEST_F(SuavizarTINDlg, BadFactorIsRefusedAtTheClickAfterTheFlagIsRead) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [&](kit::Dialog& dialogo) {
        dialogo.type(Factor, L"strong");
        dialogo.click(Iterar);
        EXPECT_EQ(data.m_Iterar, 0);
        EXPECT_FALSE(dialogo.enabled(Iteraciones));
        EXPECT_EQ(dialogo.focus(), Factor);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_Factor, 0.25);
}

// OK.

TEST_F(SuavizarTINDlg, OkLeavesEverythingInTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Factor, L"-1e-3");
        dialogo.type(Iteraciones, L"4294967295");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Factor, -0.001);
    EXPECT_EQ(data.m_Iterar, 1);
    EXPECT_EQ(data.m_Iteraciones, 4294967295U);
}

TEST_F(SuavizarTINDlg, OkChecksNoRange) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Factor, L"0");
        dialogo.type(Iteraciones, L"0");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Factor, 0);
    EXPECT_EQ(data.m_Iteraciones, 0U);
}

TEST_F(SuavizarTINDlg, DisabledNumberOfTimesStillComesBack) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Iteraciones, L"8");
        dialogo.click(Iterar);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Iterar, 0);
    EXPECT_EQ(data.m_Iteraciones, 8U);
}

TEST_F(SuavizarTINDlg, BadFactorIsRefusedOnceByOk) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(Factor, L"0,5");
        dialogo.type(Iteraciones, L"9");
        dialogo.press(IDOK);
        EXPECT_EQ(dialogo.focus(), Factor);
        EXPECT_EQ(dialogo.text(Factor), L"0,5");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_Factor, 0.25);
    // It is exchanged last: what comes before it was stored.
    EXPECT_EQ(data.m_Iteraciones, 9U);
}

// Cancel.

TEST_F(SuavizarTINDlg, CancelWithoutAClickKeepsTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Factor, L"0.75");
        dialogo.type(Iteraciones, L"9");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_Factor, 0.25);
    EXPECT_EQ(data.m_Iterar, 1);
    EXPECT_EQ(data.m_Iteraciones, 3U);
}

TEST_F(SuavizarTINDlg, CancelKeepsWhatTheClickExchanged) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Factor, L"0.75");
        dialogo.type(Iteraciones, L"9");
        dialogo.click(Iterar);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_Factor, 0.75);
    EXPECT_EQ(data.m_Iterar, 0);
    EXPECT_EQ(data.m_Iteraciones, 9U);
}

// By keyboard alone.

TEST_F(SuavizarTINDlg, KeyboardPassesTheDisabledNumberOfTimes) {
    data.m_Iterar = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(RecorreConTabulador(dialogo),
                  (std::vector<int>{Factor, Iterar, IDOK, IDCANCEL, ID_HELP}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(SuavizarTINDlg, SpaceChangesTheCheckBox) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.focusOn(Iterar);
        kit::keyboard::press(VK_SPACE);
        EXPECT_EQ(data.m_Iterar, 0);
        EXPECT_FALSE(dialogo.enabled(Iteraciones));
        dialogo.press(IDCANCEL);
    });
}

// A host's own class on top of the dialog.

TEST_F(SuavizarTINDlg, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<CSuavizarTINDlg> contador(data);
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMS");
        dialogo.type(Factor, L"0.5");
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.click(Iterar);
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "S");
}

TEST_F(SuavizarTINDlg, HostCallsTheHandlerItself) {
    CSuavizarTINDlg dlg(data);
    const auto resultado = Abre(dlg, [&](kit::Dialog& dialogo) {
        dialogo.type(Factor, L"0.75");
        dialogo.type(Iteraciones, L"9");
        dlg.CheckDlgButton(Iterar, BST_UNCHECKED);
        EXPECT_TRUE(dialogo.enabled(Iteraciones));
        dlg.OnBnClickedCheckIterar();
        EXPECT_EQ(data.m_Factor, 0.75);
        EXPECT_EQ(data.m_Iterar, 0);
        EXPECT_EQ(data.m_Iteraciones, 9U);
        EXPECT_FALSE(dialogo.enabled(Iteraciones));
        dlg.CheckDlgButton(Iterar, BST_CHECKED);
        dlg.OnBnClickedCheckIterar();
        EXPECT_EQ(data.m_Iterar, 1);
        EXPECT_TRUE(dialogo.enabled(Iteraciones));
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

} // namespace
