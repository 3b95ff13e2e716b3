#include "sample/ImportaTerreno.h"

#include <memory>
#include <string>

#include "sample/TextFile.h"
#include "sample/terrain/AscGridFile.h"
#include "sample/terrain/GridWindow.h"
#include "sample/terrain/Gtopo30File.h"
#include "sample/terrain/Words.h"

namespace {

/// The whole of a file, and what it is.
void TomaEntero(const GridFrame& marco, CDataImportarGrid& data) {
    auto& [maximo, minimo] = data.m_ExtensionFichero;
    minimo.m_X = marco.West();
    minimo.m_Y = marco.South();
    maximo.m_X = marco.East();
    maximo.m_Y = marco.North();
    data.m_Extension = data.m_ExtensionFichero;
    data.m_Paso.m_X = marco.xSpacing;
    data.m_Paso.m_Y = marco.ySpacing;
    data.m_PuntosFichero = marco.columns * marco.rows;
}

/// Throws a Fault unless a grid has as many nodes as were counted, by its header and in truth.
void Comprueba(const CString& fichero, int contados) {
    Words palabras(BytesOfFile(fichero));
    const auto numeroTras = [&](const char* clave) {
        if (!palabras.Advance() || !IsNamed(palabras.Word(), clave) || !palabras.Advance())
            throw Fault{L"the header lacks " + Shown(clave)};
        return FiniteNumber(palabras.Word(), Shown(clave));
    };
    const double segunCabecera = numeroTras("ncols") * numeroTras("nrows");
    for (const char* clave : {"xllcenter", "yllcenter", "cellsize"})
        numeroTras(clave);
    palabras.Advance(); // the marker of missing nodes may be no number
    palabras.Advance();
    int hay = 0;
    while (palabras.Advance())
        ++hay;
    if (segunCabecera != contados || hay != contados) {
        CString texto;
        texto.Format(L"there are %d nodes, %.15g by the header, but %d were counted", hay,
                     segunCabecera, contados);
        throw Fault{texto.GetString()};
    }
}

/// @param detras what is said behind the count.
Hecho Importa(GridSource& fuente, const CDataImportarGrid& data, const CString& carpeta,
              const CString& nombre, const CString& detras) {
    const auto& [maximo, minimo] = data.m_Extension;
    const GridWindow ventana{{minimo.m_X, minimo.m_Y}, {maximo.m_X, maximo.m_Y}, data.m_Razon};
    const CString fichero = carpeta + L"\\" + nombre;
    const CString error = WriteGridWindow(fichero, fuente, ventana);
    if (!error.IsEmpty()) {
        const bool ninguno = TakenColumns(fuente.Frame(), ventana).count == 0 ||
                             TakenRows(fuente.Frame(), ventana).count == 0;
        // Who has seen in the dialog that there is none has asked for none.
        if (ninguno && data.m_PuntosImportar == 0)
            return {L"No node is imported: " + error + L".", false, {}};
        return {error, true, {}};
    }
    try {
        Comprueba(fichero, data.m_PuntosImportar);
    } catch (const Fault& fallo) {
        return {Refusal(fichero, fallo.text), true, {}};
    }
    CString texto;
    texto.Format(L"%d nodes imported, as many as were counted: %s in %s.%s", data.m_PuntosImportar,
                 nombre.GetString(), carpeta.GetString(), detras.GetString());
    return {texto, false, {}};
}

/// What the record of the tile asks for and the import leaves out.
CString SinProyectar(const CDataImportarGTOPO30& data) {
    constexpr wchar_t queda[] = L" Projecting them is left to real hosts: ";
    CString texto;
    switch (data.m_TipoProyeccion) {
    case 1:
        texto.Format(L"%sUTM, zone %d, ellipsoid %s.", queda, data.m_Huso,
                     data.m_Elipsoide.GetNombre().GetString());
        return texto;
    case 2:
        return queda + CString(L"equirectangular.");
    default:
        return L" They stay in longitude and latitude.";
    }
}

} // namespace

CString PreparaImportacion(Terreno& terreno) {
    try {
        TomaEntero(OpenAscGrid(terreno.ficheroRejilla)->Frame(), terreno.importarGrid);
        TomaEntero(OpenGtopo30(terreno.ficheroTesela)->Frame(), terreno.importarGTOPO30);
    } catch (const RefusedFile& rehusado) {
        return rehusado.text;
    }
    // That of the tiles; its place in the library's table.
    terreno.importarGTOPO30.m_Elipsoide = Cotana::CElipsoide(26, L"WGS-84", 6378137.0, 0.00669438);
    return {};
}

Hecho ImportaRejilla(const Terreno& terreno) {
    try {
        return Importa(*OpenAscGrid(terreno.ficheroRejilla), terreno.importarGrid,
                       terreno.carpetaDibujos, L"imported-grid.asc", L"");
    } catch (const RefusedFile& rehusado) {
        return {rehusado.text, true, {}};
    }
}

Hecho ImportaTesela(const Terreno& terreno) {
    try {
        return Importa(*OpenGtopo30(terreno.ficheroTesela), terreno.importarGTOPO30,
                       terreno.carpetaDibujos, L"imported-tile.asc",
                       SinProyectar(terreno.importarGTOPO30));
    } catch (const RefusedFile& rehusado) {
        return {rehusado.text, true, {}};
    }
}
