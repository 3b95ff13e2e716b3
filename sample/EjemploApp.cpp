#include "sample/EjemploApp.h"

#include <commdlg.h>
#include <shellapi.h>

#include "sample/ClassificationFile.h"
#include "sample/CodeTableFile.h"
#include "sample/Conversacion.h"
#include "sample/ImportaTerreno.h"
#include "sample/LanzadorDlg.h"
#include "sample/Rutas.h"
#include "sample/terrain/AscGridFile.h"
#include "sample/terrain/Contours.h"

CEjemploApp::CEjemploApp() : CAplicacion(L"Ejemplo") {}

BOOL CEjemploApp::InitInstance() {
    CAplicacion::InitInstance();
    EnableHtmlHelp(); // F1 comes to HtmlHelp, as the Help buttons do

    int cuantas = 0;
    wchar_t** palabras = CommandLineToArgvW(GetCommandLineW(), &cuantas);
    const LineaOrdenes linea = LeeOrdenes(std::span(palabras, cuantas).subspan(1));
    LocalFree(palabras);
    CString error = linea.error;
    if (error.IsEmpty())
        error = LeeTerreno(linea);
    if (error.IsEmpty())
        error = HazCarpeta(linea.carpetaDibujos, m_Terreno.carpetaDibujos);
    if (!error.IsEmpty()) {
        if (!Escribe(error + L"\n", true))
            AfxMessageBox(error, MB_ICONERROR);
        m_CodigoSalida = 1;
        return FALSE;
    }

    m_CodigoSalida = Corre(m_Terreno);
    return FALSE; // the program was a dialog: there is no message loop to run
}

LineaOrdenes CEjemploApp::LeeOrdenes(Palabras palabras) {
    return LeeLineaOrdenes(palabras, L"Ejemplo");
}

int CEjemploApp::Corre(Terreno& terreno) {
    CLanzadorDlg lanzador(terreno);
    m_pMainWnd = &lanzador;
    lanzador.DoModal();
    m_pMainWnd = nullptr;
    return 0;
}

CString CEjemploApp::LeeTerreno(const LineaOrdenes& linea) {
    const CString carpeta = BuscaHaciaArriba(L"sample\\data");
    m_Terreno.carpetaNubes = carpeta + L"\\clouds";
    m_Terreno.carpetaLimites = carpeta + L"\\boundaries";
    CString error = ReadCodeTableFile(
        linea.ficheroCodigos.IsEmpty() ? carpeta + L"\\survey-codes.txt" : linea.ficheroCodigos,
        m_Terreno.codigos);
    if (error.IsEmpty())
        error = ReadClassificationFile(linea.ficheroClasificaciones.IsEmpty()
                                           ? carpeta + L"\\classifications.txt"
                                           : linea.ficheroClasificaciones,
                                       m_Terreno.clasificaciones);
    m_Terreno.ficheroRejilla =
        linea.ficheroRejilla.IsEmpty() ? carpeta + L"\\terrain\\hills.asc" : linea.ficheroRejilla;
    m_Terreno.ficheroTesela =
        linea.ficheroTesela.IsEmpty() ? carpeta + L"\\terrain\\W006N41.DEM" : linea.ficheroTesela;
    if (error.IsEmpty())
        error = ReadAscGridFile(m_Terreno.ficheroRejilla, m_Terreno.modelo);
    if (error.IsEmpty())
        error = PreparaImportacion(m_Terreno);
    if (error.IsEmpty()) {
        // They are read again after file prompts, which change the current folder.
        for (CString* fichero : {&m_Terreno.ficheroRejilla, &m_Terreno.ficheroTesela})
            *fichero = RutaCompleta(*fichero);
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
    for (const Conversacion* conversacion : Conversaciones()) {
        if (conversacion->ayuda != dwData)
            continue;
        const CString pagina =
            BuscaHaciaArriba(L"docs\\dialogs\\" + CString(conversacion->raiz) + L".md");
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
