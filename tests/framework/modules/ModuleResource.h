// Numbers of the resources of the test modules. Who has which:
//   ID_SHARED    the test program and both modules
//   ID_MODULES   both modules
//   ID_PROBE     the probe only
//   ID_LANGUAGE  the language modules only
//   ID_ANYWHERE  the modules and the language modules
#define ID_SHARED   61001
#define ID_MODULES  61002
#define ID_PROBE    61003
#define ID_LANGUAGE 61004
#define ID_ANYWHERE 61005

// A template that the language modules have.
#define IDD_OF_LANGUAGE 61006

// Strings of one block: each module has one of them.
#define IDS_OF_PROGRAM  61105
#define IDS_OF_PROBE    61106
#define IDS_OF_LANGUAGE 61107
#define IDS_OF_NOBODY   61108

// Has a text in every language module, which tells which of them it is.
#define IDS_WHICH 61200
