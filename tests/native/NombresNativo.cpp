// Native test of the name line's reader: listed cases, then random lines against two oracles.
//
// usage: NombresNativo [lines [seed]]
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "Comprobacion.h"
#include "cuadros/frame/LineaNombres.h"

namespace {

int fallos = 0;

void Exige(bool cierto, const std::string& que) {
    if (cierto)
        return;
    std::fprintf(stderr, "FAILED: %s\n", que.c_str());
    ++fallos;
}

struct Caso {
    std::wstring linea;
    std::vector<std::wstring> nombres;
};

const std::vector<Caso> Casos = {
    {L"", {}},
    {L"   ", {}},
    {L" \r\n\uFEFF", {}},
    {L"a b", {L"a", L"b"}},
    {L"  a  b  ", {L"a", L"b"}},
    {L"a\r\nb\r\n", {L"a", L"b"}},
    {L"\uFEFFa\uFEFFb", {L"a", L"b"}},
    {L"a\tb", {L"a\tb"}},
    {L"\t", {L"\t"}},
    {L"\"two words\"", {L"two words"}},
    {L"\"a\nb\uFEFFc\"", {L"a\nb\uFEFFc"}},
    {L"text\"quoted one\"", {L"text", L"quoted one"}},
    {L"abc\"d e\"f", {L"abc", L"d e", L"f"}},
    {L"\"a\"\"b\"", {L"a", L"b"}},
    {L"\"a\"b", {L"a", L"b"}},
    {L"\"\"", {L""}},
    {L"\"\" \"\"", {L"", L""}},
    {L"\"", {L""}},
    {L"a\"", {L"a", L""}},
    {L"\"unterminated name", {L"unterminated name"}},
    {L"\"unterminated ", {L"unterminated "}},
    {std::wstring(L"a\0b c", 5), {std::wstring(L"a\0b", 3), L"c"}},
};

void PruebaCasos() {
    for (const Caso& caso : Casos) {
        const std::string quien = "<" + Legible(caso.linea) + ">";
        const int cuantos = static_cast<int>(caso.nombres.size());
        Exige(Cuadros::Linea::Cuenta(caso.linea) == cuantos, "count of " + quien);
        std::vector<std::wstring> nombres(caso.nombres.size());
        Exige(Cuadros::Linea::Separa(caso.linea, cuantos, nombres.data()) == cuantos,
              "number of names stored of " + quien);
        Exige(nombres == caso.nombres, "names of " + quien);
        for (std::size_t quiero = 0; quiero < caso.nombres.size() + 3; ++quiero) {
            const std::string diferencia = DiferenciaConOraculo(caso.linea, quiero);
            Exige(diferencia.empty(), diferencia);
        }
    }
    std::wstring intacto = L"kept";
    Exige(Cuadros::Linea::Separa(L"a b", -1, &intacto) == 0 && intacto == L"kept",
          "a negative count touches nothing");
}

void PruebaAlAzar(long cuantas, unsigned long semilla) {
    // Twice as many quotes and blanks as letters: most lines then have several names.
    const std::wstring alfabeto = L"\"\"\"\"    \r\n\uFEFF\tabC";
    std::mt19937_64 azar(semilla);
    std::uniform_int_distribution<std::size_t> letra(0, alfabeto.size() - 1);
    std::uniform_int_distribution<std::size_t> longitud(0, 24);
    std::uniform_int_distribution<std::size_t> cuantos(0, 12);
    std::wstring linea;
    for (long i = 0; i < cuantas && fallos == 0; ++i) {
        linea.resize(longitud(azar));
        for (wchar_t& l : linea)
            l = alfabeto[letra(azar)];
        const std::string diferencia = DiferenciaConOraculo(linea, cuantos(azar));
        Exige(diferencia.empty(), diferencia);
    }
}

} // namespace

int main(int argc, char** argv) {
    const long cuantas = argc > 1 ? std::atol(argv[1]) : 1'000'000;
    const unsigned long semilla = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 19011;
    PruebaCasos();
    PruebaAlAzar(cuantas, semilla);
    std::printf("%zu listed cases, %ld random lines from seed %lu: %d failures\n", Casos.size(),
                cuantas, semilla, fallos);
    return fallos == 0 ? 0 : 1;
}
