// What the two dialogs that take their terrain from disk have in common. A surveyor collects the
// files of a batch: he adds some through the host's file prompt, drops others from the shell,
// removes those that he does not want, corrects the number, and leaves the list to the host by OK.
//
// A test file describes its dialog by a class and instantiates the suite for it:
//
//     struct GenerarCases {
//         using Clase = ...;                              // the dialog's class
//         static Mensaje SinFicheros();                   // its message about an empty list
//         static constexpr auto AlSumar, AlRestar, AlElegir; // its handlers: add, remove, select
//         template <class D = Clase> D Dialogo(CWnd* padre = nullptr); // over the host's variables
//         std::vector<CString> ficheros; CDocTemplate* plantilla; double valor; // of the host
//     };
#pragma once

#include "checks/ConDialogo.h"
#include "checks/Escucha.h"
#include "cuadros/resources/TriangulationIds.h"
#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <shellapi.h>

#include <functional>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace {

using Filas = std::vector<int>;
using Textos = std::vector<std::wstring>;

// The numbers are the same in both dialogs.
constexpr int Hojas = IDC_GENERAR_CASES_HOJAS;
constexpr int Sumar = IDC_GENERAR_CASES_SUMAR;
constexpr int Restar = IDC_GENERAR_CASES_RESTAR;
constexpr int Valor = IDC_GENERAR_CASES_VALOR;

const Textos CincoFicheros = {L"C:\\0.xyz", L"C:\\1.xyz", L"C:\\2.xyz", L"C:\\3.xyz", L"C:\\4.xyz"};

inline Textos ComoTextos(const std::vector<CString>& cadenas) {
    Textos textos;
    for (const CString& cadena : cadenas)
        textos.emplace_back(cadena.GetString(), static_cast<std::size_t>(cadena.GetLength()));
    return textos;
}

/// Lets the test at what a class derived from the dialog sees and can reach.
template <class Clase>
class CDerivado : public ConIntercambios<Clase> {
public:
    using ConIntercambios<Clase>::ConIntercambios;
    using Clase::m_ListaHojas;
    using Clase::m_pFicheros;
    using Clase::m_pPlantilla;
    using Clase::m_pValor;

    void OnOK() override {
        alAceptar();
        Clase::OnOK();
        trasAceptar();
    }

    LRESULT DefWindowProc(UINT mensaje, WPARAM w, LPARAM l) override {
        if (mensaje == WM_DROPFILES)
            alSoltarPorDefecto(reinterpret_cast<HDROP>(w));
        return Clase::DefWindowProc(mensaje, w, l);
    }

    std::function<void()> alAceptar = [] {};
    std::function<void()> trasAceptar = [] {};
    std::function<void(HDROP)> alSoltarPorDefecto = [](HDROP) {};
};

/// One request to select a row of the list box, or with row -1 all of them.
struct Marcado {
    bool si;
    int fila;
    bool operator==(const Marcado&) const = default;
};

/// The addresses grow from each one to the next.
inline void CompruebaCrecientes(const std::vector<const void*>& direcciones) {
    for (std::size_t i = 1; i < direcciones.size(); ++i)
        EXPECT_TRUE(std::less<>{}(direcciones[i - 1], direcciones[i])) << "address " << i;
}

inline UINT CuantosSoltados(HDROP soltados) {
    return DragQueryFileW(soltados, 0xFFFFFFFF, nullptr, 0);
}

template <class Caso>
class ListaFicheros : public ConDialogo, protected Caso {
protected:
    using Clase = typename Caso::Clase;
    using Derivado = CDerivado<Clase>;

    INT_PTR Ejecuta(CWnd* padre) override { return this->Dialogo(padre).DoModal(); }
};

TYPED_TEST_SUITE_P(ListaFicheros);

// What the user sees first.

TYPED_TEST_P(ListaFicheros, StartsEmptyWhateverTheHostsListHolds) {
    this->ficheros = {L"C:\\before.xyz"};
    this->Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 0);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        EXPECT_FALSE(dialogo.enabled(Restar));
        EXPECT_TRUE(dialogo.enabled(Sumar));
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(ComoTextos(this->ficheros), Textos{L"C:\\before.xyz"});
}

TYPED_TEST_P(ListaFicheros, ShowsTheHostsNumber) {
    this->valor = -1234.5625;
    this->Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor), L"-1234.5625");
        dialogo.press(IDCANCEL);
    });
}

// Adding files through the host's prompt.

TYPED_TEST_P(ListaFicheros, AsksTheHostForSeveralFiles) {
    this->plantilla = reinterpret_cast<CDocTemplate*>(&kit::app);
    auto dialogo = this->template Dialogo<typename TestFixture::Derivado>();
    kit::app.answerFilePrompt(L"C:\\a.xyz");
    this->Abre(dialogo, [&](kit::Dialog& abierto) {
        abierto.press(Sumar);
        CompruebaPregunta(abierto, L"", 0x81204, &dialogo.m_pPlantilla);
        EXPECT_EQ(dialogo.m_pPlantilla, this->plantilla);
        EXPECT_EQ(abierto.listBox(Hojas).texts(), Textos{L"C:\\a.xyz"});
        abierto.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, CancelledPromptAddsNothingAndKeepsTheText) {
    kit::app.cancelFilePrompt();
    this->Abre([this](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"7.50");
        dialogo.press(Sumar);
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 0);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        EXPECT_EQ(dialogo.text(Valor), L"7.50");
        // The exchange came before the prompt.
        EXPECT_EQ(this->valor, 7.5);
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, AnswerWithoutANameAddsNothing) {
    for (const wchar_t* respuesta : {L"", L"  ", L" \r\n\uFEFF"}) {
        kit::app.answerFilePrompt(respuesta);
        this->Abre([](kit::Dialog& dialogo) {
            dialogo.type(Valor, L"7.50");
            dialogo.press(Sumar);
            EXPECT_EQ(dialogo.listBox(Hojas).count(), 0);
            EXPECT_FALSE(dialogo.enabled(IDOK));
            EXPECT_EQ(dialogo.text(Valor), L"7.50");
            dialogo.press(IDCANCEL);
        });
    }
}

TYPED_TEST_P(ListaFicheros, AddsTheNamesOfAnAnswerInItsOrder) {
    const struct {
        const wchar_t* respuesta;
        Textos nombres;
    } casos[] = {
        {L"C:\\b.xyz C:\\a.xyz", {L"C:\\b.xyz", L"C:\\a.xyz"}},
        {L"\"C:\\two words\\a.xyz\" C:\\b.xyz", {L"C:\\two words\\a.xyz", L"C:\\b.xyz"}},
        {L"C:\\a.xyz\r\nC:\\b.xyz\r\n", {L"C:\\a.xyz", L"C:\\b.xyz"}},
        {L"\uFEFF  C:\\a.xyz\n\n\"C:\\b c.xyz\"  ", {L"C:\\a.xyz", L"C:\\b c.xyz"}},
        {L"C:\\a.xyz\tC:\\b.xyz C:\\c.xyz", {L"C:\\a.xyz\tC:\\b.xyz", L"C:\\c.xyz"}},
        {L"C:\\a.xyz\"C:\\b.xyz\"\"C:\\c.xyz\"", {L"C:\\a.xyz", L"C:\\b.xyz", L"C:\\c.xyz"}},
        {L"\"C:\\never closed.xyz", {L"C:\\never closed.xyz"}},
        {L"\"\" C:\\a.xyz", {L"", L"C:\\a.xyz"}},
        {L"C:\\a,b;c.xyz C:\\\u00D1and\u00FA\\\u65E5\u672C%20'.xyz",
         {L"C:\\a,b;c.xyz", L"C:\\\u00D1and\u00FA\\\u65E5\u672C%20'.xyz"}},
    };
    for (const auto& caso : casos) {
        kit::app.answerFilePrompt(caso.respuesta);
        const auto resultado = this->Abre([&](kit::Dialog& dialogo) {
            dialogo.press(Sumar);
            EXPECT_EQ(dialogo.listBox(Hojas).texts(), caso.nombres);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(ComoTextos(this->ficheros), caso.nombres);
    }
}

TYPED_TEST_P(ListaFicheros, AddedFilesEnableOk) {
    kit::app.answerFilePrompt(L"C:\\a.xyz");
    this->Abre([](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(Sumar);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        EXPECT_FALSE(dialogo.enabled(Restar));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, NamesFromThePromptMayBeOfAnyLength) {
    const std::wstring largo = L"C:\\" + std::wstring(497, L'k');
    kit::app.answerFilePrompt(largo);
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.press(Sumar);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(ComoTextos(this->ficheros), Textos{largo});
}

TYPED_TEST_P(ListaFicheros, TheSameFileTwiceIsListedTwiceAndComesBackTwice) {
    kit::app.answerFilePrompt(L"C:\\a.xyz C:\\b.xyz");
    kit::app.answerFilePrompt(L"C:\\a.xyz");
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.press(Sumar);
        dialogo.press(Sumar);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(ComoTextos(this->ficheros), (Textos{L"C:\\a.xyz", L"C:\\b.xyz", L"C:\\a.xyz"}));
}

// Dropping files.

TYPED_TEST_P(ListaFicheros, DroppedFilesAreAddedInTheirOrder) {
    const Textos soltados = {L"C:\\z.xyz", L"C:\\a b.xyz", L"C:\\m.xyz"};
    const auto resultado = this->Abre([&](kit::Dialog& dialogo) {
        dialogo.drop(soltados);
        EXPECT_EQ(dialogo.listBox(Hojas).texts(), soltados);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        EXPECT_FALSE(dialogo.enabled(Restar));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(ComoTextos(this->ficheros), soltados);
}

TYPED_TEST_P(ListaFicheros, DropIsPassedOnToTheDefaultOnceItsFilesAreListed) {
    auto dialogo = this->template Dialogo<typename TestFixture::Derivado>();
    HDROP llegado = nullptr;
    int veces = 0;
    this->Abre(dialogo, [&](kit::Dialog& abierto) {
        const Escucha escucha(abierto.handle(), [&](UINT mensaje, WPARAM w, LPARAM) {
            if (mensaje == WM_DROPFILES)
                llegado = reinterpret_cast<HDROP>(w);
            return std::optional<LRESULT>{};
        });
        dialogo.alSoltarPorDefecto = [&](HDROP soltados) {
            ++veces;
            EXPECT_EQ(abierto.listBox(Hojas).count(), 3);
            EXPECT_TRUE(abierto.enabled(IDOK));
            EXPECT_EQ(soltados, llegado);
            EXPECT_EQ(CuantosSoltados(soltados), 3U);
        };
        abierto.drop({L"C:\\a.xyz", L"C:\\b.xyz", L"C:\\c.xyz"});
        EXPECT_EQ(veces, 1);
        // Not even afterwards does the dialog free what was dropped.
        EXPECT_EQ(CuantosSoltados(llegado), 3U);
        DragFinish(llegado);
        abierto.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, FilesDroppedOnTheListReachTheDialog) {
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.dropOn(Hojas, {L"C:\\a.xyz"});
        EXPECT_EQ(dialogo.listBox(Hojas).texts(), Textos{L"C:\\a.xyz"});
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, FoldersAndOddNamesAreDroppedLikeFiles) {
    const Textos soltados = {L"C:\\windows",
                             L"C:\\",
                             L"\\\\server\\share\\dir with \u00F1",
                             L"C:\\a;b,c=%TEMP%&'(1).xyz",
                             L"C:\\a\tb.xyz",
                             L"C:\\\u65E5\u672C\\\U0001F600.xyz",
                             L"C:\\there is no such file"};
    this->Abre([&](kit::Dialog& dialogo) {
        dialogo.drop(soltados);
        EXPECT_EQ(dialogo.listBox(Hojas).texts(), soltados);
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, DroppedPathIsCutTo259Characters) {
    const auto ruta = [](std::size_t longitud) {
        return L"C:\\" + std::wstring(longitud - 4, L'k') + L"z";
    };
    this->Abre([&](kit::Dialog& dialogo) {
        dialogo.drop({ruta(259), ruta(260), ruta(500), L"C:\\a.xyz"});
        const std::wstring cortada = L"C:\\" + std::wstring(256, L'k');
        EXPECT_EQ(dialogo.listBox(Hojas).texts(),
                  (Textos{ruta(259), cortada, cortada, L"C:\\a.xyz"}));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, ThousandDroppedFilesComeBackInTheirOrder) {
    Textos soltados;
    for (int i = 0; i < 1000; ++i)
        soltados.push_back(L"C:\\survey\\" + std::to_wstring(1000 - i) + L".xyz");
    const auto resultado = this->Abre([&](kit::Dialog& dialogo) {
        dialogo.drop(soltados);
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 1000);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(ComoTextos(this->ficheros), soltados);
}

// Removing files.

TYPED_TEST_P(ListaFicheros, SelectionEnablesRemoving) {
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        EXPECT_FALSE(dialogo.enabled(Restar));
        dialogo.listBox(Hojas).choose({2});
        EXPECT_TRUE(dialogo.enabled(Restar));
        dialogo.listBox(Hojas).click(2, kit::Held::Ctrl);
        EXPECT_EQ(dialogo.listBox(Hojas).selected(), Filas{});
        EXPECT_FALSE(dialogo.enabled(Restar));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, RemovesExactlyTheSelectedFiles) {
    const struct {
        Filas elegidas;
        Textos quedan;
    } casos[] = {
        {{1, 3}, {L"C:\\0.xyz", L"C:\\2.xyz", L"C:\\4.xyz"}},
        {{3, 1}, {L"C:\\0.xyz", L"C:\\2.xyz", L"C:\\4.xyz"}},
        {{0}, {L"C:\\1.xyz", L"C:\\2.xyz", L"C:\\3.xyz", L"C:\\4.xyz"}},
        {{0, 1, 3, 4}, {L"C:\\2.xyz"}},
    };
    for (const auto& caso : casos) {
        const auto resultado = this->Abre([&](kit::Dialog& dialogo) {
            dialogo.drop(CincoFicheros);
            dialogo.listBox(Hojas).choose(caso.elegidas);
            dialogo.press(Restar);
            EXPECT_EQ(dialogo.listBox(Hojas).texts(), caso.quedan);
            EXPECT_TRUE(dialogo.enabled(IDOK));
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(ComoTextos(this->ficheros), caso.quedan);
    }
}

TYPED_TEST_P(ListaFicheros, RemovingTheLastFileDisablesOk) {
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.listBox(Hojas).choose({0, 1, 2, 3, 4});
        dialogo.press(Restar);
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 0);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.drop({L"C:\\again.xyz"});
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, RemoveButtonStaysEnabledUntilTheSelectionChanges) {
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.listBox(Hojas).choose({1, 3});
        dialogo.press(Restar);
        EXPECT_EQ(dialogo.listBox(Hojas).selected(), Filas{});
        EXPECT_TRUE(dialogo.enabled(Restar));
        // With nothing selected it removes nothing.
        dialogo.press(Restar);
        EXPECT_EQ(dialogo.listBox(Hojas).texts(),
                  (Textos{L"C:\\0.xyz", L"C:\\2.xyz", L"C:\\4.xyz"}));
        EXPECT_TRUE(dialogo.enabled(Restar));
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.listBox(Hojas).click(0, kit::Held::Ctrl);
        dialogo.listBox(Hojas).click(0, kit::Held::Ctrl);
        EXPECT_FALSE(dialogo.enabled(Restar));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, AddingAndDroppingKeepTheRemoveButtonAsRemovingLeftIt) {
    kit::app.answerFilePrompt(L"C:\\p.xyz");
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.listBox(Hojas).choose({1});
        dialogo.press(Restar);
        dialogo.drop({L"C:\\d.xyz"});
        EXPECT_TRUE(dialogo.enabled(Restar));
        dialogo.press(Sumar);
        EXPECT_TRUE(dialogo.enabled(Restar));
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 6);
        EXPECT_EQ(dialogo.listBox(Hojas).selected(), Filas{});
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, RemoveCommandOnAnEmptyListDoesNothing) {
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.command(Restar);
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 0);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        EXPECT_FALSE(dialogo.enabled(Restar));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, DroppedPromptedAndRemovedFilesMakeOneList) {
    kit::app.answerFilePrompt(L"C:\\p.xyz \"C:\\q r.xyz\"");
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop({L"C:\\a.xyz", L"C:\\b.xyz"});
        dialogo.press(Sumar);
        dialogo.listBox(Hojas).choose({0, 2});
        dialogo.press(Restar);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(ComoTextos(this->ficheros), (Textos{L"C:\\b.xyz", L"C:\\q r.xyz"}));
}

// OK and Cancel.

TYPED_TEST_P(ListaFicheros, OkReplacesTheHostsListAndWritesTheNumber) {
    this->ficheros = {L"C:\\before 1.xyz", L"C:\\before 2.xyz", L"C:\\before 3.xyz"};
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop({L"C:\\b.xyz", L"C:\\a.xyz"});
        dialogo.type(Valor, L"-2.5e3");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(ComoTextos(this->ficheros), (Textos{L"C:\\b.xyz", L"C:\\a.xyz"}));
    EXPECT_EQ(this->valor, -2500);
}

TYPED_TEST_P(ListaFicheros, OkSelectsEachFileAloneAsItIsTaken) {
    std::vector<Marcado> marcados;
    Filas alFinal;
    HWND lista = nullptr;
    std::optional<Escucha> escucha;
    auto dialogo = this->template Dialogo<typename TestFixture::Derivado>();
    dialogo.alAceptar = [&] {
        escucha.emplace(lista, [&](UINT mensaje, WPARAM w, LPARAM l) {
            if (mensaje == LB_SETSEL)
                marcados.push_back({w != 0, static_cast<int>(l)});
            return std::optional<LRESULT>{};
        });
    };
    dialogo.trasAceptar = [&] {
        escucha.reset();
        alFinal = kit::ListBox(lista).selected();
    };
    this->Abre(dialogo, [&](kit::Dialog& abierto) {
        lista = abierto.control(Hojas);
        abierto.drop({L"C:\\a.xyz", L"C:\\b.xyz", L"C:\\c.xyz"});
        abierto.listBox(Hojas).choose({0, 1});
        abierto.press(IDOK);
    });
    const std::vector<Marcado> esperados = {{false, -1}, {true, 0},   {false, -1},
                                            {true, 1},   {false, -1}, {true, 2}};
    EXPECT_EQ(marcados, esperados);
    EXPECT_EQ(alFinal, Filas{2});
}

TYPED_TEST_P(ListaFicheros, OkLeavesALongListAsIfItHadBeenDrawnAtEachFile) {
    Textos soltados;
    for (int i = 0; i < 100; ++i)
        soltados.push_back(L"C:\\" + std::to_wstring(i) + L".xyz");
    auto dialogo = this->template Dialogo<typename TestFixture::Derivado>();
    CListBox& lista = dialogo.m_ListaHojas;
    using Estado = std::tuple<Filas, int, int>;
    const auto estado = [&] {
        return Estado{kit::ListBox(lista.m_hWnd).selected(), lista.GetTopIndex(),
                      lista.GetCaretIndex()};
    };
    dialogo.trasAceptar = [&] {
        const Estado tras = estado();
        lista.SetTopIndex(0);
        for (int i = 0; i < lista.GetCount(); ++i) {
            lista.SetSel(-1, FALSE);
            lista.SetSel(i, TRUE);
        }
        EXPECT_EQ(tras, estado());
        EXPECT_EQ(std::get<0>(tras), Filas{99});
        EXPECT_GT(std::get<1>(tras), 0);
    };
    this->Abre(dialogo, [&](kit::Dialog& abierto) {
        abierto.drop(soltados);
        abierto.press(IDOK);
    });
}

TYPED_TEST_P(ListaFicheros, OkCommandWithAnEmptyListIsRefused) {
    this->ficheros = {L"C:\\before.xyz"};
    const auto resultado = this->Abre({TypeParam::SinFicheros()}, [this](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"9");
        dialogo.command(IDOK);
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        EXPECT_EQ(this->valor, 9);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(ComoTextos(this->ficheros), Textos{L"C:\\before.xyz"});
}

TYPED_TEST_P(ListaFicheros, CancelKeepsTheHostsListAndAnUntouchedNumber) {
    this->ficheros = {L"C:\\before.xyz"};
    this->valor = 0.1 + 0.2; // not even rounded
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"9");
        dialogo.drop(CincoFicheros);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(ComoTextos(this->ficheros), Textos{L"C:\\before.xyz"});
    EXPECT_EQ(this->valor, 0.1 + 0.2);
}

TYPED_TEST_P(ListaFicheros, CancelKeepsTheNumberThatRemovingExchanged) {
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.listBox(Hojas).choose({0});
        dialogo.type(Valor, L"9.50");
        dialogo.press(Restar);
        EXPECT_EQ(dialogo.text(Valor), L"9.5");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(this->valor, 9.5);
}

TYPED_TEST_P(ListaFicheros, HostSeesEachExchangeAsItIsDocumented) {
    kit::app.cancelFilePrompt();
    kit::app.answerFilePrompt(L"  ");
    kit::app.answerFilePrompt(L"C:\\p.xyz");
    auto dialogo = this->template Dialogo<typename TestFixture::Derivado>();
    const auto resultado = this->Abre(dialogo, [&](kit::Dialog& abierto) {
        EXPECT_EQ(dialogo.Intercambios(), "M");
        abierto.press(Sumar); // cancelled
        EXPECT_EQ(dialogo.Intercambios(), "S");
        abierto.press(Sumar); // no name in the answer
        EXPECT_EQ(dialogo.Intercambios(), "S");
        abierto.press(Sumar);
        EXPECT_EQ(dialogo.Intercambios(), "SM");
        abierto.drop(CincoFicheros);
        abierto.listBox(Hojas).choose({0});
        EXPECT_EQ(dialogo.Intercambios(), "");
        abierto.press(Restar);
        EXPECT_EQ(dialogo.Intercambios(), "SM");
        abierto.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dialogo.Intercambios(), "SS");
}

// Texts that are no numbers.

TYPED_TEST_P(ListaFicheros, BadNumberIsRefusedAtAddingAndThenReplaced) {
    this->valor = 4;
    kit::app.answerFilePrompt(L"C:\\a.xyz");
    this->Abre({AFX_IDP_PARSE_REAL}, [this](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"4 m");
        dialogo.press(Sumar);
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 1);
        EXPECT_EQ(dialogo.text(Valor), L"4");
        EXPECT_EQ(this->valor, 4);
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, BadNumberIsRefusedAtRemovingAndThenReplaced) {
    this->valor = 4;
    this->Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.listBox(Hojas).choose({1, 3});
        dialogo.type(Valor, L"");
        dialogo.press(Restar);
        EXPECT_EQ(dialogo.listBox(Hojas).count(), 3);
        EXPECT_EQ(dialogo.text(Valor), L"4");
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, BadNumberIsRefusedOnceByOkWhichWritesNothing) {
    this->ficheros = {L"C:\\before.xyz"};
    this->valor = 4;
    const auto resultado = this->Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.drop({L"C:\\a.xyz", L"C:\\b.xyz"});
        dialogo.listBox(Hojas).choose({0});
        dialogo.type(Valor, L"four");
        dialogo.press(IDOK);
        EXPECT_EQ(dialogo.focus(), Valor);
        EXPECT_EQ(dialogo.text(Valor), L"four");
        EXPECT_EQ(dialogo.listBox(Hojas).selected(), Filas{0});
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(this->valor, 4);
    EXPECT_EQ(ComoTextos(this->ficheros), Textos{L"C:\\before.xyz"});
}

TYPED_TEST_P(ListaFicheros, OkAfterABadNumberTakesEachFileOnce) {
    const auto resultado = this->Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        dialogo.type(Valor, L"four");
        dialogo.press(IDOK);
        dialogo.type(Valor, L"4");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(this->valor, 4);
    EXPECT_EQ(ComoTextos(this->ficheros), CincoFicheros);
}

TYPED_TEST_P(ListaFicheros, BadNumberComesBeforeTheEmptyList) {
    const auto resultado = this->Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(Valor, L"four");
        dialogo.command(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

// By keyboard alone.

TYPED_TEST_P(ListaFicheros, KeysSelectFilesAndRemoveThem) {
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.drop(CincoFicheros);
        kit::keyboard::mnemonic(L'f');
        EXPECT_EQ(dialogo.focus(), Hojas);
        kit::keyboard::press(VK_HOME);
        kit::keyboard::press(VK_DOWN);
        kit::keyboard::press(VK_DOWN, kit::Held::Shift);
        EXPECT_EQ(dialogo.listBox(Hojas).selected(), (Filas{1, 2}));
        kit::keyboard::mnemonic(L'r');
        EXPECT_EQ(dialogo.listBox(Hojas).texts(),
                  (Textos{L"C:\\0.xyz", L"C:\\3.xyz", L"C:\\4.xyz"}));
        dialogo.focusOn(Valor);
        EXPECT_EQ(dialogo.defaultButton(), IDOK);
        kit::keyboard::press(VK_RETURN);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(ComoTextos(this->ficheros), (Textos{L"C:\\0.xyz", L"C:\\3.xyz", L"C:\\4.xyz"}));
}

// A host's own class on top of the dialog.

TYPED_TEST_P(ListaFicheros, HostCallsTheHandlersItself) {
    kit::app.answerFilePrompt(L"C:\\p.xyz C:\\q.xyz");
    auto dialogo = this->Dialogo();
    this->Abre(dialogo, [&](kit::Dialog& abierto) {
        (dialogo.*TypeParam::AlSumar)();
        EXPECT_EQ(abierto.listBox(Hojas).texts(), (Textos{L"C:\\p.xyz", L"C:\\q.xyz"}));
        EXPECT_TRUE(abierto.enabled(IDOK));

        abierto.listBox(Hojas).choose({0, 1});
        EnableWindow(abierto.control(Restar), FALSE);
        (dialogo.*TypeParam::AlElegir)();
        EXPECT_TRUE(abierto.enabled(Restar));

        (dialogo.*TypeParam::AlRestar)();
        EXPECT_EQ(abierto.listBox(Hojas).count(), 0);
        EXPECT_FALSE(abierto.enabled(IDOK));

        // What is dropped is kept from the dialog, for the host to hand it over.
        HDROP soltados = nullptr;
        {
            const Escucha escucha(abierto.handle(), [&](UINT mensaje, WPARAM w, LPARAM) {
                if (mensaje != WM_DROPFILES)
                    return std::optional<LRESULT>{};
                soltados = reinterpret_cast<HDROP>(w);
                return std::optional<LRESULT>(0);
            });
            abierto.drop(CincoFicheros);
        }
        EXPECT_EQ(abierto.listBox(Hojas).count(), 0);
        dialogo.OnDropFiles(soltados);
        EXPECT_EQ(abierto.listBox(Hojas).texts(), CincoFicheros);
        EXPECT_TRUE(abierto.enabled(IDOK));
        DragFinish(soltados);
        abierto.press(IDCANCEL);
    });
}

TYPED_TEST_P(ListaFicheros, KeepsItsMembersInTheDeclaredOrder) {
    auto dialogo = this->template Dialogo<typename TestFixture::Derivado>();
    EXPECT_EQ(dialogo.m_pValor, &this->valor);
    EXPECT_EQ(dialogo.m_pFicheros, &this->ficheros);
    EXPECT_EQ(dialogo.m_pPlantilla, this->plantilla);
    CompruebaCrecientes(
        {&dialogo.m_pValor, &dialogo.m_ListaHojas, &dialogo.m_pFicheros, &dialogo.m_pPlantilla});
}

REGISTER_TYPED_TEST_SUITE_P(
    ListaFicheros, StartsEmptyWhateverTheHostsListHolds, ShowsTheHostsNumber,
    AsksTheHostForSeveralFiles, CancelledPromptAddsNothingAndKeepsTheText,
    AnswerWithoutANameAddsNothing, AddsTheNamesOfAnAnswerInItsOrder, AddedFilesEnableOk,
    NamesFromThePromptMayBeOfAnyLength, TheSameFileTwiceIsListedTwiceAndComesBackTwice,
    DroppedFilesAreAddedInTheirOrder, DropIsPassedOnToTheDefaultOnceItsFilesAreListed,
    FilesDroppedOnTheListReachTheDialog, FoldersAndOddNamesAreDroppedLikeFiles,
    DroppedPathIsCutTo259Characters, ThousandDroppedFilesComeBackInTheirOrder,
    SelectionEnablesRemoving, RemovesExactlyTheSelectedFiles, RemovingTheLastFileDisablesOk,
    RemoveButtonStaysEnabledUntilTheSelectionChanges,
    AddingAndDroppingKeepTheRemoveButtonAsRemovingLeftIt, RemoveCommandOnAnEmptyListDoesNothing,
    DroppedPromptedAndRemovedFilesMakeOneList, OkReplacesTheHostsListAndWritesTheNumber,
    OkSelectsEachFileAloneAsItIsTaken, OkLeavesALongListAsIfItHadBeenDrawnAtEachFile,
    OkCommandWithAnEmptyListIsRefused, CancelKeepsTheHostsListAndAnUntouchedNumber,
    CancelKeepsTheNumberThatRemovingExchanged, HostSeesEachExchangeAsItIsDocumented,
    BadNumberIsRefusedAtAddingAndThenReplaced, BadNumberIsRefusedAtRemovingAndThenReplaced,
    BadNumberIsRefusedOnceByOkWhichWritesNothing, OkAfterABadNumberTakesEachFileOnce,
    BadNumberComesBeforeTheEmptyList, KeysSelectFilesAndRemoveThem, HostCallsTheHandlersItself,
    KeepsItsMembersInTheDeclaredOrder);

} // namespace
