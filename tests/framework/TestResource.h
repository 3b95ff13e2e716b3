// Numbers of the framework tests' templates.
#define IDD_FIELDS          4001
#define IDD_INNER           4002
#define IDD_COMBOS          4003
#define IDD_INIT_REFUSED    4004
#define IDD_CHILDREN        4005
#define IDD_NO_IDLE         4006
#define IDD_INIT_FOR_NOBODY 4007
#define IDD_INIT_CUT        4008

#define IDC_NAME    5001
#define IDC_DOUBLE  5002
#define IDC_INT     5003
#define IDC_UINT    5004
#define IDC_SHORT   5005
#define IDC_CHECK   5006
#define IDC_RADIO_A 5010
#define IDC_RADIO_B 5017
#define IDC_RADIO_C 5012
#define IDC_AFTER   5013
#define IDC_COMBO   5020
#define IDC_LIST    5021
#define IDC_INNER   5022
#define IDC_LISTBOX 5023
#define IDC_BYTE    5024
#define IDC_NO_SUCH 5999

// From 0x8000 on, commands are the application's.
#define IDC_APP_COMMAND 0x9001
