// A surveyor is about to triangulate. He sees the codes of his survey in a list, all of them
// selected, and beside it the same codes as breaklines. He takes a code out of the first list, and
// it leaves the second one too; he deselects the codes that are no breaklines; he types the
// elevation limits, the distance within which lines are not joined, and the network's name. OK
// checks what he typed, says what is wrong and waits, or closes and leaves it all in the record.
#include "cuadros/triangulation/TriangulacionDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/StringIds.h"
#include "cuadros/resources/TriangulationIds.h"

#include <cmath>
#include <initializer_list>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using Cotana::CDataTriangulacion;
using Cotana::CDigiTab;
using Cotana::CElementoDigiTab;
using Cotana::CTriangulacionDlg;
using Filas = std::vector<int>;
using Textos = std::vector<std::wstring>;

constexpr int Codigos = IDC_TRIANGULACION_CODIGOS;
constexpr int Rupturas = IDC_TRIANGULACION_RUPTURAS;

CDigiTab Tabla(std::initializer_list<std::pair<CString, CString>> entradas) {
    CDigiTab tabla;
    for (const auto& [codigo, nemotecnico] : entradas)
        tabla.Inserta(CElementoDigiTab(codigo, nemotecnico), true);
    return tabla;
}

Textos CodigosDe(const CDigiTab& tabla) {
    Textos codigos;
    for (unsigned int i = 0; i < tabla.Cantidad(); ++i)
        codigos.emplace_back(tabla[i].GetCodigo().GetString());
    return codigos;
}

class TriangulacionDlg : public ConDialogo {
protected:
    TriangulacionDlg() {
        data.m_LimiteInferior = 10;
        data.m_LimiteSuperior = 250.5;
        data.m_DistanciaNoUnir = 5;
        data.m_ParametroExtra = -2.25;
        data.m_TipoRuptura = 2;
        data.m_Nombre = L"North slope";
        data.m_Rupturas = TRUE;
        data.m_NoUnirCurvas = TRUE;
        data.m_Codigos =
            Tabla({{L"RD", L"Road edge"}, {L"WL", L"Wall"}, {L"TR", L"Tree"}, {L"CT", L"Contour"}});
        data.m_CodigosExtra1 = Tabla({{L"X1", L"First extra"}});
        data.m_CodigosExtra2 = Tabla({{L"X2", L"Second extra"}});
    }

    INT_PTR Ejecuta(CWnd* padre) override { return CTriangulacionDlg(data, padre).DoModal(); }

    CDataTriangulacion data;
};

const Textos CuatroCodigos = {L"RD", L"WL", L"TR", L"CT"};
const Textos Ninguno;

// What the user sees first.

TEST_F(TriangulacionDlg, ShowsEveryCodeSelectedInBothLists) {
    Abre([](kit::Dialog& dialogo) {
        for (const int control : {Codigos, Rupturas}) {
            const auto lista = dialogo.list(control);
            EXPECT_EQ(lista.column(0), CuatroCodigos);
            EXPECT_EQ(lista.column(1), (Textos{L"Road edge", L"Wall", L"Tree", L"Contour"}));
            EXPECT_EQ(lista.selected(), (Filas{0, 1, 2, 3}));
        }
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.picture(L"TriangulacionDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, ListsHaveTwoColumnsWithGridLinesAndFullRows) {
    Abre([](kit::Dialog& dialogo) {
        for (const int control : {Codigos, Rupturas}) {
            const auto lista = dialogo.list(control);
            ASSERT_EQ(lista.columns(), 2);
            EXPECT_EQ(lista.heading(0), kit::Text(TextoDe(IDS_COLUMNA_CODIGO)));
            EXPECT_EQ(lista.heading(1), kit::Text(TextoDe(IDS_COLUMNA_NEMOTECNICO)));
            EXPECT_EQ(lista.width(0), 100);
            EXPECT_EQ(lista.width(1), 230);
            // The first column of any list is left-aligned.
            LVCOLUMNW segunda{};
            segunda.mask = LVCF_FMT;
            ListView_GetColumn(lista.handle(), 1, &segunda);
            EXPECT_EQ(segunda.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_LEFT);
            EXPECT_EQ(ListView_GetExtendedListViewStyle(lista.handle()),
                      DWORD{LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT});
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, RowsHaveTheFirstStateImage) {
    Abre([](kit::Dialog& dialogo) {
        for (const int control : {Codigos, Rupturas}) {
            const HWND lista = dialogo.list(control).handle();
            for (int fila = 0; fila < 4; ++fila)
                EXPECT_EQ(ListView_GetItemState(lista, fila, LVIS_STATEIMAGEMASK), 0x1000U);
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, ListsAreListControlsOfTheHost) {
    Abre([](kit::Dialog& dialogo) {
        for (const int control : {Codigos, Rupturas}) {
            CWnd* const lista = CWnd::FromHandlePermanent(dialogo.control(control));
            EXPECT_NE(dynamic_cast<Cotana::CListaControlMFC*>(lista), nullptr);
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, ShowsTheRecord) {
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_NOMBRE), L"North slope");
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_LIMITE_INFERIOR), L"10");
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_LIMITE_SUPERIOR), L"250.5");
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_DISTANCIA_NO_UNIR), L"5");
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_PARAMETRO_EXTRA), L"-2.25");
        EXPECT_TRUE(dialogo.checked(IDC_TRIANGULACION_USAR_RUPTURAS));
        EXPECT_TRUE(dialogo.checked(IDC_TRIANGULACION_NO_UNIR_CURVAS));
        EXPECT_EQ(dialogo.radio(IDC_TRIANGULACION_TIPO_RUPTURA_1, IDC_TRIANGULACION_TIPO_RUPTURA_4),
                  IDC_TRIANGULACION_TIPO_RUPTURA_3);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, BreaklinesOfTheHostAreDiscardedAtOpening) {
    data.m_CodigosRuptura = Tabla({{L"ZZ", L"Not in the survey"}, {L"WL", L"Wall"}});
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Rupturas).column(0), CuatroCodigos);
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{0, 1, 2, 3}));
        EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), CuatroCodigos);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, EmptyTablesDisableOk) {
    data.m_Codigos.clear();
    Abre({IDS_SIN_CODIGOS}, [](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Codigos).rows(), 0);
        EXPECT_EQ(dialogo.list(Rupturas).rows(), 0);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDC_TRIANGULACION_TODOS_CODIGOS);
        dialogo.press(IDC_TRIANGULACION_NINGUN_CODIGO);
        dialogo.press(IDC_TRIANGULACION_TODAS_RUPTURAS);
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.command(IDOK);
        dialogo.press(IDCANCEL);
    });
}

// No row is there to be selected, so that nothing rebuilds the breaklines.
TEST_F(TriangulacionDlg, WithoutCodesTheBreaklinesOfTheHostStayUnseen) {
    data.m_Codigos.clear();
    data.m_CodigosRuptura = Tabla({{L"WL", L"Wall"}});
    Abre({IDS_SIN_CODIGOS}, [](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Rupturas).rows(), 0);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), Textos{L"WL"});
}

TEST_F(TriangulacionDlg, CodeBeyond259CharactersIsCutInTheListsOnly) {
    const CString largo(L'k', 300);
    data.m_Codigos = Tabla({{largo, L"Long"}, {L"RD", L"Road edge"}});
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Codigos).text(0), std::wstring(259, L'k'));
        EXPECT_EQ(dialogo.list(Rupturas).text(0), std::wstring(259, L'k'));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Codigos[0].GetCodigo(), largo);
    EXPECT_EQ(data.m_CodigosRuptura[0].GetCodigo(), largo);
}

TEST_F(TriangulacionDlg, NumbersAreRoundedTo15DigitsAtOpening) {
    data.m_LimiteSuperior = 0.1 + 0.2;
    data.m_LimiteInferior = -1;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_LIMITE_SUPERIOR), L"0.3");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_LimiteSuperior, 0.3);
}

// Choosing codes.

TEST_F(TriangulacionDlg, NoCodeDisablesOkAndAllCodesEnableIt) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.press(IDC_TRIANGULACION_NINGUN_CODIGO);
        EXPECT_EQ(dialogo.list(Codigos).selected(), Filas{});
        EXPECT_EQ(dialogo.list(Rupturas).rows(), 0);
        EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), Ninguno);
        EXPECT_FALSE(dialogo.enabled(IDOK));

        dialogo.press(IDC_TRIANGULACION_TODOS_CODIGOS);
        EXPECT_EQ(dialogo.list(Codigos).selected(), (Filas{0, 1, 2, 3}));
        EXPECT_EQ(dialogo.list(Rupturas).column(0), CuatroCodigos);
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{0, 1, 2, 3}));
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, EnterPressesNoDisabledOk) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.press(IDC_TRIANGULACION_NINGUN_CODIGO);
        dialogo.focusOn(IDC_TRIANGULACION_NOMBRE);
        kit::keyboard::press(VK_RETURN);
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

TEST_F(TriangulacionDlg, SelectionInAnyOrderKeepsTheOrderOfTheTable) {
    const auto resultado = Abre([this](kit::Dialog& dialogo) {
        dialogo.list(Codigos).choose({3, 0, 2});
        EXPECT_EQ(dialogo.list(Codigos).selected(), (Filas{0, 2, 3}));
        EXPECT_EQ(dialogo.list(Rupturas).column(0), (Textos{L"RD", L"TR", L"CT"}));
        EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"RD", L"TR", L"CT"}));
        EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(CodigosDe(data.m_Codigos), (Textos{L"RD", L"TR", L"CT"}));
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"RD", L"TR", L"CT"}));
}

TEST_F(TriangulacionDlg, DuplicateCodesAreRowsOfTheirOwn) {
    data.m_Codigos = Tabla({{L"RD", L"Left edge"}, {L"RD", L"Right edge"}, {L"WL", L"Wall"}});
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.list(Rupturas).column(1), (Textos{L"Left edge", L"Right edge", L"Wall"}));
        dialogo.list(Codigos).select(0, false);
        EXPECT_EQ(dialogo.list(Rupturas).column(1), (Textos{L"Right edge", L"Wall"}));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    ASSERT_EQ(CodigosDe(data.m_Codigos), (Textos{L"RD", L"WL"}));
    EXPECT_EQ(data.m_Codigos[0].GetNemotecnico(), L"Right edge");
    ASSERT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"RD", L"WL"}));
    EXPECT_EQ(data.m_CodigosRuptura[0].GetNemotecnico(), L"Right edge");
}

// Choosing breaklines.

TEST_F(TriangulacionDlg, BreaklineButtonsSelectAndDeselectWithoutTouchingTheRecord) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        EXPECT_EQ(dialogo.list(Rupturas).selected(), Filas{});
        EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), CuatroCodigos);
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDC_TRIANGULACION_TODAS_RUPTURAS);
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{0, 1, 2, 3}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, DeselectedBreaklinesStayOutOnOk) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.list(Rupturas).choose({3, 1});
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"WL", L"CT"}));
}

TEST_F(TriangulacionDlg, OkTakesNoBreaklineAtAll) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), Ninguno);
}

TEST_F(TriangulacionDlg, ChangedCodesSelectEveryBreaklineAgain) {
    Abre([](kit::Dialog& dialogo) {
        dialogo.list(Rupturas).choose({1});
        dialogo.list(Codigos).select(3, false);
        EXPECT_EQ(dialogo.list(Rupturas).column(0), (Textos{L"RD", L"WL", L"TR"}));
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{0, 1, 2}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, FocusedCodeSelectsEveryBreaklineAgain) {
    Abre([](kit::Dialog& dialogo) {
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        ListView_SetItemState(dialogo.list(Codigos).handle(), 2, LVIS_FOCUSED, LVIS_FOCUSED);
        EXPECT_EQ(dialogo.list(Codigos).selected(), (Filas{0, 1, 2, 3}));
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{0, 1, 2, 3}));
        dialogo.press(IDCANCEL);
    });
}

/// For its life the list of breaklines counts no row as selected, and says of these rows, asked
/// whether they are, the complement of the bit: what only a list with a procedure of its own says.
class ConComplemento : public Escucha {
public:
    ConComplemento(kit::Dialog& dialogo, std::set<WPARAM> filas)
        : Escucha(dialogo.control(Rupturas),
                  [filas = std::move(filas)](UINT mensaje, WPARAM fila,
                                             LPARAM mascara) -> std::optional<LRESULT> {
                      if (mensaje == LVM_GETSELECTEDCOUNT)
                          return LRESULT{0};
                      if (mensaje == LVM_GETITEMSTATE && mascara == LVIS_SELECTED &&
                          filas.contains(fila))
                          return LRESULT{0xFFFFFFFD};
                      return std::nullopt;
                  }) {}
};

TEST_F(TriangulacionDlg, BreaklineThatAnswersWithTheComplementStaysDeselected) {
    Abre([](kit::Dialog& dialogo) {
        {
            const ConComplemento escucha(dialogo, {1, 2});
            dialogo.list(Codigos).select(0, false);
        }
        EXPECT_EQ(dialogo.list(Rupturas).column(0), (Textos{L"WL", L"TR", L"CT"}));
        EXPECT_EQ(dialogo.list(Rupturas).selected(), Filas{2});
        {
            // The code of the first row is gone, so that it is no entry that could be left out.
            const ConComplemento escucha(dialogo, {0, 2});
            dialogo.list(Codigos).select(1, false);
        }
        EXPECT_EQ(dialogo.list(Rupturas).column(0), (Textos{L"TR", L"CT"}));
        EXPECT_EQ(dialogo.list(Rupturas).selected(), Filas{0});
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, OfADuplicateCodeTheFirstEntryStaysDeselected) {
    data.m_Codigos =
        Tabla({{L"RD", L"Road edge"}, {L"WL", L"Left"}, {L"WL", L"Right"}, {L"TR", L"Tree"}});
    Abre([](kit::Dialog& dialogo) {
        {
            const ConComplemento escucha(dialogo, {2});
            dialogo.list(Codigos).select(0, false);
        }
        EXPECT_EQ(dialogo.list(Rupturas).column(1), (Textos{L"Left", L"Right", L"Tree"}));
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{1, 2}));
        dialogo.press(IDCANCEL);
    });
}

// The two check boxes and what they enable.

/// In the order in which they are enabled.
const std::vector<int> DeRupturas = {
    IDC_TRIANGULACION_RUPTURAS,        IDC_TRIANGULACION_TODAS_RUPTURAS,
    IDC_TRIANGULACION_NINGUNA_RUPTURA, IDC_TRIANGULACION_TIPO_RUPTURA_1,
    IDC_TRIANGULACION_TIPO_RUPTURA_3,  IDC_TRIANGULACION_TIPO_RUPTURA_2,
    IDC_TRIANGULACION_TIPO_RUPTURA_4};

TEST_F(TriangulacionDlg, UseOfBreaklinesEnablesTheirControls) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        EXPECT_FALSE(data.m_Rupturas);
        for (const int control : DeRupturas)
            EXPECT_FALSE(dialogo.enabled(control)) << control;
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        EXPECT_TRUE(data.m_Rupturas);
        for (const int control : DeRupturas)
            EXPECT_TRUE(dialogo.enabled(control)) << control;
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, UseOfBreaklinesEnablesItsControlsInTheirOrder) {
    Abre([](kit::Dialog& dialogo) {
        std::vector<int> cambiados;
        std::vector<std::unique_ptr<Escucha>> escuchas;
        for (const int control : DeRupturas) {
            const auto apunta = [&cambiados, control](UINT mensaje, WPARAM, LPARAM) {
                if (mensaje == WM_ENABLE)
                    cambiados.push_back(control);
                return std::nullopt;
            };
            escuchas.push_back(std::make_unique<Escucha>(dialogo.control(control), apunta));
        }
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        EXPECT_EQ(std::exchange(cambiados, {}), DeRupturas);
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        EXPECT_EQ(cambiados, DeRupturas);
        escuchas.clear();
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, BreaklinesThatAreNoLongerUsedComeBackAsTheyWereChosen) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.list(Rupturas).choose({1});
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        EXPECT_FALSE(dialogo.enabled(Rupturas));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_FALSE(data.m_Rupturas);
    EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), Textos{L"WL"});
}

TEST_F(TriangulacionDlg, UnusedBreaklinesStartDisabledAndStillComeBack) {
    data.m_Rupturas = FALSE;
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        for (const int control : DeRupturas)
            EXPECT_FALSE(dialogo.enabled(control)) << control;
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{0, 1, 2, 3}));
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_FALSE(data.m_Rupturas);
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), CuatroCodigos);
}

TEST_F(TriangulacionDlg, UnjoinedLinesEnableTheirDistance) {
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_TRUE(dialogo.enabled(IDC_TRIANGULACION_DISTANCIA_NO_UNIR));
        dialogo.click(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        EXPECT_FALSE(data.m_NoUnirCurvas);
        EXPECT_FALSE(dialogo.enabled(IDC_TRIANGULACION_DISTANCIA_NO_UNIR));
        dialogo.click(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        EXPECT_TRUE(data.m_NoUnirCurvas);
        EXPECT_TRUE(dialogo.enabled(IDC_TRIANGULACION_DISTANCIA_NO_UNIR));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, JoinedLinesStartWithTheirDistanceDisabled) {
    data.m_NoUnirCurvas = FALSE;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.enabled(IDC_TRIANGULACION_DISTANCIA_NO_UNIR));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, TreatmentIsTheIndexOfItsButton) {
    for (int i = 0; i < 4; ++i) {
        const auto resultado = Abre([i](kit::Dialog& dialogo) {
            dialogo.click(IDC_TRIANGULACION_TIPO_RUPTURA_1 + i);
            dialogo.press(IDOK);
        });
        EXPECT_EQ(resultado, IDOK);
        EXPECT_EQ(data.m_TipoRuptura, i);
    }
}

TEST_F(TriangulacionDlg, NoTreatmentStaysNone) {
    data.m_TipoRuptura = -1;
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.radio(IDC_TRIANGULACION_TIPO_RUPTURA_1, IDC_TRIANGULACION_TIPO_RUPTURA_4),
                  0);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoRuptura, -1);
}

TEST_F(TriangulacionDlg, FlagsAndTreatmentsOutOfRangeComeBackAsTheControlsShowThem) {
    data.m_Rupturas = 3;
    data.m_NoUnirCurvas = -1;
    data.m_TipoRuptura = 4;
    Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(data.m_Rupturas, 0);
    EXPECT_EQ(data.m_NoUnirCurvas, 0);
    EXPECT_EQ(data.m_TipoRuptura, -1);
}

// OK.

TEST_F(TriangulacionDlg, OkLeavesEverythingInTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"South slope");
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"-12.5");
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"1e3");
        dialogo.type(IDC_TRIANGULACION_DISTANCIA_NO_UNIR, L"0.75");
        dialogo.type(IDC_TRIANGULACION_PARAMETRO_EXTRA, L"0");
        dialogo.click(IDC_TRIANGULACION_TIPO_RUPTURA_2);
        dialogo.click(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Nombre, L"South slope");
    EXPECT_EQ(data.m_LimiteInferior, -12.5);
    EXPECT_EQ(data.m_LimiteSuperior, 1000);
    EXPECT_EQ(data.m_DistanciaNoUnir, 0.75);
    EXPECT_EQ(data.m_ParametroExtra, 0);
    EXPECT_EQ(data.m_TipoRuptura, 1);
    EXPECT_FALSE(data.m_NoUnirCurvas);
    EXPECT_FALSE(data.m_Rupturas);
    EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), CuatroCodigos);
    EXPECT_EQ(CodigosDe(data.m_CodigosExtra1), Ninguno);
    EXPECT_EQ(CodigosDe(data.m_CodigosExtra2), Ninguno);
}

TEST_F(TriangulacionDlg, ChecksComeInTheirOrder) {
    const auto resultado = Abre(
        {IDS_SIN_CODIGOS, IDS_LIMITES_NO_CRECIENTES, IDS_VALOR_NO_POSITIVO, IDS_TEXTO_OBLIGATORIO},
        [](kit::Dialog& dialogo) {
            dialogo.press(IDC_TRIANGULACION_NINGUN_CODIGO);
            dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"300");
            dialogo.type(IDC_TRIANGULACION_DISTANCIA_NO_UNIR, L"-1");
            dialogo.type(IDC_TRIANGULACION_NOMBRE, L"");
            dialogo.command(IDOK);
            dialogo.press(IDC_TRIANGULACION_TODOS_CODIGOS);
            dialogo.press(IDOK);
            dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"10");
            dialogo.press(IDOK);
            dialogo.type(IDC_TRIANGULACION_DISTANCIA_NO_UNIR, L"1");
            dialogo.press(IDOK);
            dialogo.type(IDC_TRIANGULACION_NOMBRE, L"n");
            dialogo.press(IDOK);
        });
    EXPECT_EQ(resultado, IDOK);
}

TEST_F(TriangulacionDlg, RefusalMovesNoFocus) {
    Abre({IDS_TEXTO_OBLIGATORIO}, [](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"");
        dialogo.focusOn(IDC_TRIANGULACION_PARAMETRO_EXTRA);
        dialogo.command(IDOK);
        EXPECT_EQ(dialogo.focus(), IDC_TRIANGULACION_PARAMETRO_EXTRA);
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_NOMBRE), L"");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, EqualLimitsAreRefused) {
    const auto resultado = Abre({IDS_LIMITES_NO_CRECIENTES}, [](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"250.5");
        dialogo.press(IDOK);
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"250.499");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
}

TEST_F(TriangulacionDlg, DistanceMustBePositiveAlsoWhenItIsDisabled) {
    data.m_NoUnirCurvas = FALSE;
    data.m_DistanciaNoUnir = 1e-7;
    const auto resultado = Abre({IDS_VALOR_NO_POSITIVO}, [](kit::Dialog& dialogo) {
        EXPECT_FALSE(dialogo.enabled(IDC_TRIANGULACION_DISTANCIA_NO_UNIR));
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

TEST_F(TriangulacionDlg, NameOfOneBlankIsTaken) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_NOMBRE, L" ");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Nombre, L" ");
}

TEST_F(TriangulacionDlg, DistanceJustAboveTheToleranceIsTaken) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_DISTANCIA_NO_UNIR, L"1.1e-7");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_DistanciaNoUnir, 1.1e-7);
}

TEST_F(TriangulacionDlg, RefusedOkKeepsTheCodeTableAndWhatWasTyped) {
    const auto resultado = Abre({IDS_TEXTO_OBLIGATORIO}, [](kit::Dialog& dialogo) {
        dialogo.list(Codigos).choose({0, 2});
        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"");
        dialogo.type(IDC_TRIANGULACION_PARAMETRO_EXTRA, L"7");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
    EXPECT_EQ(CodigosDe(data.m_CodigosExtra1), Textos{L"X1"});
    EXPECT_EQ(CodigosDe(data.m_CodigosExtra2), Textos{L"X2"});
    EXPECT_TRUE(data.m_Nombre.IsEmpty());
    EXPECT_EQ(data.m_ParametroExtra, 7);
}

// Cancel.

TEST_F(TriangulacionDlg, CancelWithoutAClickKeepsTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"Typed");
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"11");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_Nombre, L"North slope");
    EXPECT_EQ(data.m_LimiteInferior, 10);
}

TEST_F(TriangulacionDlg, CancelKeepsWhatAClickExchanged) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"Typed");
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"11");
        dialogo.click(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_Nombre, L"Typed");
    EXPECT_EQ(data.m_LimiteInferior, 11);
    EXPECT_FALSE(data.m_NoUnirCurvas);
}

TEST_F(TriangulacionDlg, CancelKeepsTheBreaklinesOfTheLastSelection) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.list(Codigos).choose({1, 2});
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"WL", L"TR"}));
    EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
}

// Texts that are no numbers.

TEST_F(TriangulacionDlg, BadNumberIsRefusedOnceByOkWhichWritesNoTable) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.list(Codigos).choose({0, 2});
        dialogo.list(Rupturas).choose({1});
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"low");
        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"Typed");
        dialogo.type(IDC_TRIANGULACION_PARAMETRO_EXTRA, L"7");
        dialogo.press(IDOK);
        EXPECT_EQ(dialogo.focus(), IDC_TRIANGULACION_LIMITE_INFERIOR);
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_LIMITE_INFERIOR), L"low");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    // What is exchanged before the bad number was stored, what comes after it was not.
    EXPECT_EQ(data.m_Nombre, L"Typed");
    EXPECT_EQ(data.m_LimiteInferior, 10);
    EXPECT_EQ(data.m_ParametroExtra, -2.25);
    // The tables are as the last change of the codes left them.
    EXPECT_EQ(CodigosDe(data.m_Codigos), CuatroCodigos);
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"RD", L"TR"}));
    EXPECT_EQ(CodigosDe(data.m_CodigosExtra1), Textos{L"X1"});
    EXPECT_EQ(CodigosDe(data.m_CodigosExtra2), Textos{L"X2"});
}

TEST_F(TriangulacionDlg, OkAfterABadNumberTakesTheSelectedCodes) {
    data.m_Codigos = Tabla({{L"B", L"Bank"}, {L"A", L"Axis"}, {L"C", L"Crest"}, {L"D", L"Ditch"}});
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.list(Codigos).select(1, false);
        dialogo.type(IDC_TRIANGULACION_PARAMETRO_EXTRA, L"abc");
        dialogo.press(IDOK);
        dialogo.type(IDC_TRIANGULACION_PARAMETRO_EXTRA, L"11");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_ParametroExtra, 11);
    EXPECT_EQ(CodigosDe(data.m_Codigos), (Textos{L"B", L"C", L"D"}));
    EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"B", L"C", L"D"}));
}

TEST_F(TriangulacionDlg, NumberOfTheRecordThatIsNotFiniteIsRefusedByEachExchangeOfTheOpening) {
    data.m_LimiteSuperior = HUGE_VAL;
    kit::Script guion;
    // Two for each of the four codes, one for each box that enables others. The dialog is hidden
    // yet.
    for (int i = 0; i < 2 * 4 + 2; ++i)
        guion.expectMessage(AfxGetAppName(), TextoDe(AFX_IDP_PARSE_REAL), MB_ICONEXCLAMATION)
            .buttons(MB_OK);
    guion.onDialog([](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"300");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(guion.run([this] { return Ejecuta(nullptr); }), IDOK);
    EXPECT_EQ(data.m_LimiteSuperior, 300);
}

TEST_F(TriangulacionDlg, BadNumberComesBeforeTheChecks) {
    data.m_DistanciaNoUnir = 0;
    data.m_Nombre.Empty();
    const auto resultado = Abre({AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_DISTANCIA_NO_UNIR, L"5 m");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_DistanciaNoUnir, 0);
}

TEST_F(TriangulacionDlg, BadNumberIsRefusedAtAChangeOfTheCodesAndThenReplaced) {
    // Once by the change itself, once by the rebuild of the breaklines, which then shows the
    // record.
    Abre({AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL}, [this](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"high");
        dialogo.list(Codigos).select(1, false);
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_LIMITE_SUPERIOR), L"250.5");
        EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), (Textos{L"RD", L"TR", L"CT"}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TriangulacionDlg, BadNumberIsRefusedAtTheFirstOfSeveralChangesOnly) {
    Abre({AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"high");
        dialogo.press(IDC_TRIANGULACION_NINGUN_CODIGO);
        EXPECT_EQ(dialogo.list(Codigos).selected(), Filas{});
        EXPECT_EQ(dialogo.text(IDC_TRIANGULACION_LIMITE_SUPERIOR), L"250.5");
        dialogo.press(IDCANCEL);
    });
}

// By keyboard alone.

TEST_F(TriangulacionDlg, KeysChooseOneCode) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.focusOn(Codigos);
        kit::keyboard::press(VK_END);
        kit::keyboard::press(VK_UP);
        EXPECT_EQ(dialogo.list(Codigos).selected(), Filas{2});
        EXPECT_EQ(dialogo.list(Rupturas).column(0), Textos{L"TR"});
        EXPECT_EQ(CodigosDe(data.m_CodigosRuptura), Textos{L"TR"});
        kit::keyboard::press(VK_ESCAPE);
    });
}

TEST_F(TriangulacionDlg, SpaceClearsACheckBox) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.focusOn(IDC_TRIANGULACION_USAR_RUPTURAS);
        kit::keyboard::press(VK_SPACE);
        EXPECT_FALSE(dialogo.checked(IDC_TRIANGULACION_USAR_RUPTURAS));
        EXPECT_FALSE(data.m_Rupturas);
        kit::keyboard::press(VK_ESCAPE);
    });
}

// A host's own class on top of the dialog.

/// Notes the application object that each exchange finds. Exchanges run inside every handler.
class CDerivado : public CTriangulacionDlg {
public:
    using CTriangulacionDlg::CTriangulacionDlg;

    void DoDataExchange(CDataExchange* pDX) override {
        aplicaciones.push_back(AfxGetApp());
        CTriangulacionDlg::DoDataExchange(pDX);
    }

    std::vector<CWinApp*> aplicaciones;
};

TEST_F(TriangulacionDlg, HostDerivesFromItAndRunsUnderItsOwnState) {
    CDerivado derivado(data);
    const auto todasDelHost = [&](const char* tras) {
        const auto aplicaciones = std::exchange(derivado.aplicaciones, {});
        EXPECT_FALSE(aplicaciones.empty()) << tras;
        for (const CWinApp* aplicacion : aplicaciones)
            EXPECT_EQ(aplicacion, &kit::app) << tras;
    };
    kit::Script script;
    script.onDialog([&](kit::Dialog& dialogo) {
        todasDelHost("opening");
        dialogo.list(Codigos).select(0, false);
        todasDelHost("a change of the codes");
        dialogo.press(IDC_TRIANGULACION_NINGUN_CODIGO);
        todasDelHost("no code");
        dialogo.press(IDC_TRIANGULACION_TODOS_CODIGOS);
        todasDelHost("all codes");
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        todasDelHost("use of breaklines");
        dialogo.click(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        todasDelHost("lines not joined");
        dialogo.press(IDOK);
        todasDelHost("OK");
    });
    EXPECT_EQ(script.run([&] { return derivado.DoModal(); }), IDOK);
}

TEST_F(TriangulacionDlg, HostCallsItsOperations) {
    CTriangulacionDlg conversacion(data);
    kit::Script script;
    script.onDialog([&](kit::Dialog& dialogo) {
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        conversacion.ActualizaRupturas();
        EXPECT_EQ(dialogo.list(Rupturas).selected(), (Filas{0, 1, 2, 3}));
        LRESULT resultado = 1;
        conversacion.OnItemchangedListaCodigos(nullptr, &resultado);
        EXPECT_EQ(resultado, 0);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return conversacion.DoModal(); }), IDCANCEL);
}

/// Writes down each exchange: S for one that saves into the record, M for one that shows it, and
/// the number of codes shown, of breaklines shown, and of breaklines in the record.
class CContador : public CTriangulacionDlg {
public:
    using CTriangulacionDlg::CTriangulacionDlg;

    void DoDataExchange(CDataExchange* pDX) override {
        CTriangulacionDlg::DoDataExchange(pDX);
        intercambios += pDX->m_bSaveAndValidate ? " S" : " M";
        intercambios += std::to_string(m_ListaCodigos.GetItemCount());
        intercambios += std::to_string(m_ListaRupturas.GetItemCount());
        intercambios += std::to_string(m_pData->m_CodigosRuptura.Cantidad());
    }

    std::string intercambios;
};

TEST_F(TriangulacionDlg, HostSeesEachExchangeAsItIsDocumented) {
    data.m_Codigos = Tabla({{L"RD", L"Road edge"}, {L"WL", L"Wall"}});
    CContador contador(data);
    const auto desdeAntes = [&] { return std::exchange(contador.intercambios, {}); };
    kit::Script script;
    script.onDialog([&](kit::Dialog& dialogo) {
        // The framework's own and the dialog's, three for each code that is selected, and two more.
        EXPECT_EQ(desdeAntes(), " M000 M200"
                                " S200 S201 M211"
                                " S211 S212 M222"
                                " S222 S222");
        dialogo.list(Codigos).select(0, false);
        EXPECT_EQ(desdeAntes(), " S222 S221 M211");
        dialogo.list(Rupturas).select(0, false);
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        dialogo.press(IDC_TRIANGULACION_TODAS_RUPTURAS);
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        dialogo.click(IDC_TRIANGULACION_TIPO_RUPTURA_1);
        EXPECT_EQ(desdeAntes(), "");
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        EXPECT_EQ(desdeAntes(), " S211");
        dialogo.click(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        EXPECT_EQ(desdeAntes(), " S211");
        dialogo.click(IDC_TRIANGULACION_USAR_RUPTURAS);
        desdeAntes();
        dialogo.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return contador.DoModal(); }), IDOK);
    // The second one comes when the tables are in the record: no breakline is left selected.
    EXPECT_EQ(desdeAntes(), " S211 S210");
}

} // namespace
