#pragma once

#include <jni.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

#include "arraylib/record.h"

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
//   std::int32_t[N], [R][C], …      [I, [[I, …             all elements              N, R x C
//   std::int8_t[N], [R][C], …       [I, [[I, …             widened with their sign   low bytes
//   std::byte[N]                    [B                     into the array at hand    exactly N
//   std::byte[R][C], …              [[B, …                 new arrays                R x C
//   a record, [N], [R][C], …        object, arrays         all elements              at most N
//   a part (QUORVEL_PART)           its fields one by one  the fields                the fields
//
// `…` stands for a third extent; three-dimensional arrays of std::int32_t and of raw bytes are
// built only.
namespace quorvelj {

inline constexpr std::size_t kMaxRank = 3;

/// The widest text member; a text without its NUL is copied once, to end it.
inline constexpr std::size_t kMaxTextBytes = 8192;

enum class FieldKind : std::uint8_t { kInt32, kInt8, kUInt8, kText, kBytes, kRecord, kPart };

struct ClassMap;

/// Never defined: the compiler refuses a map that comes to call it.
void moreElementsThanTheMemberHas();

/// One Java field and its place in the record.
struct Field {
  const char* name;
  /// JNI signature. The elements of an array have the signature behind its first bracket. A part,
  /// which is no field of its own, has none.
  const char* signature;
  /// The map of a record's elements or of a part, else null.
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
jobject build(JNIEnv* env, const ClassMap& map, const void* record);

/// Returns a new array of `length` objects, built from records that lie `recordBytes` apart, or
/// null where one of them could not be built.
jobjectArray buildArray(JNIEnv* env, const ClassMap& map, const void* records, jsize length,
                        std::size_t recordBytes);

/// Fills `record` from a Java object. Returns 0; -1 where the object, the record, or an object or
/// an array inside it is missing; 2817 where another field could not be read. Stops at the first
/// failure with the later members as they were, but goes on behind an object or an element that
/// stopped inside.
int read(JNIEnv* env, const ClassMap& map, jobject object, void* record);

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
    static_assert(kRank <= 1 && sizeof(Member) <= kMaxTextBytes);
    field.kind = FieldKind::kText;
    field.signature = &"[Ljava/lang/String;"[1 - kRank];
    field.elementBytes = extents[kRank];
  } else if constexpr (std::is_same_v<Element, std::byte>) {
    static_assert(kRank >= 1);
    field.kind = FieldKind::kBytes;
    field.signature = &"[[[B"[kUnused];
  } else if constexpr (std::is_same_v<Element, std::int32_t>) {
    field.kind = FieldKind::kInt32;
    field.signature = &"[[[I"[kUnused];
  } else if constexpr (std::is_same_v<Element, std::int8_t>) {
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

}  // namespace quorvelj

/// The field of a member, for a map that lists its fields one by one.
#define QUORVELJ_FIELD(Record, member) \
  quorvelj::fieldOf<decltype(Record::member)>(#member, offsetof(Record, member))

/// Defines the map of a record's own class, or of a part, from its members in fill order.
#define QUORVELJ_CLASS(Record, ...)                                          \
  static constexpr quorvelj::Field kFieldsOf##Record[] = {                   \
      QUORVELJ_FOR_EACH(QUORVELJ_FIELD, Record __VA_OPT__(, ) __VA_ARGS__)}; \
  constinit const quorvelj::ClassMap quorvelj::ClassOf<Record>::kMap {       \
    quorvelj::ClassOf<Record>::kName, kFieldsOf##Record                      \
  }

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
  __VA_OPT__(QUORVELJ_EXPAND(QUORVELJ_FOR_FIRST(macro, record, __VA_ARGS__)))
#define QUORVELJ_FOR_FIRST(macro, record, member, ...) \
  macro(record, member)                                \
      __VA_OPT__(, QUORVELJ_FOR_REST QUORVELJ_PARENTHESES(macro, record, __VA_ARGS__))
#define QUORVELJ_FOR_REST() QUORVELJ_FOR_FIRST
