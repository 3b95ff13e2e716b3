#include "sample/tour/RecorridoApp.h"

#include <utility>

#include "sample/tour/Recorrido.h"

static CRecorridoApp recorrido;

void CRecorridoApp::HtmlHelp(DWORD_PTR dwData, UINT) {
    m_Ayudas.push_back(dwData);
}

std::vector<DWORD_PTR> CRecorridoApp::RecogeAyudas() {
    return std::exchange(m_Ayudas, {});
}

LineaOrdenes CRecorridoApp::LeeOrdenes(Palabras palabras) {
    constexpr wchar_t programa[] = L"Recorrido FOLDER";
    LineaOrdenes linea;
    m_Carpeta = palabras.empty() ? L"" : palabras[0];
    if (m_Carpeta.IsEmpty() || m_Carpeta[0] == L'-') {
        linea.error = L"the tour wants the folder for its results" + Uso(programa);
        return linea;
    }
    linea = LeeLineaOrdenes(palabras.subspan(1), programa);
    if (linea.carpetaDibujos.IsEmpty())
        linea.carpetaDibujos = m_Carpeta;
    return linea;
}

int CRecorridoApp::Corre(Terreno& terreno) {
    return Recorre(*this, terreno, m_Carpeta) ? 0 : 1;
}
