#include "cotana/comun_ui/ListaControlMFC.h"

namespace Cotana {

CListaControlMFC::CListaControlMFC(int* /*columnas*/, int /*cuantas*/) {}

CListaControlMFC::~CListaControlMFC() = default;

} // namespace Cotana
