#pragma once

#include <set>
#include <string>

namespace quorvelj::testing {

/// What was called in the DLL so far. Every call is checked for the bytes that the callee pops, and
/// made at another alignment of the stack than the one before.
struct DllCalls {
  int calls = 0;
  std::set<std::string> methods;
};

const DllCalls& dllCalls();

}  // namespace quorvelj::testing
