#pragma once

#include <cstddef>
#include <cstdint>

// Records are plain structs in natural C layout, little-endian, without pointers, so that they are
// the same on 32 and on 64 bits. A member's type says how the bridge converts it;
// bridge/class_map.h has the table. `char` is text, `std::byte` raw bytes, `std::int8_t` and
// `std::uint8_t` numbers.

namespace quorvelj {

struct ClassMap;

/// What a record is on the Java side: a class of the same name.
template <class Record>
struct ClassOf;

}  // namespace quorvelj

/// Fixes the size of a record in bytes and ties it to the Java class of its name. The class map is
/// defined beside the methods that use it.
#define QUORVEL_RECORD(Record, bytes)                                                   \
  static_assert(sizeof(Record) == (bytes), "the size of " #Record);                     \
  template <>                                                                           \
  struct quorvelj::ClassOf<Record> {                                                    \
    static constexpr char kName[] = "tessaly/str/diskarray/" #Record;                   \
    static constexpr char kArraySignature[] = "[[[Ltessaly/str/diskarray/" #Record ";"; \
    static constexpr int kLine = __LINE__;                                              \
    static const ClassMap kMap;                                                         \
  }

/// The same for a record without a Java class of its own, a part: its fields are fields of the
/// object that the record around it stands for, or of the argument that it is read from.
#define QUORVEL_PART(Record, bytes)                                 \
  static_assert(sizeof(Record) == (bytes), "the size of " #Record); \
  template <>                                                       \
  struct quorvelj::ClassOf<Record> {                                \
    static constexpr char kName[] = "";                             \
    static constexpr int kLine = __LINE__;                          \
    static const ClassMap kMap;                                     \
  }

/// Fixes the place of a member in bytes.
#define QUORVEL_OFFSET(Record, member, bytes) \
  static_assert(offsetof(Record, member) == (bytes), "the place of " #Record "." #member)

namespace quorvelj {

/// The members of a record that are assumed, not confirmed by the library's own declarations: names
/// with commas between them, "" for all of the record; null where none is.
template <class Record>
inline constexpr const char* kAssumedMembers = nullptr;

/// Whether the arguments of a library function, or their order, are assumed.
template <auto Function>
inline constexpr bool kAssumedFunction = false;

/// The members of a record that a recording must not hold, names with commas between them; null for
/// none.
template <class Record>
inline constexpr const char* kSecretMembers = nullptr;

/// Whether the texts that a function is given are such.
template <auto Function>
inline constexpr bool kSecretTexts = false;

/// The parameter that says how many records the last parameter of a function has; -1 for the extent
/// of its type.
template <auto Function>
inline constexpr int kCountParameter = -1;

/// Bytes behind a record that the library may reach, where the record's size is itself assumed.
template <class Record>
inline constexpr std::size_t kSpareBytes = 0;

}  // namespace quorvelj

/// Marks a layout as assumed: of the whole record, or of the members that follow. It stands behind
/// the `QUORVEL_RECORD`, and goes when the layout is confirmed; docs/open-points.md gives the
/// reasons.
#define QUORVEL_ASSUMED(Record, ...) \
  template <>                        \
  inline constexpr const char* quorvelj::kAssumedMembers<Record> = #__VA_ARGS__

/// The same for the arguments of a function.
#define QUORVEL_ASSUMED_FUNCTION(function) \
  template <>                              \
  inline constexpr bool quorvelj::kAssumedFunction<function> = true

/// Marks the size of a record as assumed: the library gets `bytes` more behind it, so that a larger
/// record of its own does no harm.
#define QUORVEL_ASSUMED_SIZE(Record, bytes) \
  template <>                               \
  inline constexpr std::size_t quorvelj::kSpareBytes<Record> = bytes

/// Marks members as secret: passwords and identifiers of sessions. In a recording tokens stand for
/// them.
#define QUORVEL_SECRET(Record, ...) \
  template <>                       \
  inline constexpr const char* quorvelj::kSecretMembers<Record> = #__VA_ARGS__

/// The same for the texts that a function is given.
#define QUORVEL_SECRET_TEXTS(function) \
  template <>                          \
  inline constexpr bool quorvelj::kSecretTexts<function> = true

/// Says that the last parameter of a function has as many records as the parameter of this number.
#define QUORVEL_COUNT_PARAMETER(function, number) \
  template <>                                     \
  inline constexpr int quorvelj::kCountParameter<function> = number

// How a function of the library is declared. The simulator exports them.
#ifndef QUORVEL_API
#define QUORVEL_API extern "C"
#endif

/// A unit name, NUL-terminated: 64 bytes and the NUL.
using UnitName = char[65];

/// A unit name in the longer buffer that some functions are given.
using LongUnitName = char[1024];

/// A file path, NUL-terminated.
using FilePath = char[1024];
