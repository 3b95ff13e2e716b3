#include "Caso.h"

#include <cotana/dialogos_dibujo/CurvadoAvanzadoDlg.h>
#include <cotana/dialogos_dibujo/DialogosDibujoIds.h>

#include "cuadros/Cuadros.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/ImportIds.h"
#include "cuadros/resources/TriangulationIds.h"

#include <shellapi.h>

#include <cstdlib>
#include <cxxabi.h>

using namespace Cotana;

std::string NombreDe(const std::type_info& clase) {
    const std::unique_ptr<char, decltype(&std::free)> completo(
        abi::__cxa_demangle(clase.name(), nullptr, nullptr, nullptr), &std::free);
    std::string nombre(completo.get());
    return nombre.substr(nombre.rfind(':') + 1);
}

namespace {

// What the dialogs are made over: every control is in use, and OK has nothing to refuse once the
// user has done his part.

template <class... T>
std::tuple<T...> Nuevos() {
    return {};
}

auto Curvado() {
    CDataCurvado data;
    data.m_TextoCurvas = TRUE;
    data.m_Limite = TRUE;
    data.m_FicheroLimite = L"C:\\limit.dxf";
    data.m_RespetarCurvas = TRUE;
    data.m_RangoCota = TRUE;
    data.m_CotaMinima = 180;
    data.m_CotaMaxima = 320.5;
    data.m_TipoSuavizado = 2;
    return std::tuple(data, static_cast<CDocTemplate*>(nullptr), 150.0, 400.0, SW_SHOWNORMAL);
}

auto CurvadoAvanzado() {
    return std::tuple(1000, 0.5, 2.25, 0);
}

auto CurvadoTriangulacion() {
    return std::tuple(2.5, CString(L"CV"));
}

auto ImportarGTOPO30() {
    CDataImportarGTOPO30 data;
    data.m_Paso.m_X = data.m_Paso.m_Y = 1;
    return std::tuple(data, SW_SHOWNORMAL);
}

auto ImportarGrid() {
    CDataImportarGrid data;
    data.m_Paso.m_X = 1;
    return std::tuple(data);
}

auto ProyectarDEM() {
    CDataProyectaDEM data;
    data.m_Informe = TRUE;
    data.m_FicheroInforme = L"report.txt";
    return std::tuple(data);
}

auto TipoProyeccion() {
    return std::tuple(CDataTipoProyeccion{1, 1});
}

auto Suavizar() {
    CDataSuavizarTIN data;
    data.m_Iterar = TRUE;
    return std::tuple(data);
}

std::vector<CInfoClasificacion> Clasificaciones() {
    return {CInfoClasificacion(2, 148210, L"Ground"), CInfoClasificacion(9, 733, L"Water")};
}

auto Triangulacion() {
    CDataTriangulacion data;
    data.m_Nombre = L"North slope";
    data.m_NoUnirCurvas = TRUE;
    data.m_Codigos.Inserta(CElementoDigiTab(L"RD", L"Road edge"), true);
    data.m_Codigos.Inserta(CElementoDigiTab(L"WL", L"Wall"), true);
    return std::tuple(data);
}

auto Triangulacion2D() {
    return std::tuple(Clasificaciones(), 2.5, CString(L"North slope"), 1);
}

auto Triangulacion3D() {
    return std::tuple(Clasificaciones(), 2.5, 0, 1);
}

auto Vectores() {
    CDataVectoresPendiente data;
    data.m_Cadena1 = L"SV";
    data.m_Cadena2 = L"SL";
    data.m_Limite = TRUE;
    return std::tuple(data, static_cast<CDocTemplate*>(nullptr));
}

const Caso::Rangos DeAvanzado = {{IDC_CURVADO_AVANZADO_VALOR_1, {L"0", L"1000000"}},
                                 {IDC_CURVADO_AVANZADO_VALOR_2, {L"0", L"1000000"}}};

// What their users do.

void BuscaLimite(kit::Dialog& dialogo) {
    kit::app.answerFilePrompt(L"edge.dat");
    dialogo.press(IDC_VECTORES_PENDIENTE_BUSCAR);
}

void BuscaProyeccion(kit::Dialog& dialogo) {
    kit::app.answerFilePrompt(L"utm.prj");
    dialogo.press(IDC_PROYECTAR_DEM_BUSCAR_PROYECCION);
}

void CambiaElSuavizado(kit::Dialog& dialogo) {
    dialogo.choose(IDC_CURVADO_TIPO_SUAVIZADO, 1);
    dialogo.spin(IDC_CURVADO_NIVEL_FLECHAS, 1);
}

void EligeTodas(kit::Dialog& dialogo) {
    dialogo.press(IDC_TRIANGULACION_3D_TODAS);
}

void QuitaUnCodigo(kit::Dialog& dialogo) {
    dialogo.list(IDC_TRIANGULACION_CODIGOS).select(1, false);
}

void SumaYRestaFicheros(kit::Dialog& dialogo) {
    constexpr int hojas = IDC_GENERAR_CASES_HOJAS;
    kit::app.answerFilePrompt(L"C:\\p.xyz \"C:\\q r.xyz\"");
    dialogo.press(IDC_GENERAR_CASES_SUMAR);
    HDROP soltados = nullptr;
    {
        const Escucha escucha(dialogo.handle(), [&](UINT mensaje, WPARAM w, LPARAM) {
            if (mensaje == WM_DROPFILES)
                soltados = reinterpret_cast<HDROP>(w);
            return std::optional<LRESULT>();
        });
        dialogo.drop({L"C:\\a.xyz", L"C:\\b.xyz"});
    }
    DragFinish(soltados); // the dialog leaves it to the system
    dialogo.listBox(hojas).choose({1, 3});
    dialogo.press(IDC_GENERAR_CASES_RESTAR);
    dialogo.listBox(hojas).choose({0});
}

} // namespace

const std::vector<Caso>& Casos() {
    constexpr auto Si = Informacion::Si;
    constexpr auto No = Informacion::No;
    // clang-format off
    static const std::vector<Caso> casos = {
        // class, template, icon, help, class information, over what, what the user does, ranges
        De<CCambiosPendienteTINDlg> (IDD_CAMBIOS_PENDIENTE_TIN,  IDI_TRIANGULACION,   Propia(151185), Si, Nuevos<CDataCambiosPendiente>),
        De<CCurvadoAvanzadoDlg>     (IDD_CURVADO_AVANZADO,       SinIcono,            SinAyuda,       No, CurvadoAvanzado, NoHaceNada, DeAvanzado),
        De<CCurvadoCodigosDlg>      (IDD_CURVADO_CODIGOS,        IDI_CURVADO,         Propia(151074), Si, Nuevos<CString, CString, CString, CString, CString>),
        De<CCurvadoDlg>             (IDD_CURVADO,                IDI_CURVADO,         Propia(151165), No, Curvado, CambiaElSuavizado),
        De<CCurvadoTriangulacionDlg>(IDD_CURVADO_TRIANGULACION,  IDI_TRIANGULACION,   SinAyuda,       Si, CurvadoTriangulacion),
        De<CGenerarCasesDlg>        (IDD_GENERAR_CASES,          IDI_TRIANGULACION,   SinAyuda,       Si, Nuevos<std::vector<CString>, CDocTemplate*, double>, SumaYRestaFicheros),
        De<CImportarGTOPO30Dlg>     (IDD_IMPORTAR_GTOPO30,       IDI_IMPORTAR_REJILLA,Propia(145115), No, ImportarGTOPO30),
        De<CImportarGridDlg>        (IDD_IMPORTAR_GRID,          IDI_IMPORTAR_REJILLA,Propia(145125), No, ImportarGrid),
        De<CLimpiarRelieveDlg>      (IDD_LIMPIAR_RELIEVE,        IDI_LIMPIAR_RELIEVE, Propia(150073), No, Nuevos<CDataLimpiarRelieve>),
        De<CLimpiarRelieveRangoZDlg>(IDD_LIMPIAR_RELIEVE_RANGO_Z,IDI_LIMPIAR_RELIEVE, Propia(150139), Si, Nuevos<CDataLimpiarRelieveRangoZ>),
        De<CProyectarDEMDlg>        (IDD_PROYECTAR_DEM,          SinIcono,            Propia(150393), Si, ProyectarDEM, BuscaProyeccion),
        De<CSuavizarTINDlg>         (IDD_SUAVIZAR_TIN,           IDI_TRIANGULACION,   Propia(151186), Si, Suavizar),
        De<CTipoProyeccionDlg>      (IDD_TIPO_PROYECCION,        IDI_PROYECCION,      Propia(145391), No, TipoProyeccion),
        De<CTriangulacion2DDlg>     (IDD_TRIANGULACION_2D,       IDI_TRIANGULACION,   SinAyuda,       Si, Triangulacion2D, EligeTodas),
        De<CTriangulacion3DDiscoDlg>(IDD_TRIANGULACION_3D_DISCO, IDI_TRIANGULACION,   SinAyuda,       Si, Nuevos<std::vector<CString>, CDocTemplate*, double, int>, SumaYRestaFicheros),
        De<CTriangulacion3DDlg>     (IDD_TRIANGULACION_3D,       IDI_TRIANGULACION,   SinAyuda,       Si, Triangulacion3D, EligeTodas),
        De<CTriangulacionDlg>       (IDD_TRIANGULACION,          IDI_TRIANGULACION,   SoloF1(150083), No, Triangulacion, QuitaUnCodigo),
        De<CVectoresPendienteDlg>   (IDD_VECTORES_PENDIENTE,     IDI_PENDIENTES,      Propia(151299), Si, Vectores, BuscaLimite),
    };
    // clang-format on
    return casos;
}
