#pragma once

#include <vector>

#include "bridge/departure.h"
#include "tests/support/native_methods.h"

namespace quorvelj::testing {

/// What a method does otherwise than its frame, as it states itself.
const Departure& departureOf(const NativeMethod& method);

/// What the library fills in for a call that succeeds with a result: zeros, or a user's name where
/// the method would make null of zeros.
std::vector<unsigned char> outputFor(const NativeMethod& method);

}  // namespace quorvelj::testing
