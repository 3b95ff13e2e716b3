// A host with nothing but the installed package: opens the dialog over a record of its own and
// ends with 0 when what came back is what was accepted.
#include <cotana/aplicacion/Aplicacion.h>
#include <cuadros/Cuadros.h>

using namespace Cotana;

namespace {

/// Accepted as soon as it is open.
class CAcceptedDlg : public CTriangulacionDlg {
public:
    using CTriangulacionDlg::CTriangulacionDlg;

    BOOL OnInitDialog() override {
        const BOOL result = CTriangulacionDlg::OnInitDialog();
        SetDlgItemText(19013, L"Accepted");
        PostMessage(WM_COMMAND, IDOK);
        return result;
    }
};

class CConsumerApp : public CAplicacion {
public:
    BOOL InitInstance() override {
        CAplicacion::InitInstance();
        CDataTriangulacion data;
        data.m_Codigos.Inserta(CElementoDigiTab(L"BRK", L"Breakline"), true);
        CAcceptedDlg dialog(data, nullptr);
        m_accepted = dialog.DoModal() == IDOK && data.m_Nombre == L"Accepted" &&
                     data.m_CodigosRuptura.Cantidad() == 1;
        return FALSE;
    }
    int ExitInstance() override { return m_accepted ? 0 : 1; }

private:
    bool m_accepted = false;
} consumer;

} // namespace
