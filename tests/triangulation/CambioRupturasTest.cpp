// The user and the host do this and that to the triangulation options, and the list of breaklines
// follows. The dialog changes those rows only that differ. Beside it the same dialog empties the
// list and fills it anew each time, as plainly as can be; both are led through the same random
// life, and at no exchange and after no deed is there anything that tells them apart.
#include "cuadros/triangulation/TriangulacionDlg.h"

#include "cuadros/resources/TriangulationIds.h"
#include "kit/kit.h"

#include <functional>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Cotana::CDataTriangulacion;
using Cotana::CDigiTab;
using Cotana::CElementoDigiTab;
using Cotana::CTriangulacionDlg;

std::string Entradas(const CDigiTab& tabla) {
    std::string entradas;
    for (unsigned int i = 0; i < tabla.Cantidad(); ++i)
        entradas += kit::utf8(tabla[i].GetCodigo().GetString()) + "=" +
                    kit::utf8(tabla[i].GetNemotecnico().GetString()) + ";";
    return entradas;
}

/// All that a user or a host can see of a list.
std::string Vista(CListCtrl& lista) {
    std::ostringstream vista;
    vista << lista.GetItemCount() << " rows, top " << lista.GetTopIndex() << ", mark "
          << lista.GetSelectionMark() << ", selected " << lista.GetSelectedCount() << ", hot "
          << lista.GetHotItem() << ", scrolled " << lista.GetScrollPos(SB_HORZ) << ","
          << lista.GetScrollPos(SB_VERT);
    for (const int barra : {SB_HORZ, SB_VERT}) {
        int minimo = 0;
        int maximo = 0;
        ::GetScrollRange(lista.m_hWnd, barra, &minimo, &maximo);
        vista << " of " << minimo << ".." << maximo;
    }
    for (int fila = 0; fila < lista.GetItemCount(); ++fila) {
        LVITEM entrada{};
        entrada.mask = LVIF_IMAGE | LVIF_PARAM | LVIF_STATE | LVIF_INDENT;
        entrada.stateMask = ~0U;
        entrada.iItem = fila;
        lista.GetItem(&entrada);
        CRect marco;
        lista.GetItemRect(fila, &marco, LVIR_BOUNDS);
        vista << "\n  " << kit::utf8(lista.GetItemText(fila, 0).GetString()) << "|"
              << kit::utf8(lista.GetItemText(fila, 1).GetString()) << " state " << std::hex
              << entrada.state << std::dec << " image " << entrada.iImage << " data "
              << entrada.lParam << " indent " << entrada.iIndent << " at " << marco.left << ","
              << marco.top;
    }
    return vista.str();
}

/// The dialog, which writes down at each exchange what there is to see.
class CVigilado : public CTriangulacionDlg {
public:
    explicit CVigilado(const CDataTriangulacion& antes) : CTriangulacionDlg(data), data(antes) {}

    /// Shows the breaklines, as a host does it.
    virtual void Muestra() { ActualizaRupturas(); }

    /// What has been written down since the last call, and what there is to see now.
    std::string Diario() { return std::exchange(m_Diario, {}) + "\nnow " + Todo(); }

    CListCtrl& Codigos() { return m_ListaCodigos; }
    CListCtrl& Rupturas() { return m_ListaRupturas; }

    CDataTriangulacion data;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CTriangulacionDlg::DoDataExchange(pDX);
        m_Diario += pDX->m_bSaveAndValidate ? "\nsave " : "\nshow ";
        m_Diario += Todo();
    }

private:
    std::string Todo() {
        return "codes " + Vista(m_ListaCodigos) + "\nbreaklines " + Vista(m_ListaRupturas) +
               "\nrecord " + Entradas(data.m_Codigos) + " " + Entradas(data.m_CodigosRuptura) +
               (GetDlgItem(IDOK)->IsWindowEnabled() ? " OK" : " no OK");
    }

    std::string m_Diario;
};

/// The same with the list of breaklines emptied and filled anew at each change.
class CReconstruido : public CVigilado {
public:
    using CVigilado::CVigilado;

    void Muestra() override {
        UpdateData(TRUE);
        const CDigiTab& tabla = data.m_CodigosRuptura;
        m_ListaRupturas.SetRedraw(FALSE);
        m_ListaRupturas.DeleteAllItems();
        const auto filas = static_cast<int>(tabla.Cantidad());
        for (int i = 0; i < filas; ++i) {
            const CElementoDigiTab& entrada = tabla[static_cast<unsigned int>(i)];
            m_ListaRupturas.InsertItem(LVIF_TEXT | LVIF_IMAGE | LVIF_STATE, i,
                                       entrada.GetCodigo().Left(259), INDEXTOSTATEIMAGEMASK(1),
                                       LVIS_STATEIMAGEMASK, 0, 0);
            m_ListaRupturas.SetItemText(i, 1, entrada.GetNemotecnico());
        }
        for (int i = 0; i < filas; ++i)
            m_ListaRupturas.SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
        m_ListaRupturas.SetRedraw(TRUE);
        m_ListaRupturas.Invalidate();
        UpdateData(FALSE);
    }

    DECLARE_MESSAGE_MAP()

    afx_msg void AlCambiarCodigos(NMHDR* /*pNMHDR*/, LRESULT* pResult) {
        UpdateData(TRUE);
        data.m_CodigosRuptura.clear();
        for (int i = m_ListaCodigos.GetNextItem(-1, LVNI_SELECTED); i >= 0;
             i = m_ListaCodigos.GetNextItem(i, LVNI_SELECTED)) {
            if (static_cast<unsigned int>(i) < data.m_Codigos.Cantidad())
                data.m_CodigosRuptura.Inserta(data.m_Codigos[static_cast<unsigned int>(i)], true);
        }
        Muestra();
        GetDlgItem(IDOK)->EnableWindow(data.m_CodigosRuptura.Cantidad() != 0);
        *pResult = 0;
    }
};

BEGIN_MESSAGE_MAP(CReconstruido, CVigilado)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_TRIANGULACION_CODIGOS, &CReconstruido::AlCambiarCodigos)
END_MESSAGE_MAP()

/// What somebody does to a dialog, the same to each.
struct Obra {
    std::string nombre;
    std::function<void(CVigilado&)> haz;
};

/// The works of one life, drawn by chance.
class Azar {
public:
    explicit Azar(unsigned int semilla) : m_Motor(semilla) {}

    /// A table of few different codes, so that many stand in it twice.
    CDigiTab Tabla(int longest) {
        CDigiTab tabla;
        for (int i = Numero(longest); i > 0; --i) {
            const auto codigo = static_cast<wchar_t>(L'A' + Numero(8));
            const auto nemotecnico = static_cast<wchar_t>(L'a' + Numero(2));
            tabla.Inserta(CElementoDigiTab(CString(codigo, Numero(20) == 0 ? 300 : 2),
                                           CString(nemotecnico, Numero(4))),
                          true);
        }
        return tabla;
    }

    Obra Siguiente() {
        const int fila = Numero(30);
        const UINT bit = Numero(2) == 0 ? LVIS_SELECTED : 0U;
        const auto pon = [=](CListCtrl& lista, UINT estado, UINT mascara) {
            if (fila < lista.GetItemCount())
                lista.SetItemState(fila, estado, mascara);
        };
        switch (Numero(17)) {
        case 0:
        case 1:
        case 2:
            return {"code", [=](CVigilado& d) { pon(d.Codigos(), bit, LVIS_SELECTED); }};
        case 3:
            return {"focused code",
                    [=](CVigilado& d) { pon(d.Codigos(), LVIS_FOCUSED, LVIS_FOCUSED); }};
        case 4:
            return {"all codes", [](CVigilado& d) { d.OnTodosCods(); }};
        case 5:
            return {"no code", [](CVigilado& d) { d.OnNingunoCods(); }};
        case 6:
            return {"all breaklines", [](CVigilado& d) { d.OnTodosRups(); }};
        case 7:
            return {"no breakline", [](CVigilado& d) { d.OnNingunoRups(); }};
        case 8:
            return {"breakline", [=](CVigilado& d) { pon(d.Rupturas(), bit, LVIS_SELECTED); }};
        case 9:
            return {"focused breakline",
                    [=](CVigilado& d) { pon(d.Rupturas(), LVIS_FOCUSED, LVIS_FOCUSED); }};
        case 10:
            return {"mark", [=](CVigilado& d) {
                        if (fila < d.Rupturas().GetItemCount())
                            d.Rupturas().SetSelectionMark(fila);
                    }};
        case 11:
            return {"scrolled", [=](CVigilado& d) { d.Rupturas().EnsureVisible(fila, FALSE); }};
        case 12: {
            const CSize cuanto(Numero(200) - 100, 0);
            return {"scrolled aside", [=](CVigilado& d) { d.Rupturas().Scroll(cuanto); }};
        }
        case 13: {
            const CDigiTab tabla = Tabla(30);
            return {"codes of the host", [=](CVigilado& d) { d.data.m_Codigos = tabla; }};
        }
        case 14: {
            const CDigiTab tabla = Tabla(30);
            return {"breaklines of the host",
                    [=](CVigilado& d) { d.data.m_CodigosRuptura = tabla; }};
        }
        case 15:
            return {"shown by the host", [](CVigilado& d) { d.Muestra(); }};
        default: {
            constexpr WPARAM teclas[] = {VK_DOWN, VK_UP, VK_END, VK_HOME, VK_NEXT, VK_SPACE};
            const WPARAM tecla = teclas[Numero(6)];
            return {"key", [=](CVigilado& d) {
                        d.GotoDlgCtrl(&d.Rupturas());
                        d.Rupturas().SendMessage(WM_KEYDOWN, tecla, 0);
                    }};
        }
        }
    }

private:
    /// One of 0 to `cuantos` - 1.
    int Numero(int cuantos) { return static_cast<int>(m_Motor() % static_cast<unsigned>(cuantos)); }

    std::mt19937 m_Motor;
};

void Abre(CDialog& dialogo) {
    ASSERT_TRUE(dialogo.Create(IDD_TRIANGULACION));
    dialogo.ShowWindow(SW_SHOWNORMAL);
    dialogo.UpdateWindow();
}

class CambioRupturas : public testing::TestWithParam<unsigned int> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Seeds, CambioRupturas, testing::Range(1U, 9U));

TEST_P(CambioRupturas, CannotBeToldFromFillingTheListAnew) {
    Azar azar(GetParam());
    CDataTriangulacion data;
    data.m_Nombre = L"North slope";
    data.m_Codigos = azar.Tabla(30);
    CVigilado dialogo(data);
    CReconstruido reconstruido(data);
    Abre(dialogo);
    Abre(reconstruido);
    ASSERT_EQ(dialogo.Diario(), reconstruido.Diario()) << "after opening";
    for (int vez = 0; vez < 60; ++vez) {
        const Obra obra = azar.Siguiente();
        obra.haz(dialogo);
        obra.haz(reconstruido);
        ASSERT_EQ(dialogo.Diario(), reconstruido.Diario())
            << "after work " << vez << ": " << obra.nombre;
        dialogo.UpdateWindow();
        reconstruido.UpdateWindow();
    }
    dialogo.DestroyWindow();
    reconstruido.DestroyWindow();
}
