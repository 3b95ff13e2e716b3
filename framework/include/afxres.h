// Numbers of the framework's standard commands and of its own texts.
// Included by resource scripts: preprocessor lines only.
#ifndef AFXRES_H
#define AFXRES_H

// Controls and labels that no code touches.
#ifndef IDC_STATIC
#define IDC_STATIC -1
#endif

// Standard commands: file.
#define ID_FILE_NEW           0xE100
#define ID_FILE_OPEN          0xE101
#define ID_FILE_CLOSE         0xE102
#define ID_FILE_SAVE          0xE103
#define ID_FILE_SAVE_AS       0xE104
#define ID_FILE_PAGE_SETUP    0xE105
#define ID_FILE_PRINT_SETUP   0xE106
#define ID_FILE_PRINT         0xE107
#define ID_FILE_PRINT_PREVIEW 0xE109

// Standard commands: edit.
#define ID_EDIT_CLEAR      0xE120
#define ID_EDIT_CLEAR_ALL  0xE121
#define ID_EDIT_COPY       0xE122
#define ID_EDIT_CUT        0xE123
#define ID_EDIT_FIND       0xE124
#define ID_EDIT_PASTE      0xE125
#define ID_EDIT_REPEAT     0xE128
#define ID_EDIT_REPLACE    0xE129
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_UNDO       0xE12B
#define ID_EDIT_REDO       0xE12C

// Standard commands: application and help.
#define ID_APP_ABOUT    0xE140
#define ID_APP_EXIT     0xE141
#define ID_HELP_INDEX   0xE142
#define ID_HELP_FINDER  0xE143
#define ID_HELP_USING   0xE144
#define ID_CONTEXT_HELP 0xE145
#define ID_HELP         0xE146
#define ID_DEFAULT_HELP 0xE147

// The application's own title, where its resources have one.
#define AFX_IDS_APP_TITLE 0xE000

// Titles of the file prompt.
#define AFX_IDS_OPENFILE 0xF000
#define AFX_IDS_SAVEFILE 0xF001

// Prompts of the data exchange. %1 and %2 stand for the limits.
#define AFX_IDP_PARSE_INT          0xF110
#define AFX_IDP_PARSE_REAL         0xF111
#define AFX_IDP_PARSE_INT_RANGE    0xF112
#define AFX_IDP_PARSE_REAL_RANGE   0xF113
#define AFX_IDP_PARSE_STRING_SIZE  0xF114
#define AFX_IDP_PARSE_RADIO_BUTTON 0xF115
#define AFX_IDP_PARSE_BYTE         0xF116
#define AFX_IDP_PARSE_UINT         0xF117

// Errors that the framework reports itself.
#define AFX_IDP_FAILED_TO_LAUNCH_HELP   0xF180
#define AFX_IDP_NO_ERROR_AVAILABLE      0xF181
#define AFX_IDS_MEMORY_EXCEPTION        0xF182
#define AFX_IDS_RESOURCE_EXCEPTION      0xF183
#define AFX_IDS_USER_EXCEPTION          0xF184
#define AFX_IDS_NOT_SUPPORTED_EXCEPTION 0xF185
#define AFX_IDS_INVALID_ARG_EXCEPTION   0xF186
#define AFX_IDP_INTERNAL_FAILURE        0xF187
#define AFX_IDP_COMMAND_FAILURE         0xF188

#endif
