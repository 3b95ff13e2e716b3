#include "cotana/aplicacion/Aplicacion.h"

#include <afxdlgs.h>

#include <vector>

namespace Cotana {

namespace {

/// Room for the names of a multiple selection.
constexpr DWORD LongitudNombres = 32768;

constexpr wchar_t TodosLosFicheros[] = L"All files (*.*)|*.*||";

void AnadeNombre(CString& linea, const CString& nombre) {
    constexpr wchar_t separadores[] = L" \uFEFF";
    if (!linea.IsEmpty())
        linea += L" ";
    if (nombre.FindOneOf(separadores) < 0)
        linea += nombre;
    else
        linea += L"\"" + nombre + L"\"";
}

CString EnUnaLinea(const CFileDialog& dialogo) {
    CString linea;
    for (POSITION siguiente = dialogo.GetStartPosition(); siguiente != nullptr;)
        AnadeNombre(linea, dialogo.GetNextPathName(siguiente));
    return linea;
}

} // namespace

IMPLEMENT_DYNAMIC(CAplicacion, CWinApp)

CAplicacion::CAplicacion(LPCTSTR nombre) : CWinApp(nombre) {}

CAplicacion::~CAplicacion() = default;

BOOL CAplicacion::PideFichero(CString& nombre, UINT titulo, DWORD opciones, BOOL abrir,
                              CDocTemplate** /*plantilla*/, int /*clase*/, void* /*reservado*/) {
    // Windows' older dialog: the newer one ignores the flag that hides the read-only box.
    constexpr BOOL estiloNuevo = FALSE;
    CFileDialog dialogo(abrir, nullptr, nullptr, opciones, TodosLosFicheros, nullptr, 0,
                        estiloNuevo);

    // Else Windows shows the folder where the program's prompt ended last, even in another run.
    dialogo.m_ofn.lpstrInitialDir = L".";

    CString textoTitulo;
    if (textoTitulo.LoadString(titulo))
        dialogo.m_ofn.lpstrTitle = textoTitulo;

    std::vector<wchar_t> nombres(LongitudNombres);
    wcsncpy_s(nombres.data(), nombres.size(), nombre, _TRUNCATE);
    dialogo.m_ofn.lpstrFile = nombres.data();
    dialogo.m_ofn.nMaxFile = LongitudNombres;

    if (dialogo.DoModal() != IDOK)
        return FALSE;
    nombre = (opciones & OFN_ALLOWMULTISELECT) ? EnUnaLinea(dialogo) : dialogo.GetPathName();
    return TRUE;
}

CDocTemplate* CAplicacion::PlantillaActual() const {
    return nullptr;
}

} // namespace Cotana
