// Number of the list of names among the test program's resources.
#define ID_NOMBRES 62001
