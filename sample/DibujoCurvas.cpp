#include "sample/DibujoCurvas.h"

#include "sample/terrain/ContourDrawing.h"
#include "sample/terrain/Contours.h"
#include "sample/terrain/DxfFile.h"
#include "sample/terrain/SvgFile.h"

namespace {

constexpr wchar_t FicheroDxf[] = L"contours.dxf";
constexpr wchar_t FicheroSvg[] = L"contours.svg";

ContourOptions Opciones(const Cotana::CDataCurvado& data) {
    ContourOptions opciones{data.m_Equidistancia, data.m_EquidistanciaMaestra, std::nullopt};
    if (data.m_RangoCota)
        opciones.range = ElevationRange{data.m_CotaMinima, data.m_CotaMaxima};
    return opciones;
}

/// The layers bear the codes; those without a code keep the names that they have.
ContourLayers Capas(const Cotana::CDataCurvado& data) {
    ContourLayers capas;
    const auto nombra = [](CString& capa, const CString& codigo) {
        if (!codigo.IsEmpty())
            capa = codigo;
    };
    nombra(capas.contours, data.m_CodigoCurvas1);
    nombra(capas.masters, data.m_CodigoCurvas2);
    nombra(capas.depressions, data.m_CodigoCurvas3);
    nombra(capas.masterDepressions, data.m_CodigoCurvas4);
    nombra(capas.labels, data.m_CodigoCurvas5);
    return capas;
}

CString Rotula(const Cotana::CDataCurvado& data, ContourDrawing& dibujo) {
    if (!data.m_TextoCurvas)
        return {};
    return LabelContours({.height = data.m_TextoValor1,
                          .spacing = data.m_TextoValor2,
                          .decimals = data.m_TextoEntero,
                          .mastersOnly = data.m_OpcionTexto != 0},
                         dibujo);
}

CString Dibuja(const Terreno& terreno, ContourDrawing& dibujo) {
    const Cotana::CDataCurvado& data = terreno.curvado;
    CString error = TraceContours(terreno.modelo, Opciones(data), dibujo.contours);
    if (error.IsEmpty())
        error = Rotula(data, dibujo);
    if (error.IsEmpty())
        error = WriteDxfFile(terreno.carpetaDibujos + L"\\" + FicheroDxf, dibujo);
    if (error.IsEmpty())
        error = WriteSvgFile(terreno.carpetaDibujos + L"\\" + FicheroSvg, dibujo);
    return error;
}

} // namespace

Hecho DibujaCurvas(const Terreno& terreno) {
    ContourDrawing dibujo(terreno.modelo);
    dibujo.title = L"Contours";
    dibujo.layers = Capas(terreno.curvado);
    dibujo.scale = terreno.curvado.m_Escala;
    const CString error = Dibuja(terreno, dibujo);
    if (!error.IsEmpty())
        return {error, true, {}};

    CString texto;
    texto.Format(L"%d contours and %d labels drawn: %s and %s in %s.",
                 static_cast<int>(dibujo.contours.size()), static_cast<int>(dibujo.labels.size()),
                 FicheroDxf, FicheroSvg, terreno.carpetaDibujos.GetString());
    return {texto, false, FicheroSvg};
}
