// A host finds the library's icons by these numbers.
#include "cuadros/resources/IconIds.h"

static_assert(IDI_PROYECCION == 14321);
static_assert(IDI_IMPORTAR_REJILLA == 14324);
static_assert(IDI_INFO_TRIANGULACION == 18111);
static_assert(IDI_LIMPIAR_RELIEVE == 19001);
static_assert(IDI_TRIANGULACION == 19011);
static_assert(IDI_CURVADO == 20093);
static_assert(IDI_HIPSOMETRICAS == 20094);
static_assert(IDI_ORIENTACIONES == 20095);
static_assert(IDI_PENDIENTES == 20096);
static_assert(IDI_SOMBREADO == 20097);
static_assert(IDI_PERFILES == 22035);
static_assert(IDI_CURVA_HIPSOMETRICA == 38133);
