// The triangulation that both competitors ask about.
#pragma once

#include <afxwin.h>

#include <string>

#include <cotana/triangulacion/DataTriangulacion.h>

#include "cuadros/resources/IconIds.h"
#include "cuadros/resources/TriangulationIds.h"

namespace bench {

/// A record with a code table of that length.
inline Cotana::CDataTriangulacion surveyOf(int codes) {
    Cotana::CDataTriangulacion data;
    data.m_Nombre = L"North slope";
    data.m_LimiteInferior = -12.5;
    data.m_LimiteSuperior = 1873.25;
    data.m_TipoRuptura = 1;
    for (int i = 0; i < codes; ++i) {
        const std::wstring code = L"BRK-" + std::to_wstring(i);
        const std::wstring mnemonic = L"Break line, top of slope " + std::to_wstring(i);
        data.m_Codigos.Inserta(Cotana::CElementoDigiTab(code.c_str(), mnemonic.c_str(), 1 + i % 9),
                               true);
    }
    return data;
}

/// The modules in which the dialog by hand finds its template and texts, and its icon.
inline HMODULE textModule() {
    return AfxFindResourceHandle(MAKEINTRESOURCE(IDD_TRIANGULACION), RT_DIALOG);
}

inline HMODULE iconModule() {
    return AfxFindResourceHandle(MAKEINTRESOURCE(IDI_TRIANGULACION), RT_GROUP_ICON);
}

} // namespace bench
