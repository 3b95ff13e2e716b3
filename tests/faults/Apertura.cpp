#include "Apertura.h"

#include "kit/app/RecordingApp.h"
#include "kit/driver/Input.h"

#include <commctrl.h>

#include <string>
#include <utility>
#include <vector>

namespace {

Apertura* actual = nullptr;

bool EsDeClase(HWND ventana, const wchar_t* clase) {
    wchar_t suya[40] = {};
    GetClassNameW(ventana, suya, 40);
    return _wcsicmp(suya, clase) == 0;
}

void Avisa(HWND control, UINT que) {
    const int numero = GetDlgCtrlID(control);
    SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(numero, que),
                 reinterpret_cast<LPARAM>(control));
}

} // namespace

std::vector<HWND> ControlesDe(HWND dialogo) {
    std::vector<HWND> controles;
    for (HWND control = GetWindow(dialogo, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
        controles.push_back(control);
    return controles;
}

void UsaControl(HWND control) {
    if (EsDeClase(control, L"Button")) {
        SendMessageW(control, BM_CLICK, 0, 0);
    } else if (EsDeClase(control, L"Edit")) {
        SetWindowTextW(control, L"7");
    } else if (EsDeClase(control, L"ComboBox")) {
        SendMessageW(control, CB_SETCURSEL, 1, 0);
        Avisa(control, CBN_SELCHANGE);
    } else if (EsDeClase(control, L"ListBox")) {
        SendMessageW(control, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"C:\\a.xyz"));
        SendMessageW(control, LB_SETSEL, TRUE, 0);
        Avisa(control, LBN_SELCHANGE);
    } else if (EsDeClase(control, WC_LISTVIEWW)) {
        RECT fila = {};
        if (ListView_GetItemRect(control, 0, &fila, LVIR_LABEL))
            kit::mouse::click(control, {fila.left + 2, (fila.top + fila.bottom) / 2});
    }
}

Apertura::Apertura(CDialog& dialogo) : m_Dialogo(dialogo) {
    actual = this;
}

Apertura::~Apertura() {
    actual = nullptr;
    kit::app.forget();
}

INT_PTR Apertura::Ejecuta(Paso paso) {
    m_Paso = std::move(paso);
    constexpr UINT milisegundos = 10;
    const UINT_PTR reloj = SetTimer(nullptr, 0, milisegundos, Turno);
    const INT_PTR resultado = m_Dialogo.DoModal();
    KillTimer(nullptr, reloj);
    return resultado;
}

void CALLBACK Apertura::Turno(HWND, UINT, UINT_PTR, DWORD) {
    const HWND activa = GetActiveWindow();
    if (activa && IsWindowVisible(activa))
        actual->Atiende(activa);
}

void Apertura::Atiende(HWND activa) {
    if (activa == m_Dialogo.m_hWnd) {
        if (!m_Paso)
            return; // it is running
        std::exchange(m_Paso, {})(activa);
        if (m_Dialogo.m_hWnd != nullptr)
            m_Dialogo.EndDialog(IDCANCEL);
    } else if (EsDeClase(activa, L"#32770")) {
        if (std::exchange(m_Atendida, activa) != activa)
            alAviso();
        for (const int boton : {IDCANCEL, IDOK, IDNO})
            if (GetDlgItem(activa, boton) != nullptr)
                return static_cast<void>(PostMessageW(activa, WM_COMMAND, boton, 0));
    }
}

void UsaControles(HWND dialogo) {
    for (const HWND control : ControlesDe(dialogo)) {
        const int numero = GetDlgCtrlID(control);
        if (numero == IDOK || numero == IDCANCEL)
            continue;
        kit::app.answerFilePrompt(L"C:\\b.xyz");
        UsaControl(control);
        if (!IsWindow(dialogo))
            return;
    }
}

void EscribeLetras(HWND dialogo) {
    for (const HWND control : ControlesDe(dialogo))
        if (EsDeClase(control, L"Edit"))
            SetWindowTextW(control, L"letters");
}
