// The two values that both cleaning dialogs show as text.
#pragma once

#include "cuadros/frame/Numeros.h"

namespace Cuadros {

/// The record's values as texts with two decimals.
template <class Data>
void MuestraValores(const Data& data, CString& textoA, CString& textoB) {
    textoA = ConDecimales(data.m_ValorA, 2);
    textoB = ConDecimales(data.m_ValorB, 2);
}

/// The texts as the record's values. Kept: a text that is no number is 0, without a message, and a
/// value that nobody touched comes back with two decimals.
template <class Data>
void RecogeValores(Data& data, const CString& textoA, const CString& textoB) {
    data.m_ValorB = LeeNumero(textoB);
    data.m_ValorA = LeeNumero(textoA);
}

} // namespace Cuadros
