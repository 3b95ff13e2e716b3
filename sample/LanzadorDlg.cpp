#include "sample/LanzadorDlg.h"

#include "sample/EjemploIds.h"

CLanzadorDlg::CLanzadorDlg(Terreno& terreno, CWnd* padre)
    : CDialog(IDD_LANZADOR, padre), m_Terreno(terreno) {}

void CLanzadorDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LANZADOR_CONVERSACIONES, m_Arbol);
    DDX_Control(pDX, IDC_LANZADOR_FICHA, m_Ficha);
}

BEGIN_MESSAGE_MAP(CLanzadorDlg, CDialog)
    ON_NOTIFY(TVN_SELCHANGED, IDC_LANZADOR_CONVERSACIONES, &CLanzadorDlg::OnEligeConversacion)
    ON_NOTIFY(NM_DBLCLK, IDC_LANZADOR_CONVERSACIONES, &CLanzadorDlg::OnDobleClic)
    ON_BN_CLICKED(IDC_LANZADOR_ABRIR, &CLanzadorDlg::OnAbrir)
END_MESSAGE_MAP()

BOOL CLanzadorDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    CenterWindow();
    m_Ficha.InsertColumn(0, L"Field", LVCFMT_LEFT, 130);
    m_Ficha.InsertColumn(1, L"Before", LVCFMT_LEFT, 170);
    m_Ficha.InsertColumn(2, L"After", LVCFMT_LEFT, 170);
    m_Ficha.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
    LlenaArbol();
    return TRUE;
}

void CLanzadorDlg::LlenaArbol() {
    HTREEITEM subsistema = nullptr, primera = nullptr;
    CString nombre;
    for (const Conversacion* conversacion : Conversaciones()) {
        if (nombre != conversacion->subsistema) {
            nombre = conversacion->subsistema;
            subsistema = m_Arbol.InsertItem(nombre);
        }
        const HTREEITEM hoja = m_Arbol.InsertItem(conversacion->titulo, subsistema);
        m_Arbol.SetItemData(hoja, reinterpret_cast<DWORD_PTR>(conversacion));
        m_Arbol.Expand(subsistema, TVE_EXPAND);
        if (!primera)
            primera = hoja;
    }
    m_Arbol.SelectItem(primera);
}

const Conversacion* CLanzadorDlg::Elegida() const {
    const HTREEITEM elegida = m_Arbol.GetSelectedItem();
    return elegida ? reinterpret_cast<const Conversacion*>(m_Arbol.GetItemData(elegida)) : nullptr;
}

void CLanzadorDlg::OnEligeConversacion(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    const Conversacion* elegida = Elegida();
    GetDlgItem(IDC_LANZADOR_ABRIR)->EnableWindow(elegida != nullptr);
    MuestraResultado(L"");
    m_Ficha.DeleteAllItems();
    if (elegida) {
        elegida->prepara(m_Terreno);
        const Ficha ficha = elegida->ficha(m_Terreno);
        MuestraFicha(ficha, ficha);
    }
}

void CLanzadorDlg::OnDobleClic(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    OnAbrir();
}

void CLanzadorDlg::OnAbrir() {
    const Conversacion* elegida = Elegida();
    if (!elegida)
        return;
    elegida->prepara(m_Terreno);
    const Ficha antes = elegida->ficha(m_Terreno);
    const INT_PTR resultado = elegida->abre(m_Terreno, this);
    MuestraFicha(antes, elegida->ficha(m_Terreno));
    MuestraResultado(resultado == IDOK       ? L"Accepted."
                     : resultado == IDCANCEL ? L"Cancelled."
                                             : L"The dialog did not open.");
    if (resultado == IDOK && elegida->ejecuta) {
        const Hecho hecho = elegida->ejecuta(m_Terreno);
        MuestraResultado(hecho.texto);
        if (hecho.fallo)
            AfxMessageBox(hecho.texto, MB_ICONERROR);
    }
}

void CLanzadorDlg::MuestraResultado(const CString& texto) {
    SetDlgItemText(IDC_LANZADOR_RESULTADO, texto);
}

void CLanzadorDlg::MuestraFicha(const Ficha& antes, const Ficha& despues) {
    m_Ficha.SetRedraw(FALSE);
    m_Ficha.DeleteAllItems();
    for (int i = 0; i < static_cast<int>(antes.size()); ++i) {
        m_Ficha.InsertItem(i, antes[i].nombre);
        m_Ficha.SetItemText(i, 1, antes[i].valor);
        if (antes[i].valor != despues[i].valor)
            m_Ficha.SetItemText(i, 2, despues[i].valor);
    }
    m_Ficha.SetRedraw(TRUE);
}
