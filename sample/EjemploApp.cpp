#include "sample/EjemploApp.h"

#include <shellapi.h>

#include <utility>

#include "sample/CodeTableFile.h"
#include "sample/Conversacion.h"
#include "sample/LanzadorDlg.h"
#include "sample/LineaOrdenes.h"
#include "sample/Recorrido.h"
#include "sample/Rutas.h"

namespace {

CEjemploApp ejemplo;

LineaOrdenes LineaDelPrograma() {
    int cuantos = 0;
    wchar_t** palabras = CommandLineToArgvW(GetCommandLineW(), &cuantos);
    const std::span<const wchar_t* const> todas(palabras, cuantos);
    LineaOrdenes linea = LeeLineaOrdenes(todas.subspan(1));
    LocalFree(palabras);
    return linea;
}

} // namespace

CEjemploApp::CEjemploApp() : CAplicacion(L"Ejemplo") {}

BOOL CEjemploApp::InitInstance() {
    CAplicacion::InitInstance();

    LineaOrdenes linea = LineaDelPrograma();
    if (linea.ficheroCodigos.IsEmpty())
        linea.ficheroCodigos = BuscaHaciaArriba(L"sample\\data\\survey-codes.txt");
    CString error = linea.error;
    if (error.IsEmpty())
        error = ReadCodeTableFile(linea.ficheroCodigos, m_Terreno.codigos);
    if (!error.IsEmpty()) {
        if (!Escribe(error + L"\n", true))
            AfxMessageBox(error, MB_ICONERROR);
        m_CodigoSalida = 1;
        return FALSE;
    }

    if (linea.carpetaRecorrido.IsEmpty()) {
        CLanzadorDlg lanzador(m_Terreno);
        m_pMainWnd = &lanzador;
        lanzador.DoModal();
        m_pMainWnd = nullptr;
    } else {
        m_DeRecorrido = true;
        m_CodigoSalida = Recorre(*this, m_Terreno, linea.carpetaRecorrido) ? 0 : 1;
    }
    return FALSE; // the program was the dialog, or the tour: there is no message loop to run
}

int CEjemploApp::ExitInstance() {
    CAplicacion::ExitInstance();
    return m_CodigoSalida;
}

void CEjemploApp::HtmlHelp(DWORD_PTR dwData, UINT) {
    m_Ayudas.push_back(dwData);
    if (m_DeRecorrido)
        return;
    for (const Conversacion& conversacion : Conversaciones()) {
        if (conversacion.ayuda != dwData)
            continue;
        const CString pagina =
            BuscaHaciaArriba(L"docs\\dialogs\\" + CString(conversacion.raiz) + L".md");
        const auto resultado = reinterpret_cast<INT_PTR>(
            ShellExecuteW(nullptr, L"open", pagina, nullptr, nullptr, SW_SHOWNORMAL));
        if (resultado <= 32)
            AfxMessageBox(L"The page of this dialog:\n" + pagina, MB_ICONINFORMATION);
        return;
    }
}

std::vector<DWORD_PTR> CEjemploApp::RecogeAyudas() {
    return std::exchange(m_Ayudas, {});
}
