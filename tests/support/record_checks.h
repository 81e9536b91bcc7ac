#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/caller.h"

// Records of the library are compared with Java objects, member by member. A test lists where the
// library has each member, and under which path Java has it.
namespace quorvelj::testing {

struct Member {
  enum class Kind : std::uint8_t { kInt32, kInt8, kUInt8, kText, kBytes, kVisited };
  std::string path;
  std::size_t offset;
  Kind kind;
  std::size_t width;
};

/// The members of a record, in the order in which the bridge visits them, as in
/// "0:int32 valid mode; 8:text32 name; 40:bytes8 ports; visited ctl". A part gives the offset and
/// the kind of members that lie side by side, and their paths in Java; the kinds are int32, int8,
/// uint8, and text and bytes with their width. Visited fields have a place in the order and no
/// value to compare.
struct Members : std::vector<Member> {
  Members() = default;
  Members(const char* list);
};
Members operator+(Members left, const Members& right);

/// The members of records inside another, as in the first and the last element of an array. A place
/// is an offset and the record's path in Java: "44:parts[0] 100256:parts[1193]".
Members at(const std::string& places, const Members& members);

/// Plants values in a record of `size` bytes that the library returns from `method`, and finds each
/// of them under its path in the Java result; bytes at 0x80 and at 0xFF, texts with and without
/// their NUL. `function` is the library's where it is not named like the method. The order in which
/// the members are visited is compared as well.
void expectBuilt(const char* method, const std::vector<jobject>& arguments, std::size_t size,
                 const Members& members, const char* function = nullptr);

/// Sets the fields of `object`, one of the arguments, and finds each value at its place in the
/// record of `size` bytes that the library was given as its `parameter`; texts that fit just so,
/// and longer ones. The order is compared here too.
void expectRead(const char* method, const std::vector<jobject>& arguments, jobject object,
                int parameter, std::size_t size, const Members& members);

/// Finds these values in an object: "pair_count=1; lu[0].lun=10".
void expectFields(jobject object, const Fields& fields);

}  // namespace quorvelj::testing
