#pragma once

#include <cstdint>
#include <limits>
#include <span>

namespace quorvelj {

struct ClassMap;

/// What a native method does otherwise than its frame. The method states it once, by `DEPARTS`; the
/// tests expect it, and the catalogue has its text.
struct Departure {
  /// In words; "" for a method that follows its frame.
  const char* text = "";
  /// The library function that it calls; "" for the one of its own name.
  const char* function = "";
  /// Further fields of its last argument that it reads, each map into a record of its own.
  std::span<const ClassMap* const> alsoReads{};
  /// What a method that returns an int returns with an exception.
  std::int32_t failureValue = 0;
  /// Releases its records where one could not be had, as an update does; those that it never
  /// releases stay.
  bool releasesOnRefusal = false;
  /// Returns null without an exception where there is no memory.
  bool silentWithoutMemory = false;
  /// The number of records that it never releases.
  int neverReleased = 0;
  /// The first allocation, counted from 1, that it goes on without.
  int firstUntestedAllocation = std::numeric_limits<int>::max();
  /// The number of texts whose characters it never releases.
  int neverReleasedCharacters = 0;
  /// Takes a null text for an empty one.
  bool acceptsNullText = false;
  /// Throws the reader's result, and leaves out the library, where its last argument cannot be
  /// read.
  bool stopsUnread = false;
  /// Returns the library's result itself, and throws nothing for -1.
  bool returnsResult = false;
  /// Returns null without an exception where the library fills nothing in.
  bool nullOfZeros = false;
};

/// The departure of a method, by the type that `NATIVE_METHOD` names it by.
template <class Operation>
inline constexpr Departure kDepartureOf{};

}  // namespace quorvelj

/// States what the native method `QV_<Operation>` does otherwise than its frame: a text, then the
/// members of `Departure` that differ. It stands before the method's `NATIVE_METHOD`.
#define DEPARTS(Operation, words, ...)                                               \
  template <>                                                                        \
  inline constexpr quorvelj::Departure quorvelj::kDepartureOf<struct Operation##_> { \
    .text = (words)__VA_OPT__(, ) __VA_ARGS__                                        \
  }
