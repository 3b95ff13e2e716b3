// A surveyor draws the slope of a terrain model as vectors. He types their spacing and length, the
// codes, and how they are labelled; he may keep them inside a boundary, whose file he browses for.
// OK checks the values in a fixed order and says the first that is wrong.
#include "cuadros/contours/VectoresPendienteDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/StringIds.h"

namespace {

constexpr int Valor1 = IDC_VECTORES_PENDIENTE_VALOR_1;
constexpr int Valor2 = IDC_VECTORES_PENDIENTE_VALOR_2;
constexpr int Cadena1 = IDC_VECTORES_PENDIENTE_CADENA_1;
constexpr int Cadena2 = IDC_VECTORES_PENDIENTE_CADENA_2;
constexpr int TextoValor1 = IDC_VECTORES_PENDIENTE_TEXTO_VALOR_1;
constexpr int TextoEntero = IDC_VECTORES_PENDIENTE_TEXTO_ENTERO;
constexpr int FicheroLimite = IDC_VECTORES_PENDIENTE_FICHERO_LIMITE;
constexpr int Limite = IDC_VECTORES_PENDIENTE_LIMITE;
constexpr int Buscar = IDC_VECTORES_PENDIENTE_BUSCAR;
constexpr int Leyenda1 = IDC_VECTORES_PENDIENTE_LEYENDA_1;
constexpr int Leyenda2 = IDC_VECTORES_PENDIENTE_LEYENDA_2;

/// Lets the test at the document template that the dialog keeps.
class ConPlantilla : public ConIntercambios<CVectoresPendienteDlg> {
public:
    using ConIntercambios::ConIntercambios;
    using CVectoresPendienteDlg::m_pPlantilla;
};

class VectoresPendienteDlg : public ConDialogo {
protected:
    VectoresPendienteDlg() {
        data.m_ValorVector1 = 25;
        data.m_ValorVector2 = 7.5;
        data.m_Cadena1 = L"SV";
        data.m_Cadena2 = L"SL";
        data.m_TextoValor1 = 1.8;
        data.m_TextoEntero = 2;
        data.m_FicheroLimite = L"C:\\survey\\edge.dat";
        data.m_Limite = TRUE;
    }

    template <class D = CVectoresPendienteDlg>
    D Dialogo(CWnd* padre = nullptr) {
        return D(data, plantilla, padre);
    }

    INT_PTR Ejecuta(CWnd* padre) override { return Dialogo(padre).DoModal(); }

    /// Opens the dialog, types `texto` into `control`, and takes OK, which is refused when there
    /// are `mensajes`, and then Cancel.
    void Acepta(int control, const wchar_t* texto, Mensajes mensajes,
                kit::Where donde = kit::Where::current()) {
        const bool rechaza = mensajes.size() > 0;
        const auto resultado = Abre(
            mensajes,
            [&](kit::Dialog& dialogo) {
                dialogo.type(control, texto);
                dialogo.press(IDOK);
                if (rechaza)
                    dialogo.press(IDCANCEL);
            },
            donde);
        EXPECT_EQ(resultado, rechaza ? IDCANCEL : IDOK) << control << kit::inQuotes(texto);
    }

    Cotana::CDataVectoresPendiente data;
    CDocTemplate* plantilla = nullptr;
};

// What the user sees first.

TEST_F(VectoresPendienteDlg, ShowsTheRecord) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Slope Vectors");
        EXPECT_EQ(dialogo.text(Valor1), L"25");
        EXPECT_EQ(dialogo.text(Valor2), L"7.5");
        EXPECT_EQ(dialogo.text(Cadena1), L"SV");
        EXPECT_EQ(dialogo.text(Cadena2), L"SL");
        EXPECT_EQ(dialogo.text(TextoValor1), L"1.8");
        EXPECT_EQ(dialogo.text(TextoEntero), L"2");
        EXPECT_EQ(dialogo.text(FicheroLimite), L"C:\\survey\\edge.dat");
        EXPECT_TRUE(dialogo.checked(Limite));
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.picture(L"VectoresPendienteDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, WithoutABoundaryItsFileStartsDisabled) {
    data.m_Limite = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.checked(Limite));
        EXPECT_EQ(dialogo.text(FicheroLimite), L"C:\\survey\\edge.dat");
        EXPECT_EQ(Deshabilitados(dialogo), (Controles{FicheroLimite, Buscar}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, LegendIsHiddenAndStaysIt) {
    Abre([](kit::Dialog& dialogo) {
        const Controles leyenda = {Leyenda1, Leyenda2};
        EXPECT_EQ(Ocultos(dialogo), leyenda);
        dialogo.click(Limite);
        dialogo.click(Limite);
        EXPECT_EQ(Ocultos(dialogo), leyenda);
        EXPECT_FALSE(dialogo.text(Leyenda1).empty());
        EXPECT_FALSE(dialogo.text(Leyenda2).empty());
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, OpensInItsOrder) {
    data.m_Limite = FALSE;
    auto conDiario = Dialogo<ConDiario<CVectoresPendienteDlg>>();
    Abre(conDiario, [](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(conDiario.diario, (Diario{"M", "centre", "icon", "hide 20239", "hide 20240", "M", "S",
                                        "disable 20047", "disable 20085"}));
}

TEST_F(VectoresPendienteDlg, RecordThatTheHostHasJustMadeLacksItsCodesAlone) {
    data = {};
    const auto resultado = Abre({IDS_TEXTO_OBLIGATORIO}, [](kit::Dialog& dialogo) {
        dialogo.press(IDOK);
        dialogo.type(Cadena1, L"SV");
        dialogo.type(Cadena2, L"SL");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
}

TEST_F(VectoresPendienteDlg, NumbersAreRoundedTo15DigitsAtOpening) {
    data.m_ValorVector1 = 0.1 + 0.2;
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor1), L"0.3");
        EXPECT_EQ(data.m_ValorVector1, 0.3);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, FlagOutsideItsRangeIsReadBackAtOpening) {
    for (const int antes : {2, -1, 7}) {
        data.m_Limite = antes;
        Abre([&](kit::Dialog& dialogo) {
            // How a box of two states shows a third one is the system's choice.
            EXPECT_EQ(data.m_Limite, SendMessageW(dialogo.control(Limite), BM_GETCHECK, 0, 0));
            EXPECT_EQ(data.m_Limite != 0, antes == 2);
            EXPECT_EQ(dialogo.enabled(FicheroLimite), antes == 2);
            EXPECT_EQ(dialogo.enabled(Buscar), antes == 2);
            dialogo.press(IDCANCEL);
        });
    }
}

// The boundary's check box.

TEST_F(VectoresPendienteDlg, BoundaryEnablesItsFileAndItsButtonInThisOrder) {
    Diario diario;
    Abre([&](kit::Dialog& dialogo) {
        const EscuchaControles escucha(dialogo.handle(), diario);
        dialogo.click(Limite);
        EXPECT_EQ(data.m_Limite, 0);
        EXPECT_FALSE(dialogo.enabled(FicheroLimite));
        EXPECT_FALSE(dialogo.enabled(Buscar));
        dialogo.click(Limite);
        EXPECT_EQ(data.m_Limite, 1);
        EXPECT_TRUE(dialogo.enabled(FicheroLimite));
        EXPECT_TRUE(dialogo.enabled(Buscar));
        EXPECT_EQ(diario,
                  (Diario{"disable 20047", "disable 20085", "enable 20047", "enable 20085"}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, ClickReadsAllThatWasTyped) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.type(Valor1, L"30");
        dialogo.type(FicheroLimite, L"typed.dat");
        dialogo.click(Limite);
        EXPECT_EQ(data.m_ValorVector1, 30);
        EXPECT_EQ(data.m_FicheroLimite, L"typed.dat");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, ClickCountsWhateverTheNumbersAre) {
    // The box is exchanged before all of them.
    const struct {
        int control;
        UINT aviso;
    } casos[] = {{Valor1, AFX_IDP_PARSE_REAL},
                 {Valor2, AFX_IDP_PARSE_REAL},
                 {TextoValor1, AFX_IDP_PARSE_REAL},
                 {TextoEntero, AFX_IDP_PARSE_INT}};
    for (const auto& caso : casos) {
        const auto resultado = Abre({caso.aviso}, [&](kit::Dialog& dialogo) {
            dialogo.type(caso.control, L"none");
            dialogo.click(Limite);
            EXPECT_FALSE(dialogo.checked(Limite));
            EXPECT_EQ(data.m_Limite, 0);
            EXPECT_FALSE(dialogo.enabled(FicheroLimite));
            EXPECT_FALSE(dialogo.enabled(Buscar));
            EXPECT_EQ(dialogo.focus(), caso.control);
            EXPECT_EQ(dialogo.text(caso.control), L"none");
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(resultado, IDCANCEL);
        data.m_Limite = TRUE;
    }
}

TEST_F(VectoresPendienteDlg, FlagCountsAlsoWhereTheHostRefusesTheExchange) {
    auto dlg = Dialogo<CDesconfiado<CVectoresPendienteDlg>>();
    dlg.rechazado = 2; // the first one opens it
    Abre(dlg, [](kit::Dialog& dialogo) {
        dialogo.click(Limite);
        EXPECT_FALSE(dialogo.enabled(FicheroLimite));
        EXPECT_FALSE(dialogo.enabled(Buscar));
        dialogo.press(IDCANCEL);
    });
}

// Browsing for the boundary.

TEST_F(VectoresPendienteDlg, AsksTheHostForAFileThatExists) {
    plantilla = reinterpret_cast<CDocTemplate*>(&kit::app);
    kit::app.answerFilePrompt(L"C:\\two words\\edge.dat");
    auto dlg = Dialogo<ConPlantilla>();
    Abre(dlg, [&](kit::Dialog& dialogo) {
        dialogo.type(FicheroLimite, L"typed.dat");
        dialogo.press(Buscar);
        // The host gets the record's own text, which holds by now what was typed.
        EXPECT_EQ(CompruebaPregunta(dialogo, L"typed.dat", 0x1004, &dlg.m_pPlantilla),
                  &data.m_FicheroLimite);
        EXPECT_EQ(dlg.m_pPlantilla, plantilla);
        EXPECT_EQ(dialogo.text(FicheroLimite), L"C:\\two words\\edge.dat");
        EXPECT_EQ(data.m_FicheroLimite, L"C:\\two words\\edge.dat");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, NameFromThePromptIsTakenAsItIs) {
    for (const wchar_t* const nombre : {L" \"..\\a/b.dat\" ", L"no such file"}) {
        kit::app.answerFilePrompt(nombre);
        EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                      dialogo.press(Buscar);
                      EXPECT_EQ(dialogo.text(FicheroLimite), nombre);
                      dialogo.press(IDOK);
                  }),
                  IDOK);
        EXPECT_EQ(data.m_FicheroLimite, nombre);
    }
}

TEST_F(VectoresPendienteDlg, ConfirmedPromptShowsTheRecordAgain) {
    kit::app.answerFilePrompt(L"edge.dat");
    Abre([this](kit::Dialog& dialogo) {
        dialogo.type(Valor1, L"30.50");
        dialogo.press(Buscar);
        EXPECT_EQ(dialogo.text(Valor1), L"30.5");
        EXPECT_EQ(data.m_ValorVector1, 30.5);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, CancelledPromptKeepsWhatWasTyped) {
    kit::app.cancelFilePrompt();
    Abre([this](kit::Dialog& dialogo) {
        dialogo.type(FicheroLimite, L"typed.dat");
        dialogo.type(Valor1, L"30.50");
        dialogo.press(Buscar);
        EXPECT_EQ(dialogo.text(FicheroLimite), L"typed.dat");
        EXPECT_EQ(dialogo.text(Valor1), L"30.50");
        EXPECT_EQ(data.m_FicheroLimite, L"typed.dat");
        EXPECT_EQ(data.m_ValorVector1, 30.5);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(kit::app.takeFilePrompts().size(), 1U);
    EXPECT_EQ(data.m_FicheroLimite, L"typed.dat");
}

TEST_F(VectoresPendienteDlg, BadNumberIsRefusedAtBrowsingAndThenReplaced) {
    kit::app.answerFilePrompt(L"chosen.dat");
    Abre({AFX_IDP_PARSE_REAL}, [this](kit::Dialog& dialogo) {
        dialogo.type(TextoValor1, L"high");
        dialogo.type(TextoEntero, L"5"); // exchanged after it
        dialogo.type(FicheroLimite, L"typed.dat");
        dialogo.press(Buscar);
        EXPECT_EQ(dialogo.text(TextoEntero), L"2");
        // The host is asked all the same, with the name that was typed.
        EXPECT_EQ(kit::app.takeFilePrompts().at(0).nameBefore, L"typed.dat");
        EXPECT_EQ(dialogo.text(TextoValor1), L"1.8");
        EXPECT_EQ(dialogo.text(FicheroLimite), L"chosen.dat");
        EXPECT_EQ(data.m_FicheroLimite, L"chosen.dat");
        dialogo.press(IDCANCEL);
    });
}

// OK.

TEST_F(VectoresPendienteDlg, BoundaryFollowsTheRecordWhereTheHostChangesIt) {
    // The host knows of no boundaries.
    data.m_Limite = FALSE;
    auto dlg = Dialogo<ConRetoque<CVectoresPendienteDlg>>();
    dlg.alGuardar = [this] { data.m_Limite = FALSE; };
    Abre(dlg, [](kit::Dialog& dialogo) {
        dialogo.check(Limite);
        EXPECT_FALSE(dialogo.enabled(FicheroLimite));
        EXPECT_FALSE(dialogo.enabled(Buscar));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, OkLeavesEverythingInTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Valor1, L"1e2");
        dialogo.type(Valor2, L"0.25");
        dialogo.type(Cadena1, L"A 1");
        dialogo.type(Cadena2, L"B 2");
        dialogo.type(TextoValor1, L"3");
        dialogo.type(TextoEntero, L"-4");
        dialogo.type(FicheroLimite, L"other.dat");
        dialogo.click(Limite);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_ValorVector1, 100);
    EXPECT_EQ(data.m_ValorVector2, 0.25);
    EXPECT_EQ(data.m_Cadena1, L"A 1");
    EXPECT_EQ(data.m_Cadena2, L"B 2");
    EXPECT_EQ(data.m_TextoValor1, 3);
    EXPECT_EQ(data.m_TextoEntero, -4);
    EXPECT_EQ(data.m_FicheroLimite, L"other.dat");
    EXPECT_EQ(data.m_Limite, 0);
}

TEST_F(VectoresPendienteDlg, ChecksComeInTheirOrder) {
    const auto resultado = Abre({IDS_VALOR_TEXTO_NO_POSITIVO, IDS_TITULO_MENSAJES,
                                 IDS_FICHERO_LIMITE_OBLIGATORIO, IDS_TEXTO_OBLIGATORIO},
                                [](kit::Dialog& dialogo) {
                                    dialogo.type(TextoValor1, L"0");
                                    dialogo.type(Valor1, L"0");
                                    dialogo.type(Valor2, L"0");
                                    dialogo.type(FicheroLimite, L"");
                                    dialogo.type(Cadena1, L"");
                                    dialogo.type(Cadena2, L"");
                                    dialogo.press(IDOK);
                                    dialogo.type(TextoValor1, L"1");
                                    dialogo.press(IDOK);
                                    dialogo.type(Valor1, L"1");
                                    dialogo.type(Valor2, L"1");
                                    dialogo.press(IDOK);
                                    dialogo.type(FicheroLimite, L"edge.dat");
                                    dialogo.press(IDOK);
                                    dialogo.type(Cadena1, L"C");
                                    dialogo.type(Cadena2, L"L");
                                    dialogo.press(IDOK);
                                });
    EXPECT_EQ(resultado, IDOK);
}

TEST_F(VectoresPendienteDlg, ValuesMustBeAboveZero) {
    const auto antes = data;
    for (const wchar_t* const texto : {L"0", L"-0", L"-1", L"-1e-300"}) {
        Acepta(TextoValor1, texto, {IDS_VALOR_TEXTO_NO_POSITIVO});
        data = antes; // the refused value is in the record
        Acepta(Valor1, texto, {IDS_TITULO_MENSAJES});
        data = antes;
        Acepta(Valor2, texto, {IDS_TITULO_MENSAJES});
        data = antes;
    }
}

TEST_F(VectoresPendienteDlg, ValuesAboveZeroAreTakenWithoutATolerance) {
    for (const wchar_t* const texto : {L"0.0000001", L"1e-300"})
        for (const int control : {TextoValor1, Valor1, Valor2})
            Acepta(control, texto, {});
    EXPECT_EQ(data.m_TextoValor1, 1e-300);
    EXPECT_EQ(data.m_ValorVector1, 1e-300);
    EXPECT_EQ(data.m_ValorVector2, 1e-300);
}

TEST_F(VectoresPendienteDlg, MessageOfTheVectorsIsTheCaptionOfAllMessages) {
    kit::Script guion;
    guion.onDialog([](kit::Dialog& dialogo) {
        dialogo.type(Valor2, L"-1");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    guion.expectMessage().inspect([](kit::MessageDialog& mensaje) {
        EXPECT_EQ(mensaje.text(), kit::Text(TextoDe(15105)));
        EXPECT_EQ(mensaje.caption(), mensaje.text());
    });
    EXPECT_EQ(guion.run([this] { return Dialogo().DoModal(); }), IDCANCEL);
}

TEST_F(VectoresPendienteDlg, BoundaryNeedsTheNameOfAFileWhileItIsTicked) {
    Acepta(FicheroLimite, L"", {IDS_FICHERO_LIMITE_OBLIGATORIO});
    // Whether there is such a file is not looked at.
    Acepta(FicheroLimite, L"Z:\\no\\such\\file", {});
    Acepta(FicheroLimite, L" ", {});
    EXPECT_EQ(data.m_FicheroLimite, L" ");

    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(FicheroLimite, L"");
        dialogo.click(Limite);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_FicheroLimite, L"");
}

TEST_F(VectoresPendienteDlg, EachCodeIsRequired) {
    Acepta(Cadena1, L"", {IDS_TEXTO_OBLIGATORIO});
    EXPECT_EQ(data.m_Cadena1, L"") << "the record keeps what was exchanged";
    data.m_Cadena1 = L"C";
    Acepta(Cadena2, L"", {IDS_TEXTO_OBLIGATORIO});
    data.m_Cadena2 = L"L";
    Acepta(Cadena1, L" ", {});
    Acepta(Cadena2, L" ", {});
    EXPECT_EQ(data.m_Cadena1, L" ");
    EXPECT_EQ(data.m_Cadena2, L" ");
}

TEST_F(VectoresPendienteDlg, DecimalsAreNotChecked) {
    for (const wchar_t* const texto : {L"-2147483648", L"0", L"2147483647"})
        Acepta(TextoEntero, texto, {});
    EXPECT_EQ(data.m_TextoEntero, INT_MAX);
}

TEST_F(VectoresPendienteDlg, RefusalStaysOpenAndMovesNoFocus) {
    Abre({IDS_VALOR_TEXTO_NO_POSITIVO, IDS_TITULO_MENSAJES, IDS_FICHERO_LIMITE_OBLIGATORIO,
          IDS_TEXTO_OBLIGATORIO},
         [](kit::Dialog& dialogo) {
             const struct {
                 int control;
                 const wchar_t* malo;
                 const wchar_t* bueno;
             } casos[] = {{TextoValor1, L"0", L"1"},
                          {Valor2, L"-5", L"5"},
                          {FicheroLimite, L"", L"edge.dat"},
                          {Cadena2, L"", L"L"}};
             for (const auto& caso : casos) {
                 dialogo.type(caso.control, caso.malo);
                 dialogo.focusOn(TextoEntero);
                 kit::keyboard::press(VK_RETURN);
                 EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
                 EXPECT_EQ(dialogo.focus(), TextoEntero);
                 EXPECT_EQ(dialogo.text(caso.control), caso.malo);
                 dialogo.type(caso.control, caso.bueno);
             }
             dialogo.press(IDCANCEL);
         });
}

TEST_F(VectoresPendienteDlg, OkReadsTheBoxTheTextsAndThenTheNumbers) {
    const std::vector<int> orden = {Limite, Cadena1, Cadena2,     FicheroLimite,
                                    Valor1, Valor2,  TextoValor1, TextoEntero};
    std::vector<int> dosVeces = orden;
    dosVeces.insert(dosVeces.end(), orden.begin(), orden.end());
    Abre([&](kit::Dialog& dialogo) {
        EXPECT_EQ(LeidosPorOk(dialogo, std::vector<int>(orden.rbegin(), orden.rend())), dosVeces);
    });
}

// Texts that are no numbers.

TEST_F(VectoresPendienteDlg, BadNumberIsRefusedTwiceByOk) {
    const struct {
        int control;
        const wchar_t* malo;
        UINT aviso;
    } casos[] = {{Valor1, L"", AFX_IDP_PARSE_REAL},
                 {Valor2, L"2,5", AFX_IDP_PARSE_REAL},
                 {TextoValor1, L"2 mm", AFX_IDP_PARSE_REAL},
                 {TextoEntero, L"1.5", AFX_IDP_PARSE_INT},
                 {TextoEntero, L"2147483648", AFX_IDP_PARSE_INT}};
    for (const auto& caso : casos) {
        const auto resultado = Abre({caso.aviso, caso.aviso}, [&](kit::Dialog& dialogo) {
            dialogo.type(caso.control, caso.malo);
            dialogo.press(IDOK);
            EXPECT_EQ(dialogo.focus(), caso.control);
            EXPECT_EQ(dialogo.text(caso.control), caso.malo);
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(resultado, IDCANCEL);
    }
    EXPECT_EQ(data.m_ValorVector1, 25);
    EXPECT_EQ(data.m_ValorVector2, 7.5);
    EXPECT_EQ(data.m_TextoValor1, 1.8);
    EXPECT_EQ(data.m_TextoEntero, 2);
}

TEST_F(VectoresPendienteDlg, BadNumberIsFollowedByTheChecksOfTheValuesBefore) {
    data.m_TextoValor1 = 0;
    Acepta(TextoValor1, L"high", {AFX_IDP_PARSE_REAL, IDS_VALOR_TEXTO_NO_POSITIVO});
    EXPECT_EQ(data.m_TextoValor1, 0);
    // What is exchanged before the bad number is checked as it was typed, what comes after it as it
    // was.
    data.m_TextoValor1 = 2;
    const auto resultado =
        Abre({AFX_IDP_PARSE_REAL, IDS_TEXTO_OBLIGATORIO}, [](kit::Dialog& dialogo) {
            dialogo.type(Cadena1, L"");
            dialogo.type(Valor2, L"long");
            dialogo.type(TextoValor1, L"0");
            dialogo.press(IDOK);
            dialogo.press(IDCANCEL);
        });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_TextoValor1, 2);
}

TEST_F(VectoresPendienteDlg, OkGoesOnAfterARefusedExchangeOfItsOwn) {
    auto dlg = Dialogo<CDesconfiado<CVectoresPendienteDlg>>();
    dlg.rechazado = 2; // the first one opens it
    EXPECT_EQ(Abre(dlg, [](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
}

// Cancel.

TEST_F(VectoresPendienteDlg, CancelWithoutAClickKeepsTheRecord) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Valor1, L"30");
                  dialogo.type(Cadena1, L"Typed");
                  dialogo.type(FicheroLimite, L"typed.dat");
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(data.m_ValorVector1, 25);
    EXPECT_EQ(data.m_Cadena1, L"SV");
    EXPECT_EQ(data.m_FicheroLimite, L"C:\\survey\\edge.dat");
}

TEST_F(VectoresPendienteDlg, CancelKeepsWhatTheClickExchanged) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Valor1, L"-30");
                  dialogo.type(Cadena1, L"");
                  dialogo.click(Limite);
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(data.m_ValorVector1, -30);
    EXPECT_EQ(data.m_Cadena1, L"");
    EXPECT_EQ(data.m_Limite, 0);
}

TEST_F(VectoresPendienteDlg, CancelKeepsWhatARefusedOkExchanged) {
    EXPECT_EQ(Abre({IDS_VALOR_TEXTO_NO_POSITIVO},
                   [](kit::Dialog& dialogo) {
                       dialogo.type(Valor1, L"30");
                       dialogo.type(Cadena2, L"Typed");
                       dialogo.type(TextoValor1, L"-2");
                       dialogo.type(FicheroLimite, L"typed.dat");
                       dialogo.press(IDOK);
                       dialogo.press(IDCANCEL);
                   }),
              IDCANCEL);
    EXPECT_EQ(data.m_ValorVector1, 30);
    EXPECT_EQ(data.m_Cadena2, L"Typed");
    EXPECT_EQ(data.m_TextoValor1, -2);
    EXPECT_EQ(data.m_FicheroLimite, L"typed.dat");
}

// By keyboard alone.

TEST_F(VectoresPendienteDlg, KeyboardPassesTheDisabledBoundary) {
    data.m_Limite = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(RecorreConTabulador(dialogo),
                  (std::vector<int>{Valor1, Valor2, Cadena1, Cadena2, TextoValor1, TextoEntero,
                                    Limite, IDOK, IDCANCEL, ID_HELP}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(VectoresPendienteDlg, SpaceTicksTheBoundary) {
    data.m_Limite = FALSE;
    Abre([this](kit::Dialog& dialogo) {
        dialogo.focusOn(Limite);
        kit::keyboard::press(VK_SPACE);
        EXPECT_EQ(data.m_Limite, 1);
        EXPECT_TRUE(dialogo.enabled(Buscar));
        dialogo.press(IDCANCEL);
    });
}

// A host's own class on top of the dialog.

TEST_F(VectoresPendienteDlg, HostSeesEachExchangeAsItIsDocumented) {
    kit::app.cancelFilePrompt();
    kit::app.answerFilePrompt(L"edge.dat");
    auto contador = Dialogo<ConPlantilla>();
    const auto resultado = Abre(contador, {IDS_TEXTO_OBLIGATORIO}, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMS");
        dialogo.type(Cadena1, L"");
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(Buscar); // cancelled
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.press(Buscar);
        EXPECT_EQ(contador.Intercambios(), "SM");
        dialogo.click(Limite);
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.press(IDOK); // refused
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.type(Cadena1, L"C");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "SS");
}

TEST_F(VectoresPendienteDlg, HostCallsTheHandlersItself) {
    kit::app.answerFilePrompt(L"chosen.dat");
    auto dlg = Dialogo();
    const auto resultado = Abre(dlg, {IDS_TEXTO_OBLIGATORIO}, [&](kit::Dialog& dialogo) {
        dialogo.type(Valor1, L"30");
        dlg.CheckDlgButton(Limite, BST_UNCHECKED);
        EXPECT_TRUE(dialogo.enabled(FicheroLimite));
        dlg.OnCheckLimite();
        EXPECT_EQ(data.m_Limite, 0);
        EXPECT_EQ(data.m_ValorVector1, 30);
        EXPECT_FALSE(dialogo.enabled(FicheroLimite));
        EXPECT_FALSE(dialogo.enabled(Buscar));
        // It asks the host also while its button is disabled.
        dlg.OnBuscar();
        EXPECT_EQ(dialogo.text(FicheroLimite), L"chosen.dat");
        dialogo.type(Cadena2, L"");
        dlg.OnOK();
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        dialogo.type(Cadena2, L"L");
        dlg.OnOK();
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_FicheroLimite, L"chosen.dat");
    EXPECT_EQ(data.m_Cadena2, L"L");
}

} // namespace
