#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace quorvelj::testing {

/// Ends the test run on what belongs to the tests, not to what they test.
[[noreturn]] inline void fail(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
  std::abort();
}

}  // namespace quorvelj::testing
