#include "sample/tour/Visita.h"

#include "sample/TextFile.h"

Visita::Visita(const CString& carpeta, const CString& raiz) : m_Carpeta(carpeta), m_Raiz(raiz) {}

void Visita::Fotografia(HWND ventana, const CString& pie) {
    CString fichero = m_Raiz;
    if (!m_Fotos.empty())
        fichero.Format(L"%s-%d", static_cast<LPCWSTR>(m_Raiz),
                       static_cast<int>(m_Fotos.size()) + 1);
    fichero += L".png";
    const CString ruta = m_Carpeta + L"\\" + fichero;
    if (!kit::savePicture(ventana, ruta)) {
        m_SinEscribir = ruta;
        // What the other steps miss then is no news: the tour ends.
        kit::setReporter({.fail = [](const std::string&, const kit::Where&) {}});
        throw kit::Abandoned();
    }
    m_Fotos.push_back({fichero, pie});
}

INT_PTR Visita::Corre(const std::function<INT_PTR()>& abre) {
    const INT_PTR resultado = m_Guion.run(abre);
    if (!m_SinEscribir.IsEmpty())
        throw Fault{Refusal(m_SinEscribir, L"the picture cannot be written").GetString()};
    return resultado;
}
