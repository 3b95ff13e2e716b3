// The user opens the advanced options beside those of the contours. The two values follow the
// drawing's scale while their box is ticked; he clears it and types his own, and OK writes all
// three into the caller's variables.
#include <cotana/dialogos_dibujo/CurvadoAvanzadoDlg.h>

#include <cotana/dialogos_dibujo/DialogosDibujoIds.h>

#include "checks/ConDialogo.h"

#include <filesystem>

namespace {

using Cotana::CCurvadoAvanzadoDlg;

constexpr int PorEscala = IDC_CURVADO_AVANZADO_POR_ESCALA;
constexpr int Valor1 = IDC_CURVADO_AVANZADO_VALOR_1;
constexpr int Valor2 = IDC_CURVADO_AVANZADO_VALOR_2;

class CurvadoAvanzadoDlg : public ConDialogo {
protected:
    INT_PTR Ejecuta(CWnd* padre) override {
        return CCurvadoAvanzadoDlg(escala, valor1, valor2, porEscala, padre).DoModal();
    }

    void CompruebaVariables(double esperado1, double esperado2, int esperadoPorEscala) {
        EXPECT_EQ(valor1, esperado1);
        EXPECT_EQ(valor2, esperado2);
        EXPECT_EQ(porEscala, esperadoPorEscala);
    }

    // Of the caller.
    int escala = 1000;
    double valor1 = 0.5;
    double valor2 = 2.25;
    int porEscala = 0;
};

// What the user sees first.

TEST_F(CurvadoAvanzadoDlg, ShowsTheValues) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Advanced Contour Options");
        EXPECT_FALSE(dialogo.checked(PorEscala));
        EXPECT_EQ(dialogo.text(Valor1), L"0.5");
        EXPECT_EQ(dialogo.text(Valor2), L"2.25");
        EXPECT_TRUE(dialogo.enabled(Valor1));
        EXPECT_TRUE(dialogo.enabled(Valor2));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoAvanzadoDlg, ValuesThatFollowTheScaleStartDisabled) {
    for (const int marcada : {1, 7, -1}) {
        porEscala = marcada;
        Abre([](kit::Dialog& dialogo) {
            EXPECT_TRUE(dialogo.checked(PorEscala));
            // As the caller has them: only a click on the box derives them.
            EXPECT_EQ(dialogo.text(Valor1), L"0.5");
            EXPECT_EQ(dialogo.text(Valor2), L"2.25");
            EXPECT_FALSE(dialogo.enabled(Valor1));
            EXPECT_FALSE(dialogo.enabled(Valor2));
            EXPECT_EQ(dialogo.focus(), PorEscala);
            dialogo.picture(L"CurvadoAvanzadoDlg");
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(CurvadoAvanzadoDlg, BoxNamesTheScale) {
    const struct {
        unsigned int escala;
        const wchar_t* texto;
    } casos[] = {{0, L"&Follow the scale (1:0)"},
                 {500, L"&Follow the scale (1:500)"},
                 {4000000000, L"&Follow the scale (1:4000000000)"},
                 {4294967295, L"&Follow the scale (1:4294967295)"}};
    for (const auto& caso : casos) {
        escala = static_cast<int>(caso.escala);
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.text(PorEscala), caso.texto);
            dialogo.press(IDCANCEL);
        });
    }
}

// The box.

TEST_F(CurvadoAvanzadoDlg, BoxDerivesTheValuesAndDisablesThem) {
    const struct {
        unsigned int escala;
        const wchar_t* texto1;
        const wchar_t* texto2;
        double valor1, valor2;
    } casos[] = {{0, L"0", L"0", 0, 0},
                 {1000, L"0.04", L"0.2", 0.04, 0.2},
                 {10000, L"0.4", L"2", 0.4, 2},
                 {10000000, L"400", L"2000", 400, 2000},
                 {4000000000, L"160000", L"800000", 160000, 800000},
                 {4294967295, L"171798.6918", L"858993.459", 171798.6918, 858993.459}};
    for (const auto& caso : casos) {
        escala = static_cast<int>(caso.escala);
        porEscala = 0;
        const auto resultado = Abre([&](kit::Dialog& dialogo) {
            dialogo.click(PorEscala);
            EXPECT_EQ(dialogo.text(Valor1), caso.texto1);
            EXPECT_EQ(dialogo.text(Valor2), caso.texto2);
            EXPECT_FALSE(dialogo.enabled(Valor1));
            EXPECT_FALSE(dialogo.enabled(Valor2));
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK) << caso.escala;
        CompruebaVariables(caso.valor1, caso.valor2, 1);
    }
}

TEST_F(CurvadoAvanzadoDlg, ClearedBoxEnablesTheValuesAndKeepsThem) {
    porEscala = 1;
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.click(PorEscala);
        EXPECT_TRUE(dialogo.enabled(Valor1));
        EXPECT_TRUE(dialogo.enabled(Valor2));
        EXPECT_EQ(dialogo.text(Valor1), L"0.5");
        EXPECT_EQ(dialogo.text(Valor2), L"2.25");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    CompruebaVariables(0.5, 2.25, 0);
}

TEST_F(CurvadoAvanzadoDlg, BoxDropsWhatWasTyped) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Valor1, L"no number");
        dialogo.type(Valor2, L"-1");
        dialogo.click(PorEscala);
        EXPECT_EQ(dialogo.text(Valor1), L"0.04");
        EXPECT_EQ(dialogo.text(Valor2), L"0.2");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    CompruebaVariables(0.04, 0.2, 1);
}

// OK and Cancel.

TEST_F(CurvadoAvanzadoDlg, OkWritesAllThree) {
    const auto resultado = Abre([this](kit::Dialog& dialogo) {
        dialogo.type(Valor1, L"1e-3");
        dialogo.type(Valor2, L"0");
        CompruebaVariables(0.5, 2.25, 0);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    CompruebaVariables(0.001, 0, 0);
}

TEST_F(CurvadoAvanzadoDlg, CancelWritesNone) {
    for (const bool conClic : {false, true}) {
        const auto resultado = Abre([&](kit::Dialog& dialogo) {
            dialogo.type(Valor1, L"1");
            dialogo.type(Valor2, L"2");
            if (conClic)
                dialogo.click(PorEscala);
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(resultado, IDCANCEL);
        CompruebaVariables(0.5, 2.25, 0);
    }
}

TEST_F(CurvadoAvanzadoDlg, ValuesOutsideTheirRangeAreRefused) {
    CString fueraDeRango;
    AfxFormatString2(fueraDeRango, AFX_IDP_PARSE_REAL_RANGE, L"0", L"1000000");
    for (const int control : {Valor1, Valor2})
        for (const wchar_t* const malo : {L"-0.001", L"1000000.5"}) {
            const auto resultado =
                Abre({Mensaje::DelMarco(fueraDeRango)}, [&](kit::Dialog& dialogo) {
                    dialogo.type(control, malo);
                    dialogo.press(IDOK);
                    EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
                    EXPECT_EQ(dialogo.focus(), control);
                    EXPECT_EQ(dialogo.text(control), malo);
                    dialogo.press(IDCANCEL);
                });
            EXPECT_EQ(resultado, IDCANCEL);
            CompruebaVariables(0.5, 2.25, 0);
        }
}

TEST_F(CurvadoAvanzadoDlg, BadNumberIsRefusedOnce) {
    for (const int control : {Valor1, Valor2}) {
        const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [&](kit::Dialog& dialogo) {
            dialogo.type(control, L"0,5");
            dialogo.press(IDOK);
            EXPECT_EQ(dialogo.focus(), control);
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(resultado, IDCANCEL);
        CompruebaVariables(0.5, 2.25, 0);
    }
}

TEST_F(CurvadoAvanzadoDlg, CorrectedNumberIsTaken) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [&](kit::Dialog& dialogo) {
        dialogo.type(Valor2, L"");
        dialogo.press(IDOK);
        dialogo.type(Valor2, L"3");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    CompruebaVariables(0.5, 3, 0);
}

// By keyboard alone.

TEST_F(CurvadoAvanzadoDlg, KeyboardPassesTheValuesThatFollowTheScale) {
    Abre([](kit::Dialog& dialogo) {
        kit::keyboard::mnemonic(L'f');
        EXPECT_TRUE(dialogo.checked(PorEscala));
        EXPECT_EQ(RecorreConTabulador(dialogo), (std::vector<int>{PorEscala, IDOK, IDCANCEL}));
        dialogo.press(IDCANCEL);
    });
}

// Where its template comes from.

/// The module that the resource chain finds the template in.
HINSTANCE ModuloDeLaPlantilla() {
    return AfxFindResourceHandle(MAKEINTRESOURCE(IDD_CURVADO_AVANZADO), RT_DIALOG);
}

TEST_F(CurvadoAvanzadoDlg, TemplateIsInTheHostsLibraryAndInNoOtherModule) {
    const HMODULE cotana = GetModuleHandleW(L"Cotana.dll");
    ASSERT_NE(cotana, nullptr);
    const auto plantilla = MAKEINTRESOURCE(IDD_CURVADO_AVANZADO);
    EXPECT_NE(FindResource(cotana, plantilla, RT_DIALOG), nullptr);
    EXPECT_EQ(FindResource(nullptr, plantilla, RT_DIALOG), nullptr) << "of the program";
    EXPECT_EQ(ModuloDeLaPlantilla(), cotana);
}

TEST_F(CurvadoAvanzadoDlg, TemplateIsInTheChainWhileItsModuleIsLoaded) {
    const HMODULE cotana = GetModuleHandleW(L"Cotana.dll");
    // The program cannot let go of the library that it is linked with, but of a copy of it.
    wchar_t fichero[MAX_PATH];
    ASSERT_NE(GetModuleFileNameW(cotana, fichero, MAX_PATH), 0U);
    const auto copia = std::filesystem::temp_directory_path() / L"Cotana copied.dll";
    std::filesystem::copy_file(fichero, copia, std::filesystem::copy_options::overwrite_existing);

    const HMODULE copiada = LoadLibraryW(copia.c_str());
    ASSERT_NE(copiada, nullptr);
    EXPECT_NE(copiada, cotana);
    EXPECT_EQ(ModuloDeLaPlantilla(), copiada) << "the newest one comes first";
    EXPECT_TRUE(FreeLibrary(copiada));
    EXPECT_EQ(ModuloDeLaPlantilla(), cotana);
    std::filesystem::remove(copia);
}

TEST_F(CurvadoAvanzadoDlg, OpensUnderTheStateOfAnyModule) {
    AFX_MODULE_STATE deOtroModulo(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&deOtroModulo);
    EXPECT_EQ(ModuloDeLaPlantilla(), GetModuleHandleW(L"Cotana.dll"));
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
}

} // namespace
