// A surveyor is about to draw contours. He sees how they were drawn last time and the elevations
// of his model; a check box or a type of smoothing enables what counts with it, and with each such
// click all that he typed is in the record, whether he then takes OK or not.
#include "contours/Curvado.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

class CurvadoDlg : public Curvado {};

// What the user sees first.

TEST_F(CurvadoDlg, ShowsTheRecord) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Contour Options");
        EXPECT_EQ(dialogo.text(Escala), L"1000");
        EXPECT_EQ(dialogo.text(Equidistancia), L"5");
        EXPECT_EQ(dialogo.text(EquidistanciaMaestra), L"25");
        EXPECT_TRUE(dialogo.checked(TextoCurvas));
        EXPECT_EQ(dialogo.text(TextoValor1), L"2.5");
        EXPECT_EQ(dialogo.text(TextoValor2), L"120");
        EXPECT_EQ(dialogo.text(TextoEntero), L"3");
        EXPECT_FALSE(dialogo.checked(OpcionTexto));
        EXPECT_TRUE(dialogo.checked(RangoCota));
        EXPECT_EQ(dialogo.text(CotaMinima), L"180");
        EXPECT_EQ(dialogo.text(CotaMaxima), L"320.5");
        EXPECT_TRUE(dialogo.checked(Limite));
        EXPECT_EQ(dialogo.text(FicheroLimite), L"C:\\limit.dxf");
        EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), 2);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"4");
        EXPECT_TRUE(dialogo.checked(OpcionSuavizado));
        EXPECT_FALSE(dialogo.checked(Opcion1));
        EXPECT_TRUE(dialogo.checked(RespetarCurvas));
        EXPECT_EQ(dialogo.text(CurvasARespetar1), L"N1");
        EXPECT_EQ(dialogo.text(CurvasARespetar2), L"N2");
        dialogo.picture(L"CurvadoDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, ShowsTheOtherStateOfEachCheckBox) {
    NadaEnUso();
    data.m_OpcionSuavizado = FALSE;
    data.m_Opcion1 = TRUE;
    data.m_OpcionTexto = TRUE;
    Abre([](kit::Dialog& dialogo) {
        for (const int control : {TextoCurvas, RangoCota, Limite, OpcionSuavizado, RespetarCurvas})
            EXPECT_FALSE(dialogo.checked(control)) << control;
        EXPECT_TRUE(dialogo.checked(Opcion1));
        EXPECT_TRUE(dialogo.checked(OpcionTexto));
        dialogo.picture(L"CurvadoDlgNothingInUse");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, ShowsTheElevationsOfTheModelWithTwoDecimals) {
    struct {
        double minima, maxima;
        const wchar_t *textoMinima, *textoMaxima;
    } const casos[] = {
        {150, 400, L"150.00", L"400.00"},
        {-12.346, -0.004, L"-12.35", L"-0.00"},
        {99.994, 99.996, L"99.99", L"100.00"},
        {0, 1234567.891, L"0.00", L"1234567.89"},
        {7, 3, L"7.00", L"3.00"}, // what the host gives is not put in order
    };
    for (const auto& caso : casos) {
        cotaMinimaModelo = caso.minima;
        cotaMaximaModelo = caso.maxima;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.text(CotaMinimaModelo), caso.textoMinima);
            EXPECT_EQ(dialogo.text(CotaMaximaModelo), caso.textoMaxima);
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(CurvadoDlg, EachElevationOfTheModelStandsBesideItsBound) {
    Abre([](kit::Dialog& dialogo) {
        const auto altura = [&](int control) {
            const RECT lugar = dialogo.rect(control);
            return (lugar.top + lugar.bottom) / 2;
        };
        EXPECT_NEAR(altura(CotaMinimaModelo), altura(CotaMinima), 3);
        EXPECT_NEAR(altura(CotaMaximaModelo), altura(CotaMaxima), 3);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, OpeningReadsBackWhatTheControlsShow) {
    data.m_Equidistancia = 0.1 + 0.2;
    data.m_TextoCurvas = 3;
    data.m_Limite = 2;
    data.m_Opcion1 = 7;
    data.m_RangoCota = -1;
    data.m_ValorAvanzado1 = 0.1 + 0.2; // shown by no control
    data.m_AvanzadoPorEscala = 7;      // nor is this one
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Equidistancia), L"0.3");
        EXPECT_EQ(data.m_Equidistancia, 0.3);
        const std::pair<int, int CDataCurvado::*> despejadas[] = {
            {TextoCurvas, &CDataCurvado::m_TextoCurvas},
            {Opcion1, &CDataCurvado::m_Opcion1},
            {RangoCota, &CDataCurvado::m_RangoCota}};
        for (const auto& [control, campo] : despejadas) {
            EXPECT_FALSE(dialogo.checked(control)) << control;
            EXPECT_EQ(data.*campo, 0) << control;
        }
        // The third state, which a box of two shows as its second.
        EXPECT_TRUE(dialogo.checked(Limite));
        EXPECT_EQ(data.m_Limite, 1);
        EXPECT_EQ(Deshabilitados(dialogo), (Controles{TextoValor1, TextoValor2, TextoEntero,
                                                      OpcionTexto, CotaMinima, CotaMaxima}));
        EXPECT_EQ(data.m_ValorAvanzado1, 0.1 + 0.2);
        EXPECT_EQ(data.m_AvanzadoPorEscala, 7);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, OpeningTakesItsStepsInTheirOrder) {
    NadaEnUso();
    extras = SW_HIDE;
    auto dialogo = Dialogo<ConDiario<CCurvadoDlg>>();
    Abre(dialogo, [](kit::Dialog& abierto) { abierto.press(IDCANCEL); });
    // An exchange for the boxes of each group, and what it disables.
    const Diario pasos = {"M",
                          "centre",
                          "icon",
                          "range 1024",
                          "select 0 in 20210",
                          "hide 20024",
                          "hide 20210",
                          "hide 20208",
                          "hide 20209",
                          "hide 20206",
                          "hide 1024",
                          "hide 18285",
                          "hide 20212",
                          "hide 20213",
                          "hide 20083",
                          "hide 20084",
                          "hide 20214",
                          "hide 20215",
                          "150.00 in 20075",
                          "400.00 in 20074",
                          "M",
                          "S",
                          "disable 20091",
                          "disable 20093",
                          "S",
                          "disable 20083",
                          "disable 20084",
                          "S",
                          "disable 20090",
                          "disable 20089",
                          "disable 20092",
                          "disable 20217",
                          "S",
                          "disable 20086",
                          "disable 20085",
                          "S",
                          "disable 18285",
                          "disable 20206",
                          "disable 1024",
                          "M"};
    EXPECT_EQ(dialogo.diario, pasos);
}

TEST_F(CurvadoDlg, OpeningGoesOnWhereAnExchangeIsRefused) {
    NadaEnUso();
    Controles esperados = DeSuavizado;
    for (const Casilla& casilla : Casillas)
        Une(esperados, casilla.dependientes);
    for (int cual = 1; cual <= 5; ++cual) {
        auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
        desconfiado.rechazado = cual;
        Abre(desconfiado, [&](kit::Dialog& dialogo) {
            EXPECT_EQ(Deshabilitados(dialogo), esperados) << "exchange " << cual;
            EXPECT_EQ(dialogo.focus(), Escala);
            dialogo.press(IDCANCEL);
        });
    }
}

// The group that a host may hide.

TEST_F(CurvadoDlg, HostHidesTheSmoothingAndTheContoursToRespectAndNothingElse) {
    extras = SW_HIDE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(Ocultos(dialogo), Controles(Ocultables.begin(), Ocultables.end()));
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.picture(L"CurvadoDlgHidden");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, HostShowsEveryControl) {
    for (const int como : {SW_SHOWNORMAL, SW_SHOW}) {
        extras = como;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(Ocultos(dialogo), Controles{}) << como;
            for (const int control : Ocultables)
                EXPECT_FALSE(IsIconic(dialogo.control(control))) << control;
            dialogo.press(IDCANCEL);
        });
    }
}

/// A dialog whose group is hidden before it begins.
class ConGrupoOculto : public ConDiario<CCurvadoDlg> {
public:
    using ConDiario::ConDiario;

    BOOL OnInitDialog() override {
        for (const int control : Ocultables)
            GetDlgItem(control)->ShowWindow(SW_HIDE);
        return ConDiario::OnInitDialog();
    }
};

TEST_F(CurvadoDlg, GroupIsShownAlsoWhereItWasHidden) {
    NadaEnUso();
    Diario mostrados = {"select 0 in 20210"};
    for (const int control : Ocultables)
        mostrados.push_back("show " + std::to_string(control));
    mostrados.emplace_back("150.00 in 20075");
    for (const int como : {SW_SHOWNORMAL, SW_SHOWNOACTIVATE, SW_SHOW, SW_SHOWNA}) {
        extras = como;
        auto dialogo = Dialogo<ConGrupoOculto>();
        Abre(dialogo, [&](kit::Dialog& abierto) {
            EXPECT_EQ(Ocultos(abierto), Controles{}) << como;
            abierto.press(IDCANCEL);
        });
        EXPECT_FALSE(std::ranges::search(dialogo.diario, mostrados).empty())
            << "command " << como << ": " << testing::PrintToString(dialogo.diario);
    }
}

TEST_F(CurvadoDlg, ShowCommandIsPassedToWindowsAsItIs) {
    extras = SW_SHOWMINIMIZED;
    Abre([](kit::Dialog& dialogo) {
        const auto minimizados = ControlesQue(dialogo, [](HWND c) -> bool { return IsIconic(c); });
        EXPECT_EQ(minimizados, Controles(Ocultables.begin(), Ocultables.end()));
        dialogo.press(IDCANCEL);
    });
}

// The check boxes, and what each enables.

TEST_F(CurvadoDlg, EverythingInUseStartsEnabled) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, CheckBoxThatIsClearStartsWithItsOwnControlsDisabled) {
    for (const Casilla& casilla : Casillas) {
        data.*casilla.campo = FALSE;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(Deshabilitados(dialogo), casilla.dependientes) << casilla.control;
            dialogo.press(IDCANCEL);
        });
        data.*casilla.campo = TRUE;
    }
}

TEST_F(CurvadoDlg, CheckBoxDisablesItsOwnControlsAndEnablesThemAgain) {
    for (const Casilla& casilla : Casillas)
        Abre([&](kit::Dialog& dialogo) {
            dialogo.click(casilla.control);
            EXPECT_EQ(data.*casilla.campo, 0);
            EXPECT_EQ(Deshabilitados(dialogo), casilla.dependientes) << casilla.control;
            dialogo.click(casilla.control);
            EXPECT_EQ(data.*casilla.campo, 1);
            EXPECT_EQ(Deshabilitados(dialogo), Controles{}) << casilla.control;
            dialogo.press(IDCANCEL);
        });
}

TEST_F(CurvadoDlg, CheckBoxesEnableIndependentlyOfEachOther) {
    NadaEnUso();
    Abre([](kit::Dialog& dialogo) {
        Controles quedan = DeSuavizado;
        for (const Casilla& casilla : Casillas)
            Une(quedan, casilla.dependientes);
        EXPECT_EQ(Deshabilitados(dialogo), quedan);
        for (const Casilla& casilla : Casillas) {
            dialogo.click(casilla.control);
            for (const int dependiente : casilla.dependientes)
                quedan.erase(dependiente);
            EXPECT_EQ(Deshabilitados(dialogo), quedan) << casilla.control;
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, OtherCheckBoxesEnableNothing) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        contador.Intercambios();
        for (const int control : {OpcionSuavizado, Opcion1, OpcionTexto}) {
            dialogo.click(control);
            EXPECT_EQ(Deshabilitados(dialogo), Controles{}) << control;
        }
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, ClickExchangesAllThatWasTyped) {
    for (const Casilla& casilla : Casillas) {
        data.m_Equidistancia = 5;
        data.m_CurvasARespetar2 = L"N2";
        Abre([&](kit::Dialog& dialogo) {
            dialogo.type(Equidistancia, L"7.50");
            dialogo.type(CurvasARespetar2, L"typed");
            EXPECT_EQ(data.m_Equidistancia, 5);
            dialogo.click(casilla.control);
            EXPECT_EQ(data.m_Equidistancia, 7.5);
            EXPECT_EQ(data.m_CurvasARespetar2, L"typed");
            EXPECT_EQ(dialogo.text(Equidistancia), L"7.50");
            dialogo.click(casilla.control);
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(CurvadoDlg, ClickCountsWhateverTheNumbersAre) {
    // Boxes are exchanged before numbers.
    for (const Casilla& casilla : Casillas) {
        Abre({AFX_IDP_PARSE_REAL}, [&](kit::Dialog& dialogo) {
            dialogo.type(Equidistancia, L"five");
            dialogo.click(casilla.control);
            EXPECT_FALSE(dialogo.checked(casilla.control));
            EXPECT_EQ(data.*casilla.campo, 0);
            EXPECT_EQ(Deshabilitados(dialogo), casilla.dependientes) << casilla.control;
            EXPECT_EQ(dialogo.focus(), Equidistancia);
            EXPECT_EQ(dialogo.text(Equidistancia), L"five");
            dialogo.press(IDCANCEL);
        });
        data.*casilla.campo = TRUE;
    }
}

TEST_F(CurvadoDlg, ClicksCountWhateverTheScaleIs) {
    CDataCurvado esperado = data;
    esperado.m_OpcionSuavizado = FALSE;
    esperado.m_Opcion1 = TRUE;
    esperado.m_OpcionTexto = TRUE;
    // At its key, and at each of the four clicks that exchange.
    Abre({AFX_IDP_PARSE_UINT, AFX_IDP_PARSE_UINT, AFX_IDP_PARSE_UINT, AFX_IDP_PARSE_UINT,
          AFX_IDP_PARSE_UINT},
         [&](kit::Dialog& dialogo) {
             dialogo.type(Escala, L"k");
             for (const int control : {OpcionSuavizado, Opcion1, OpcionTexto})
                 dialogo.click(control);
             Controles deshabilitados;
             for (const Casilla& casilla : Casillas) {
                 dialogo.click(casilla.control);
                 esperado.*casilla.campo = FALSE;
                 EXPECT_EQ(Campos(data), Campos(esperado)) << casilla.control;
                 Une(deshabilitados, casilla.dependientes);
                 EXPECT_EQ(Deshabilitados(dialogo), deshabilitados) << casilla.control;
                 EXPECT_EQ(dialogo.focus(), Escala);
             }
             dialogo.press(IDCANCEL);
         });
}

TEST_F(CurvadoDlg, RefusedNumberThatIsThenDisabledLeavesTheKeyboardAlive) {
    const struct {
        int control;
        UINT aviso;
        int casilla;
    } casos[] = {{CotaMinima, AFX_IDP_PARSE_REAL, RangoCota},
                 {CotaMaxima, AFX_IDP_PARSE_REAL, RangoCota},
                 {TextoValor1, AFX_IDP_PARSE_REAL, TextoCurvas},
                 {TextoValor2, AFX_IDP_PARSE_REAL, TextoCurvas},
                 {TextoEntero, AFX_IDP_PARSE_INT, TextoCurvas}};
    for (const auto& caso : casos) {
        data.m_RangoCota = TRUE;
        data.m_TextoCurvas = TRUE;
        const auto resultado = Abre({caso.aviso}, [&](kit::Dialog& dialogo) {
            dialogo.type(caso.control, L"low");
            dialogo.click(caso.casilla);
            EXPECT_FALSE(dialogo.enabled(caso.control));
            EXPECT_EQ(dialogo.focus(), caso.casilla) << caso.control;
            kit::keyboard::press(VK_ESCAPE);
        });
        EXPECT_EQ(resultado, IDCANCEL);
    }
}

TEST_F(CurvadoDlg, RefusedLevelThatIsThenDisabledLeavesTheKeyboardAlive) {
    const auto resultado = Abre({AFX_IDP_PARSE_INT}, [](kit::Dialog& dialogo) {
        dialogo.type(NivelSuavizado, L"low");
        dialogo.choose(TipoSuavizado, 0);
        EXPECT_FALSE(dialogo.enabled(NivelSuavizado));
        EXPECT_EQ(dialogo.focus(), TipoSuavizado);
        kit::keyboard::press(VK_ESCAPE);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

TEST_F(CurvadoDlg, RefusedExchangeOfAClickStillEnables) {
    for (const Casilla& casilla : Casillas) {
        auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
        desconfiado.rechazado = 6;
        Abre(desconfiado, [&](kit::Dialog& dialogo) {
            dialogo.click(casilla.control);
            EXPECT_EQ(Deshabilitados(dialogo), casilla.dependientes) << casilla.control;
            dialogo.click(casilla.control);
            dialogo.press(IDCANCEL);
        });
    }
}

// The type of smoothing and its level.

TEST_F(CurvadoDlg, TypesOfSmoothingAreInTheirOrder) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.combo(TipoSuavizado).texts(),
                  (std::vector<std::wstring>{L"None", L"Rounded corners", L"Splines"}));
        const LONG estilo = GetWindowLongW(dialogo.control(TipoSuavizado), GWL_STYLE);
        EXPECT_EQ(estilo & 3, CBS_DROPDOWNLIST);
        EXPECT_EQ(estilo & CBS_SORT, 0);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, EveryTypeButTheFirstHasItsControls) {
    for (const int tipo : {0, 1, 2}) {
        data.m_TipoSuavizado = tipo;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), tipo);
            EXPECT_EQ(Deshabilitados(dialogo), tipo == 0 ? DeSuavizado : Controles{});
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(data.m_TipoSuavizado, tipo);
    }
}

TEST_F(CurvadoDlg, ChosenTypeEnablesAtOnceAndIsStoredByOkAlone) {
    const auto resultado = Abre([this](kit::Dialog& dialogo) {
        for (const int tipo : {0, 1, 0, 2, 0, 1}) {
            dialogo.choose(TipoSuavizado, tipo);
            EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), tipo);
            EXPECT_EQ(Deshabilitados(dialogo), tipo == 0 ? DeSuavizado : Controles{}) << tipo;
            dialogo.click(RangoCota); // an exchange of its own
            dialogo.click(RangoCota);
            EXPECT_EQ(data.m_TipoSuavizado, 2);
        }
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoSuavizado, 1);
}

TEST_F(CurvadoDlg, CancelKeepsTheTypeOfBefore) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 1);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_TipoSuavizado, 2);
}

TEST_F(CurvadoDlg, ExchangesLeaveTheSelectionAlone) {
    auto dlg = Dialogo();
    Abre(dlg, [&](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 1);
        EXPECT_TRUE(dlg.UpdateData(FALSE));
        EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), 1);
        EXPECT_TRUE(dlg.UpdateData(TRUE));
        EXPECT_EQ(data.m_TipoSuavizado, 2);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, ChoosingExchangesAndShowsTheRecordAgain) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"7.50");
        dialogo.choose(TipoSuavizado, 1);
        EXPECT_EQ(data.m_Equidistancia, 7.5);
        EXPECT_EQ(dialogo.text(Equidistancia), L"7.5");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, BadNumberAtChoosingIsRefusedAndThenReplaced) {
    Abre({AFX_IDP_PARSE_REAL}, [this](kit::Dialog& dialogo) {
        dialogo.type(CotaMinima, L"low");
        dialogo.type(CotaMaxima, L"200"); // exchanged after it
        dialogo.choose(TipoSuavizado, 0);
        EXPECT_EQ(dialogo.text(CotaMaxima), L"320.5");
        EXPECT_EQ(data.m_CotaMinima, 180);
        EXPECT_EQ(dialogo.text(CotaMinima), L"180");
        EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), 0);
        EXPECT_EQ(Deshabilitados(dialogo), DeSuavizado);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, TypeOutsideTheListSelectsNoneAndOkStoresNone) {
    for (const int tipo : {-1, 3, 99, -2}) {
        data.m_TipoSuavizado = tipo;
        const auto resultado = Abre([this, tipo](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), -1);
            EXPECT_EQ(dialogo.text(TipoSuavizado), L"");
            // As the template has them: nothing is decided without a type.
            EXPECT_EQ(Deshabilitados(dialogo), Controles{});
            EXPECT_EQ(data.m_TipoSuavizado, tipo);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(data.m_TipoSuavizado, -1);
    }
}

TEST_F(CurvadoDlg, TypeIsChosenWhereThereWasNone) {
    data.m_TipoSuavizado = -1;
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 0);
        EXPECT_EQ(Deshabilitados(dialogo), DeSuavizado);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoSuavizado, 0);
}

TEST_F(CurvadoDlg, ChangeToNoTypeExchangesAndLeavesTheControls) {
    data.m_TipoSuavizado = 0;
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        contador.Intercambios();
        SendMessageW(dialogo.control(TipoSuavizado), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        contador.OnCbnSelchangeTipoSuavizado();
        EXPECT_EQ(contador.Intercambios(), "S");
        EXPECT_EQ(Deshabilitados(dialogo), DeSuavizado);

        SendMessageW(dialogo.control(TipoSuavizado), CB_SETCURSEL, 1, 0);
        contador.OnCbnSelchangeTipoSuavizado();
        EXPECT_EQ(contador.Intercambios(), "SM");
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, ListWithoutItemsLeavesTheControls) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        contador.Intercambios();
        SendMessageW(dialogo.control(TipoSuavizado), CB_SETCURSEL, 0, 0);
        {
            // As with a language file without types: the list counts none, whatever is selected.
            const Escucha vacia(dialogo.control(TipoSuavizado), [](UINT mensaje, WPARAM, LPARAM) {
                return mensaje == CB_GETCOUNT ? std::optional<LRESULT>(0) : std::nullopt;
            });
            contador.OnCbnSelchangeTipoSuavizado();
        }
        EXPECT_EQ(contador.Intercambios(), "S");
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, RefusedExchangeOfAChoiceStillEnables) {
    auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
    desconfiado.rechazado = 6;
    Abre(desconfiado, [](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 0);
        EXPECT_EQ(Deshabilitados(dialogo), DeSuavizado);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, ArrowsOfTheLevelGoFrom1To10) {
    Abre([](kit::Dialog& dialogo) {
        const HWND flechas = dialogo.control(NivelFlechas);
        int minimo = 0, maximo = 0;
        SendMessageW(flechas, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&minimo),
                     reinterpret_cast<LPARAM>(&maximo));
        EXPECT_EQ(minimo, 1);
        EXPECT_EQ(maximo, 10);
        EXPECT_EQ(reinterpret_cast<HWND>(SendMessageW(flechas, UDM_GETBUDDY, 0, 0)),
                  dialogo.control(NivelSuavizado));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, KeysStepTheLevelAndStopAtBothEnds) {
    const auto resultado = Abre([this](kit::Dialog& dialogo) {
        dialogo.spin(NivelFlechas, 1);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"5");
        dialogo.spin(NivelFlechas, -2);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"3");
        dialogo.spin(NivelFlechas, 20);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"10");
        dialogo.spin(NivelFlechas, -20);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"1");
        dialogo.focusOn(NivelSuavizado);
        kit::keyboard::press(VK_UP);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"2");
        EXPECT_EQ(data.m_NivelSuavizado, 4);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_NivelSuavizado, 2);
}

TEST_F(CurvadoDlg, MouseStepsTheLevelAndStopsAtBothEnds) {
    Abre([](kit::Dialog& dialogo) {
        const HWND flechas = dialogo.control(NivelFlechas);
        RECT area{};
        GetClientRect(flechas, &area);
        const POINT arriba{area.right / 2, 2}, abajo{area.right / 2, area.bottom - 3};
        kit::mouse::click(flechas, arriba);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"5");
        kit::mouse::click(flechas, abajo);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"4");
        for (int i = 0; i < 12; ++i)
            kit::mouse::click(flechas, arriba);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"10");
        for (int i = 0; i < 12; ++i)
            kit::mouse::click(flechas, abajo);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"1");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, ArrowsStepFromTheLevelThatWasTyped) {
    Abre([](kit::Dialog& dialogo) {
        dialogo.type(NivelSuavizado, L"7");
        dialogo.spin(NivelFlechas, 1);
        EXPECT_EQ(dialogo.text(NivelSuavizado), L"8");
        dialogo.press(IDCANCEL);
    });
}

// By keyboard alone.

TEST_F(CurvadoDlg, KeyboardPassesWhatIsNotInUse) {
    NadaEnUso();
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(RecorreConTabulador(dialogo),
                  (std::vector<int>{Escala, Equidistancia, EquidistanciaMaestra, Codigos, Avanzado,
                                    TextoCurvas, RangoCota, Limite, TipoSuavizado, Opcion1,
                                    RespetarCurvas, IDOK, IDCANCEL, ID_HELP}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, KeyboardPassesWhatTheHostHides) {
    extras = SW_HIDE;
    Abre([](kit::Dialog& dialogo) {
        const auto recorrido = RecorreConTabulador(dialogo);
        EXPECT_EQ(recorrido.size(), 19U);
        for (const int control : Ocultables)
            EXPECT_EQ(std::count(recorrido.begin(), recorrido.end(), control), 0) << control;
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, KeysChooseTheTypeOfSmoothing) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.focusOn(TipoSuavizado);
        kit::keyboard::press(VK_HOME);
        EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), 0);
        EXPECT_EQ(Deshabilitados(dialogo), DeSuavizado);
        kit::keyboard::press(VK_DOWN);
        EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), 1);
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        kit::keyboard::press(VK_RETURN);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoSuavizado, 1);
}

TEST_F(CurvadoDlg, SpaceChangesACheckBox) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.focusOn(Limite);
        kit::keyboard::press(VK_SPACE);
        EXPECT_EQ(data.m_Limite, 0);
        EXPECT_EQ(Deshabilitados(dialogo), (Controles{FicheroLimite, Buscar}));
        dialogo.press(IDCANCEL);
    });
}

// A host's own class on top of the dialog.

TEST_F(CurvadoDlg, HostSeesEachExchangeAsItIsDocumented) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMSSSSSM");
        for (const Casilla& casilla : Casillas) {
            dialogo.click(casilla.control);
            EXPECT_EQ(contador.Intercambios(), "S") << casilla.control;
        }
        dialogo.type(Equidistancia, L"7");
        dialogo.spin(NivelFlechas, 2);
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.choose(TipoSuavizado, 1);
        EXPECT_EQ(contador.Intercambios(), "SM");
        dialogo.press(ID_HELP);
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "SS");
    kit::app.takeHelpRequests();
}

TEST_F(CurvadoDlg, EachHandlerAnswersItsOwnNotification) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        const auto tras = [&](int control, int aviso) {
            contador.Intercambios();
            SendMessageW(dialogo.handle(), WM_COMMAND, MAKEWPARAM(control, aviso),
                         reinterpret_cast<LPARAM>(dialogo.control(control)));
            return contador.Intercambios();
        };
        EXPECT_EQ(tras(Escala, EN_CHANGE), "S");
        EXPECT_EQ(tras(Escala, EN_UPDATE), "");
        EXPECT_EQ(tras(Escala, EN_KILLFOCUS), "");
        EXPECT_EQ(tras(TipoSuavizado, CBN_SELCHANGE), "SM");
        EXPECT_EQ(tras(TipoSuavizado, CBN_SELENDOK), "");
        EXPECT_EQ(tras(TipoSuavizado, CBN_CLOSEUP), "");
        for (const Casilla& casilla : Casillas) {
            EXPECT_EQ(tras(casilla.control, BN_CLICKED), "S") << casilla.control;
            EXPECT_EQ(tras(casilla.control, BN_DOUBLECLICKED), "") << casilla.control;
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlg, HostCallsTheHandlersItself) {
    data.m_AvanzadoPorEscala = TRUE;
    auto dlg = Dialogo();
    const auto resultado = Abre(dlg, [&](kit::Dialog& dialogo) {
        const std::pair<const Casilla&, void (CCurvadoDlg::*)()> manejadores[] = {
            {Casillas[0], &CCurvadoDlg::OnCheckTextoCurvas},
            {Casillas[1], &CCurvadoDlg::OnCheckLimite},
            {Casillas[2], &CCurvadoDlg::OnCheckRespetarCurvas},
            {Casillas[3], &CCurvadoDlg::OnCheckRangoCota},
        };
        for (const auto& [casilla, manejador] : manejadores) {
            dlg.CheckDlgButton(casilla.control, BST_UNCHECKED);
            EXPECT_EQ(Deshabilitados(dialogo), Controles{});
            (dlg.*manejador)();
            EXPECT_EQ(Deshabilitados(dialogo), casilla.dependientes) << casilla.control;
            dlg.CheckDlgButton(casilla.control, BST_CHECKED);
            (dlg.*manejador)();
            EXPECT_EQ(Deshabilitados(dialogo), Controles{}) << casilla.control;
        }
        dlg.OnChangeEscalaCurvado();
        EXPECT_DOUBLE_EQ(data.m_ValorAvanzado1, 0.04);
        kit::app.answerFilePrompt(L"D:\\chosen.dxf");
        dlg.OnBuscar();
        EXPECT_EQ(dialogo.text(FicheroLimite), L"D:\\chosen.dxf");
        dlg.OnHelp();
        EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDeAyuda(151165));
        EXPECT_TRUE(dlg.OnHelpInfo(nullptr));
        EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDeAyuda(151165));
        dlg.OnOK();
    });
    EXPECT_EQ(resultado, IDOK);
}

TEST_F(CurvadoDlg, HandlersFollowTheRecordWhereTheHostChangesIt) {
    NadaEnUso();
    auto dlg = Dialogo<ConRetoque<CCurvadoDlg>>();
    const auto elige = [&](int tipo) {
        static_cast<CComboBox*>(dlg.GetDlgItem(TipoSuavizado))->SetCurSel(tipo);
    };
    const auto resultado = Abre(dlg, [&](kit::Dialog& dialogo) {
        const Controles antes = Deshabilitados(dialogo);
        dlg.alGuardar = [this] { NadaEnUso(); };
        for (const Casilla& casilla : Casillas)
            dialogo.check(casilla.control);
        EXPECT_EQ(Deshabilitados(dialogo), antes);

        dlg.alGuardar = [&] { elige(0); };
        dialogo.choose(TipoSuavizado, 2);
        EXPECT_EQ(dialogo.combo(TipoSuavizado).selected(), 0);
        for (const int control : DeSuavizado)
            EXPECT_FALSE(dialogo.enabled(control)) << control;

        dlg.alGuardar = [this] { data.m_AvanzadoPorEscala = TRUE; };
        dialogo.append(Escala, L"0");
        EXPECT_DOUBLE_EQ(data.m_ValorAvanzado1, 0.4);
        EXPECT_DOUBLE_EQ(data.m_ValorAvanzado2, 2);

        dlg.alGuardar = [&] { elige(1); };
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoSuavizado, 1);
}

} // namespace
