// Texts of the language file, by number. A number that several dialogs show has a name, and a
// text, that is true in each. Included by resource scripts: preprocessor lines only.
#ifndef CUADROS_RESOURCES_STRINGIDS_H
#define CUADROS_RESOURCES_STRINGIDS_H

// Messages that several dialogs share.
#define IDS_TITULO_MENSAJES            15105 // caption of nearly every message; itself the text of one
#define IDS_TEXTO_OBLIGATORIO          15104
#define IDS_VALOR_TEXTO_NO_POSITIVO    15037
#define IDS_VALOR_NO_POSITIVO          19076
#define IDS_ESCALA_NO_POSITIVA         19078
#define IDS_FICHERO_LIMITE_OBLIGATORIO 20004
#define IDS_RESOLUCION_NO_POSITIVA     20007

// File prompts.
#define IDS_TITULO_ABRIR   61440
#define IDS_FILTRO_GUARDAR 15010

// Column headings and cells of lists.
#define IDS_COLUMNA_CODIGO      18013
#define IDS_COLUMNA_NEMOTECNICO 18014
#define IDS_COLUMNA_FICHEROS    18073
#define IDS_COLUMNA_ROJO        18079
#define IDS_COLUMNA_VERDE       18080
#define IDS_COLUMNA_AZUL        18081
#define IDS_COLUMNA_CONOCIDO    18090
#define IDS_COLUMNA_TIPO        21035
#define IDS_COLUMNA_VALOR       21036
#define IDS_CELDA_SI            18282

// Triangulation.
#define IDS_SIN_CODIGOS           19002
#define IDS_LIMITES_NO_CRECIENTES 19003
#define IDS_SIN_FICHEROS          20243

// Contours.
#define IDS_SEGUNDO_VALOR_NO_POSITIVO 20008
#define IDS_NIVEL_SUAVIZADO_FUERA     20024
#define IDS_RANGO_COTAS_FUERA         20029

// Hypsometric tints.
#define IDS_PREGUNTA_COPIAR_GAMA    20005
#define IDS_PREGUNTA_NUEVA_GAMA     20006
#define IDS_PREGUNTA_RENOMBRAR_GAMA 20028
#define IDS_TITULO_ORIENTACIONES    20009
#define IDS_TITULO_PENDIENTES       20010
#define IDS_NOMBRE_GAMA_RECHAZADO   20011
#define IDS_INTERVALO_RECHAZADO     20012
#define IDS_PREGUNTA_BORRAR_GAMA    20013
#define IDS_GAMA_VACIA              20014
#define IDS_VALOR_INTERVALO_FUERA   20015
#define IDS_MAGNITUD_COTA           20100
#define IDS_MAGNITUD_PENDIENTE      20101
#define IDS_MAGNITUD_ORIENTACION    20102
#define IDS_RANGO_NO_CRECIENTE      20242

// Profiles and cross sections.
#define IDS_FICHERO_INFORME_OBLIGATORIO   14070
#define IDS_FICHERO_DATOS_OBLIGATORIO     14071
#define IDS_VALOR_SECCION_NEGATIVO        14073
#define IDS_FICHERO_TEXTO_OBLIGATORIO     14074
#define IDS_VALOR_TRANSVERSAL_NO_POSITIVO 14075
#define IDS_VALOR_PLATAFORMA_NEGATIVO     14076
#define IDS_TITULO_TRANSVERSALES          14088

#endif
