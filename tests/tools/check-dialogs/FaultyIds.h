// Numbers of the faulty language file, faulty themselves: see expected.txt.
#ifndef TESTS_TOOLS_FAULTYIDS_H
#define TESTS_TOOLS_FAULTYIDS_H

// CDialogDlg
#define IDD_DIALOG       101
#define IDC_DIALOG_VALUE 1001

// CFrameDlg
#define IDD_FRAME       102
#define IDC_FRAME_VALUE 1001

// CHeightDlg
#define IDD_HEIGHT       103
#define IDC_HEIGHT_VALUE 1001

// CMnemonicDlg
#define IDD_MNEMONIC       104
#define IDC_MNEMONIC_VALUE 1001
#define IDC_MNEMONIC_OTHER 1002
#define IDC_MNEMONIC_CHECK 1003

// CNameDlg
#define IDD_NAME         105
#define IDC_NAME_VALUE   1001
#define IDC_NAME_UNNAMED 1002
#define IDC_NAME_EMPTY   1003
#define IDC_NAME_HIDDEN  1004

// CPlaceDlg
#define IDD_PLACE       106
#define IDC_PLACE_VALUE 1001

// COverlapDlg
#define IDD_OVERLAP       107
#define IDC_OVERLAP_VALUE 1001
#define IDC_OVERLAP_SPIN  1002
#define IDC_OVERLAP_CHECK 1003

// CRoomDlg
#define IDD_ROOM       108
#define IDC_ROOM_VALUE 1001
#define IDC_ROOM_CHECK 1002
#define IDC_ROOM_PUSH  1003
#define IDC_ROOM_CUT   1004

// CButtonDlg
#define IDD_BUTTON        109
#define IDC_BUTTON_VALUE  1001
#define IDC_BUTTON_FLAT   1002
#define IDC_BUTTON_NARROW 1003
#define IDC_BUTTON_BROWSE 1004

// CClosingDlg
#define IDD_CLOSING       110
#define IDC_CLOSING_VALUE 1001
#define IDC_CLOSING_OTHER 1002

// CRadioDlg
#define IDD_RADIO        111
#define IDC_RADIO_VALUE  1001
#define IDC_RADIO_FIRST  1002
#define IDC_RADIO_SECOND 1003

// COrderDlg
#define IDD_ORDER        112
#define IDC_ORDER_VALUE  1001
#define IDC_ORDER_UPPER  1002
#define IDC_ORDER_LOWER  1003
#define IDC_ORDER_LEFT_1 1004
#define IDC_ORDER_LEFT_2 1005
#define IDC_ORDER_RIGHT  1006

// CStyleDlg
#define IDD_STYLE         113
#define IDC_STYLE_VALUE   1001
#define IDC_STYLE_EDIT    1002
#define IDC_STYLE_COMBO   1003
#define IDC_STYLE_LISTBOX 1004
#define IDC_STYLE_LIST    1005
#define IDC_STYLE_CHECK   1006

// CNumbersDlg
#define IDD_NUMBERS             114
#define IDC_NUMBERS_VALUE       1001
#define IDC_NUMBERS_ABSENT      1002
#define IDC_NUMBERS_VALUE_AGAIN 1001
#define IDC_OTHERS_VALUE        1005

// CItemsDlg
#define IDD_ITEMS       115
#define IDC_ITEMS_VALUE 1001
#define IDC_ITEMS_COMBO 1002

// CPagePage
#define IDD_PAGE       116
#define IDC_PAGE_VALUE 1001

// CAbsentDlg
#define IDD_ABSENT 117

// CUnknownClassDlg
#define IDD_UNKNOWN_CLASS       119
#define IDC_UNKNOWN_CLASS_VALUE 1001

// CReducedDlg
#define IDD_REDUCED       120
#define IDD_REDUCED_SMALL 121
#define IDC_REDUCED_VALUE 1001
#define IDC_REDUCED_CHECK 1002
#define IDC_REDUCED_OTHER 1003

#define IDS_GOOD    2001
#define IDS_ABSENT  2002
#define IDS_BLANK   2003
#define IDS_TWICE   2004
#define IDS_GARBLED 2005
#define IDS_CUT     2006

#define IDI_BOTH    3001
#define IDI_SMALL   3002
#define IDI_NOWHERE 3003

#endif
