// Templates and controls of the sample host. Included by the resource script: preprocessor lines
// only.
#ifndef SAMPLE_EJEMPLOIDS_H
#define SAMPLE_EJEMPLOIDS_H

// CLanzadorDlg
#define IDD_LANZADOR                100
#define IDC_LANZADOR_CONVERSACIONES 1001
#define IDC_LANZADOR_FICHA          1002
#define IDC_LANZADOR_ABRIR          1003
#define IDC_LANZADOR_RESULTADO      1004

#endif
