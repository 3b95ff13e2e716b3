// The settings of a record in either store: the profile of the current application object, and a
// named file. A record names its settings once, with their keys and in their order; each class here
// does with a setting what it is named for.
//
// Numbers are written and read with a decimal point, whatever locale the host has given to the C
// runtime: one installation reads what another one has written.
#pragma once

#include <afxwin.h>

namespace Cuadros {

/// Takes settings from a section of the profile. One that is missing keeps its value, a `double`
/// rounded to six decimals; one that is no number becomes 0. Nothing happens where the host has no
/// application object.
class LectorPerfil {
public:
    explicit LectorPerfil(const CString& seccion);

    void operator()(LPCTSTR clave, double& valor) const;
    void operator()(LPCTSTR clave, int& valor) const;

private:
    CWinApp* m_Aplicacion;
    CString m_Seccion;
};

/// Puts settings into a section of the profile, unless the host has no application object.
class EscritorPerfil {
public:
    explicit EscritorPerfil(const CString& seccion);

    void operator()(LPCTSTR clave, double valor) const;
    void operator()(LPCTSTR clave, int valor) const;

private:
    CWinApp* m_Aplicacion;
    CString m_Seccion;
};

/// Takes settings from a section of a file. One that is missing or empty keeps its value as it is;
/// one that is no number becomes 0.
class LectorFichero {
public:
    LectorFichero(const CString& fichero, const CString& seccion);

    void operator()(LPCTSTR clave, double& valor) const;
    void operator()(LPCTSTR clave, int& valor) const;

private:
    CString m_Fichero;
    CString m_Seccion;
};

/// Puts settings into a section of a file. A value of more than 255 characters is left empty.
class EscritorFichero {
public:
    EscritorFichero(const CString& fichero, const CString& seccion);

    void operator()(LPCTSTR clave, double valor) const;
    void operator()(LPCTSTR clave, int valor) const;

private:
    CString m_Fichero;
    CString m_Seccion;
};

} // namespace Cuadros
