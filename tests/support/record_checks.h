#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/caller.h"

// Records of the library are compared with Java objects, member by member. A test lists where the
// library has each member, and under which path Java has it.
namespace quorvelj::testing {

struct Member {
  enum class Kind : std::uint8_t { kInt32, kInt8, kUInt8, kText, kBytes, kVisited };
  const char* path;  // lives as long as the tests
  std::size_t offset;
  Kind kind;
  std::size_t width;
};
using Members = std::vector<Member>;

constexpr Member int32At(std::size_t offset, const char* path) {
  return {path, offset, Member::Kind::kInt32, 4};
}
constexpr Member int8At(std::size_t offset, const char* path) {
  return {path, offset, Member::Kind::kInt8, 1};
}
constexpr Member uint8At(std::size_t offset, const char* path) {
  return {path, offset, Member::Kind::kUInt8, 1};
}
constexpr Member textAt(std::size_t offset, std::size_t width, const char* path) {
  return {path, offset, Member::Kind::kText, width};
}
constexpr Member bytesAt(std::size_t offset, std::size_t width, const char* path) {
  return {path, offset, Member::Kind::kBytes, width};
}
/// The text of a path, for a member to point to.
const char* kept(const std::string& path);

/// The members of two lists, one behind the other.
Members operator+(Members left, const Members& right);

/// Consecutive ints, and consecutive texts of one width; names are separated by spaces.
Members int32sAt(std::size_t offset, std::initializer_list<const char*> paths);
Members int32sAt(std::size_t offset, const std::string& names);
Members textsAt(std::size_t offset, std::size_t width, const std::string& names);

/// Fields of which only the order is expected; names are separated by spaces.
Members visited(const std::string& names);

/// The place of a record inside another, and in Java its path, "rg[199].".
struct Location {
  std::size_t offset;
  std::string_view path;
};

/// The members of a record inside another: once, or at several places, as in the first and the last
/// element of an array.
Members at(std::size_t offset, const std::string& path, const Members& members);
Members at(std::initializer_list<Location> locations, const Members& members);

// Members are listed in the order in which the bridge visits them; both functions check it.

/// Plants values in a record of `size` bytes that the library returns from `method`, and finds each
/// of them under its path in the Java result; bytes at 0x80 and at 0xFF, texts with and without
/// their NUL. `function` is the library's where it is not named like the method.
void expectBuilt(const char* method, const std::vector<jobject>& arguments, std::size_t size,
                 const Members& members, const char* function = nullptr);

/// Sets the fields of `object`, one of the arguments, and finds each value at its place in the
/// record of `size` bytes that the library was given as its `parameter`; texts that fit just so,
/// and longer ones.
void expectRead(const char* method, const std::vector<jobject>& arguments, jobject object,
                int parameter, std::size_t size, const Members& members);

void expectFields(jobject object, Fields fields);

}  // namespace quorvelj::testing
