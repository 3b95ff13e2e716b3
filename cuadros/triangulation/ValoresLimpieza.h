// The two values that both cleaning dialogs show as text.
#pragma once

#include <afx.h>

#include <cstdlib>

namespace Cuadros {

/// The record's values as texts with two decimals.
template <class Data>
void MuestraValores(const Data& data, CString& textoA, CString& textoB) {
    textoA.Format(L"%.2lf", data.m_ValorA);
    textoB.Format(L"%.2lf", data.m_ValorB);
}

/// The texts as the record's values. Kept: a text that is no number is 0, without a message, and a
/// value that nobody touched comes back with two decimals.
template <class Data>
void RecogeValores(Data& data, const CString& textoA, const CString& textoB) {
    data.m_ValorB = _wtof(textoB);
    data.m_ValorA = _wtof(textoA);
}

} // namespace Cuadros
