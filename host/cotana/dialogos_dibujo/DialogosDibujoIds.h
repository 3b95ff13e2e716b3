// Templates and controls of the drawing dialogs. Included by resource scripts: preprocessor lines
// only.
#ifndef COTANA_DIALOGOS_DIBUJO_IDS_H
#define COTANA_DIALOGOS_DIBUJO_IDS_H

// CCurvadoAvanzadoDlg
#define IDD_CURVADO_AVANZADO            23101
#define IDC_CURVADO_AVANZADO_POR_ESCALA 1001
#define IDC_CURVADO_AVANZADO_VALOR_1    1002
#define IDC_CURVADO_AVANZADO_VALOR_2    1003

#endif
