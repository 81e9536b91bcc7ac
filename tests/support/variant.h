#pragma once

#include <cstdlib>

namespace quorvelj::testing {

/// Whether the library under test is the one that keeps identifiers during a call: the environment
/// says so.
inline bool keepsIdentifiers() { return std::getenv("QUORVELJ_CACHED") != nullptr; }

}  // namespace quorvelj::testing
