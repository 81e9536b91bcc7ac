#pragma once

#include <limits>
#include <vector>

#include "tests/support/native_methods.h"

namespace quorvelj::testing {

/// What a method does otherwise than its kind.
struct Departure {
  jint failureValue = 0;
  /// Releases its records where one could not be had, as an update does.
  bool releasesOnRefusal = false;
  /// Returns null without an exception where there is no memory.
  bool silentWithoutMemory = false;
  /// Records that it never releases.
  int neverReleased = 0;
  /// The first allocation that it does not test: from there on it goes on without memory.
  int firstUntestedAllocation = std::numeric_limits<int>::max();
  /// Characters that it never releases.
  int neverReleasedCharacters = 0;
  /// Takes a null text for an empty one.
  bool acceptsNullText = false;
  /// Does not call the library where its last argument cannot be read.
  bool stopsUnread = false;
  /// Returns the library's result itself, and throws nothing for -1.
  bool returnsResult = false;
  /// What the library fills in instead of zeros, of which the method would make null.
  std::vector<unsigned char> output = {};
};

/// The row of a method in the table of departures, or that of a regular method.
const Departure& departureOf(const NativeMethod& method);

}  // namespace quorvelj::testing
