// Group icons of the library, by number. Included by resource scripts: preprocessor lines only.
#ifndef CUADROS_RESOURCES_ICONIDS_H
#define CUADROS_RESOURCES_ICONIDS_H

// In the library's own resources.
#define IDI_PROYECCION         14321
#define IDI_IMPORTAR_REJILLA   14324
#define IDI_LIMPIAR_RELIEVE    19001
#define IDI_TRIANGULACION      19011
#define IDI_CURVADO            20093
#define IDI_HIPSOMETRICAS      20094
#define IDI_ORIENTACIONES      20095
#define IDI_PENDIENTES         20096
#define IDI_SOMBREADO          20097
#define IDI_CURVA_HIPSOMETRICA 38133

// In the language file.
#define IDI_INFO_TRIANGULACION 18111
#define IDI_PERFILES           22035

#endif
