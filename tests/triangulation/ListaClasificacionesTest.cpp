// A surveyor chooses which classifications of a point cloud take part in a triangulation. Whether
// in plan or in space, he sees them in a list, the first one selected, takes some, all or none, and
// can go on while there is one.
#include "Clasificaciones.h"

#include "cuadros/resources/StringIds.h"

#include <limits>
#include <optional>
#include <string>

namespace {

using Cotana::CInfoClasificacion;

template <class Dlg>
using ListaClasificaciones = ConClasificaciones<Dlg>;
using Dialogos = testing::Types<Cotana::CTriangulacion2DDlg, Cotana::CTriangulacion3DDlg>;
TYPED_TEST_SUITE(ListaClasificaciones, Dialogos, );

// What the user sees first.

TYPED_TEST(ListaClasificaciones, ShowsNumberDescriptionAndCountInTheHostsOrder) {
    this->Abre([](kit::Dialog& dialogo) {
        const auto lista = dialogo.list(Lista);
        EXPECT_EQ(lista.column(0), (Textos{L"2", L"6", L"9"}));
        EXPECT_EQ(lista.column(1), (Textos{L"Ground", L"Buildings", L"Water"}));
        EXPECT_EQ(lista.column(2), (Textos{L"148210", L"5120", L"733"}));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, ShowsTheWholeRangeOfItsNumbers) {
    this->clasificaciones = {
        CInfoClasificacion(0, std::numeric_limits<int>::min(), L"Niño, Ångström, Ωμέγα"),
        CInfoClasificacion(255, std::numeric_limits<int>::max(), L""),
        CInfoClasificacion(255, -1, L"The same number again")};
    this->Abre([](kit::Dialog& dialogo) {
        const auto lista = dialogo.list(Lista);
        EXPECT_EQ(lista.column(0), (Textos{L"0", L"255", L"255"}));
        EXPECT_EQ(lista.column(1),
                  (Textos{L"Niño, Ångström, Ωμέγα", L"", L"The same number again"}));
        EXPECT_EQ(lista.column(2), (Textos{L"-2147483648", L"2147483647", L"-1"}));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, HasThreeColumnsWithGridLinesAndFullRows) {
    this->Abre([](kit::Dialog& dialogo) {
        const auto lista = dialogo.list(Lista);
        ASSERT_EQ(lista.columns(), 3);
        const UINT titulos[] = {IDS_COLUMNA_CODIGO, IDS_COLUMNA_TIPO, IDS_COLUMNA_VALOR};
        const int anchos[] = {35, 200, 75};
        const int ajustes[] = {LVCFMT_LEFT, LVCFMT_LEFT, LVCFMT_RIGHT};
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(lista.heading(i), kit::Text(TextoDe(titulos[i])));
            EXPECT_EQ(lista.width(i), anchos[i]);
            LVCOLUMNW columna{};
            columna.mask = LVCF_FMT;
            ListView_GetColumn(lista.handle(), i, &columna);
            EXPECT_EQ(columna.fmt & LVCFMT_JUSTIFYMASK, ajustes[i]);
        }
        EXPECT_EQ(ListView_GetExtendedListViewStyle(lista.handle()), DWORD{33});
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, RowsHaveTheFirstStateImageAndTheFirstImage) {
    this->Abre([](kit::Dialog& dialogo) {
        LVITEMW fila{};
        fila.mask = LVIF_STATE | LVIF_IMAGE;
        fila.iItem = 2;
        fila.stateMask = LVIS_STATEIMAGEMASK;
        ASSERT_TRUE(ListView_GetItem(dialogo.list(Lista).handle(), &fila));
        EXPECT_EQ(fila.state, 0x1000U);
        EXPECT_EQ(fila.iImage, 0);
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, StartsWithTheFirstRowSelectedAndOkEnabled) {
    this->Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Lista).selected(), Filas{0});
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

/// Hears how the dialog fills its list.
template <class Dlg>
class ConListaOida : public Dlg {
public:
    using Dlg::Dlg;

    const Textos& Oido() const { return m_Oido; }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        Dlg::DoDataExchange(pDX);
        if (!m_Escucha)
            m_Escucha.emplace(this->m_ListaClasificaciones.m_hWnd,
                              [this](UINT mensaje, WPARAM wParam, LPARAM lParam) {
                                  Oye(mensaje, static_cast<int>(wParam),
                                      reinterpret_cast<const LVITEMW*>(lParam));
                                  return std::optional<LRESULT>();
                              });
    }

private:
    void Oye(UINT mensaje, int fila, const LVITEMW* elemento) {
        const auto anota = [this](const wchar_t* que, int uno, unsigned otro) {
            m_Oido.push_back(que + std::to_wstring(uno) + L" " + std::to_wstring(otro));
        };
        switch (mensaje) {
        case LVM_INSERTITEMW:
            anota(L"row ", elemento->iItem, static_cast<unsigned>(elemento->iSubItem));
            break;
        case LVM_SETITEMTEXTW:
            anota(L"text ", fila, static_cast<unsigned>(elemento->iSubItem));
            break;
        case LVM_SETITEMSTATE:
            anota(L"row of state ", fila, elemento->stateMask);
            anota(L"state ", static_cast<int>(elemento->state), elemento->stateMask);
            break;
        default:
            break;
        }
    }

    Textos m_Oido;
    std::optional<Escucha> m_Escucha;
};

TYPED_TEST(ListaClasificaciones, IsFilledInTwoPassesBeforeTheFirstRowIsSelected) {
    const auto dlg = this->template Crea<ConListaOida<TypeParam>>();
    this->Abre(*dlg, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(dlg->Oido(), (Textos{L"row 0 0", L"row 1 0", L"row 2 0", L"text 0 1", L"text 0 2",
                                       L"text 1 1", L"text 1 2", L"text 2 1", L"text 2 2",
                                       L"row of state 0 2", L"state 2 2"}));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, WithoutClassificationsDisablesOk) {
    this->clasificaciones.clear();
    this->Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Lista).rows(), 0);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(Todas);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(Ninguna);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

// Choosing.

TYPED_TEST(ListaClasificaciones, AllAndNoneSelectEveryRowAndNone) {
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.press(Todas);
        EXPECT_EQ(dialogo.list(Lista).selected(), (Filas{0, 1, 2}));
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(Ninguna);
        EXPECT_EQ(dialogo.list(Lista).selected(), Filas{});
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(Todas);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, OkIsEnabledWhileARowIsSelected) {
    this->Abre([](kit::Dialog& dialogo) {
        dialogo.list(Lista).choose({});
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.list(Lista).click(2);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.list(Lista).click(1, kit::Held::Ctrl);
        dialogo.list(Lista).click(2, kit::Held::Ctrl);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.list(Lista).click(1, kit::Held::Ctrl);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, SelectionInAnyOrderComesBackInIncreasingOrder) {
    const auto dlg = this->Crea();
    EXPECT_TRUE(dlg->m_Seleccion.empty());
    const auto resultado = this->Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.list(Lista).choose({2, 0});
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg->m_Seleccion, (Filas{0, 2}));
}

TYPED_TEST(ListaClasificaciones, SelectionIsAppendedToTheOneOfBefore) {
    const auto dlg = this->Crea();
    dlg->m_Seleccion = {7};
    this->Abre(*dlg, [](kit::Dialog& dialogo) { dialogo.press(IDOK); });
    EXPECT_EQ(dlg->m_Seleccion, (Filas{7, 0}));
    this->Abre(*dlg, [](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Lista).column(0), (Textos{L"2", L"6", L"9"}));
        dialogo.press(Todas);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(dlg->m_Seleccion, (Filas{7, 0, 0, 1, 2}));
}

TYPED_TEST(ListaClasificaciones, CancelLeavesNoSelectionAndTheVariablesOfTheHost) {
    this->valor = 0.1 + 0.2;
    this->entero = 2;
    const auto dlg = this->Crea();
    const auto resultado = this->Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.press(Todas);
        dialogo.click(Casilla);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_TRUE(dlg->m_Seleccion.empty());
    EXPECT_EQ(dlg->m_Casilla, 1);
    EXPECT_EQ(this->valor, 0.1 + 0.2);
    EXPECT_EQ(this->nombre, L"North slope");
    EXPECT_EQ(this->entero, 2);
}

// A command of a program, since the button is disabled.
TYPED_TEST(ListaClasificaciones, OkItselfChecksNothing) {
    const auto dlg = this->Crea();
    const auto resultado = this->Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.press(Ninguna);
        dialogo.command(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_TRUE(dlg->m_Seleccion.empty());
}

// The classifications of the host.

TYPED_TEST(ListaClasificaciones, ClassificationsAreThoseOfTheConstruction) {
    const auto dlg = this->Crea();
    this->clasificaciones.clear();
    this->Abre(*dlg, [](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Lista).column(1), (Textos{L"Ground", L"Buildings", L"Water"}));
        dialogo.press(Todas);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(dlg->m_Seleccion, (Filas{0, 1, 2}));
    EXPECT_TRUE(this->clasificaciones.empty());
}

// The check box.

TYPED_TEST(ListaClasificaciones, CheckBoxStartsTickedWhateverItWas) {
    this->activarCasilla = 5;
    const auto dlg = this->Crea();
    dlg->m_Casilla = 0;
    const auto resultado = this->Abre(*dlg, [](kit::Dialog& dialogo) {
        EXPECT_TRUE(dialogo.enabled(Casilla));
        EXPECT_TRUE(dialogo.checked(Casilla));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg->m_Casilla, 1);
}

TYPED_TEST(ListaClasificaciones, ClearedCheckBoxComesBackAndStartsTickedAgain) {
    const auto dlg = this->Crea();
    this->Abre(*dlg, [](kit::Dialog& dialogo) {
        dialogo.click(Casilla);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(dlg->m_Casilla, 0);
    this->Abre(*dlg, [](kit::Dialog& dialogo) {
        EXPECT_TRUE(dialogo.checked(Casilla));
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, CheckBoxThatIsNotAllowedIsDisabledAndClear) {
    this->activarCasilla = 0;
    const auto dlg = this->Crea();
    dlg->m_Casilla = 1;
    const auto resultado = this->Abre(*dlg, [](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.enabled(Casilla));
        EXPECT_FALSE(dialogo.checked(Casilla));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg->m_Casilla, 0);
}

// By keyboard alone.

TYPED_TEST(ListaClasificaciones, KeysChooseARow) {
    const auto dlg = this->Crea();
    const auto resultado = this->Abre(*dlg, [](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.focus(), Lista);
        kit::keyboard::press(VK_END);
        EXPECT_EQ(dialogo.list(Lista).selected(), Filas{2});
        kit::keyboard::press(VK_UP, kit::Held::Shift);
        kit::keyboard::press(VK_RETURN);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg->m_Seleccion, (Filas{1, 2}));
}

TYPED_TEST(ListaClasificaciones, EnterDoesNothingWhileOkIsDisabled) {
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        kit::keyboard::mnemonic(L'n');
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.focusOn(Lista);
        kit::keyboard::press(VK_RETURN);
        kit::keyboard::mnemonic(L'a');
        EXPECT_EQ(dialogo.list(Lista).selected(), (Filas{0, 1, 2}));
        dialogo.focusOn(Lista);
        kit::keyboard::press(VK_RETURN);
    });
    EXPECT_EQ(resultado, IDOK);
}

// A host's own class on top of the dialog.

TYPED_TEST(ListaClasificaciones, HostSeesEachExchangeAsItIsDocumented) {
    const auto contador = this->template Crea<ConIntercambios<TypeParam>>();
    const auto resultado = this->Abre(*contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador->Intercambios(), "MM");
        dialogo.press(Ninguna);
        dialogo.press(Todas);
        dialogo.click(Casilla);
        EXPECT_EQ(contador->Intercambios(), "");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador->Intercambios(), "SS");
}

TYPED_TEST(ListaClasificaciones, RowsThatTheHostAddsAreChosenToo) {
    const auto dlg = this->Crea();
    const auto resultado = this->Abre(*dlg, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(dlg->ElementoNuevo(1), 1);
        dlg->ModificaElemento(1);
        auto lista = dialogo.list(Lista);
        EXPECT_EQ(lista.column(0), (Textos{L"2", L"6", L"6", L"9"}));
        EXPECT_EQ(lista.column(1), (Textos{L"Ground", L"Buildings", L"Buildings", L"Water"}));
        // The button knows the rows of the classifications alone.
        dialogo.press(Todas);
        EXPECT_EQ(lista.selected(), (Filas{0, 1, 2}));
        lista.select(3);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(dlg->m_Seleccion, (Filas{0, 1, 2, 3}));
}

TYPED_TEST(ListaClasificaciones, NewRowSaysWhereItCameToBe) {
    const auto dlg = this->Crea();
    this->Abre(*dlg, [&](kit::Dialog& dialogo) {
        ListView_DeleteAllItems(dialogo.list(Lista).handle());
        EXPECT_EQ(dlg->ElementoNuevo(2), 0);
        EXPECT_EQ(dialogo.list(Lista).column(0), Textos{L"9"});
        dialogo.press(IDCANCEL);
    });
}

TYPED_TEST(ListaClasificaciones, HostCallsTheHandlersItself) {
    const auto dlg = this->Crea();
    this->Abre(*dlg, [&](kit::Dialog& dialogo) {
        dlg->OnBnClickedMfcbuttonNone();
        EXPECT_EQ(dialogo.list(Lista).selected(), Filas{});
        dialogo.list(Lista).select(1);
        EnableWindow(dialogo.control(IDOK), FALSE);
        NMHDR aviso{};
        LRESULT resultado = 7;
        dlg->OnItemchangedCodigos(&aviso, &resultado);
        EXPECT_EQ(resultado, 0);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        EnableWindow(dialogo.control(IDOK), FALSE);
        dlg->HayCambioSeleccion();
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dlg->OnBnClickedMfcbuttonAll();
        EXPECT_EQ(dialogo.list(Lista).selected(), (Filas{0, 1, 2}));
        dialogo.press(IDCANCEL);
    });
}

} // namespace
