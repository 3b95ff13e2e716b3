// The host and the dialogs of its terrain model share their records: both count on the order of the
// fields.
#include <cotana/modelo/DataCambiosPendiente.h>
#include <cotana/modelo/DataCurvado.h>
#include <cotana/modelo/DataProyectaDEM.h>
#include <cotana/modelo/DataVectoresPendiente.h>

#include "kit/kit.h"

#include <functional>
#include <type_traits>
#include <vector>

namespace {

using Cotana::CDataCambiosPendiente;
using Cotana::CDataCurvado;
using Cotana::CDataProyectaDEM;
using Cotana::CDataVectoresPendiente;

static_assert(!std::is_polymorphic_v<CDataCambiosPendiente>);
static_assert(!std::is_polymorphic_v<CDataCurvado>);
static_assert(!std::is_polymorphic_v<CDataProyectaDEM>);
static_assert(!std::is_polymorphic_v<CDataVectoresPendiente>);

/// These fields are of type `Tipo`.
template <class Tipo, class... Campos>
constexpr bool Son = (std::is_same_v<Campos, Tipo> && ...);

static_assert(
    Son<int, decltype(CDataVectoresPendiente::m_TextoEntero),
        decltype(CDataVectoresPendiente::m_Limite), decltype(CDataCambiosPendiente::m_EnteroCambio),
        decltype(CDataCambiosPendiente::m_GenerarDibujo1),
        decltype(CDataCambiosPendiente::m_GenerarDibujo2),
        decltype(CDataCurvado::m_AvanzadoPorEscala), decltype(CDataCurvado::m_TextoCurvas),
        decltype(CDataCurvado::m_Limite), decltype(CDataCurvado::m_OpcionSuavizado),
        decltype(CDataCurvado::m_Opcion1), decltype(CDataCurvado::m_RespetarCurvas),
        decltype(CDataCurvado::m_RangoCota), decltype(CDataCurvado::m_OpcionTexto),
        decltype(CDataCurvado::m_TextoEntero), decltype(CDataCurvado::m_NivelSuavizado),
        decltype(CDataCurvado::m_TipoSuavizado), decltype(CDataProyectaDEM::m_Informe),
        decltype(CDataProyectaDEM::m_Opcion), decltype(CDataProyectaDEM::m_Tipo)>);
static_assert(Son<unsigned int, decltype(CDataCurvado::m_Escala)>);
static_assert(
    Son<double, decltype(CDataVectoresPendiente::m_ValorVector1),
        decltype(CDataVectoresPendiente::m_ValorVector2),
        decltype(CDataVectoresPendiente::m_TextoValor1),
        decltype(CDataCambiosPendiente::m_ValorCambio), decltype(CDataCurvado::m_ValorAvanzado1),
        decltype(CDataCurvado::m_ValorAvanzado2), decltype(CDataCurvado::m_TextoValor1),
        decltype(CDataCurvado::m_Equidistancia), decltype(CDataCurvado::m_EquidistanciaMaestra),
        decltype(CDataCurvado::m_TextoValor2), decltype(CDataCurvado::m_CotaMinima),
        decltype(CDataCurvado::m_CotaMaxima), decltype(CDataProyectaDEM::m_Valor)>);

/// The record begins with the first of these fields, and each lies behind the one before it.
void CompruebaOrden(const void* registro, const std::vector<const void*>& campos) {
    EXPECT_EQ(campos.front(), registro);
    for (std::size_t i = 1; i < campos.size(); ++i)
        EXPECT_TRUE(std::less<>{}(campos[i - 1], campos[i])) << "field " << i;
}

} // namespace

TEST(DataVectoresPendiente, FieldsFollowEachOtherInTheirOrder) {
    const CDataVectoresPendiente d;
    CompruebaOrden(&d, {&d.m_ValorVector1, &d.m_ValorVector2, &d.m_Cadena1, &d.m_Cadena2,
                        &d.m_TextoValor1, &d.m_TextoEntero, &d.m_FicheroLimite, &d.m_Limite});
}

TEST(DataCambiosPendiente, FieldsFollowEachOtherInTheirOrder) {
    const CDataCambiosPendiente d;
    CompruebaOrden(&d, {&d.m_EnteroCambio, &d.m_CadenaCambio, &d.m_ValorCambio, &d.m_GenerarDibujo1,
                        &d.m_GenerarDibujo2});
}

TEST(DataCurvado, FieldsFollowEachOtherInTheirOrder) {
    const CDataCurvado d;
    CompruebaOrden(&d, {&d.m_ValorAvanzado1,
                        &d.m_ValorAvanzado2,
                        &d.m_AvanzadoPorEscala,
                        &d.m_TextoCurvas,
                        &d.m_Limite,
                        &d.m_OpcionSuavizado,
                        &d.m_Opcion1,
                        &d.m_RespetarCurvas,
                        &d.m_RangoCota,
                        &d.m_OpcionTexto,
                        &d.m_CodigoCurvas1,
                        &d.m_CodigoCurvas2,
                        &d.m_CodigoCurvas3,
                        &d.m_CodigoCurvas4,
                        &d.m_CodigoCurvas5,
                        &d.m_CurvasARespetar1,
                        &d.m_CurvasARespetar2,
                        &d.m_FicheroLimite,
                        &d.m_Escala,
                        &d.m_TextoValor1,
                        &d.m_Equidistancia,
                        &d.m_EquidistanciaMaestra,
                        &d.m_TextoValor2,
                        &d.m_CotaMinima,
                        &d.m_CotaMaxima,
                        &d.m_TextoEntero,
                        &d.m_NivelSuavizado,
                        &d.m_TipoSuavizado});
}

TEST(DataProyectaDEM, FieldsFollowEachOtherInTheirOrder) {
    const CDataProyectaDEM d;
    CompruebaOrden(&d, {&d.m_Informe, &d.m_Opcion, &d.m_Valor, &d.m_Tipo, &d.m_FicheroProyeccion,
                        &d.m_FicheroInforme});
}
