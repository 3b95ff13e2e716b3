#pragma once

#include <afxwin.h>

#include "cuadros/frame/Exporta.h"
#include "cuadros/import/DataImportarGTOPO30.h"

/// Options of importing a GTOPO30 tile: the rectangle in degrees, minutes and seconds, how many of
/// its nodes, the projection with its zone and ellipsoid. Each count writes the rectangle and the
/// ratio into the record, OK the zone, the projection and the ellipsoid. Help at context 145115.
class CUADROS_API CImportarGTOPO30Dlg : public CDialog {
public:
    /// An angle as a surveyor types it: degrees, minutes and seconds of arc.
    struct Sexagesimal {
        CString grados;   ///< whole, with the sign of the angle: "-0" for one between -1 and 0
        CString minutos;  ///< whole, without sign
        CString segundos; ///< with one decimal, without sign; up to "60.0", since it is rounded
    };

    /// @param datos   the record to edit, with the extents and the spacing of the tile, in degrees;
    ///                it must live as long as the dialog.
    /// @param mostrar show command of the projection with its zone and ellipsoid: 0 hides them;
    ///                every other is passed to Windows as it is.
    /// @param padre   the owner; null takes the host's main window.
    CImportarGTOPO30Dlg(CDataImportarGTOPO30& datos, int mostrar, CWnd* padre = nullptr);
    ~CImportarGTOPO30Dlg() override;

    void DoDataExchange(CDataExchange* pDX) override;
    DECLARE_MESSAGE_MAP()

public:
    BOOL OnInitDialog() override;

    /// Stores the rectangle and the ratio that are shown, counts their nodes, and shows the count.
    afx_msg void OnCalcula();
    afx_msg void OnSelchangeComboTipoProyeccion();

    void OnOK() override;

    virtual void OnHelp();
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo);

protected:
    CComboBox m_TipoProyeccion;
    CString m_PuntosImportar;
    CString m_PuntosFichero;
    Sexagesimal m_YMaxima, m_FicheroYMaxima;
    Sexagesimal m_YMinima, m_FicheroYMinima;
    Sexagesimal m_XMaxima, m_FicheroXMaxima;
    Sexagesimal m_XMinima, m_FicheroXMinima;
    CString m_Paso;
    CString m_Razon;
    CString m_Huso;
    CDataImportarGTOPO30* m_pData;
    int m_Mostrar;
    int m_IndiceElipsoide = -1;
};
