#include "sample/EjemploApp.h"

static CEjemploApp ejemplo;
