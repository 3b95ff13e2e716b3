#include "cuadros/frame/MemoriaRaster.h"

#include "cuadros/frame/Signo.h"

namespace Cuadros {

CString MemoriaRaster(double alto, double ancho, double pixel) {
    if (Signo(pixel) == 0)
        return CString(L"-");
    constexpr double megabytesPorPixel = 3.0 / (1024.0 * 1024.0);
    CString texto;
    texto.Format(L"%.2lf", megabytesPorPixel * (alto / pixel) * (ancho / pixel));
    return texto;
}

} // namespace Cuadros
