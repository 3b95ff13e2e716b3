#pragma once

#include <vector>

#include "sample/EjemploApp.h"

/// The sample host on a tour: a script drives its dialogs, and nobody reads its help.
class CRecorridoApp : public CEjemploApp {
public:
    /// Notes the request.
    void HtmlHelp(DWORD_PTR dwData, UINT nCmd) override;

    /// The help contexts for which the dialogs have asked since the last call.
    std::vector<DWORD_PTR> RecogeAyudas();

protected:
    /// The first word is the folder for the tour's results; drawings go there, too, unless another
    /// folder is named for them.
    LineaOrdenes LeeOrdenes(Palabras palabras) override;

    /// @return 0 when the tour went as its scripts say, else 1.
    int Corre(Terreno& terreno) override;

private:
    CString m_Carpeta;
    std::vector<DWORD_PTR> m_Ayudas;
};
