// The plain options dialog: preprocessor lines only, a resource script includes it.
#ifndef BENCH_OPTIONSIDS_H
#define BENCH_OPTIONSIDS_H

#define IDD_OPTIONS 101

#define IDC_NAME      1001
#define IDC_PROJECT   1002
#define IDC_SURVEYOR  1003
#define IDC_NOTES     1004
#define IDC_POINTS    1005
#define IDC_LINES     1006
#define IDC_SHEET     1007
#define IDC_LOWEST    1008
#define IDC_HIGHEST   1009
#define IDC_INTERVAL  1010
#define IDC_SCALE     1011
#define IDC_TOLERANCE 1012

#define IDC_FIRST_CHECK  1021 // eight of them
#define IDC_FIRST_METHOD 1031 // four of them
#define IDC_UNITS        1041
#define IDC_LAYERS       1042

#endif
