// Everything that a test needs: the driver bound to GoogleTest.
#pragma once

#include "kit/driver.h"

#include <gtest/gtest.h>

namespace kit {

/// Runs the tests of the program: on a desktop of its own, with faults ending the process,
/// failures of the driver reported to GoogleTest, and after each test the heap whole and no
/// window left over. Programs that link `kit` have this as their main already.
///
/// `--kit-source=ATest.cpp` runs the tests of that source, and fails when it has none;
/// `--kit-sources=ATest.cpp,BTest.cpp` runs nothing, but fails unless each test stands in one of
/// these.
int main(int argc, char** argv);

} // namespace kit
