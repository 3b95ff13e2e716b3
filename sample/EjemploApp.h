#pragma once

#include "cotana/aplicacion/Aplicacion.h"
#include "sample/LineaOrdenes.h"
#include "sample/Terreno.h"

/// The sample host: owns the terrain, opens the conversations, answers their requests for help.
class CEjemploApp : public Cotana::CAplicacion {
public:
    CEjemploApp();

    BOOL InitInstance() override;
    int ExitInstance() override;

    /// Opens the dialog's page in the browser.
    void HtmlHelp(DWORD_PTR dwData, UINT nCmd) override;

    /// The system's dialog, which opens in the folder of the files that are asked for.
    BOOL PideFichero(CString& nombre, UINT titulo, DWORD opciones, BOOL abrir,
                     CDocTemplate** plantilla, int clase, void* reservado) override;

protected:
    /// What the command line asks for.
    virtual LineaOrdenes LeeOrdenes(Palabras palabras);

    /// Opens the launcher over the terrain, until the user closes it.
    /// @return the program's exit code.
    virtual int Corre(Terreno& terreno);

private:
    /// Reads the survey and the terrain model, to which it suits the intervals of the contours, and
    /// what can be imported; what is wrong with a file, or empty.
    CString LeeTerreno(const LineaOrdenes& linea);

    Terreno m_Terreno;
    int m_CodigoSalida = 0;
};
