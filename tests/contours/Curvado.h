// What the tests of the contour options share: the numbers of their controls, and a record and a
// model over which every part of the dialog is in use and OK has nothing to refuse.
#pragma once

#include "cuadros/contours/CurvadoDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/ContoursIds.h"
#include "cuadros/resources/StringIds.h"

#include <tuple>
#include <vector>

namespace {

using Cotana::CDataCurvado;

constexpr int Escala = IDC_CURVADO_ESCALA;
constexpr int Equidistancia = IDC_CURVADO_EQUIDISTANCIA;
constexpr int EquidistanciaMaestra = IDC_CURVADO_EQUIDISTANCIA_MAESTRA;
constexpr int Avanzado = IDC_CURVADO_AVANZADO;
constexpr int Codigos = IDC_CURVADO_CODIGOS;
constexpr int TextoCurvas = IDC_CURVADO_TEXTO_CURVAS;
constexpr int TextoValor1 = IDC_CURVADO_TEXTO_VALOR_1;
constexpr int TextoValor2 = IDC_CURVADO_TEXTO_VALOR_2;
constexpr int TextoEntero = IDC_CURVADO_TEXTO_ENTERO;
constexpr int OpcionTexto = IDC_CURVADO_OPCION_TEXTO;
constexpr int RangoCota = IDC_CURVADO_RANGO_COTA;
constexpr int CotaMinima = IDC_CURVADO_COTA_MINIMA;
constexpr int CotaMaxima = IDC_CURVADO_COTA_MAXIMA;
constexpr int CotaMinimaModelo = IDC_CURVADO_COTA_MINIMA_MODELO;
constexpr int CotaMaximaModelo = IDC_CURVADO_COTA_MAXIMA_MODELO;
constexpr int Limite = IDC_CURVADO_LIMITE;
constexpr int FicheroLimite = IDC_CURVADO_FICHERO_LIMITE;
constexpr int Buscar = IDC_CURVADO_BUSCAR;
constexpr int TipoSuavizado = IDC_CURVADO_TIPO_SUAVIZADO;
constexpr int NivelSuavizado = IDC_CURVADO_NIVEL_SUAVIZADO;
constexpr int NivelFlechas = IDC_CURVADO_NIVEL_FLECHAS;
constexpr int OpcionSuavizado = IDC_CURVADO_OPCION_SUAVIZADO;
constexpr int Opcion1 = IDC_CURVADO_OPCION_1;
constexpr int RespetarCurvas = IDC_CURVADO_RESPETAR_CURVAS;
constexpr int CurvasARespetar1 = IDC_CURVADO_CURVAS_A_RESPETAR_1;
constexpr int CurvasARespetar2 = IDC_CURVADO_CURVAS_A_RESPETAR_2;

/// What a host may hide, in the order in which it is shown or hidden.
const std::vector<int> Ocultables = {20024,
                                     TipoSuavizado,
                                     20208,
                                     20209,
                                     NivelSuavizado,
                                     NivelFlechas,
                                     OpcionSuavizado,
                                     Opcion1,
                                     RespetarCurvas,
                                     CurvasARespetar1,
                                     CurvasARespetar2,
                                     20214,
                                     20215};

/// What counts for a type of smoothing other than the first.
const Controles DeSuavizado = {OpcionSuavizado, NivelSuavizado, NivelFlechas};

/// A check box, its field, and what it enables.
struct Casilla {
    int control;
    int CDataCurvado::*campo;
    Controles dependientes;
};
const std::vector<Casilla> Casillas = {
    {TextoCurvas,
     &CDataCurvado::m_TextoCurvas,
     {TextoValor1, TextoValor2, TextoEntero, OpcionTexto}},
    {Limite, &CDataCurvado::m_Limite, {FicheroLimite, Buscar}},
    {RespetarCurvas, &CDataCurvado::m_RespetarCurvas, {CurvasARespetar1, CurvasARespetar2}},
    {RangoCota, &CDataCurvado::m_RangoCota, {CotaMinima, CotaMaxima}},
};

inline void Une(Controles& controles, const Controles& otros) {
    controles.insert(otros.begin(), otros.end());
}

/// Every field of a record, to compare it with what it was.
inline auto Campos(const CDataCurvado& data) {
    return std::make_tuple(
        data.m_ValorAvanzado1, data.m_ValorAvanzado2, data.m_AvanzadoPorEscala, data.m_TextoCurvas,
        data.m_Limite, data.m_OpcionSuavizado, data.m_Opcion1, data.m_RespetarCurvas,
        data.m_RangoCota, data.m_OpcionTexto, data.m_CodigoCurvas1, data.m_CodigoCurvas2,
        data.m_CodigoCurvas3, data.m_CodigoCurvas4, data.m_CodigoCurvas5, data.m_CurvasARespetar1,
        data.m_CurvasARespetar2, data.m_FicheroLimite, data.m_Escala, data.m_TextoValor1,
        data.m_Equidistancia, data.m_EquidistanciaMaestra, data.m_TextoValor2, data.m_CotaMinima,
        data.m_CotaMaxima, data.m_TextoEntero, data.m_NivelSuavizado, data.m_TipoSuavizado);
}

class Curvado : public ConDialogo {
protected:
    Curvado() {
        data.m_ValorAvanzado1 = 0.5;
        data.m_ValorAvanzado2 = 1.5;
        data.m_AvanzadoPorEscala = FALSE;
        data.m_TextoCurvas = TRUE;
        data.m_Limite = TRUE;
        data.m_OpcionSuavizado = TRUE;
        data.m_Opcion1 = FALSE;
        data.m_RespetarCurvas = TRUE;
        data.m_RangoCota = TRUE;
        data.m_OpcionTexto = FALSE;
        data.m_CodigoCurvas1 = L"C1";
        data.m_CodigoCurvas2 = L"C2";
        data.m_CodigoCurvas3 = L"C3";
        data.m_CodigoCurvas4 = L"C4";
        data.m_CodigoCurvas5 = L"C5";
        data.m_CurvasARespetar1 = L"N1";
        data.m_CurvasARespetar2 = L"N2";
        data.m_FicheroLimite = L"C:\\limit.dxf";
        data.m_Escala = 1000;
        data.m_TextoValor1 = 2.5;
        data.m_Equidistancia = 5;
        data.m_EquidistanciaMaestra = 25;
        data.m_TextoValor2 = 120;
        data.m_CotaMinima = 180;
        data.m_CotaMaxima = 320.5;
        data.m_TextoEntero = 3;
        data.m_NivelSuavizado = 4;
        data.m_TipoSuavizado = 2;
    }

    /// A dialog over the record and the model.
    template <class Dlg = CCurvadoDlg>
    Dlg Dialogo(CWnd* padre = nullptr) {
        return Dlg(data, plantilla, cotaMinimaModelo, cotaMaximaModelo, extras, padre);
    }

    INT_PTR Ejecuta(CWnd* padre) override { return Dialogo(padre).DoModal(); }

    /// Clears every check box that enables others, and takes the first type of smoothing.
    void NadaEnUso() {
        for (const Casilla& casilla : Casillas)
            data.*casilla.campo = FALSE;
        data.m_TipoSuavizado = 0;
    }

    CDataCurvado data;
    CDocTemplate* plantilla = nullptr;
    double cotaMinimaModelo = 150;
    double cotaMaximaModelo = 400;
    int extras = SW_SHOWNORMAL;
};

} // namespace
