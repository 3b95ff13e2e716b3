#include "sample/conversaciones/Triangulacion.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/TriangulacionDlg.h"

void PreparaTriangulacion(Terreno& terreno) {
    Cotana::CDataTriangulacion& data = terreno.triangulacion;
    if (data.m_Nombre.IsEmpty())
        data.m_Nombre = L"North slope";
    // An accepted dialog leaves only the chosen codes in the record: offer all of them again.
    data.m_Codigos = terreno.codigos;
}

INT_PTR AbreTriangulacion(Terreno& terreno, CWnd* padre) {
    return Cotana::CTriangulacionDlg(terreno.triangulacion, padre).DoModal();
}

Ficha FichaTriangulacion(const Terreno& terreno) {
    const Cotana::CDataTriangulacion& data = terreno.triangulacion;
    return {
        {L"m_LimiteInferior", Valor(data.m_LimiteInferior)},
        {L"m_LimiteSuperior", Valor(data.m_LimiteSuperior)},
        {L"m_DistanciaNoUnir", Valor(data.m_DistanciaNoUnir)},
        {L"m_ParametroExtra", Valor(data.m_ParametroExtra)},
        {L"m_TipoRuptura", Valor(data.m_TipoRuptura)},
        {L"m_Nombre", Valor(data.m_Nombre)},
        {L"m_Rupturas", Valor(data.m_Rupturas)},
        {L"m_NoUnirCurvas", Valor(data.m_NoUnirCurvas)},
        {L"m_Codigos", Valor(data.m_Codigos)},
        {L"m_CodigosRuptura", Valor(data.m_CodigosRuptura)},
        {L"m_CodigosExtra1", Valor(data.m_CodigosExtra1)},
        {L"m_CodigosExtra2", Valor(data.m_CodigosExtra2)},
    };
}

void ConduceTriangulacion(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens: every code takes part.");
        dialogo.help();

        dialogo.type(IDC_TRIANGULACION_NOMBRE, L"North slope, 2nd survey");
        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"900");
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"250.5");
        dialogo.press(IDOK);

        dialogo.type(IDC_TRIANGULACION_LIMITE_INFERIOR, L"250.5");
        dialogo.type(IDC_TRIANGULACION_LIMITE_SUPERIOR, L"900");
        dialogo.check(IDC_TRIANGULACION_NO_UNIR_CURVAS);
        dialogo.type(IDC_TRIANGULACION_DISTANCIA_NO_UNIR, L"12.5");
        dialogo.check(IDC_TRIANGULACION_TIPO_RUPTURA_2);

        // The ground takes part, and what bounds it; breaklines are those that are named so.
        kit::ListView codigos = dialogo.list(IDC_TRIANGULACION_CODIGOS);
        for (const wchar_t* codigo : {L"POL-E", L"POL-T", L"MHC", L"HYD", L"GUL", L"MRK-G"})
            codigos.click(codigos.find(codigo), kit::Held::Ctrl);
        dialogo.press(IDC_TRIANGULACION_NINGUNA_RUPTURA);
        kit::ListView rupturas = dialogo.list(IDC_TRIANGULACION_RUPTURAS);
        for (const wchar_t* codigo : {L"BRK-T", L"BRK-B", L"BRK-S", L"RDG", L"VAL"})
            rupturas.click(rupturas.find(codigo), kit::Held::Ctrl);
        visita.Fotografia(dialogo.handle(), L"Filled in, right before OK.");
        dialogo.press(IDOK);
    });
    visita.Guion().expectMessage().inspect([&visita](kit::MessageDialog& aviso) {
        visita.Fotografia(aviso.handle(), L"The lower limit was above the upper one.");
    });
}
