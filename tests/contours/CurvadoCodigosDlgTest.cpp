// A draughtsman gives the contours of a drawing their codes. Beside the contour options, in a small
// dialog of their own, he types the five of them; OK leaves them in the host's own texts, and
// Cancel leaves these alone.
#include "cuadros/contours/CurvadoCodigosDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/ContoursIds.h"

#include <array>
#include <cstddef>

namespace {

constexpr std::array Codigos = {IDC_CURVADO_CODIGOS_CODIGO_1, IDC_CURVADO_CODIGOS_CODIGO_2,
                                IDC_CURVADO_CODIGOS_CODIGO_3, IDC_CURVADO_CODIGOS_CODIGO_4,
                                IDC_CURVADO_CODIGOS_CODIGO_5};
constexpr std::array Numeros = {IDC_CURVADO_CODIGOS_NUMERO_1, IDC_CURVADO_CODIGOS_NUMERO_2,
                                IDC_CURVADO_CODIGOS_NUMERO_3, IDC_CURVADO_CODIGOS_NUMERO_4,
                                IDC_CURVADO_CODIGOS_NUMERO_5};

using Textos = std::array<CString, 5>;

class CurvadoCodigosDlg : public ConDialogo {
protected:
    template <class D = CCurvadoCodigosDlg>
    D Dialogo(CWnd* padre = nullptr) {
        return D(codigos[0], codigos[1], codigos[2], codigos[3], codigos[4], padre);
    }

    INT_PTR Ejecuta(CWnd* padre) override { return Dialogo(padre).DoModal(); }

    Textos codigos = {L"CV", L"CM", L"DP", L"DM", L"LB"};
};

/// Types these texts as the five codes.
void Teclea(kit::Dialog& dialogo, const Textos& textos) {
    for (std::size_t i = 0; i < textos.size(); ++i)
        dialogo.type(Codigos[i], kit::Text(textos[i]));
}

// What the user sees first.

TEST_F(CurvadoCodigosDlg, ShowsTheFiveCodes) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.caption(), L"Contour Codes");
        EXPECT_EQ(dialogo.text(20083), L"CV");
        EXPECT_EQ(dialogo.text(20084), L"CM");
        EXPECT_EQ(dialogo.text(20036), L"DP");
        EXPECT_EQ(dialogo.text(20037), L"DM");
        EXPECT_EQ(dialogo.text(20038), L"LB");
        dialogo.picture(L"CurvadoCodigosDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoCodigosDlg, NumbersOfTheCodesAreHiddenAndNothingElse) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(Ocultos(dialogo), Controles(Numeros.begin(), Numeros.end()));
        // Each says which code it stands beside.
        for (std::size_t i = 0; i < Numeros.size(); ++i)
            EXPECT_EQ(dialogo.text(Numeros[i]), std::to_wstring(i + 1));
        EXPECT_FALSE(dialogo.exists(20042)) << "no code has this one";
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoCodigosDlg, OpensByOneExchangeAndThenHidesTheNumbersInTheirOrder) {
    auto conDiario = Dialogo<ConDiario<CCurvadoCodigosDlg>>();
    Abre(conDiario, [](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(conDiario.diario, (Diario{"M", "centre", "icon", "hide 20039", "hide 20040",
                                        "hide 20041", "hide 20043", "hide 20044"}));
}

// OK and Cancel.

TEST_F(CurvadoCodigosDlg, OkWritesEachCodeIntoItsOwnText) {
    const Textos nuevos = {L"11", L"12", L"13", L"14", L"15"};
    EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                  Teclea(dialogo, nuevos);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(codigos, nuevos);
}

TEST_F(CurvadoCodigosDlg, OkOverUntouchedCodesKeepsThem) {
    const Textos antes = codigos;
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
    EXPECT_EQ(codigos, antes);
}

TEST_F(CurvadoCodigosDlg, OkTakesEmptyCodes) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        Teclea(dialogo, {});
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(codigos, Textos());
}

TEST_F(CurvadoCodigosDlg, OkTakesOneEmptyCodeAmongOthers) {
    for (std::size_t i = 0; i < codigos.size(); ++i) {
        codigos = {L"a", L"b", L"c", L"d", L"e"};
        Textos esperados = codigos;
        esperados[i].Empty();
        const auto resultado = Abre([&](kit::Dialog& dialogo) {
            dialogo.type(Codigos[i], L"");
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(codigos, esperados);
    }
}

TEST_F(CurvadoCodigosDlg, OkTakesAnyText) {
    const Textos nuevos = {CString(L'k', 300), L"  ", L"CV", L"CV", L"\u00F1 \u6C34"};
    EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                  Teclea(dialogo, nuevos);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(codigos, nuevos);
}

TEST_F(CurvadoCodigosDlg, OkReadsTheCodesInTheirOrder) {
    Abre([](kit::Dialog& dialogo) {
        const std::vector<int> enOrden(Codigos.begin(), Codigos.end());
        const std::vector<int> alReves(Codigos.rbegin(), Codigos.rend());
        EXPECT_EQ(LeidosPorOk(dialogo, alReves), enOrden);
    });
}

TEST_F(CurvadoCodigosDlg, CancelLeavesAllFive) {
    const Textos antes = codigos;
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  Teclea(dialogo, {L"11", L"12", L"", L"14", L"15"});
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(codigos, antes);
}

// A host's own class on top of the dialog.

TEST_F(CurvadoCodigosDlg, HostSeesOneExchangeAtOpeningAndOneByOk) {
    auto contador = Dialogo<ConIntercambios<CCurvadoCodigosDlg>>();
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "M");
        dialogo.type(Codigos[0], L"11");
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "S");
}

TEST_F(CurvadoCodigosDlg, HostSeesNoExchangeByCancel) {
    auto contador = Dialogo<ConIntercambios<CCurvadoCodigosDlg>>();
    Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "M");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(contador.Intercambios(), "");
}

TEST_F(CurvadoCodigosDlg, ExchangesWithTheVeryTextsOfTheCaller) {
    auto dlg = Dialogo();
    Abre(dlg, [&](kit::Dialog& dialogo) {
        const Textos deOtroSitio = {L"a", L"b", L"c", L"d", L"e"};
        codigos = deOtroSitio;
        dlg.UpdateData(FALSE);
        for (std::size_t i = 0; i < codigos.size(); ++i)
            EXPECT_EQ(dialogo.text(Codigos[i]), kit::Text(deOtroSitio[i]));
        const Textos nuevos = {L"11", L"12", L"13", L"14", L"15"};
        Teclea(dialogo, nuevos);
        EXPECT_EQ(codigos, deOtroSitio);
        dlg.UpdateData(TRUE);
        EXPECT_EQ(codigos, nuevos);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoCodigosDlg, OkStaysOpenWhereTheHostRefusesTheExchange) {
    auto dlg = Dialogo<CDesconfiado<CCurvadoCodigosDlg>>();
    EXPECT_EQ(Abre(dlg, {},
                   [](kit::Dialog& dialogo) {
                       dialogo.press(IDOK);
                       EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
                       dialogo.press(IDCANCEL);
                   }),
              IDCANCEL);
}

} // namespace
