// The host keeps the codes of a survey in a table, and the dialogs copy, search and trim it.
#include <cotana/entidad/DigiTab.h>

#include "kit/kit.h"

#include <string>
#include <vector>

namespace {

using Cotana::CDigiTab;
using Cotana::CElementoDigiTab;
using Codigos = std::vector<std::wstring>;

Codigos CodigosDe(const CDigiTab& tabla) {
    Codigos codigos;
    for (unsigned int i = 0; i < tabla.Cantidad(); ++i)
        codigos.emplace_back(tabla[i].GetCodigo().GetString());
    return codigos;
}

class DigiTab : public testing::Test {
protected:
    DigiTab() {
        for (const auto* codigo : {L"RD", L"WL", L"TR", L"CT"})
            EXPECT_TRUE(tabla.Inserta(CElementoDigiTab(codigo), true));
    }

    CDigiTab tabla;
};

} // namespace

TEST_F(DigiTab, KeepsTheOrderOfInsertion) {
    EXPECT_EQ(tabla.Cantidad(), 4U);
    EXPECT_EQ(CodigosDe(tabla), (Codigos{L"RD", L"WL", L"TR", L"CT"}));
}

TEST_F(DigiTab, TakesARepeatedCodeWhenItIsTold) {
    EXPECT_FALSE(tabla.Inserta(CElementoDigiTab(L"WL"), false));
    EXPECT_EQ(tabla.Cantidad(), 4U);
    EXPECT_TRUE(tabla.Inserta(CElementoDigiTab(L"WL", L"second"), true));
    EXPECT_EQ(tabla.Cantidad(), 5U);
    EXPECT_EQ(tabla[4].GetNemotecnico(), L"second");
}

TEST_F(DigiTab, RefusesAnEntryWithoutCode) {
    EXPECT_FALSE(tabla.Inserta(CElementoDigiTab(L"", L"nothing"), true));
    EXPECT_EQ(tabla.Cantidad(), 4U);
}

TEST_F(DigiTab, FindsTheFirstWithItsCodeAndCase) {
    tabla.Inserta(CElementoDigiTab(L"WL"), true);
    EXPECT_EQ(tabla.Busca(CElementoDigiTab(L"WL", L"any")), 1U);
    EXPECT_EQ(tabla.Busca(CElementoDigiTab(L"wl")), CDigiTab::NoEsta);
    EXPECT_EQ(CDigiTab::NoEsta, 0xFFFFFFFFU);
}

TEST_F(DigiTab, ErasesAnEntryAndThoseAfterIt) {
    tabla.Borra(1, 0);
    EXPECT_EQ(CodigosDe(tabla), (Codigos{L"RD", L"TR", L"CT"}));
    tabla.Borra(1, 99);
    EXPECT_EQ(CodigosDe(tabla), Codigos{L"RD"});
    tabla.Borra(1, 0);
    EXPECT_EQ(CodigosDe(tabla), Codigos{L"RD"});
}

TEST_F(DigiTab, CopyIsATableOfItsOwn) {
    CDigiTab copia;
    copia = tabla;
    tabla.clear();
    EXPECT_EQ(tabla.Cantidad(), 0U);
    EXPECT_EQ(copia.Cantidad(), 4U);
}

TEST_F(DigiTab, EntryHasCodeMnemonicAndStyle) {
    CElementoDigiTab elemento(L"RD", L"Road edge", 7, true);
    EXPECT_TRUE(elemento.ComparaCodigo(L"RD"));
    EXPECT_FALSE(elemento.ComparaCodigo(L"rd"));
    EXPECT_FALSE(elemento.ComparaCodigo(L"RDX"));
    EXPECT_EQ(elemento.GetEstilo(), 7);
    EXPECT_TRUE(elemento.EsGrafico());
    elemento.SetEstilo(-1);
    elemento.SetNemotecnico(L"Edge");
    EXPECT_EQ(elemento.GetEstilo(), -1);
    EXPECT_EQ(elemento.GetNemotecnico(), L"Edge");
}
