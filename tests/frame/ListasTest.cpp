// The user chooses rows of a report list, and the dialog takes the entries that they stand for.
#include "cuadros/frame/Listas.h"

#include "DialogoPrueba.h"
#include "checks/Escucha.h"
#include "kit/kit.h"

#include <cwctype>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using Filas = std::vector<int>;

void AbreConFilas(CDialogoPrueba& prueba, int filas) {
    Cuadros::PreparaLista(prueba.m_Lista, {{IDS_PRUEBA_COLUMNA, LVCFMT_LEFT, 60},
                                           {IDS_PRUEBA_COLUMNA2, LVCFMT_RIGHT, 80}});
    const Cuadros::ListaSinDibujar quieta(prueba.m_Lista);
    for (int i = 0; i < filas; ++i) {
        CString texto;
        texto.Format(L"row %d", i);
        EXPECT_EQ(Cuadros::InsertaFila(prueba.m_Lista, i, texto), i);
    }
}

std::vector<unsigned int> Recorridas(const CListCtrl& lista, unsigned int filas) {
    std::vector<unsigned int> indices;
    Cuadros::RecorreSeleccion(lista, filas, [&](unsigned int i) { indices.push_back(i); });
    return indices;
}

/// A row that is inserted: its parts, row, column, state, state mask and image.
using Insercion = std::tuple<UINT, int, int, UINT, UINT, int>;
constexpr UINT Partes = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE;

/// Writes down the rows that are inserted into the list that it hears.
Escucha::Oido Apunta(std::vector<Insercion>& inserciones) {
    return [&](UINT mensaje, WPARAM, LPARAM lParam) {
        if (mensaje == LVM_INSERTITEM) {
            const auto& fila = *reinterpret_cast<const LVITEM*>(lParam);
            inserciones.emplace_back(fila.mask, fila.iItem, fila.iSubItem, fila.state,
                                     fila.stateMask, fila.iImage);
        }
        return std::nullopt;
    };
}

} // namespace

TEST(Listas, HaveTheirColumnsGridLinesAndFullRows) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { AbreConFilas(prueba, 0); });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        const auto lista = vista.list(IDC_PRUEBA_LISTA);
        ASSERT_EQ(lista.columns(), 2);
        EXPECT_EQ(lista.heading(0), L"First column");
        EXPECT_EQ(lista.heading(1), L"Second column");
        EXPECT_EQ(lista.width(0), 60);
        EXPECT_EQ(lista.width(1), 80);
        LVCOLUMNW columna{};
        columna.mask = LVCF_FMT;
        ListView_GetColumn(lista.handle(), 1, &columna);
        EXPECT_EQ(columna.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
        EXPECT_EQ(ListView_GetExtendedListViewStyle(lista.handle()), 33U);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Listas, RowsHaveTheFirstStateImageAndAtMost259Characters) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 2);
        Cuadros::InsertaFila(prueba.m_Lista, 2, CString(L'x', 259));
        Cuadros::InsertaFila(prueba.m_Lista, 3, CString(L'y', 260));
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        const auto lista = vista.list(IDC_PRUEBA_LISTA);
        EXPECT_EQ(lista.text(0), L"row 0");
        EXPECT_EQ(lista.text(2), std::wstring(259, L'x'));
        EXPECT_EQ(lista.text(3), std::wstring(259, L'y'));
        EXPECT_EQ(ListView_GetItemState(lista.handle(), 1, LVIS_STATEIMAGEMASK), 0x1000U);
        EXPECT_EQ(lista.selected(), Filas{});
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Listas, RowIsInsertedWithItsStateAndImageAtOnce) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        std::vector<Insercion> inserciones;
        const Escucha escucha(prueba.m_Lista.m_hWnd, Apunta(inserciones));
        AbreConFilas(prueba, 2);
        EXPECT_EQ(inserciones, (std::vector<Insercion>{{Partes, 0, 0, 0x1000, 0xF000, 0},
                                                       {Partes, 1, 0, 0x1000, 0xF000, 0}}));
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Listas, RowWithAnImageHasNoStateImage) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 1);
        std::vector<Insercion> inserciones;
        const Escucha escucha(prueba.m_Lista.m_hWnd, Apunta(inserciones));
        EXPECT_EQ(Cuadros::InsertaFilaConImagen(prueba.m_Lista, 0, CString(L'x', 260), 4), 0);
        EXPECT_EQ(inserciones, (std::vector<Insercion>{{Partes, 0, 0, 0, 0xF000, 4}}));
        EXPECT_EQ(prueba.m_Lista.GetItemText(0, 0), CString(L'x', 259));
        EXPECT_EQ(prueba.m_Lista.GetItemText(1, 0), L"row 0");
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Listas, AreFilledInTwoPasses) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { AbreConFilas(prueba, 0); });
    dialogo.AlAceptar([](CDialogoPrueba& prueba) {
        CListCtrl& lista = prueba.m_Lista;
        lista.UpdateWindow();
        std::string pasos;
        const auto apunta = [&](char paso, int i) {
            pasos += paso + std::to_string(i) + ' ';
            EXPECT_FALSE(lista.GetUpdateRect(nullptr));
        };
        Cuadros::LlenaLista(
            lista, 3,
            [&](int i) {
                Cuadros::InsertaFila(lista, i, L"row");
                apunta('n', i);
            },
            [&](int i) {
                lista.SetItemText(i, 1, L"more");
                apunta('m', i);
            });
        EXPECT_EQ(pasos, "n0 n1 n2 m0 m1 m2 ");
        EXPECT_TRUE(lista.GetUpdateRect(nullptr));
        EXPECT_EQ(lista.GetItemCount(), 3);
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Listas, TellTheirSelectedRowsAndTheFirstOfThem) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 5);
        EXPECT_EQ(Cuadros::PrimeraSeleccionada(prueba.m_Lista), -1);
        EXPECT_EQ(Cuadros::FilasSeleccionadas(prueba.m_Lista), Filas{});
    });
    dialogo.AlAceptar([](CDialogoPrueba& prueba) {
        EXPECT_EQ(Cuadros::PrimeraSeleccionada(prueba.m_Lista), 1);
        EXPECT_EQ(Cuadros::FilasSeleccionadas(prueba.m_Lista), (Filas{1, 2, 4}));
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.list(IDC_PRUEBA_LISTA).choose({4, 1, 2});
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Listas, TellTheKeyThatIsPressedInThem) {
    std::vector<WORD> teclas;
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { AbreConFilas(prueba, 2); });
    kit::Script script;
    script.onDialog([&](kit::Dialog& vista) {
        const Escucha escucha(vista.handle(), [&](UINT mensaje, WPARAM, LPARAM lParam) {
            const auto* const aviso = reinterpret_cast<const NMHDR*>(lParam);
            if (mensaje == WM_NOTIFY && aviso->code == LVN_KEYDOWN)
                teclas.push_back(Cuadros::TeclaPulsada(aviso));
            return std::nullopt;
        });
        vista.focusOn(IDC_PRUEBA_LISTA);
        kit::keyboard::press(VK_INSERT);
        kit::keyboard::press(VK_DELETE);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
    EXPECT_EQ(teclas, (std::vector<WORD>{VK_INSERT, VK_DELETE}));
}

TEST(Listas, AreDrawnAgainOnceTheyAreFilled) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { AbreConFilas(prueba, 3); });
    dialogo.AlAceptar([](CDialogoPrueba& prueba) {
        CListCtrl& lista = prueba.m_Lista;
        const auto porDibujar = [&] { return lista.GetUpdateRect(nullptr); };
        lista.UpdateWindow();
        {
            const Cuadros::ListaSinDibujar quieta(lista);
            lista.SetItemText(0, 1, L"changed");
            EXPECT_FALSE(porDibujar());
        }
        EXPECT_TRUE(porDibujar());
        lista.UpdateWindow();
        EXPECT_FALSE(porDibujar());
        lista.SetItemText(1, 1, L"later");
        EXPECT_TRUE(porDibujar());
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

// Of a control that does not see to it itself when its drawing is switched on.
TEST(Listas, AreDrawnAgainByWhoFilledThem) {
    CDialogoPrueba dialogo([](CDialogoPrueba&) {});
    dialogo.AlAceptar([](CDialogoPrueba& prueba) {
        CListCtrl& lista = prueba.m_Lista;
        const Escucha escucha(lista.m_hWnd, [](UINT mensaje, WPARAM, LPARAM) {
            return mensaje == WM_SETREDRAW ? std::optional<LRESULT>(0) : std::nullopt;
        });
        lista.UpdateWindow();
        EXPECT_FALSE(lista.GetUpdateRect(nullptr));
        { const Cuadros::ListaSinDibujar quieta(lista); }
        CRect porDibujar;
        EXPECT_TRUE(lista.GetUpdateRect(&porDibujar));
        CRect todo;
        lista.GetClientRect(&todo);
        EXPECT_EQ(porDibujar, todo);
        EXPECT_TRUE(lista.GetUpdateRect(nullptr));
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Listas, RowHasBothItsTexts) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 1);
        Cuadros::InsertaFila(prueba.m_Lista, 1, Cuadros::Fila(CString(L'x', 260), L"second"));
        EXPECT_EQ(prueba.m_Lista.GetItemText(1, 0), CString(L'x', 259));
        EXPECT_EQ(prueba.m_Lista.GetItemText(1, 1), L"second");
        EXPECT_EQ(prueba.m_Lista.GetItemState(1, LVIS_STATEIMAGEMASK), 0x1000U);
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

namespace {

/// Rows whose texts are these letters.
std::vector<Cuadros::Fila> FilasCon(const std::wstring& letras) {
    std::vector<Cuadros::Fila> filas;
    for (const wchar_t letra : letras)
        filas.emplace_back(CString(letra, 1), CString(letra, 2));
    return filas;
}

/// The letters of the rows that a list shows; of a deselected one a small letter.
std::wstring LetrasDe(const CListCtrl& lista) {
    std::wstring letras;
    for (int i = 0; i < lista.GetItemCount(); ++i) {
        const wchar_t letra = lista.GetItemText(i, 0)[0];
        EXPECT_EQ(lista.GetItemText(i, 1), CString(letra, 2));
        letras += lista.GetItemState(i, LVIS_SELECTED) != 0 ? letra : std::towlower(letra);
    }
    return letras;
}

/// Counts the rows that are put into a list and taken out of it.
class CuentaFilas : public Escucha {
public:
    explicit CuentaFilas(CWnd& lista)
        : Escucha(lista.m_hWnd, [this](UINT mensaje, WPARAM, LPARAM) -> std::optional<LRESULT> {
              puestas += mensaje == LVM_INSERTITEM;
              quitadas += mensaje == LVM_DELETEITEM;
              vaciados += mensaje == LVM_DELETEALLITEMS;
              return std::nullopt;
          }) {}

    int puestas = 0;
    int quitadas = 0;
    int vaciados = 0;
};

} // namespace

TEST(Listas, OnlyRowsThatDifferAreChanged) {
    const struct {
        const wchar_t* antes;
        const wchar_t* despues;
        int quitadas;
        int puestas;
    } casos[] = {
        {L"", L"", 0, 0},          {L"", L"ABC", 0, 3},       {L"ABC", L"", 3, 0},
        {L"ABC", L"ABC", 0, 0},    {L"ABC", L"ABCD", 0, 1},   {L"ABC", L"ZABC", 0, 1},
        {L"ABC", L"ABZC", 0, 1},   {L"ABC", L"AC", 1, 0},     {L"ABC", L"BC", 1, 0},
        {L"ABC", L"AB", 1, 0},     {L"ABC", L"AZC", 1, 1},    {L"AAA", L"AA", 1, 0},
        {L"AA", L"AAA", 0, 1},     {L"ABAB", L"AB", 2, 0},    {L"ABC", L"CBA", 3, 3},
        {L"ABCDE", L"AXYE", 3, 2}, {L"ABC", L"ABCABC", 0, 3},
    };
    CDialogoPrueba dialogo([&](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 0);
        for (const auto& caso : casos) {
            prueba.m_Lista.DeleteAllItems();
            std::vector<Cuadros::Fila> mostradas;
            Cuadros::CambiaFilas(prueba.m_Lista, mostradas, FilasCon(caso.antes), {});
            EXPECT_EQ(LetrasDe(prueba.m_Lista), caso.antes);
            const CuentaFilas cuenta(prueba.m_Lista);
            Cuadros::CambiaFilas(prueba.m_Lista, mostradas, FilasCon(caso.despues), {});
            EXPECT_EQ(LetrasDe(prueba.m_Lista), caso.despues);
            EXPECT_EQ(mostradas, FilasCon(caso.despues));
            EXPECT_EQ(cuenta.quitadas, caso.quitadas) << caso.antes << " " << caso.despues;
            EXPECT_EQ(cuenta.puestas, caso.puestas) << caso.antes << " " << caso.despues;
            EXPECT_EQ(cuenta.vaciados, 0);
        }
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Listas, RowsLeftOutStayDeselectedUntilTheNextChange) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 0);
        std::vector<Cuadros::Fila> mostradas;
        Cuadros::CambiaFilas(prueba.m_Lista, mostradas, FilasCon(L"ABCD"), {1, 3});
        EXPECT_EQ(LetrasDe(prueba.m_Lista), L"AbCd");
        Cuadros::CambiaFilas(prueba.m_Lista, mostradas, FilasCon(L"ABCD"), {0});
        EXPECT_EQ(LetrasDe(prueba.m_Lista), L"aBCD");
        Cuadros::CambiaFilas(prueba.m_Lista, mostradas, FilasCon(L"ABCD"), {2, 1, 3});
        EXPECT_EQ(LetrasDe(prueba.m_Lista), L"ABcD");
        Cuadros::CambiaFilas(prueba.m_Lista, mostradas, FilasCon(L"ABCD"), {});
        EXPECT_EQ(LetrasDe(prueba.m_Lista), L"ABCD");
        Cuadros::CambiaFilas(prueba.m_Lista, mostradas, FilasCon(L"ABCD"), {2});
        EXPECT_EQ(LetrasDe(prueba.m_Lista), L"ABcD");
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

// What the user did to the list is gone, as it would be in one that is filled anew.
TEST(Listas, TouchedListIsFilledAnew) {
    using Toque = void (*)(CListCtrl&);
    const Toque toques[] = {
        [](CListCtrl& lista) { lista.SetItemState(1, 0, LVIS_SELECTED); },
        [](CListCtrl& lista) {
            lista.SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED);
            lista.SetSelectionMark(-1);
        },
        [](CListCtrl& lista) { lista.SetSelectionMark(1); },
        [](CListCtrl& lista) { lista.DeleteItem(5); },
        [](CListCtrl& lista) { lista.InsertItem(40, L"foreign"); },
        [](CListCtrl& lista) { lista.EnsureVisible(39, FALSE); },
    };
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { AbreConFilas(prueba, 0); });
    dialogo.AlAceptar([&](CDialogoPrueba& prueba) {
        CListCtrl& lista = prueba.m_Lista;
        std::vector<Cuadros::Fila> mostradas;
        const std::wstring letras(40, L'M');
        Cuadros::CambiaFilas(lista, mostradas, FilasCon(letras), {});
        for (const Toque toque : toques) {
            toque(lista);
            const CuentaFilas cuenta(lista);
            Cuadros::CambiaFilas(lista, mostradas, FilasCon(letras), {});
            EXPECT_EQ(cuenta.vaciados, 1);
            EXPECT_EQ(LetrasDe(lista), letras);
            EXPECT_EQ(lista.GetNextItem(-1, LVNI_FOCUSED), -1);
            EXPECT_EQ(lista.GetSelectionMark(), -1);
        }
        prueba.EndDialog(IDCANCEL);
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) { vista.press(IDOK); });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Listas, AllOrNoneOfTheRowsAreSelected) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 4);
        EXPECT_FALSE(Cuadros::HaySeleccion(prueba.m_Lista));
        Cuadros::SeleccionaFilas(prueba.m_Lista, 4, true);
        EXPECT_TRUE(Cuadros::HaySeleccion(prueba.m_Lista));
        EXPECT_EQ(Recorridas(prueba.m_Lista, 4), (std::vector<unsigned int>{0, 1, 2, 3}));
        Cuadros::SeleccionaFilas(prueba.m_Lista, 3, false);
        EXPECT_EQ(Recorridas(prueba.m_Lista, 4), (std::vector<unsigned int>{3}));
        Cuadros::SeleccionaFilas(prueba.m_Lista, 4, false);
        EXPECT_FALSE(Cuadros::HaySeleccion(prueba.m_Lista));
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Listas, SelectionIsSetRowByRow) {
    using Cambio = std::tuple<WPARAM, UINT, UINT>;
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, 4);
        std::vector<Cambio> cambios;
        const Escucha escucha(prueba.m_Lista.m_hWnd, [&](UINT mensaje, WPARAM fila, LPARAM lParam) {
            if (mensaje == LVM_SETITEMSTATE) {
                const auto& en = *reinterpret_cast<const LVITEM*>(lParam);
                cambios.emplace_back(fila, en.state, en.stateMask);
            }
            return std::nullopt;
        });
        Cuadros::SeleccionaFilas(prueba.m_Lista, 3, true);
        EXPECT_EQ(std::exchange(cambios, {}),
                  (std::vector<Cambio>{{0, 2, 2}, {1, 2, 2}, {2, 2, 2}}));
        Cuadros::SeleccionaFilas(prueba.m_Lista, 3, false);
        EXPECT_EQ(cambios, (std::vector<Cambio>{
                               {0, 0xFFFFFFFD, 2}, {1, 0xFFFFFFFD, 2}, {2, 0xFFFFFFFD, 2}}));
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

TEST(Listas, SelectionIsWalkedInTheOrderOfTheRows) {
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) { AbreConFilas(prueba, 5); });
    dialogo.AlAceptar([](CDialogoPrueba& prueba) {
        EXPECT_EQ(Recorridas(prueba.m_Lista, 5), (std::vector<unsigned int>{0, 2, 4}));
        const std::vector<int> salteadas = {0, 2, 4};
        EXPECT_EQ(Cuadros::FilasSeleccionadas(prueba.m_Lista), salteadas);
        // Of a shorter table only the entries that it has.
        EXPECT_EQ(Recorridas(prueba.m_Lista, 4), (std::vector<unsigned int>{0, 2}));
        EXPECT_EQ(Recorridas(prueba.m_Lista, 0), (std::vector<unsigned int>{}));
    });
    kit::Script script;
    script.onDialog([](kit::Dialog& vista) {
        vista.list(IDC_PRUEBA_LISTA).choose({4, 0, 2});
        vista.press(IDOK);
        vista.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialogo.DoModal(); }), IDCANCEL);
}

TEST(Listas, SelectionMayBeAnyRows) {
    constexpr int filas = 6;
    CDialogoPrueba dialogo([](CDialogoPrueba& prueba) {
        AbreConFilas(prueba, filas);
        for (unsigned int bits = 0; bits < 1U << filas; ++bits) {
            std::vector<int> elegidas;
            for (int i = 0; i < filas; ++i) {
                const bool elegida = (bits >> i & 1U) != 0;
                prueba.m_Lista.SetItemState(i, elegida ? LVIS_SELECTED : 0U, LVIS_SELECTED);
                if (elegida)
                    elegidas.push_back(i);
            }
            EXPECT_EQ(Cuadros::FilasSeleccionadas(prueba.m_Lista), elegidas);
        }
        prueba.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(dialogo.DoModal(), IDCANCEL);
}

// As of a control that the dialog lacks.
TEST(Listas, WithoutAWindowNothingIsSelected) {
    CListCtrl ninguna;
    EXPECT_TRUE(Cuadros::FilasSeleccionadas(ninguna).empty());
    EXPECT_TRUE(Recorridas(ninguna, 5).empty());
    std::vector<Cuadros::Fila> mostradas;
    Cuadros::CambiaFilas(ninguna, mostradas, FilasCon(L"AB"), {});
    EXPECT_EQ(mostradas, FilasCon(L"AB"));
}
