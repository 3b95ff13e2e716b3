// Whichever dialog of the library a user has before him: it opens in the middle of its owner, with
// its icon; he finds its controls where he reads them, goes from one to the next by Tab and to each
// by its letter; F1 and the Help button open its page; Enter takes what he did, Escape and the
// close box leave it; and when it is gone nothing is left of it.
#include "Caso.h"
#include "Recorrido.h"
#include "checks/ConDialogo.h"
#include "kit/app/DialogClass.h"

#include <algorithm>
#include <map>

namespace {

class Dialogos : public testing::TestWithParam<Caso> {
protected:
    using Paso = std::function<void(kit::Dialog&)>;

    static INT_PTR Abre(Conversacion& conversacion, const Paso& paso,
                        kit::Where donde = kit::Where::current()) {
        kit::Script guion;
        guion.onDialog(paso, donde);
        return guion.run([&] { return conversacion.DoModal(); }, donde);
    }
    static INT_PTR Abre(const Paso& paso, CWnd* padre = nullptr,
                        kit::Where donde = kit::Where::current()) {
        return Abre(*GetParam().hazla(padre), paso, donde);
    }

    /// Opens the dialog, uses it, and does `paso` where the user began.
    static INT_PTR Usa(const Paso& paso, kit::Where donde = kit::Where::current()) {
        const auto usaAntes = [&](kit::Dialog& dialogo) {
            const int primero = dialogo.focus();
            GetParam().usa(dialogo);
            dialogo.focusOn(primero);
            paso(dialogo);
        };
        return Abre(usaAntes, nullptr, donde);
    }

    static void Cancela(kit::Dialog& dialogo) { dialogo.press(IDCANCEL); }
};

// What the user sees first.

TEST_P(Dialogos, HasItsSmallIconOnly) {
    Abre([](kit::Dialog& dialogo) {
        const auto nombre = MAKEINTRESOURCEW(GetParam().icono);
        const HICON suyo = LoadIconW(AfxFindResourceHandle(nombre, RT_GROUP_ICON), nombre);
        ASSERT_EQ(suyo == nullptr, GetParam().icono == SinIcono);
        const auto icono = [&](WPARAM cual) {
            return reinterpret_cast<HICON>(SendMessageW(dialogo.handle(), WM_GETICON, cual, 0));
        };
        EXPECT_EQ(icono(ICON_SMALL), suyo);
        EXPECT_EQ(icono(ICON_BIG), nullptr);
        Cancela(dialogo);
    });
}

TEST_P(Dialogos, OpensInTheMiddleOfItsOwnerWhichWaits) {
    CWnd duena, activa; // not the one that it would take by itself
    constexpr DWORD estilo = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
    ASSERT_TRUE(duena.CreateEx(0, L"Static", L"Host", estilo, CRect(60, 40, 960, 640), nullptr, 0));
    ASSERT_TRUE(activa.CreateEx(0, L"Static", L"Other", estilo, CRect(0, 0, 90, 90), nullptr, 0));
    const auto mira = [&](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.owner(), duena.m_hWnd);
        EXPECT_FALSE(duena.IsWindowEnabled());
        CRect suyo;
        duena.GetWindowRect(&suyo);
        const CRect marco = dialogo.rect();
        EXPECT_NEAR(marco.CenterPoint().x, suyo.CenterPoint().x, 1);
        EXPECT_NEAR(marco.CenterPoint().y, suyo.CenterPoint().y, 1);
        Cancela(dialogo);
    };
    EXPECT_EQ(Abre(mira, &duena), IDCANCEL);
    EXPECT_TRUE(duena.IsWindowEnabled());
    EXPECT_EQ(GetActiveWindow(), duena.m_hWnd);
    activa.DestroyWindow();
    duena.DestroyWindow();
}

TEST_P(Dialogos, IsTheOneOfItsTemplateWithItsNames) {
    Usa([](kit::Dialog& dialogo) {
        const UINT plantilla = GetParam().plantilla;
        const std::string nombres = Nombres(plantilla, dialogo);
        EXPECT_EQ(nombres, NombresEscritos(plantilla)) << "In nombres.txt it would be\n" << nombres;
        Cancela(dialogo);
    });
}

// By keyboard alone.

TEST_P(Dialogos, TabFollowsTheEye) {
    Usa([](kit::Dialog& dialogo) {
        std::vector<int> orden;
        for (const Parada& parada : Recorrido(dialogo))
            if (parada.conTabulador())
                orden.push_back(parada.numero);
        EXPECT_EQ(RecorreConTabulador(dialogo), orden);
        Cancela(dialogo);
    });
}

TEST_P(Dialogos, EachLetterReachesItsControl) {
    Usa([](kit::Dialog& dialogo) {
        int pulsado = 0;
        const auto anota = [&](UINT mensaje, WPARAM w, LPARAM) {
            if (mensaje != WM_COMMAND)
                return std::optional<LRESULT>();
            if (HIWORD(w) == BN_CLICKED)
                pulsado = LOWORD(w);
            return std::optional<LRESULT>(0); // nothing but the letter is of interest
        };
        {
            const Escucha escucha(dialogo.handle(), anota);
            std::map<wchar_t, int> de;
            std::vector<Parada> paradas = Recorrido(dialogo);
            std::ranges::reverse(paradas); // the first one has the focus already
            for (const Parada& parada : paradas) {
                const wchar_t letra = parada.letra();
                if (parada.numero == IDOK || parada.numero == IDCANCEL)
                    continue;
                if (letra == 0 && !parada.seLeeSuNombre())
                    continue;
                ASSERT_NE(letra, 0) << parada.numero;
                EXPECT_TRUE(de.emplace(letra, parada.numero).second)
                    << parada.numero << " has the letter of " << de[letra];
                pulsado = 0;
                kit::keyboard::mnemonic(letra);
                EXPECT_EQ(parada.esBoton() ? pulsado : dialogo.focus(), parada.numero);
            }
        }
        Cancela(dialogo);
    });
}

TEST_P(Dialogos, EnterIsOk) {
    const auto resultado = Usa([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.defaultButton(), IDOK);
        kit::keyboard::press(VK_RETURN);
    });
    EXPECT_EQ(resultado, IDOK);
}

TEST_P(Dialogos, EscapeIsCancel) {
    EXPECT_EQ(Usa([](kit::Dialog&) { kit::keyboard::press(VK_ESCAPE); }), IDCANCEL);
}

TEST_P(Dialogos, CloseBoxIsCancel) {
    EXPECT_EQ(Usa([](kit::Dialog& dialogo) { dialogo.close(); }), IDCANCEL);
}

TEST_P(Dialogos, ButtonsSayHowItEnds) {
    for (const int boton : {IDOK, IDCANCEL})
        EXPECT_EQ(Usa([&](kit::Dialog& dialogo) { dialogo.press(boton); }), boton);
}

// Help.

std::vector<kit::HelpRequest> PaginaDe(const Ayuda& ayuda, bool abierta) {
    if (!abierta)
        return {};
    return {{ayuda.pagina, 15}};
}

TEST_P(Dialogos, F1OpensItsPageOnEveryControl) {
    Usa([](kit::Dialog& dialogo) {
        const Ayuda& ayuda = GetParam().ayuda;
        for (const Parada& parada : Recorrido(dialogo)) {
            dialogo.focusOn(parada.numero);
            dialogo.help();
            EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDe(ayuda, ayuda.conF1)) << parada.numero;
            dialogo.helpOn(parada.numero);
            EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDe(ayuda, ayuda.conF1)) << parada.numero;
        }
        Cancela(dialogo);
    });
}

TEST_P(Dialogos, HelpButtonOpensItsPage) {
    Abre([](kit::Dialog& dialogo) {
        const Ayuda& ayuda = GetParam().ayuda;
        EXPECT_EQ(dialogo.exists(ID_HELP), ayuda.conBoton);
        dialogo.command(ID_HELP);
        EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDe(ayuda, ayuda.conBoton));
        if (ayuda.conBoton) {
            dialogo.press(ID_HELP);
            EXPECT_EQ(kit::app.takeHelpRequests(), PaginaDe(ayuda, true));
        }
        Cancela(dialogo);
    });
}

TEST_P(Dialogos, HelpExchangesNothing) {
    const auto conversacion = GetParam().hazla(nullptr);
    Abre(*conversacion, [&](kit::Dialog& dialogo) {
        EXPECT_NE(conversacion->Intercambios(), "");
        dialogo.help();
        dialogo.command(ID_HELP);
        EXPECT_EQ(conversacion->Intercambios(), "");
        Cancela(dialogo);
    });
    kit::app.takeHelpRequests();
}

// A host's own class on top of the dialog.

TEST_P(Dialogos, HelpOfADerivedClassIsTheOneThatOpens) {
    const auto conversacion = GetParam().hazla(nullptr);
    conversacion->conAyudaPropia = true;
    const Ayuda& ayuda = GetParam().ayuda;
    Abre(*conversacion, [&](kit::Dialog& dialogo) {
        dialogo.help();
        dialogo.command(ID_HELP);
        EXPECT_TRUE(!ayuda.conF1 || conversacion->PideAyuda());
        Cancela(dialogo);
    });
    EXPECT_EQ(conversacion->ayudas, ayuda.conBoton ? 3 : 0);
    EXPECT_EQ(kit::app.takeHelpRequests().empty(), ayuda.conBoton || !ayuda.conF1);
}

TEST_P(Dialogos, SaysItsClassOrThatOfAllDialogs) {
    const bool propia = GetParam().informacion == Informacion::Si;
    const CRuntimeClass* clase = nullptr;
    Abre([&](kit::Dialog& dialogo) {
        clase = kit::object<CWnd>(dialogo).GetRuntimeClass();
        Cancela(dialogo);
    });
    EXPECT_EQ(clase, GetParam().clase);
    EXPECT_EQ(clase != RUNTIME_CLASS(CDialog), propia);
    EXPECT_EQ(clase->m_lpszClassName, propia ? GetParam().nombre : "CDialog");
    EXPECT_EQ(clase->m_pfnGetBaseClass(), propia ? RUNTIME_CLASS(CDialog) : RUNTIME_CLASS(CWnd));
}

// Numbers.

using Textos = std::vector<const wchar_t*>;

/// What an edit takes that is bound to a number of this type, and what it refuses.
struct Numeros {
    Textos buenos; ///< as they are shown
    Textos malos;
};

/// By the text of the framework's prompt for a text that is none.
const std::map<UINT, Numeros> PorPregunta = {
    {AFX_IDP_PARSE_INT,
     {{L"-2147483648", L"-1", L"0", L"2147483647"},
      {L"", L"2.5", L"-2147483649", L"2147483648", L"2 m"}}},
    {AFX_IDP_PARSE_UINT,
     {{L"0", L"2147483648", L"4294967295"}, {L"", L"-1", L"2.5", L"4294967296", L"2 m"}}},
    {AFX_IDP_PARSE_REAL,
     {{L"-1e+300", L"-12345678.9012345", L"0", L"1e-300", L"0.123456789012345", L"1e+300"},
      {L"", L"2,5", L"1e999", L"2 m"}}},
};

TEST_P(Dialogos, NumbersOfTheWholeRangeComeBackAndNothingElseIsTaken) {
    const auto conversacion = GetParam().hazla(nullptr);
    kit::Script guion;
    guion.onDialog([&](kit::Dialog& dialogo) {
        CWnd& dlg = kit::object<CWnd>(dialogo);
        // Handlers that exchange at each key are of no interest here.
        const Escucha sorda(dialogo.handle(), [](UINT mensaje, WPARAM w, LPARAM) {
            const bool tecla = mensaje == WM_COMMAND && HIWORD(w) == EN_CHANGE;
            return tecla ? std::optional<LRESULT>(0) : std::nullopt;
        });
        const auto vuelve = [&](int edicion, const wchar_t* texto) {
            dialogo.type(edicion, texto);
            EXPECT_TRUE(dlg.UpdateData(TRUE));
            dialogo.setText(edicion, L"1");
            dlg.UpdateData(FALSE);
            return dialogo.text(edicion);
        };
        for (const Parada& parada : Recorrido(dialogo)) {
            if (!parada.esEdicion())
                continue;
            const int edicion = parada.numero;
            SCOPED_TRACE(edicion);
            const std::wstring largo(400, L'n');
            if (vuelve(edicion, L"007") == L"007") { // a text
                EXPECT_EQ(vuelve(edicion, largo.c_str()), largo);
                EXPECT_EQ(vuelve(edicion, L""), L"");
                continue;
            }
            UINT pregunta = 0;
            guion.expectMessage().inspect([&](kit::MessageDialog& mensaje) {
                for (const auto& [numero, numeros] : PorPregunta)
                    if (mensaje.text() == kit::Text(TextoDe(numero)))
                        pregunta = numero;
            });
            dialogo.type(edicion, L"n");
            EXPECT_FALSE(dlg.UpdateData(TRUE));
            ASSERT_TRUE(PorPregunta.contains(pregunta));
            const Numeros& deSuTipo = PorPregunta.at(pregunta);
            const auto rango = GetParam().rangos.find(edicion);
            const bool enRango = rango != GetParam().rangos.end();
            for (const wchar_t* const malo : enRango ? Textos{L"", L"2 m"} : deSuTipo.malos) {
                Espera(guion, pregunta);
                dialogo.type(edicion, malo);
                EXPECT_FALSE(dlg.UpdateData(TRUE)) << kit::inQuotes(malo);
            }
            for (const wchar_t* const bueno : enRango ? rango->second : deSuTipo.buenos)
                EXPECT_EQ(vuelve(edicion, bueno), bueno);
        }
        Cancela(dialogo);
    });
    guion.run([&] { return conversacion->DoModal(); });
}

// Afterwards.

/// What the heaps grow by, blocks and bytes, when this is done three times.
std::pair<std::ptrdiff_t, std::ptrdiff_t> Crecimiento(const std::function<void()>& cosa) {
    const auto antes = kit::HeapUse::now();
    for (int i = 0; i < 3; ++i)
        cosa();
    const auto despues = kit::HeapUse::now();
    return {static_cast<std::ptrdiff_t>(despues.blocks - antes.blocks),
            static_cast<std::ptrdiff_t>(despues.bytes - antes.bytes)};
}

TEST_P(Dialogos, LeavesNeitherAHandleNorAByteBehind) {
    const auto usada = [](int boton) {
        Usa([&](kit::Dialog& dialogo) {
            for (const Parada& parada : Recorrido(dialogo))
                for (int i = 0; parada.esCasilla() && i < 2; ++i)
                    dialogo.click(parada.numero);
            dialogo.press(boton);
        });
        kit::app.forget();
    };
    const auto dosVeces = [&] {
        usada(IDCANCEL);
        usada(IDOK);
    };
    // The system keeps a few bytes of each label, also where it is left alone with the template.
    const auto nombre = MAKEINTRESOURCEW(GetParam().plantilla);
    const HINSTANCE modulo = AfxFindResourceHandle(nombre, RT_DIALOG);
    const auto sola = [&] {
        const auto nada = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; };
        for (int i = 0; i < 2; ++i)
            EXPECT_TRUE(DestroyWindow(CreateDialogParamW(modulo, nombre, nullptr, nada, 0)));
    };
    sola();
    dosVeces();
    const auto antes = kit::Handles::now();
    EXPECT_EQ(Crecimiento(dosVeces), Crecimiento(sola));
    EXPECT_EQ(kit::Handles::now(), antes);
}

INSTANTIATE_TEST_SUITE_P(Todos, Dialogos, testing::ValuesIn(Casos()),
                         [](const auto& caso) { return caso.param.nombre; });

} // namespace
