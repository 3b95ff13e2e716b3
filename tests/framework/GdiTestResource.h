// Numbers of the drawing and menu tests' resources.
#define IDB_STRIP   4101
#define IDB_NO_SUCH 4102
#define IDM_EDIT    4103
#define IDM_NO_SUCH 4104

#define ID_CUT   4201
#define ID_PASTE 4202
#define ID_GRID  4203
