// A surveyor leaves the contour options for a moment: the host asks him for the boundary's file,
// the host's own dialog for the advanced values, and the library's for the codes of the lines. What
// he takes there is in the record at once, whether he then takes OK or not.
#include "contours/Curvado.h"

#include <cotana/dialogos_dibujo/CurvadoAvanzadoDlg.h>
#include <cotana/dialogos_dibujo/DialogosDibujoIds.h>

#include "cuadros/contours/CurvadoCodigosDlg.h"
#include "kit/app/DialogClass.h"

namespace {

constexpr int PorEscala = IDC_CURVADO_AVANZADO_POR_ESCALA;
constexpr int Valor1 = IDC_CURVADO_AVANZADO_VALOR_1;
constexpr int Valor2 = IDC_CURVADO_AVANZADO_VALOR_2;

constexpr int CodigoCurvas[] = {IDC_CURVADO_CODIGOS_CODIGO_1, IDC_CURVADO_CODIGOS_CODIGO_2,
                                IDC_CURVADO_CODIGOS_CODIGO_3, IDC_CURVADO_CODIGOS_CODIGO_4,
                                IDC_CURVADO_CODIGOS_CODIGO_5};

class CurvadoDlgAbre : public Curvado {
protected:
    /// Opens the dialog, does `paso` in it, which opens the one of class `Abierto`, and `dentro` in
    /// that.
    template <class Abierto>
    INT_PTR AbreYAbre(CCurvadoDlg& dialogo, const Paso& paso, const Paso& dentro,
                      kit::Where donde = kit::Where::current()) {
        kit::Script guion;
        guion.onDialog(paso, donde);
        guion.onDialog(kit::of<Abierto>(), dentro, donde);
        return guion.run([&] { return dialogo.DoModal(); }, donde);
    }
    INT_PTR AbreAvanzado(const Paso& paso, const Paso& dentro,
                         kit::Where donde = kit::Where::current()) {
        auto dialogo = Dialogo();
        return AbreYAbre<Cotana::CCurvadoAvanzadoDlg>(dialogo, paso, dentro, donde);
    }
    INT_PTR AbreCodigos(const Paso& paso, const Paso& dentro,
                        kit::Where donde = kit::Where::current()) {
        auto dialogo = Dialogo();
        return AbreYAbre<CCurvadoCodigosDlg>(dialogo, paso, dentro, donde);
    }

    /// The dialog owns the one of the codes, and waits for it.
    void CompruebaDuenaDeLosCodigos(CCurvadoDlg& dialogo) {
        HWND debajo = nullptr;
        AbreYAbre<CCurvadoCodigosDlg>(
            dialogo,
            [&](kit::Dialog& abierto) {
                debajo = abierto.handle();
                PulsaCodigos(abierto);
            },
            [&](kit::Dialog& codigos) {
                EXPECT_EQ(codigos.owner(), debajo);
                EXPECT_FALSE(IsWindowEnabled(debajo));
                codigos.press(IDCANCEL);
            });
    }

    static void PulsaAvanzado(kit::Dialog& dialogo) {
        dialogo.press(Avanzado);
        dialogo.press(IDCANCEL);
    }
    static void PulsaCodigos(kit::Dialog& dialogo) {
        dialogo.press(Codigos);
        dialogo.press(IDCANCEL);
    }
};

// The boundary's file.

TEST_F(CurvadoDlgAbre, BrowsingAsksTheHostForAFileThatExists) {
    struct CDerivado : ConIntercambios<CCurvadoDlg> {
        using ConIntercambios<CCurvadoDlg>::ConIntercambios;
        using CCurvadoDlg::m_pPlantilla;
    };
    plantilla = reinterpret_cast<CDocTemplate*>(&kit::app);
    auto derivado = Dialogo<CDerivado>();
    kit::app.answerFilePrompt(L"D:\\chosen one.dxf");
    Abre(derivado, [&](kit::Dialog& dialogo) {
        dialogo.type(FicheroLimite, L"C:\\typed.dxf");
        dialogo.type(Equidistancia, L"7.50");
        derivado.Intercambios();
        dialogo.press(Buscar);
        EXPECT_EQ(derivado.Intercambios(), "SM");
        // The host gets the record's own text, which holds by now what was typed.
        EXPECT_EQ(CompruebaPregunta(dialogo, L"C:\\typed.dxf", 0x1004, &derivado.m_pPlantilla),
                  &data.m_FicheroLimite);
        EXPECT_EQ(derivado.m_pPlantilla, plantilla);
        EXPECT_EQ(dialogo.text(FicheroLimite), L"D:\\chosen one.dxf");
        EXPECT_EQ(dialogo.text(Equidistancia), L"7.5");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_FicheroLimite, L"D:\\chosen one.dxf");
}

TEST_F(CurvadoDlgAbre, CancelledBrowsingKeepsWhatWasTyped) {
    kit::app.cancelFilePrompt();
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        dialogo.type(FicheroLimite, L"C:\\typed.dxf");
        dialogo.type(Equidistancia, L"7.50");
        contador.Intercambios();
        dialogo.press(Buscar);
        EXPECT_EQ(contador.Intercambios(), "S");
        EXPECT_EQ(dialogo.text(FicheroLimite), L"C:\\typed.dxf");
        EXPECT_EQ(dialogo.text(Equidistancia), L"7.50");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_FicheroLimite, L"C:\\typed.dxf");
    EXPECT_EQ(data.m_Equidistancia, 7.5);
}

TEST_F(CurvadoDlgAbre, AnswerOfThePromptIsTakenAsItIs) {
    const std::wstring largo = L"C:\\" + std::wstring(400, L'n') + L".dxf";
    for (const std::wstring& nombre : {std::wstring(L"  no such file "), std::wstring(), largo}) {
        kit::app.answerFilePrompt(nombre);
        Abre([&](kit::Dialog& dialogo) {
            dialogo.press(Buscar);
            EXPECT_EQ(dialogo.text(FicheroLimite), nombre);
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(data.m_FicheroLimite, nombre.c_str());
    }
}

TEST_F(CurvadoDlgAbre, BadNumberAtBrowsingIsRefusedAndThenReplaced) {
    kit::app.answerFilePrompt(L"D:\\chosen.dxf");
    Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(CotaMinima, L"low");
        dialogo.type(CotaMaxima, L"200"); // exchanged after it
        dialogo.type(FicheroLimite, L"typed.dxf");
        dialogo.press(Buscar);
        EXPECT_EQ(dialogo.text(CotaMaxima), L"320.5");
        // What was typed is there for the prompt whatever the numbers are.
        EXPECT_EQ(kit::app.takeFilePrompts().at(0).nameBefore, L"typed.dxf");
        EXPECT_EQ(dialogo.text(CotaMinima), L"180");
        EXPECT_EQ(dialogo.text(FicheroLimite), L"D:\\chosen.dxf");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgAbre, BadScaleAtBrowsingStillHandsOverTheTypedName) {
    kit::app.cancelFilePrompt();
    // At its key, and by Browse.
    Abre({AFX_IDP_PARSE_UINT, AFX_IDP_PARSE_UINT}, [](kit::Dialog& dialogo) {
        dialogo.type(Escala, L"k");
        dialogo.type(FicheroLimite, L"typed.dxf");
        dialogo.press(Buscar);
        EXPECT_EQ(kit::app.takeFilePrompts().at(0).nameBefore, L"typed.dxf");
        EXPECT_EQ(dialogo.text(Escala), L"k");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgAbre, RefusedExchangeStillAsksTheHost) {
    kit::app.answerFilePrompt(L"D:\\chosen.dxf");
    auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
    desconfiado.rechazado = 6;
    Abre(desconfiado, [](kit::Dialog& dialogo) {
        dialogo.press(Buscar);
        EXPECT_EQ(dialogo.text(FicheroLimite), L"D:\\chosen.dxf");
        dialogo.press(IDCANCEL);
    });
}

// The advanced values.

TEST_F(CurvadoDlgAbre, AdvancedShowsTheRecordsValuesAndScale) {
    AbreAvanzado(PulsaAvanzado, [](kit::Dialog& avanzado) {
        EXPECT_EQ(avanzado.text(PorEscala), L"&Follow the scale (1:1000)");
        EXPECT_FALSE(avanzado.checked(PorEscala));
        EXPECT_EQ(avanzado.text(Valor1), L"0.5");
        EXPECT_EQ(avanzado.text(Valor2), L"1.5");
        avanzado.press(IDCANCEL);
    });
    data.m_AvanzadoPorEscala = TRUE;
    AbreAvanzado(PulsaAvanzado, [](kit::Dialog& avanzado) {
        EXPECT_TRUE(avanzado.checked(PorEscala));
        avanzado.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgAbre, AdvancedTakesScalesBeyondTheSignedOnes) {
    data.m_Escala = 4000000000;
    AbreAvanzado(PulsaAvanzado, [](kit::Dialog& avanzado) {
        EXPECT_EQ(avanzado.text(PorEscala), L"&Follow the scale (1:4000000000)");
        avanzado.click(PorEscala);
        avanzado.press(IDOK);
    });
    EXPECT_EQ(data.m_Escala, 4000000000);
    EXPECT_DOUBLE_EQ(data.m_ValorAvanzado1, 160000);
    EXPECT_DOUBLE_EQ(data.m_ValorAvanzado2, 800000);
}

TEST_F(CurvadoDlgAbre, OkOfAdvancedWritesItsThreeValuesAndNothingElse) {
    CDataCurvado esperado = data;
    esperado.m_ValorAvanzado1 = 0.125;
    esperado.m_ValorAvanzado2 = 7;
    AbreAvanzado(PulsaAvanzado, [this, antes = Campos(data)](kit::Dialog& avanzado) {
        avanzado.type(Valor1, L"0.125");
        avanzado.type(Valor2, L"7");
        avanzado.press(IDOK);
        // Its dialog has copies, which are the record's only when it has ended.
        EXPECT_EQ(Campos(data), antes);
    });
    // The contour options themselves were cancelled.
    EXPECT_EQ(Campos(data), Campos(esperado));

    esperado.m_AvanzadoPorEscala = TRUE;
    esperado.m_ValorAvanzado1 = 0.04;
    esperado.m_ValorAvanzado2 = 0.2;
    AbreAvanzado(PulsaAvanzado, [this, antes = Campos(data)](kit::Dialog& avanzado) {
        avanzado.click(PorEscala);
        avanzado.press(IDOK);
        EXPECT_EQ(Campos(data), antes);
    });
    EXPECT_EQ(Campos(data), Campos(esperado));

    esperado.m_AvanzadoPorEscala = FALSE;
    AbreAvanzado(PulsaAvanzado, [this, antes = Campos(data)](kit::Dialog& avanzado) {
        avanzado.click(PorEscala);
        avanzado.press(IDOK);
        EXPECT_EQ(Campos(data), antes);
    });
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_F(CurvadoDlgAbre, CancelOfAdvancedWritesNothing) {
    data.m_AvanzadoPorEscala = 7; // the advanced dialog would make it 1
    const auto antes = Campos(data);
    const auto resultado = AbreAvanzado(
        [](kit::Dialog& dialogo) {
            dialogo.press(Avanzado);
            dialogo.press(IDOK);
        },
        [](kit::Dialog& avanzado) {
            avanzado.check(PorEscala, true);
            avanzado.check(PorEscala, false);
            avanzado.type(Valor1, L"0.125");
            avanzado.type(Valor2, L"7");
            avanzado.press(IDCANCEL);
        });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(Campos(data), antes);
}

TEST_F(CurvadoDlgAbre, CancelOfAdvancedLeavesWhatTheHostWroteMeanwhile) {
    AbreAvanzado(PulsaAvanzado, [this](kit::Dialog& avanzado) {
        data.m_ValorAvanzado1 = 3;
        data.m_ValorAvanzado2 = 4;
        data.m_AvanzadoPorEscala = TRUE;
        avanzado.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_ValorAvanzado1, 3);
    EXPECT_EQ(data.m_ValorAvanzado2, 4);
    EXPECT_EQ(data.m_AvanzadoPorEscala, TRUE);
}

TEST_F(CurvadoDlgAbre, NothingIsExchangedAroundAdvanced) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    const auto paso = [&](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"7.50");
        contador.Intercambios();
        dialogo.press(Avanzado);
        EXPECT_EQ(contador.Intercambios(), "");
        EXPECT_EQ(dialogo.text(Equidistancia), L"7.50");
        dialogo.press(IDCANCEL);
    };
    AbreYAbre<Cotana::CCurvadoAvanzadoDlg>(contador, paso, [this](kit::Dialog& avanzado) {
        EXPECT_EQ(data.m_Equidistancia, 5);
        avanzado.press(IDOK);
    });
    EXPECT_EQ(data.m_Equidistancia, 5);
}

TEST_F(CurvadoDlgAbre, AdvancedHasTheScaleOfItsLastChangeThatWasANumber) {
    kit::Script guion;
    guion.onDialog([](kit::Dialog& dialogo) {
        dialogo.type(Escala, L"25");
        dialogo.append(Escala, L"k");
        PulsaAvanzado(dialogo);
    });
    Espera(guion, AFX_IDP_PARSE_UINT);
    guion.onDialog(kit::of<Cotana::CCurvadoAvanzadoDlg>(), [](kit::Dialog& avanzado) {
        EXPECT_EQ(avanzado.text(PorEscala), L"&Follow the scale (1:25)");
        avanzado.press(IDCANCEL);
    });
    guion.run([this] { return Dialogo().DoModal(); });
}

TEST_F(CurvadoDlgAbre, FlagOfAdvancedRulesTheNextKeyInTheScale) {
    AbreAvanzado(
        [this](kit::Dialog& dialogo) {
            dialogo.append(Escala, L"0");
            EXPECT_EQ(data.m_ValorAvanzado1, 0.5);
            dialogo.press(Avanzado);
            dialogo.append(Escala, L"0");
            EXPECT_DOUBLE_EQ(data.m_ValorAvanzado1, 4);
            EXPECT_DOUBLE_EQ(data.m_ValorAvanzado2, 20);
            dialogo.press(IDCANCEL);
        },
        [](kit::Dialog& avanzado) {
            avanzado.click(PorEscala);
            avanzado.press(IDOK);
        });
}

TEST_F(CurvadoDlgAbre, AdvancedIsModalOverTheContourOptions) {
    HWND debajo = nullptr;
    AbreAvanzado(
        [&](kit::Dialog& dialogo) {
            debajo = dialogo.handle();
            dialogo.press(Avanzado);
            EXPECT_TRUE(IsWindowEnabled(debajo));
            EXPECT_EQ(GetActiveWindow(), debajo);
            dialogo.press(IDCANCEL);
        },
        [&](kit::Dialog& avanzado) {
            EXPECT_EQ(avanzado.owner(), debajo);
            EXPECT_FALSE(IsWindowEnabled(debajo));
            avanzado.press(IDCANCEL);
        });
}

/// A window of the host's, for its life.
class Ventana : public CWnd {
public:
    Ventana() {
        EXPECT_TRUE(CreateEx(0, L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 40, 900,
                             600, nullptr, nullptr));
    }
    ~Ventana() override { DestroyWindow(); }
};

/// For its life the application has this main window.
class VentanaPrincipal : public Ventana {
public:
    VentanaPrincipal() { kit::app.m_pMainWnd = this; }
    ~VentanaPrincipal() override { kit::app.m_pMainWnd = nullptr; }
};

TEST_F(CurvadoDlgAbre, AdvancedBelongsToTheLastActiveWindowOfTheApplication) {
    const VentanaPrincipal principal;
    HWND debajo = nullptr;
    AbreAvanzado(
        [&](kit::Dialog& dialogo) {
            debajo = dialogo.handle();
            EXPECT_EQ(dialogo.owner(), principal.m_hWnd);
            PulsaAvanzado(dialogo);
        },
        [&](kit::Dialog& avanzado) {
            EXPECT_EQ(avanzado.owner(), debajo);
            EXPECT_FALSE(IsWindowEnabled(debajo));
            EXPECT_FALSE(principal.IsWindowEnabled());
            avanzado.press(IDCANCEL);
        });
    EXPECT_TRUE(principal.IsWindowEnabled());
}

// The contour options are not its parent: where they belong to another window, it still belongs to
// the main one, and does not disable them.
TEST_F(CurvadoDlgAbre, AdvancedBelongsToTheMainWindowWhereTheContourOptionsDoNot) {
    const VentanaPrincipal principal;
    Ventana otra;
    auto dlg = Dialogo(&otra);
    HWND debajo = nullptr;
    AbreYAbre<Cotana::CCurvadoAvanzadoDlg>(
        dlg,
        [&](kit::Dialog& dialogo) {
            debajo = dialogo.handle();
            PulsaAvanzado(dialogo);
        },
        [&](kit::Dialog& avanzado) {
            EXPECT_EQ(avanzado.owner(), principal.m_hWnd);
            EXPECT_TRUE(IsWindowEnabled(debajo));
            avanzado.press(IDCANCEL);
        });
}

// The codes of the lines.

TEST_F(CurvadoDlgAbre, CodesShowTheRecordsInTheirOrder) {
    AbreCodigos(PulsaCodigos, [](kit::Dialog& codigos) {
        const wchar_t* const esperados[] = {L"C1", L"C2", L"C3", L"C4", L"C5"};
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(codigos.text(CodigoCurvas[i]), esperados[i]);
        codigos.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgAbre, OkOfTheCodesWritesTheFiveAndNothingElse) {
    CDataCurvado esperado = data;
    esperado.m_CodigoCurvas1 = L"one";
    esperado.m_CodigoCurvas2 = L"";
    esperado.m_CodigoCurvas3 = L" three ";
    esperado.m_CodigoCurvas4 = L"four";
    esperado.m_CodigoCurvas5 = L"five";
    AbreCodigos(PulsaCodigos, [this, antes = Campos(data)](kit::Dialog& codigos) {
        const wchar_t* const tecleados[] = {L"one", L"", L" three ", L"four", L"five"};
        for (int i = 0; i < 5; ++i)
            codigos.type(CodigoCurvas[i], tecleados[i]);
        codigos.press(IDOK);
        // Its dialog has copies, which are the record's only when it has ended.
        EXPECT_EQ(Campos(data), antes);
    });
    // The contour options themselves were cancelled.
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_F(CurvadoDlgAbre, CancelOfTheCodesWritesNothing) {
    const auto antes = Campos(data);
    AbreCodigos(PulsaCodigos, [](kit::Dialog& codigos) {
        for (const int control : CodigoCurvas)
            codigos.type(control, L"typed");
        codigos.press(IDCANCEL);
    });
    EXPECT_EQ(Campos(data), antes);
}

TEST_F(CurvadoDlgAbre, CancelOfTheCodesLeavesWhatTheHostWroteMeanwhile) {
    const auto escritos = {&CDataCurvado::m_CodigoCurvas1, &CDataCurvado::m_CodigoCurvas2,
                           &CDataCurvado::m_CodigoCurvas3, &CDataCurvado::m_CodigoCurvas4,
                           &CDataCurvado::m_CodigoCurvas5};
    AbreCodigos(PulsaCodigos, [&](kit::Dialog& codigos) {
        for (const auto campo : escritos)
            data.*campo = L"host";
        codigos.press(IDCANCEL);
    });
    for (const auto campo : escritos)
        EXPECT_EQ(data.*campo, L"host");
}

TEST_F(CurvadoDlgAbre, NothingIsExchangedAroundTheCodes) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    const auto paso = [&](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"7.50");
        contador.Intercambios();
        dialogo.press(Codigos);
        EXPECT_EQ(contador.Intercambios(), "");
        EXPECT_EQ(dialogo.text(Equidistancia), L"7.50");
        dialogo.press(IDCANCEL);
    };
    AbreYAbre<CCurvadoCodigosDlg>(contador, paso, [](kit::Dialog& codigos) {
        codigos.type(CodigoCurvas[0], L"typed");
        codigos.press(IDOK);
    });
    EXPECT_EQ(data.m_Equidistancia, 5);
    EXPECT_EQ(data.m_CodigoCurvas1, L"typed");
}

TEST_F(CurvadoDlgAbre, CodesBelongToTheContourOptions) {
    auto dlg = Dialogo();
    CompruebaDuenaDeLosCodigos(dlg);
}

TEST_F(CurvadoDlgAbre, CodesBelongToTheContourOptionsOfAnotherWindowThanTheMainOneToo) {
    const VentanaPrincipal principal;
    Ventana otra;
    auto dlg = Dialogo(&otra);
    CompruebaDuenaDeLosCodigos(dlg);
}

TEST_F(CurvadoDlgAbre, CodesHaveTheirOwnHelpAndGiveItBack) {
    AbreCodigos(
        [](kit::Dialog& dialogo) {
            dialogo.press(Codigos);
            EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDeAyuda(151074));
            dialogo.help();
            EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDeAyuda(151165));
            dialogo.press(IDCANCEL);
        },
        [](kit::Dialog& codigos) {
            codigos.help();
            codigos.press(IDCANCEL);
        });
}

// Either.

TEST_F(CurvadoDlgAbre, MnemonicsOpenThem) {
    kit::Script guion;
    guion.onDialog([](kit::Dialog& dialogo) {
        kit::keyboard::mnemonic(L'a');
        kit::keyboard::mnemonic(L'c');
        dialogo.press(IDCANCEL);
    });
    guion.onDialog(kit::of<Cotana::CCurvadoAvanzadoDlg>(),
                   [](kit::Dialog&) { kit::keyboard::press(VK_ESCAPE); });
    guion.onDialog(kit::of<CCurvadoCodigosDlg>(),
                   [](kit::Dialog&) { kit::keyboard::press(VK_ESCAPE); });
    EXPECT_EQ(guion.run([this] { return Dialogo().DoModal(); }), IDCANCEL);
}

TEST_F(CurvadoDlgAbre, HostOpensThemItself) {
    auto dlg = Dialogo();
    kit::Script guion;
    guion.onDialog([&](kit::Dialog& dialogo) {
        dlg.OnAvanzado();
        EXPECT_EQ(data.m_ValorAvanzado2, 7);
        dlg.OnBnClickedCodigosCurvas();
        EXPECT_EQ(data.m_CodigoCurvas5, L"typed");
        dialogo.press(IDCANCEL);
    });
    guion.onDialog(kit::of<Cotana::CCurvadoAvanzadoDlg>(), [](kit::Dialog& avanzado) {
        avanzado.type(Valor2, L"7");
        avanzado.press(IDOK);
    });
    guion.onDialog(kit::of<CCurvadoCodigosDlg>(), [](kit::Dialog& codigos) {
        codigos.type(CodigoCurvas[4], L"typed");
        codigos.press(IDOK);
    });
    guion.run([&] { return dlg.DoModal(); });
}

TEST_F(CurvadoDlgAbre, LeaveNothingBehind) {
    const auto unaVez = [this] {
        AbreAvanzado(PulsaAvanzado, [](kit::Dialog& avanzado) { avanzado.press(IDOK); });
        AbreCodigos(PulsaCodigos, [](kit::Dialog& codigos) { codigos.press(IDOK); });
    };
    unaVez();
    const auto antes = kit::Handles::now();
    unaVez();
    unaVez();
    EXPECT_EQ(kit::Handles::now(), antes);
}

} // namespace
