// Number of the list of exports among the test program's resources.
#define ID_EXPORTS 62001
