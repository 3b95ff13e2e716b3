#include "AddIn.h"

#include "cuadros/Cuadros.h"
#include "cuadros/resources/TriangulationIds.h"

using Cotana::CDataTriangulacion;
using Cotana::CTriangulacionDlg;

namespace {

/// Does everything as its base class does, and tells it.
class WatchedDlg : public CTriangulacionDlg {
public:
    WatchedDlg(CDataTriangulacion& record, WatchDialog watch)
        : CTriangulacionDlg(record), m_watch(watch) {}

    BOOL OnInitDialog() override {
        m_watch("OnInitDialog");
        return CTriangulacionDlg::OnInitDialog();
    }
    void OnOK() override {
        m_watch("OnOK");
        CTriangulacionDlg::OnOK();
    }
    afx_msg void OnTodosCodsVistos() {
        m_watch("OnTodosCods");
        OnTodosCods();
    }
    afx_msg BOOL OnHelpInfo(HELPINFO* info) {
        m_watch("OnHelpInfo");
        return CTriangulacionDlg::OnHelpInfo(info);
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override { CTriangulacionDlg::DoDataExchange(pDX); }
    DECLARE_MESSAGE_MAP()

private:
    WatchDialog m_watch;
};

BEGIN_MESSAGE_MAP(WatchedDlg, CTriangulacionDlg)
    ON_BN_CLICKED(IDC_TRIANGULACION_TODOS_CODIGOS, &WatchedDlg::OnTodosCodsVistos)
    ON_WM_HELPINFO()
END_MESSAGE_MAP()

} // namespace

extern "C" __declspec(dllexport) INT_PTR
    OpenTriangulation(CDataTriangulacion& record, WatchDialog watch) {
    return WatchedDlg(record, watch).DoModal();
}

// A host may call every handler of the class, and know the class at run time: this compiles and
// links, and is not called.
extern "C" __declspec(dllexport) void UseEveryHandler(CTriangulacionDlg& dialog, CObject* object) {
    NMHDR header = {};
    LRESULT result = 0;
    dialog.OnInitDialog();
    dialog.OnItemchangedListaCodigos(&header, &result);
    dialog.OnTodosCods();
    dialog.OnNingunoCods();
    dialog.OnTodosRups();
    dialog.OnNingunoRups();
    dialog.OnCheckRuptura();
    dialog.OnCheckNoUnirCurvas();
    dialog.OnOK();
    dialog.OnHelpInfo(nullptr);
    delete dynamic_cast<CTriangulacionDlg*>(object);
}
