// The template of a dialog, as it stands in the language file.
#pragma once

#include <windows.h>

#include <vector>

/// A copy of a template of the resource chain, open to a change of its controls' numbers.
class Plantilla {
public:
    /// @param numero of the template.
    explicit Plantilla(UINT numero);

    /// The numbers of its controls in their order, without those that no code can name.
    std::vector<int> Controles() const;

    /// Gives a number that nobody knows to the controls of this number: code that asks for one
    /// finds none.
    void Quita(int control);

    LPCDLGTEMPLATE Datos() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_Bytes.data()); }

private:
    int NumeroEn(std::size_t lugar) const;

    std::vector<BYTE> m_Bytes;
    std::vector<std::size_t> m_Numeros; ///< where in them each control has its number
};
