#pragma once

#include <jni.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

#include "arraylib/record.h"
#include "bridge/env.h"

// A class map lists the fields of one Java class in the order in which they are filled, each with
// its place in the record of the same name. It is data: `build` and `read` walk it.
//
//   QUORVELJ_CLASS(DiskDrive, port_no, row_no, mount);
//
// defines the map of the record `DiskDrive` and the Java class of that name. Kind, offset, extents
// and element map of a field follow from the type of the record's member:
//
//   member                          Java field             built                     read
//   std::int32_t                    I                      the value                 the value
//   std::int8_t                     I                      widened with its sign     low byte
//   std::uint8_t                    I                      widened without           low byte
//   char[S]                         String                 up to the NUL             cut to S - 1
//   char[N][S]                      String[]               N slots of S bytes        at most N
//   std::int32_t[N], [R][C]         [I, [[I                all elements              N, R x C
//   std::int8_t[N], [R][C]          [I, [[I                widened with their sign   low bytes
//   std::byte[N]                    [B                     into the array at hand    exactly N
//   std::byte[R][C], …              [[B, …                 new arrays                R x C
//   a record, [N], [R][C], …        object, arrays         all elements              at most N
//   a part (QUORVEL_PART)           its fields one by one  the fields                the fields
//
// `…` stands for a third extent, which records and raw bytes have; three-dimensional raw bytes are
// built only.
//
// The list names every member of the record once. Members that no Java field holds are called
// `reserved`, `reserved0`, `reserved1`, … and may be left out. A form that fills fewer is a
// QUORVELJ_MAP.
namespace quorvelj {

inline constexpr std::size_t kMaxRank = 3;

enum class FieldKind : std::uint8_t { kInt32, kInt8, kUInt8, kText, kBytes, kRecord, kPart };

struct ClassMap;

/// Never defined. A map that asks for too many elements calls it at compile time and is refused.
void moreElementsThanTheMemberHas();

/// One Java field and its place in the record.
struct Field {
  const char* name;
  /// JNI signature; that of an array's elements begins behind its first bracket. A part has none.
  const char* signature;
  /// The map of a record, of an array's records, or of a part; else null.
  const ClassMap* element;
  /// Bytes from the start of the record.
  std::size_t offset;
  /// Bytes of one element; of a text, its width.
  std::size_t elementBytes;
  FieldKind kind;
  /// The number of Java array dimensions; a text's bytes are none.
  std::uint8_t rank;
  std::array<std::uint32_t, kMaxRank> extents;

  /// The same field with its elements built and read by `map`: a light form of their class.
  [[nodiscard]] consteval Field as(const ClassMap& map) const {
    Field field = *this;
    field.element = &map;
    return field;
  }

  /// The same field with the first `count` elements only.
  [[nodiscard]] consteval Field first(std::uint32_t count) const {
    Field field = *this;
    if (rank == 0 || count > extents[0]) {
      moreElementsThanTheMemberHas();
    }
    field.extents[0] = count;
    return field;
  }
};

struct ClassMap {
  /// Slash form.
  const char* className;
  std::span<const Field> fields;
};

/// Returns a new Java object filled from `record`, or null: where the record is null, or anything
/// but a text could not be stored. Flushes standard output first, as does the building of every
/// object inside it.
jobject build(Env env, const ClassMap& map, const void* record);

/// Returns a new array of `length` objects, built from records that lie `recordBytes` apart, or
/// null where one of them could not be built.
jobjectArray buildArray(Env env, const ClassMap& map, const void* records, jsize length,
                        std::size_t recordBytes);

/// Fills `record` from a Java object. Returns 0; -1 where the object, the record, or an object or
/// an array inside it is missing; 2817 where another field could not be read. Stops at the first
/// failure, and the later members keep their bytes. The failure of an object inside ends the
/// reading of that object alone.
int read(Env env, const ClassMap& map, jobject object, void* record);

/// Derives the field of a record member of the type `Member`.
template <class Member>
consteval Field fieldOf(const char* name, std::size_t offset) {
  using Element = std::remove_all_extents_t<Member>;
  constexpr bool kIsText = std::is_same_v<Element, char>;
  constexpr std::size_t kRank = std::rank_v<Member> - (kIsText ? 1 : 0);
  static_assert(kRank <= kMaxRank);
  constexpr std::size_t kUnused = kMaxRank - kRank;

  Field field{};
  field.name = name;
  field.offset = offset;
  field.elementBytes = sizeof(Element);
  field.rank = static_cast<std::uint8_t>(kRank);
  const std::array<std::size_t, kMaxRank> extents{
      std::extent_v<Member, 0>, std::extent_v<Member, 1>, std::extent_v<Member, 2>};
  for (std::size_t dimension = 0; dimension < kRank; ++dimension) {
    field.extents[dimension] = static_cast<std::uint32_t>(extents[dimension]);
  }
  if constexpr (kIsText) {
    static_assert(kRank <= 1);
    field.kind = FieldKind::kText;
    field.signature = &"[Ljava/lang/String;"[1 - kRank];
    field.elementBytes = extents[kRank];
  } else if constexpr (std::is_same_v<Element, std::byte>) {
    static_assert(kRank >= 1);
    field.kind = FieldKind::kBytes;
    field.signature = &"[[[B"[kUnused];
  } else if constexpr (std::is_same_v<Element, std::int32_t>) {
    static_assert(kRank <= 2);
    field.kind = FieldKind::kInt32;
    field.signature = &"[[[I"[kUnused];
  } else if constexpr (std::is_same_v<Element, std::int8_t>) {
    static_assert(kRank <= 2);
    field.kind = FieldKind::kInt8;
    field.signature = &"[[[I"[kUnused];
  } else if constexpr (std::is_same_v<Element, std::uint8_t>) {
    static_assert(kRank == 0, "byte arrays are widened with their sign: std::int8_t");
    field.kind = FieldKind::kUInt8;
    field.signature = "I";
  } else {
    static_assert(std::is_class_v<Element> && std::is_standard_layout_v<Element>);
    field.element = &ClassOf<Element>::kMap;
    if constexpr (requires { ClassOf<Element>::kArraySignature; }) {
      field.kind = FieldKind::kRecord;
      field.signature = &ClassOf<Element>::kArraySignature[kUnused];
    } else {
      static_assert(kRank == 0, "the fields of a part are there once");
      field.kind = FieldKind::kPart;
    }
  }
  return field;
}

/// Whether no two fields lie in the same place.
template <std::size_t N>
consteval bool eachOnce(const Field (&fields)[N]) {
  for (std::size_t left = 0; left < N; ++left) {
    for (std::size_t right = left + 1; right < N; ++right) {
      if (fields[left].offset == fields[right].offset) {
        return false;
      }
    }
  }
  return true;
}

template <std::size_t N>
consteval bool isListed(const Field (&fields)[N], std::string_view name) {
  // NOLINTNEXTLINE(readability-use-anyofallof): every source would get <algorithm> for it.
  for (const Field& field : fields) {
    if (name == field.name) {
      return true;
    }
  }
  return false;
}

/// The number of a record's members that its list leaves out because no Java field holds them.
template <class Record, std::size_t N>
consteval int reservedMembers(const Field (&fields)[N]) {
  int count = 0;
  if constexpr (requires(Record & record) { record.reserved; }) {
    count += isListed(fields, "reserved") ? 0 : 1;
  }
  if constexpr (requires(Record & record) { record.reserved0; }) {
    count += isListed(fields, "reserved0") ? 0 : 1;
  }
  if constexpr (requires(Record & record) { record.reserved1; }) {
    count += isListed(fields, "reserved1") ? 0 : 1;
  }
  return count;
}

}  // namespace quorvelj

/// The field of a member, for a map that lists its fields one by one.
#define QUORVELJ_FIELD(Record, member) \
  quorvelj::fieldOf<decltype(Record::member)>(#member, offsetof(Record, member))

/// Defines the map of a record's own class, or of a part, from its members in fill order: every one
/// of them, but for the reserved ones.
#define QUORVELJ_CLASS(Record, ...)                                                    \
  static constexpr quorvelj::Field kFieldsOf##Record[] = {                             \
      QUORVELJ_FOR_EACH(QUORVELJ_FIELD, Record, __VA_ARGS__)};                         \
  static_assert(quorvelj::eachOnce(kFieldsOf##Record),                                 \
                "the list of " #Record " names a member twice");                       \
  QUORVELJ_DECOMPOSE(Record, QUORVELJ_FOR_EACH(QUORVELJ_BINDING, Record, __VA_ARGS__)) \
  constinit const quorvelj::ClassMap quorvelj::ClassOf<Record>::kMap {                 \
    quorvelj::ClassOf<Record>::kName, kFieldsOf##Record                                \
  }

/// Compiles only where the record has as many members as there are bindings and reserved ones. A
/// list with a member twice has been refused already.
#define QUORVELJ_DECOMPOSE(Record, ...)                                            \
  template <class Whole>                                                           \
  static auto decompose##Record(Whole& record) {                                   \
    constexpr bool kEachOnce = quorvelj::eachOnce(kFieldsOf##Record);              \
    constexpr int kReserved = quorvelj::reservedMembers<Whole>(kFieldsOf##Record); \
    static_assert(kReserved <= 2);                                                 \
    if constexpr (kEachOnce && kReserved == 0) {                                   \
      [[maybe_unused]] auto& [__VA_ARGS__] = record;                               \
    } else if constexpr (kEachOnce && kReserved == 1) {                            \
      [[maybe_unused]] auto& [__VA_ARGS__, reserved] = record;                     \
    } else if constexpr (kEachOnce) {                                              \
      [[maybe_unused]] auto& [__VA_ARGS__, reserved0, reserved1] = record;         \
    }                                                                              \
    return 0;                                                                      \
  }                                                                                \
  static_assert(sizeof(decompose##Record(*static_cast<Record*>(nullptr))) == sizeof(int));
#define QUORVELJ_BINDING(Record, member) QUORVELJ_JOIN(binding, __COUNTER__)
#define QUORVELJ_JOIN(left, right) QUORVELJ_PASTE(left, right)
#define QUORVELJ_PASTE(left, right) left##right

/// Defines the map of a class without a known field: it is made by its constructor, and its bytes
/// are left alone.
#define QUORVELJ_OPAQUE_CLASS(Record)                                  \
  constinit const quorvelj::ClassMap quorvelj::ClassOf<Record>::kMap { \
    quorvelj::ClassOf<Record>::kName, {}                               \
  }

/// Defines `name`, a second map of a record's class, from fields in fill order: a form that fills a
/// subset or another order than the class's own map.
#define QUORVELJ_MAP(name, Record, ...)                            \
  static constexpr quorvelj::Field name##Fields[] = {__VA_ARGS__}; \
  constinit const quorvelj::ClassMap name { quorvelj::ClassOf<Record>::kName, name##Fields }

// macro(record, a), macro(record, b), … for up to 120 members.
#define QUORVELJ_PARENTHESES ()
#define QUORVELJ_EXPAND(...) QUORVELJ_EXPAND_3(QUORVELJ_EXPAND_3(QUORVELJ_EXPAND_3(__VA_ARGS__)))
#define QUORVELJ_EXPAND_3(...) QUORVELJ_EXPAND_2(QUORVELJ_EXPAND_2(QUORVELJ_EXPAND_2(__VA_ARGS__)))
#define QUORVELJ_EXPAND_2(...) QUORVELJ_EXPAND_1(QUORVELJ_EXPAND_1(QUORVELJ_EXPAND_1(__VA_ARGS__)))
#define QUORVELJ_EXPAND_1(...) QUORVELJ_EXPAND_0(QUORVELJ_EXPAND_0(QUORVELJ_EXPAND_0(__VA_ARGS__)))
#define QUORVELJ_EXPAND_0(...) __VA_ARGS__
#define QUORVELJ_FOR_EACH(macro, record, ...) \
  QUORVELJ_EXPAND(QUORVELJ_FOR_FIRST(macro, record, __VA_ARGS__))
#define QUORVELJ_FOR_FIRST(macro, record, member, ...) \
  macro(record, member)                                \
      __VA_OPT__(, QUORVELJ_FOR_REST QUORVELJ_PARENTHESES(macro, record, __VA_ARGS__))
#define QUORVELJ_FOR_REST() QUORVELJ_FOR_FIRST
