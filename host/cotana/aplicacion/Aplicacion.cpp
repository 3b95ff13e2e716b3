#include "cotana/aplicacion/Aplicacion.h"

#include <afxdlgs.h>

#include <vector>

#include "cotana/aplicacion/NombresElegidos.h"

namespace Cotana {

namespace {

/// Room for the paths of a multiple selection: what one command line could still hold.
constexpr DWORD LongitudLista = 32768;

constexpr wchar_t TodosLosFicheros[] = L"All files (*.*)|*.*||";

} // namespace

IMPLEMENT_DYNAMIC(CAplicacion, CWinApp)

CAplicacion::CAplicacion(LPCTSTR nombre) : CWinApp(nombre) {}

CAplicacion::~CAplicacion() = default;

BOOL CAplicacion::PideFichero(CString& nombre, UINT titulo, DWORD opciones, BOOL abrir,
                              CDocTemplate** /*plantilla*/, int /*clase*/, void* /*reservado*/) {
    CString textoTitulo;
    textoTitulo.LoadString(titulo);

    // Windows' older dialog: the newer one ignores the flag that hides the read-only box.
    constexpr BOOL estiloNuevo = FALSE;
    CFileDialog dialogo(abrir, nullptr, nombre, opciones, TodosLosFicheros, nullptr, 0,
                        estiloNuevo);
    if (!textoTitulo.IsEmpty())
        dialogo.m_ofn.lpstrTitle = textoTitulo;

    std::vector<wchar_t> lista(LongitudLista, L'\0');
    if (static_cast<DWORD>(nombre.GetLength()) < LongitudLista)
        wcscpy_s(lista.data(), lista.size(), nombre);
    dialogo.m_ofn.lpstrFile = lista.data();
    dialogo.m_ofn.nMaxFile = LongitudLista;

    if (dialogo.DoModal() != IDOK)
        return FALSE;
    if (opciones & OFN_ALLOWMULTISELECT)
        nombre = UneNombresElegidos(lista.data());
    else
        nombre = lista.data();
    return TRUE;
}

CDocTemplate* CAplicacion::PlantillaActual() const {
    return nullptr;
}

} // namespace Cotana
