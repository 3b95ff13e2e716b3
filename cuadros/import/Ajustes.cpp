#include "cuadros/import/Ajustes.h"

#include "cuadros/frame/Numeros.h"

namespace Cuadros {

namespace {

/// Room for a value in a file, with the zero that ends it.
constexpr int LargoValor = 256;

/// As `%lf` writes it.
CString Texto(double valor) {
    constexpr int decimales = 6;
    return ConDecimales(valor, decimales);
}

CString Texto(int valor) {
    return Entero(valor);
}

/// The text of a setting in a file; empty where it has none.
CString Lee(const CString& fichero, const CString& seccion, LPCTSTR clave) {
    wchar_t texto[LargoValor];
    const DWORD largo = ::GetPrivateProfileStringW(seccion, clave, L"", texto, LargoValor, fichero);
    return CString(texto, static_cast<int>(largo));
}

} // namespace

LectorPerfil::LectorPerfil(const CString& seccion)
    : m_Aplicacion(AfxGetApp()), m_Seccion(seccion) {}

void LectorPerfil::operator()(LPCTSTR clave, double& valor) const {
    // Kept: the value itself is the default, as a text, so that a missing key rounds it.
    if (m_Aplicacion)
        valor = LeeNumero(m_Aplicacion->GetProfileString(m_Seccion, clave, Texto(valor)));
}

void LectorPerfil::operator()(LPCTSTR clave, int& valor) const {
    if (m_Aplicacion)
        valor = static_cast<int>(m_Aplicacion->GetProfileInt(m_Seccion, clave, valor));
}

EscritorPerfil::EscritorPerfil(const CString& seccion)
    : m_Aplicacion(AfxGetApp()), m_Seccion(seccion) {}

void EscritorPerfil::operator()(LPCTSTR clave, double valor) const {
    if (m_Aplicacion)
        m_Aplicacion->WriteProfileString(m_Seccion, clave, Texto(valor));
}

void EscritorPerfil::operator()(LPCTSTR clave, int valor) const {
    if (m_Aplicacion)
        m_Aplicacion->WriteProfileInt(m_Seccion, clave, valor);
}

LectorFichero::LectorFichero(const CString& fichero, const CString& seccion)
    : m_Fichero(fichero), m_Seccion(seccion) {}

void LectorFichero::operator()(LPCTSTR clave, double& valor) const {
    const CString texto = Lee(m_Fichero, m_Seccion, clave);
    if (!texto.IsEmpty())
        valor = LeeNumero(texto);
}

void LectorFichero::operator()(LPCTSTR clave, int& valor) const {
    const CString texto = Lee(m_Fichero, m_Seccion, clave);
    if (!texto.IsEmpty())
        valor = _wtoi(texto);
}

EscritorFichero::EscritorFichero(const CString& fichero, const CString& seccion)
    : m_Fichero(fichero), m_Seccion(seccion) {}

void EscritorFichero::operator()(LPCTSTR clave, double valor) const {
    const CString texto = Texto(valor);
    ::WritePrivateProfileStringW(m_Seccion, clave,
                                 texto.GetLength() < LargoValor ? texto : CString(), m_Fichero);
}

void EscritorFichero::operator()(LPCTSTR clave, int valor) const {
    ::WritePrivateProfileStringW(m_Seccion, clave, Texto(valor), m_Fichero);
}

} // namespace Cuadros
