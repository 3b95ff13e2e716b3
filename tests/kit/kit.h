// Everything that a test needs: the driver bound to GoogleTest.
#pragma once

#include "kit/driver.h"

#include <gtest/gtest.h>

namespace kit {

/// Runs the tests of the program: on a desktop of its own, with faults ending the process,
/// failures of the driver reported to GoogleTest, and after each test the heap whole and no
/// window left over. Programs that link `kit` have this as their main already.
///
/// `--kit-suites=A,B` runs nothing, but fails unless A and B are exactly the program's suites.
int main(int argc, char** argv);

} // namespace kit
