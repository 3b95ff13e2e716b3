#include "sample/DibujoCurvas.h"

#include <new>
#include <vector>

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

/// @return why there are no labels although they were asked for; else empty.
CString Rotula(const Cotana::CDataCurvado& data, ContourDrawing& dibujo) {
    if (!data.m_TextoCurvas)
        return {};
    return LabelContours({.height = data.m_TextoValor1,
                          .spacing = data.m_TextoValor2,
                          .decimals = data.m_TextoEntero,
                          .mastersOnly = data.m_OpcionTexto != 0},
                         dibujo);
}

CString Escribe(const CString& carpeta, const ContourDrawing& dibujo) {
    CString error = WriteDxfFile(carpeta + L"\\" + FicheroDxf, dibujo);
    if (!error.IsEmpty())
        return error;
    error = WriteSvgFile(carpeta + L"\\" + FicheroSvg, dibujo);
    if (!error.IsEmpty())
        error += CString(L"; ") + FicheroDxf + L" was written";
    return error;
}

/// What the record asks for and the drawing leaves out: ", without the boundary".
CString SinHacer(const Cotana::CDataCurvado& data) {
    std::vector<CString> nombres;
    if (data.m_Limite)
        nombres.push_back(L"the boundary");
    if (data.m_RespetarCurvas)
        nombres.push_back(L"the contours to respect");
    if (data.m_TipoSuavizado > 0)
        nombres.push_back(L"the smoothing");
    CString lista;
    for (const CString& nombre : nombres) {
        const bool ultimo = &nombre == &nombres.back();
        lista += (lista.IsEmpty() ? L", without " : ultimo ? L" and " : L", ") + nombre;
    }
    return lista;
}

Hecho Dibuja(const Terreno& terreno) {
    const Cotana::CDataCurvado& data = terreno.curvado;
    ContourDrawing dibujo(terreno.modelo);
    dibujo.title = L"Contours";
    dibujo.layers = Capas(data);
    dibujo.scale = data.m_Escala;
    CString error = TraceContours(terreno.modelo, Opciones(data), dibujo.contours);
    if (!error.IsEmpty())
        return {error, true, {}};
    const CString sinRotulos = Rotula(data, dibujo);
    error = Escribe(terreno.carpetaDibujos, dibujo);
    if (!error.IsEmpty())
        return {error, true, {}};

    CString texto;
    texto.Format(L"%d contours and %d labels drawn%s: %s and %s in %s.",
                 static_cast<int>(dibujo.contours.size()), static_cast<int>(dibujo.labels.size()),
                 SinHacer(data).GetString(), FicheroDxf, FicheroSvg,
                 terreno.carpetaDibujos.GetString());
    if (!sinRotulos.IsEmpty())
        texto += L" No labels: " + sinRotulos + L".";
    return {texto, false, FicheroSvg};
}

} // namespace

Hecho DibujaCurvas(const Terreno& terreno) {
    try {
        return Dibuja(terreno);
    } catch (const std::bad_alloc&) {
        return {L"there is not enough memory for the drawing: choose a larger interval", true, {}};
    }
}
