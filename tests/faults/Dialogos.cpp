#include "Dialogos.h"

#include "cuadros/Cuadros.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/TriangulationIds.h"

#include <tuple>
#include <utility>

namespace {

using namespace Cotana;

template <class Dlg, class... Variables>
Dialogo De(std::string nombre, UINT plantilla, Variables... variables) {
    const auto hazlo = [=](CWnd* padre, const Dialogo::Uso& uso) {
        std::tuple<Variables...> suyas(variables...);
        std::apply(
            [&](auto&... suya) {
                Dlg dialogo(suya..., padre);
                uso(dialogo);
            },
            suyas);
    };
    return {std::move(nombre), plantilla, hazlo};
}

CDataTriangulacion Triangulacion() {
    CDataTriangulacion data;
    data.m_Nombre = L"North slope";
    for (const wchar_t* codigo : {L"RD", L"WL", L"TR"})
        data.m_Codigos.Inserta(CElementoDigiTab(codigo, L"Mnemonic"), true);
    return data;
}

std::vector<CInfoClasificacion> Clasificaciones() {
    return {CInfoClasificacion(2, 148210, L"Ground"), CInfoClasificacion(6, 5120, L"Buildings")};
}

} // namespace

const std::vector<Dialogo>& Dialogos() {
    using Ficheros = std::vector<CString>;
    CDocTemplate* const ninguna = nullptr;
    const CString vacio;
    // clang-format off
    static const std::vector<Dialogo> dialogos = {
        De<CTriangulacionDlg>("CTriangulacionDlg", IDD_TRIANGULACION, Triangulacion()),
        De<CTriangulacion2DDlg>("CTriangulacion2DDlg", IDD_TRIANGULACION_2D, Clasificaciones(), 2.5, vacio, 1),
        De<CTriangulacion3DDlg>("CTriangulacion3DDlg", IDD_TRIANGULACION_3D, Clasificaciones(), 2.5, 1, 1),
        De<CTriangulacion3DDiscoDlg>("CTriangulacion3DDiscoDlg", IDD_TRIANGULACION_3D_DISCO, Ficheros(), ninguna, 2.5, 0),
        De<CGenerarCasesDlg>("CGenerarCasesDlg", IDD_GENERAR_CASES, Ficheros(), ninguna, 2.5),
        De<CSuavizarTINDlg>("CSuavizarTINDlg", IDD_SUAVIZAR_TIN, CDataSuavizarTIN{}),
        De<CLimpiarRelieveDlg>("CLimpiarRelieveDlg", IDD_LIMPIAR_RELIEVE, CDataLimpiarRelieve()),
        De<CLimpiarRelieveRangoZDlg>("CLimpiarRelieveRangoZDlg", IDD_LIMPIAR_RELIEVE_RANGO_Z, CDataLimpiarRelieveRangoZ()),
        De<CCurvadoDlg>("CCurvadoDlg", IDD_CURVADO, CDataCurvado{}, ninguna, 150.0, 400.0, 1),
        De<CCurvadoCodigosDlg>("CCurvadoCodigosDlg", IDD_CURVADO_CODIGOS, vacio, vacio, vacio, vacio, vacio),
        De<CCurvadoTriangulacionDlg>("CCurvadoTriangulacionDlg", IDD_CURVADO_TRIANGULACION, 2.5, vacio),
        De<CVectoresPendienteDlg>("CVectoresPendienteDlg", IDD_VECTORES_PENDIENTE, CDataVectoresPendiente{}, ninguna),
        De<CCambiosPendienteTINDlg>("CCambiosPendienteTINDlg", IDD_CAMBIOS_PENDIENTE_TIN, CDataCambiosPendiente{}),
    };
    // clang-format on
    return dialogos;
}
