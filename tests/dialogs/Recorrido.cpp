#include "Recorrido.h"

#include "Recurso.h"
#include "tools/check-dialogs/ReadingOrder.h"

#include <commctrl.h>

#include <cwctype>
#include <sstream>
#include <string_view>

namespace {

bool EsDeClase(HWND ventana, const wchar_t* clase) {
    wchar_t suya[32] = {};
    GetClassNameW(ventana, suya, 32);
    return _wcsicmp(suya, clase) == 0;
}

LONG TipoDeBoton(HWND ventana) {
    return EsDeClase(ventana, WC_BUTTONW) ? GetWindowLongW(ventana, GWL_STYLE) & BS_TYPEMASK : -1;
}

bool EsGrupo(HWND ventana) {
    return TipoDeBoton(ventana) == BS_GROUPBOX;
}

/// Neither does a person do anything to it, nor does it take the focus.
bool SoloSeMira(HWND ventana) {
    return EsGrupo(ventana) || EsDeClase(ventana, WC_STATICW) || EsDeClase(ventana, UPDOWN_CLASSW);
}

std::wstring Texto(HWND ventana) {
    std::wstring texto(static_cast<std::size_t>(GetWindowTextLengthW(ventana)), L'\0');
    GetWindowTextW(ventana, texto.data(), static_cast<int>(texto.size()) + 1);
    return texto;
}

std::wstring NombreDe(HWND ventana) {
    return Texto(EsDeClase(ventana, WC_BUTTONW) ? ventana : GetWindow(ventana, GW_HWNDPREV));
}

std::string Cabecera(UINT plantilla) {
    return std::to_string(plantilla) + " ";
}

} // namespace

bool Parada::esBoton() const {
    return EsDeClase(ventana, WC_BUTTONW);
}

bool Parada::esCasilla() const {
    return TipoDeBoton(ventana) == BS_AUTOCHECKBOX;
}

bool Parada::esEdicion() const {
    return EsDeClase(ventana, WC_EDITW) && !(GetWindowLongW(ventana, GWL_STYLE) & ES_READONLY);
}

bool Parada::seLeeSuNombre() const {
    return esBoton() || IsWindowVisible(GetWindow(ventana, GW_HWNDPREV));
}

bool Parada::conTabulador() const {
    return TipoDeBoton(ventana) != BS_AUTORADIOBUTTON ||
           SendMessageW(ventana, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

wchar_t Parada::letra() const {
    const auto donde = nombre.find(L'&');
    const bool hay = donde != std::wstring::npos && donde + 1 < nombre.size();
    return hay ? static_cast<wchar_t>(std::towlower(nombre[donde + 1])) : L'\0';
}

std::vector<Parada> Recorrido(const kit::Dialog& dialogo) {
    std::vector<HWND> visibles;
    std::vector<Readable> leibles;
    for (HWND ventana = GetWindow(dialogo.handle(), GW_CHILD); ventana != nullptr;
         ventana = GetWindow(ventana, GW_HWNDNEXT)) {
        if (!IsWindowVisible(ventana))
            continue;
        RECT marco{};
        GetWindowRect(ventana, &marco);
        visibles.push_back(ventana);
        leibles.push_back({marco, EsGrupo(ventana)});
    }
    std::vector<Parada> paradas;
    for (const std::size_t cual : readingOrder(leibles)) {
        const HWND ventana = visibles[cual];
        if (IsWindowEnabled(ventana) && !SoloSeMira(ventana))
            paradas.push_back({GetDlgCtrlID(ventana), ventana, NombreDe(ventana)});
    }
    return paradas;
}

std::string Nombres(UINT plantilla, const kit::Dialog& dialogo) {
    std::string nombres = Cabecera(plantilla) + kit::utf8(dialogo.caption()) + "\n";
    for (const Parada& parada : Recorrido(dialogo))
        nombres += "    " + std::to_string(parada.numero) + " " + kit::utf8(parada.nombre) + "\n";
    return nombres;
}

std::string NombresEscritos(UINT plantilla) {
    const HRSRC lista = FindResourceW(nullptr, MAKEINTRESOURCEW(ID_NOMBRES), RT_RCDATA);
    std::istringstream lineas(
        std::string(static_cast<const char*>(LockResource(LoadResource(nullptr, lista))),
                    SizeofResource(nullptr, lista)));
    std::string escritos;
    bool suyos = false;
    for (std::string linea; std::getline(lineas, linea);) {
        if (!linea.starts_with(' '))
            suyos = linea.starts_with(Cabecera(plantilla));
        if (suyos)
            escritos += linea + "\n";
    }
    return escritos;
}
