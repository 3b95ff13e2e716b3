#include "bench/raw/ContourDialog.h"

#include <cstdio>
#include <cstring>

#include "bench/raw/Controls.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/StringIds.h"

namespace bench::raw {

INT_PTR ContourDialog::run(HWND owner) {
    return DialogBoxIndirectParamW(m_texts, findTemplate(m_texts, IDD_CURVADO), owner, procedure,
                                   reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK ContourDialog::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ContourDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        self = reinterpret_cast<ContourDialog*>(lParam);
        self->remember(dialog);
        self->prepare();
        return TRUE;
    }
    if (message != WM_COMMAND || !self || self->m_exchanging)
        return FALSE;
    switch (wParam) {
    case IDOK: // nobody presses the others here
        self->accept();
        return TRUE;
    case IDCANCEL:
        EndDialog(dialog, IDCANCEL);
        return TRUE;
    case MAKEWPARAM(IDC_CURVADO_ESCALA, EN_CHANGE):
        self->scaleChanged();
        return TRUE;
    case MAKEWPARAM(IDC_CURVADO_TIPO_SUAVIZADO, CBN_SELCHANGE):
        self->typeChanged();
        return TRUE;
    default:
        return FALSE;
    }
}

void ContourDialog::remember(HWND dialog) {
    m_dialog = dialog;
    m_type = GetDlgItem(dialog, IDC_CURVADO_TIPO_SUAVIZADO);
    m_interval = GetDlgItem(dialog, IDC_CURVADO_EQUIDISTANCIA);
    m_masterInterval = GetDlgItem(dialog, IDC_CURVADO_EQUIDISTANCIA_MAESTRA);
    m_respected1 = GetDlgItem(dialog, IDC_CURVADO_CURVAS_A_RESPETAR_1);
    m_respected2 = GetDlgItem(dialog, IDC_CURVADO_CURVAS_A_RESPETAR_2);
    m_boundaryFile = GetDlgItem(dialog, IDC_CURVADO_FICHERO_LIMITE);
    m_scale = GetDlgItem(dialog, IDC_CURVADO_ESCALA);
    m_labels = GetDlgItem(dialog, IDC_CURVADO_TEXTO_CURVAS);
    m_label2 = GetDlgItem(dialog, IDC_CURVADO_TEXTO_VALOR_2);
    m_label1 = GetDlgItem(dialog, IDC_CURVADO_TEXTO_VALOR_1);
    m_rangeLow = GetDlgItem(dialog, IDC_CURVADO_COTA_MINIMA);
    m_decimals = GetDlgItem(dialog, IDC_CURVADO_TEXTO_ENTERO);
    m_rangeHigh = GetDlgItem(dialog, IDC_CURVADO_COTA_MAXIMA);
    m_boundary = GetDlgItem(dialog, IDC_CURVADO_LIMITE);
    m_smoothingOption = GetDlgItem(dialog, IDC_CURVADO_OPCION_SUAVIZADO);
    m_option1 = GetDlgItem(dialog, IDC_CURVADO_OPCION_1);
    m_respect = GetDlgItem(dialog, IDC_CURVADO_RESPETAR_CURVAS);
    m_range = GetDlgItem(dialog, IDC_CURVADO_RANGO_COTA);
    m_mastersOnly = GetDlgItem(dialog, IDC_CURVADO_OPCION_TEXTO);
    m_level = GetDlgItem(dialog, IDC_CURVADO_NIVEL_SUAVIZADO);
}

/// The items of the list, out of the template's block of messages.
void ContourDialog::fillTypes() {
    const HRSRC found =
        FindResourceW(m_texts, MAKEINTRESOURCEW(IDD_CURVADO), MAKEINTRESOURCEW(240));
    auto* block = static_cast<const char*>(LockResource(LoadResource(m_texts, found)));
    for (;;) {
        WORD control = 0;
        DWORD length = 0;
        std::memcpy(&control, block, sizeof control);
        if (control == 0)
            return;
        std::memcpy(&length, block + 2 * sizeof(WORD), sizeof length);
        block += 2 * sizeof(WORD) + sizeof length;
        SendDlgItemMessageA(m_dialog, control, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(block));
        block += length;
    }
}

void ContourDialog::showModel(int control, double elevation) {
    wchar_t text[64];
    std::swprintf(text, std::size(text), L"%.2lf", elevation);
    SetDlgItemTextW(m_dialog, control, text);
}

void ContourDialog::prepare() {
    fillTypes();
    show();
    centre(m_dialog);
    SendMessageW(m_dialog, WM_SETICON, ICON_SMALL,
                 reinterpret_cast<LPARAM>(LoadIconW(m_icons, MAKEINTRESOURCEW(IDI_CURVADO))));
    SendDlgItemMessageW(m_dialog, IDC_CURVADO_NIVEL_FLECHAS, UDM_SETRANGE32, 1, 10);
    SendMessageW(m_type, CB_SETCURSEL, static_cast<WPARAM>(m_data.m_TipoSuavizado), 0);
    for (const int control :
         {IDC_CURVADO_GRUPO_SUAVIZADO, IDC_CURVADO_TIPO_SUAVIZADO,
          IDC_CURVADO_ROTULO_TIPO_SUAVIZADO, IDC_CURVADO_ROTULO_NIVEL, IDC_CURVADO_NIVEL_SUAVIZADO,
          IDC_CURVADO_NIVEL_FLECHAS, IDC_CURVADO_OPCION_SUAVIZADO, IDC_CURVADO_OPCION_1,
          IDC_CURVADO_RESPETAR_CURVAS, IDC_CURVADO_CURVAS_A_RESPETAR_1,
          IDC_CURVADO_CURVAS_A_RESPETAR_2, IDC_CURVADO_ROTULO_RESPETAR_1,
          IDC_CURVADO_ROTULO_RESPETAR_2})
        ShowWindow(GetDlgItem(m_dialog, control), SW_SHOWNORMAL);
    showModel(IDC_CURVADO_COTA_MINIMA_MODELO, m_lowest);
    showModel(IDC_CURVADO_COTA_MAXIMA_MODELO, m_highest);
    show();
    read();
    enable(m_data.m_RangoCota, {IDC_CURVADO_COTA_MINIMA, IDC_CURVADO_COTA_MAXIMA});
    read();
    enable(m_data.m_RespetarCurvas,
           {IDC_CURVADO_CURVAS_A_RESPETAR_1, IDC_CURVADO_CURVAS_A_RESPETAR_2});
    read();
    enable(m_data.m_TextoCurvas, {IDC_CURVADO_TEXTO_VALOR_1, IDC_CURVADO_TEXTO_VALOR_2,
                                  IDC_CURVADO_TEXTO_ENTERO, IDC_CURVADO_OPCION_TEXTO});
    read();
    enable(m_data.m_Limite, {IDC_CURVADO_FICHERO_LIMITE, IDC_CURVADO_BUSCAR});
    typeChanged();
}

void ContourDialog::show() {
    const auto text = [](HWND control, const CString& shown) {
        showText(control, shown.GetString(), static_cast<std::size_t>(shown.GetLength()));
    };
    m_exchanging = true;
    showCheck(m_labels, m_data.m_TextoCurvas);
    showCheck(m_boundary, m_data.m_Limite);
    showCheck(m_smoothingOption, m_data.m_OpcionSuavizado);
    showCheck(m_option1, m_data.m_Opcion1);
    showCheck(m_respect, m_data.m_RespetarCurvas);
    showCheck(m_range, m_data.m_RangoCota);
    showCheck(m_mastersOnly, m_data.m_OpcionTexto);
    text(m_respected1, m_data.m_CurvasARespetar1);
    text(m_respected2, m_data.m_CurvasARespetar2);
    text(m_boundaryFile, m_data.m_FicheroLimite);
    showNumber(m_scale, m_data.m_Escala);
    showNumber(m_interval, m_data.m_Equidistancia);
    showNumber(m_masterInterval, m_data.m_EquidistanciaMaestra);
    showNumber(m_label2, m_data.m_TextoValor2);
    showNumber(m_label1, m_data.m_TextoValor1);
    showNumber(m_rangeLow, m_data.m_CotaMinima);
    showNumber(m_decimals, m_data.m_TextoEntero);
    showNumber(m_rangeHigh, m_data.m_CotaMaxima);
    showNumber(m_level, m_data.m_NivelSuavizado);
    m_exchanging = false;
}

bool ContourDialog::read() {
    m_data.m_TextoCurvas = readCheck(m_labels);
    m_data.m_Limite = readCheck(m_boundary);
    m_data.m_OpcionSuavizado = readCheck(m_smoothingOption);
    m_data.m_Opcion1 = readCheck(m_option1);
    m_data.m_RespetarCurvas = readCheck(m_respect);
    m_data.m_RangoCota = readCheck(m_range);
    m_data.m_OpcionTexto = readCheck(m_mastersOnly);
    readText(m_respected1, m_data.m_CurvasARespetar1);
    readText(m_respected2, m_data.m_CurvasARespetar2);
    readText(m_boundaryFile, m_data.m_FicheroLimite);
    return readNumber(m_scale, m_data.m_Escala) && readNumber(m_interval, m_data.m_Equidistancia) &&
           readNumber(m_masterInterval, m_data.m_EquidistanciaMaestra) &&
           readNumber(m_label2, m_data.m_TextoValor2) &&
           readNumber(m_label1, m_data.m_TextoValor1) &&
           readNumber(m_rangeLow, m_data.m_CotaMinima) &&
           readNumber(m_decimals, m_data.m_TextoEntero) &&
           readNumber(m_rangeHigh, m_data.m_CotaMaxima) &&
           readNumber(m_level, m_data.m_NivelSuavizado);
}

void ContourDialog::enable(int enabled, std::initializer_list<int> controls) {
    for (const int control : controls)
        EnableWindow(GetDlgItem(m_dialog, control), enabled);
}

void ContourDialog::scaleChanged() {
    read();
    if (m_data.m_AvanzadoPorEscala) {
        m_data.m_ValorAvanzado1 = m_data.m_Escala * 0.00004;
        m_data.m_ValorAvanzado2 = m_data.m_Escala * 0.0002;
    }
}

void ContourDialog::typeChanged() {
    read();
    const LRESULT type = SendMessageW(m_type, CB_GETCURSEL, 0, 0);
    if (type == CB_ERR || SendMessageW(m_type, CB_GETCOUNT, 0, 0) == 0)
        return;
    enable(type != 0,
           {IDC_CURVADO_OPCION_SUAVIZADO, IDC_CURVADO_NIVEL_SUAVIZADO, IDC_CURVADO_NIVEL_FLECHAS});
    show();
}

UINT ContourDialog::firstFault() const {
    constexpr double tolerance = 1e-7;
    if (m_data.m_Escala == 0)
        return IDS_ESCALA_NO_POSITIVA;
    if (m_data.m_TextoCurvas && m_data.m_TextoValor1 <= 0)
        return IDS_VALOR_TEXTO_NO_POSITIVO;
    if (m_data.m_Equidistancia >= m_data.m_EquidistanciaMaestra ||
        m_data.m_EquidistanciaMaestra <= tolerance || m_data.m_Equidistancia <= tolerance)
        return IDS_VALOR_NO_POSITIVO;
    if (m_data.m_TextoCurvas && m_data.m_TextoValor2 <= 0)
        return IDS_SEGUNDO_VALOR_NO_POSITIVO;
    if (m_data.m_Limite && m_data.m_FicheroLimite.IsEmpty())
        return IDS_FICHERO_LIMITE_OBLIGATORIO;
    if (m_data.m_TipoSuavizado == 2 &&
        (m_data.m_NivelSuavizado < 1 || m_data.m_NivelSuavizado > 10))
        return IDS_NIVEL_SUAVIZADO_FUERA;
    if (m_data.m_RangoCota && (m_lowest > m_data.m_CotaMaxima || m_data.m_CotaMinima > m_highest ||
                               m_data.m_CotaMinima > m_data.m_CotaMaxima))
        return IDS_RANGO_COTAS_FUERA;
    return 0;
}

void ContourDialog::accept() {
    read();
    m_data.m_TipoSuavizado = static_cast<int>(SendMessageW(m_type, CB_GETCURSEL, 0, 0));
    if (const UINT fault = firstFault())
        return refuse(m_dialog, m_texts, fault);
    if (read())
        EndDialog(m_dialog, IDOK);
}

} // namespace bench::raw
