#pragma once

#include <gtest/gtest.h>

#include "simulator/control.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {

/// A test that finds the simulator and the test runtime as they begin, and leaves them so.
class SimulatedLibrary : public ::testing::Test {
 protected:
  SimulatedLibrary() { reset(); }
  ~SimulatedLibrary() override { reset(); }

 private:
  static void reset() {
    quorvelSimReset();
    resetTestRuntime();
  }
};

}  // namespace quorvelj::testing
