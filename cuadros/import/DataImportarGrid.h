#pragma once

#include <afx.h>

#include <cotana/entidad/Maximas.h>
#include <cotana/topografia/Elipsoide.h>

#include "cuadros/frame/Exporta.h"

/// Options of importing a regular elevation grid. The host says what the file holds; the dialog of
/// the import fills in what the user wants of it.
class CUADROS_API CDataImportarGrid {
public:
    CDataImportarGrid();
    CDataImportarGrid(const CDataImportarGrid&);
    CDataImportarGrid& operator=(const CDataImportarGrid&);
    virtual ~CDataImportarGrid();

    // The user's choice is kept in one of two stores, in a section that the host names: the
    // rectangle as XMinima, XMaxima, YMinima and YMaxima, the ratio as Razon, the marker of missing
    // nodes as NoData. Failures are not reported; without an application object the profile is left
    // alone. None of the four is virtual: a derived record has its own.

    /// Reads the choice from the profile of the host's application object. A number that is missing
    /// there keeps its value, the sides of the rectangle rounded to six decimals; one that is no
    /// number becomes 0.
    void GetProfile(const CString& section);

    /// Writes the choice to the profile of the host's application object.
    void WriteProfile(const CString& section) const;

    /// Reads the choice from a file. A number that is missing there, or empty, keeps its value; one
    /// that is no number becomes 0.
    /// @param file its full path: Windows looks for a name without a folder in its own folder.
    void GetPrivateProfile(const CString& file, const CString& section);

    /// Writes the choice to a file; the rest of the file stays. A side of the rectangle that takes
    /// more than 255 characters is left empty.
    /// @param file its full path, as above.
    void WritePrivateProfile(const CString& file, const CString& section) const;

    /// Where the file's grid lies. The host fills it in.
    Cotana::CMaximas<double> m_ExtensionFichero;
    /// The rectangle to import.
    Cotana::CMaximas<double> m_Extension;
    /// Distance between the nodes of the file, along x and along y. The host fills it in.
    Cotana::CCoor3D<double> m_Paso;
    /// Of how many nodes one is taken, along either axis.
    int m_Razon = 1;
    /// A count of the host's own, shown to the user.
    int m_PuntosFichero = 0;
    /// How many nodes are imported. The dialogs count them.
    int m_PuntosImportar = 0;
    /// The elevation that marks a missing node.
    int m_NoData = -9999;
    /// On which ellipsoid the nodes are projected.
    Cotana::CElipsoide m_Elipsoide;
};
