#include "sample/EjemploApp.h"

#include <commdlg.h>
#include <shellapi.h>

#include <utility>

#include "sample/ClassificationFile.h"
#include "sample/CodeTableFile.h"
#include "sample/Conversacion.h"
#include "sample/LanzadorDlg.h"
#include "sample/LineaOrdenes.h"
#include "sample/Recorrido.h"
#include "sample/Rutas.h"
#include "sample/terrain/AscGridFile.h"
#include "sample/terrain/Contours.h"

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
    EnableHtmlHelp(); // F1 comes to HtmlHelp, as the Help buttons do

    const LineaOrdenes linea = LineaDelPrograma();
    CString error = linea.error;
    if (error.IsEmpty())
        error = LeeTerreno(linea);
    if (error.IsEmpty())
        error = HazCarpeta(linea.carpetaDibujos.IsEmpty() ? linea.carpetaRecorrido
                                                          : linea.carpetaDibujos,
                           m_Terreno.carpetaDibujos);
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

CString CEjemploApp::LeeTerreno(const LineaOrdenes& linea) {
    const CString carpeta = BuscaHaciaArriba(L"sample\\data");
    m_Terreno.carpetaNubes = carpeta + L"\\clouds";
    m_Terreno.carpetaLimites = carpeta + L"\\boundaries";
    CString error = ReadCodeTableFile(
        linea.ficheroCodigos.IsEmpty() ? carpeta + L"\\survey-codes.txt" : linea.ficheroCodigos,
        m_Terreno.codigos);
    if (error.IsEmpty())
        error =
            ReadClassificationFile(carpeta + L"\\classifications.txt", m_Terreno.clasificaciones);
    if (error.IsEmpty())
        error = ReadAscGridFile(linea.ficheroRejilla.IsEmpty() ? carpeta + L"\\terrain\\hills.asc"
                                                               : linea.ficheroRejilla,
                                m_Terreno.modelo);
    if (error.IsEmpty()) {
        Cotana::CDataCurvado& curvado = m_Terreno.curvado;
        curvado.m_Equidistancia =
            SuitableInterval({m_Terreno.modelo.Lowest(), m_Terreno.modelo.Highest()});
        curvado.m_EquidistanciaMaestra = 5 * curvado.m_Equidistancia;
    }
    return error;
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
        // As the class of web pages: Windows has no program of its own for this kind of file.
        SHELLEXECUTEINFOW orden = {};
        orden.cbSize = sizeof(orden);
        orden.fMask = SEE_MASK_CLASSNAME | SEE_MASK_FLAG_NO_UI;
        orden.lpFile = pagina;
        orden.lpClass = L"htmlfile";
        orden.nShow = SW_SHOWNORMAL;
        if (!ShellExecuteExW(&orden))
            AfxMessageBox(L"The page of this dialog:\n" + pagina, MB_ICONINFORMATION);
        return;
    }
}

BOOL CEjemploApp::PideFichero(CString& nombre, UINT titulo, DWORD opciones, BOOL abrir,
                              CDocTemplate** plantilla, int clase, void* reservado) {
    // Point clouds are asked for several at a time, boundaries one by one. The system's dialog
    // shows the current folder first.
    const bool nubes = opciones & OFN_ALLOWMULTISELECT;
    SetCurrentDirectoryW(nubes ? m_Terreno.carpetaNubes : m_Terreno.carpetaLimites);
    return CAplicacion::PideFichero(nombre, titulo, opciones, abrir, plantilla, clase, reservado);
}

std::vector<DWORD_PTR> CEjemploApp::RecogeAyudas() {
    return std::exchange(m_Ayudas, {});
}
