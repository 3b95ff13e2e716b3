#include "sample/Visita.h"

Visita::Visita(const CString& carpeta, const CString& raiz) : m_Carpeta(carpeta), m_Raiz(raiz) {}

void Visita::Fotografia(HWND ventana, const CString& pie) {
    CString fichero = m_Raiz;
    if (!m_Fotos.empty())
        fichero.Format(L"%s-%d", static_cast<LPCWSTR>(m_Raiz),
                       static_cast<int>(m_Fotos.size()) + 1);
    fichero += L".png";
    if (!kit::savePicture(ventana, m_Carpeta + L"\\" + fichero))
        kit::fail("no picture could be written: " + kit::utf8(static_cast<LPCWSTR>(fichero)));
    m_Fotos.push_back({fichero, pie});
}
