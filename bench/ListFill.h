// Filling a list of two columns while it is not drawn, by each competitor.
#pragma once

#include <afxcmn.h>

#include "bench/Options.h"

namespace bench {

inline void fill(CListCtrl& list, const std::vector<LayerRow>& rows) {
    list.SetRedraw(FALSE);
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const LayerRow& row = rows[static_cast<std::size_t>(i)];
        list.InsertItem(i, row.code.c_str());
        list.SetItemText(i, 1, row.description.c_str());
    }
    list.SetRedraw(TRUE);
    list.Invalidate();
}

} // namespace bench
