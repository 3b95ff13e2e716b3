// A surveyor types the scale of his drawing. Where the advanced values follow it, they are in the
// record with each key, whether he then takes OK or not; the box itself keeps his text and caret.
#include "contours/Curvado.h"

#include <utility>

namespace {

class CurvadoDlgEscala : public Curvado {
protected:
    CurvadoDlgEscala() { data.m_AvanzadoPorEscala = TRUE; }

    /// The two values are those of this scale.
    void CompruebaValores(double escala) {
        EXPECT_DOUBLE_EQ(data.m_ValorAvanzado1, escala * 0.00004) << "at 1:" << escala;
        EXPECT_DOUBLE_EQ(data.m_ValorAvanzado2, escala * 0.0002) << "at 1:" << escala;
    }
};

TEST_F(CurvadoDlgEscala, EachKeyWritesTheAdvancedValues) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.select(Escala, {0, -1});
        const std::pair<const wchar_t*, unsigned int> teclas[] = {
            {L"1", 1}, {L"0", 10}, {L"0", 100}, {L"0", 1000}, {L"0", 10000}};
        for (const auto& [tecla, escala] : teclas) {
            dialogo.insert(Escala, tecla);
            EXPECT_EQ(data.m_Escala, escala);
            CompruebaValores(escala);
        }
        EXPECT_DOUBLE_EQ(data.m_ValorAvanzado1, 0.4);
        EXPECT_DOUBLE_EQ(data.m_ValorAvanzado2, 2.0);
        dialogo.press(IDCANCEL);
    });
    // They stay, although the user cancelled.
    EXPECT_EQ(data.m_Escala, 10000U);
    CompruebaValores(10000);
}

TEST_F(CurvadoDlgEscala, ScalesBeyondTheSignedOnesCountInFull) {
    for (const unsigned int escala : {2147483647U, 2147483648U, 4000000000U, 4294967295U}) {
        Abre([&](kit::Dialog& dialogo) {
            dialogo.type(Escala, std::to_wstring(escala));
            EXPECT_EQ(data.m_Escala, escala);
            CompruebaValores(escala);
            dialogo.press(IDCANCEL);
        });
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.text(Escala), std::to_wstring(escala));
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(CurvadoDlgEscala, ScaleOf0IsTakenAtFirst) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.type(Escala, L"0");
        EXPECT_EQ(data.m_Escala, 0U);
        CompruebaValores(0);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgEscala, ValuesThatDoNotFollowStay) {
    data.m_AvanzadoPorEscala = FALSE;
    Abre([this](kit::Dialog& dialogo) {
        dialogo.type(Escala, L"2500");
        EXPECT_EQ(data.m_Escala, 2500U);
        EXPECT_EQ(data.m_ValorAvanzado1, 0.5);
        EXPECT_EQ(data.m_ValorAvanzado2, 1.5);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(data.m_ValorAvanzado1, 0.5);
    EXPECT_EQ(data.m_ValorAvanzado2, 1.5);
}

TEST_F(CurvadoDlgEscala, AnyFlagButZeroFollows) {
    for (const int sigue : {2, -1}) {
        data.m_AvanzadoPorEscala = sigue;
        Abre([this](kit::Dialog& dialogo) {
            dialogo.append(Escala, L"0");
            CompruebaValores(data.m_Escala);
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(data.m_AvanzadoPorEscala, sigue);
    }
}

TEST_F(CurvadoDlgEscala, EachKeyExchangesOnceAndShowsNothing) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"7.50");
        contador.Intercambios();
        dialogo.type(Escala, L"2500");
        EXPECT_EQ(contador.Intercambios(), "SSSS");
        EXPECT_EQ(data.m_Equidistancia, 7.5);
        EXPECT_EQ(dialogo.text(Equidistancia), L"7.50");
        dialogo.setText(Escala, L"3000");
        EXPECT_EQ(contador.Intercambios(), "S");
        CompruebaValores(3000);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgEscala, TypingKeepsTextAndCaret) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.select(Escala, {1, 1});
        dialogo.insert(Escala, L"2");
        EXPECT_EQ(dialogo.text(Escala), L"12000");
        EXPECT_EQ(dialogo.selection(Escala), (kit::Selection{2, 2}));
        dialogo.insert(Escala, L"5");
        EXPECT_EQ(dialogo.text(Escala), L"125000");
        EXPECT_EQ(dialogo.selection(Escala), (kit::Selection{3, 3}));
        CompruebaValores(125000);

        // Zeros before a number stay as the user has typed them.
        dialogo.select(Escala, {0, 0});
        dialogo.insert(Escala, L"00");
        EXPECT_EQ(dialogo.text(Escala), L"00125000");
        EXPECT_EQ(dialogo.selection(Escala), (kit::Selection{2, 2}));
        EXPECT_EQ(data.m_Escala, 125000U);
        EXPECT_EQ(dialogo.focus(), Escala);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgEscala, KeysOfTheKeyboardCorrectTheScale) {
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.focus(), Escala);
        kit::keyboard::press(VK_END);
        kit::keyboard::press(VK_BACK);
        EXPECT_EQ(data.m_Escala, 100U);
        kit::keyboard::press(VK_HOME);
        kit::keyboard::press(VK_DELETE);
        kit::keyboard::type(L"2");
        EXPECT_EQ(dialogo.text(Escala), L"200");
        EXPECT_EQ(dialogo.selection(Escala), (kit::Selection{1, 1}));
        EXPECT_EQ(data.m_Escala, 200U);
        CompruebaValores(200);
        dialogo.press(IDCANCEL);
    });
}

// Texts that are no scale.

TEST_F(CurvadoDlgEscala, ClearedScaleIsRefusedAtOnceAndTheOldOneCounts) {
    const auto resultado = Abre({AFX_IDP_PARSE_UINT}, [this](kit::Dialog& dialogo) {
        dialogo.type(Escala, L"");
        EXPECT_EQ(dialogo.focus(), Escala);
        EXPECT_EQ(dialogo.text(Escala), L"");
        EXPECT_EQ(data.m_Escala, 1000U);
        CompruebaValores(1000);
        // The next key is a scale again.
        dialogo.insert(Escala, L"7");
        EXPECT_EQ(data.m_Escala, 7U);
        CompruebaValores(7);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Escala, 7U);
}

TEST_F(CurvadoDlgEscala, KeyThatMakesNoNumberIsRefusedAtOnce) {
    for (const wchar_t* const tecla : {L"a", L".", L"-", L","}) {
        data.m_Escala = 1000;
        Abre({AFX_IDP_PARSE_UINT}, [&](kit::Dialog& dialogo) {
            dialogo.append(Escala, tecla);
            EXPECT_EQ(dialogo.focus(), Escala);
            EXPECT_EQ(dialogo.text(Escala), std::wstring(L"1000") + tecla);
            EXPECT_EQ(data.m_Escala, 1000U);
            CompruebaValores(1000);
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(CurvadoDlgEscala, ScaleBeyondTheLargestIsRefused) {
    Abre({AFX_IDP_PARSE_UINT}, [this](kit::Dialog& dialogo) {
        dialogo.type(Escala, L"4294967296");
        EXPECT_EQ(data.m_Escala, 429496729U);
        CompruebaValores(429496729);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgEscala, ValuesFollowTheScaleWhateverTheOtherNumbersAre) {
    Abre({AFX_IDP_PARSE_REAL}, [this](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"five");
        dialogo.append(Escala, L"0");
        // Of the numbers, the scale is exchanged first.
        EXPECT_EQ(dialogo.focus(), Equidistancia);
        EXPECT_EQ(dialogo.text(Escala), L"10000");
        EXPECT_EQ(data.m_Escala, 10000U);
        CompruebaValores(10000);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgEscala, RefusedExchangeStillWritesTheValues) {
    auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
    desconfiado.rechazado = 6;
    Abre(desconfiado, [this](kit::Dialog& dialogo) {
        dialogo.append(Escala, L"0");
        EXPECT_EQ(data.m_Escala, 10000U);
        CompruebaValores(10000);
        dialogo.press(IDCANCEL);
    });
}

// What is no change of the user's.

TEST_F(CurvadoDlgEscala, OpeningLeavesValuesOfAnotherScale) {
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(data.m_ValorAvanzado1, 0.5);
        EXPECT_EQ(data.m_ValorAvanzado2, 1.5);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(data.m_ValorAvanzado1, 0.5);
    EXPECT_EQ(data.m_ValorAvanzado2, 1.5);
}

TEST_F(CurvadoDlgEscala, ShowingTheRecordAgainLeavesThemToo) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        data.m_Escala = 3000;
        contador.Intercambios();
        contador.UpdateData(FALSE);
        EXPECT_EQ(contador.Intercambios(), "M");
        EXPECT_EQ(dialogo.text(Escala), L"3000");
        EXPECT_EQ(data.m_ValorAvanzado1, 0.5);
        dialogo.press(IDCANCEL);
    });
}

} // namespace
