#pragma once

#include <vector>

#include "cotana/entidad/ElementoDigiTab.h"

namespace Cotana {

/// A code table: entries in the order in which they were inserted.
class COTANA_API CDigiTab {
public:
    /// What `Busca` returns when the table has no such code.
    enum : unsigned int { NoEsta = ~0U };

    CDigiTab();
    CDigiTab(const CDigiTab&);
    CDigiTab& operator=(const CDigiTab&);
    ~CDigiTab();

    /// Number of entries.
    unsigned int Cantidad() const;

    /// The entry at `indice`, which must be below `Cantidad()`.
    CElementoDigiTab& operator[](unsigned int indice);
    const CElementoDigiTab& operator[](unsigned int indice) const;

    /// Appends an entry.
    ///
    /// @param repetido true appends it also when its code is already there.
    /// @return false, and nothing changes, when the entry has no code, or when its code is already
    ///         there and `repetido` is false.
    bool Inserta(const CElementoDigiTab& elemento, bool repetido);

    /// Index of the first entry with the code of `elemento`; `NoEsta` when there is none.
    unsigned int Busca(const CElementoDigiTab& elemento) const;

    /// Erases the entry at `indice` and `siguientes` more after it, as far as there are any.
    void Borra(unsigned int indice, unsigned int siguientes);

    /// Erases every entry.
    void clear();

private:
    std::vector<CElementoDigiTab> m_Elementos;
};

} // namespace Cotana
