#include "sample/conversaciones/CurvadoCodigos.h"

#include "cuadros/contours/CurvadoCodigosDlg.h"
#include "cuadros/resources/ContoursIds.h"

void PreparaCurvadoCodigos(Terreno&) {}

INT_PTR AbreCurvadoCodigos(Terreno& terreno, CWnd* padre) {
    Cotana::CDataCurvado& data = terreno.curvado;
    return CCurvadoCodigosDlg(data.m_CodigoCurvas1, data.m_CodigoCurvas2, data.m_CodigoCurvas3,
                              data.m_CodigoCurvas4, data.m_CodigoCurvas5, padre)
        .DoModal();
}

Ficha FichaCurvadoCodigos(const Terreno& terreno) {
    const Cotana::CDataCurvado& data = terreno.curvado;
    return {
        {L"m_CodigoCurvas1", Valor(data.m_CodigoCurvas1)},
        {L"m_CodigoCurvas2", Valor(data.m_CodigoCurvas2)},
        {L"m_CodigoCurvas3", Valor(data.m_CodigoCurvas3)},
        {L"m_CodigoCurvas4", Valor(data.m_CodigoCurvas4)},
        {L"m_CodigoCurvas5", Valor(data.m_CodigoCurvas5)},
    };
}

void ConduceCurvadoCodigos(Visita& visita) {
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(), L"As it opens.");
        dialogo.help();
        dialogo.type(IDC_CURVADO_CODIGOS_CODIGO_3, L"");
        dialogo.type(IDC_CURVADO_CODIGOS_CODIGO_4, L"");
        dialogo.type(IDC_CURVADO_CODIGOS_CODIGO_5, L"CN-LBL");
        visita.Fotografia(dialogo.handle(), L"A code may be empty, too.");
        dialogo.press(IDOK);
    });
}
