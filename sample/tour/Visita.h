#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

#include "kit/driver.h"

/// The tour's stop at one conversation: its script, and the pictures taken on the way.
class Visita {
public:
    struct Foto {
        CString fichero; ///< Name of the picture in the tour's folder.
        CString pie;     ///< What it shows.
    };

    /// @param carpeta the tour's folder, which exists.
    /// @param raiz    name of the pictures, to which a number is added from the second on.
    Visita(const CString& carpeta, const CString& raiz);

    kit::Script& Guion() { return m_Guion; }
    /// Takes a picture of an open window. A step of the script ends here when it cannot be written.
    void Fotografia(HWND ventana, const CString& pie);
    /// Opens the conversation and drives it to its end. Throws a Fault when a picture could not be
    /// written.
    INT_PTR Corre(const std::function<INT_PTR()>& abre);
    const std::vector<Foto>& Fotos() const { return m_Fotos; }

private:
    CString m_Carpeta;
    CString m_Raiz;
    kit::Script m_Guion;
    std::vector<Foto> m_Fotos;
    CString m_SinEscribir; ///< The picture that could not be written.
};
