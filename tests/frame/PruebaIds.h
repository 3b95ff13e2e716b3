// Resources of the tests of the shared gestures. Preprocessor lines only.
#ifndef TESTS_FRAME_PRUEBAIDS_H
#define TESTS_FRAME_PRUEBAIDS_H

#define IDI_PRUEBA 150
#define IDD_PRUEBA 151

#define IDC_PRUEBA_LISTA      1001
#define IDC_PRUEBA_CASILLA    1002
#define IDC_PRUEBA_FILA_QUITA 1003
#define IDC_PRUEBA_TEXTO      1004
#define IDC_PRUEBA_OTRO_TEXTO 1005

#define IDS_PRUEBA_MENSAJE  160
#define IDS_PRUEBA_COLUMNA  161
#define IDS_PRUEBA_COLUMNA2 162
#define IDS_PRUEBA_FILTRO   163

#endif
