#include "Plantilla.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr int SinNumero = 0xFFFF;
constexpr WORD Desconocido = 64999;

/// Goes over the parts of an extended template.
class Lector {
public:
    explicit Lector(const std::vector<BYTE>& bytes) : m_Bytes(bytes) {}

    std::size_t Lugar() const { return m_Lugar; }
    void Salta(std::size_t bytes) { m_Lugar += bytes; }
    void Alinea() { m_Lugar = (m_Lugar + 3) / 4 * 4; }

    template <class T>
    T Toma() {
        T valor{};
        std::memcpy(&valor, m_Bytes.data() + m_Lugar, sizeof valor);
        m_Lugar += sizeof valor;
        return valor;
    }

    void SaltaTexto() {
        while (Toma<WORD>() != 0) {
        }
    }
    /// A class, a menu or a caption: a text, or the number of one.
    void SaltaNombre() {
        const WORD primera = Toma<WORD>();
        if (primera == 0xFFFF)
            Salta(sizeof(WORD));
        else if (primera != 0)
            SaltaTexto();
    }

private:
    const std::vector<BYTE>& m_Bytes;
    std::size_t m_Lugar = 0;
};

} // namespace

Plantilla::Plantilla(UINT numero) {
    const LPCTSTR nombre = MAKEINTRESOURCE(numero);
    const HINSTANCE modulo = AfxFindResourceHandle(nombre, RT_DIALOG);
    const HRSRC recurso = FindResource(modulo, nombre, RT_DIALOG);
    const auto* const datos = static_cast<const BYTE*>(LockResource(LoadResource(modulo, recurso)));
    m_Bytes.assign(datos, datos + SizeofResource(modulo, recurso));

    Lector lector(m_Bytes);
    EXPECT_EQ(lector.Toma<WORD>(), 1);
    EXPECT_EQ(lector.Toma<WORD>(), 0xFFFF) << "no extended template";
    lector.Salta(2 * sizeof(DWORD)); // help, extended style
    const DWORD estilo = lector.Toma<DWORD>();
    const WORD cuantos = lector.Toma<WORD>();
    lector.Salta(4 * sizeof(short)); // place and size
    lector.SaltaNombre();            // menu
    lector.SaltaNombre();            // class
    lector.SaltaTexto();             // caption
    if (estilo & DS_SETFONT) {
        lector.Salta(3 * sizeof(WORD)); // size, weight, slant and character set
        lector.SaltaTexto();
    }
    for (WORD i = 0; i < cuantos; ++i) {
        lector.Alinea();
        lector.Salta(3 * sizeof(DWORD) + 4 * sizeof(short)); // help, styles, place and size
        m_Numeros.push_back(lector.Lugar());
        lector.Salta(sizeof(DWORD));
        lector.SaltaNombre(); // class
        lector.SaltaNombre(); // caption
        lector.Salta(lector.Toma<WORD>());
    }
}

std::vector<int> Plantilla::Controles() const {
    std::vector<int> controles;
    for (const std::size_t lugar : m_Numeros)
        if (const int numero = NumeroEn(lugar); numero != SinNumero)
            controles.push_back(numero);
    return controles;
}

void Plantilla::Quita(int control) {
    for (const std::size_t lugar : m_Numeros)
        if (NumeroEn(lugar) == control)
            std::memcpy(&m_Bytes[lugar], &Desconocido, sizeof Desconocido);
}

int Plantilla::NumeroEn(std::size_t lugar) const {
    WORD numero = 0;
    std::memcpy(&numero, &m_Bytes[lugar], sizeof numero);
    return numero;
}
