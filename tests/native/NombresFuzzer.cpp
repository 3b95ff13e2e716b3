// Entry of clang's fuzzer: a byte says how many names are wanted, then two make one character.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "Comprobacion.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    if (cuantos == 0)
        return 0;
    std::wstring linea;
    for (std::size_t i = 1; i + 1 < cuantos; i += 2)
        linea += static_cast<wchar_t>(datos[i] | datos[i + 1] << 8);
    const std::string diferencia = DiferenciaConOraculo(linea, datos[0] % 16);
    if (!diferencia.empty()) {
        std::fprintf(stderr, "%s\n", diferencia.c_str());
        std::abort();
    }
    return 0;
}
