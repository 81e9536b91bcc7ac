#include "tests/support/mini_jvm/inputs.h"

#include <algorithm>

namespace quorvelj::testing::mini {
namespace {

/// A table has fewer rows than a list has elements: its cells are the product of both. No
/// fixed-length copy takes more rows than these.
constexpr std::size_t kMostRows = 100;

std::size_t lengthOf(const InputProfile& profile, const std::string& signature) {
  const bool isTable = signature[1] == '[';
  const bool holdsObjects = signature.back() == ';';
  return isTable ? std::min(holdsObjects ? profile.objects : profile.primitives, kMostRows)
                 : profile.objects;
}

}  // namespace

Object* makeInput(Heap& heap, const InputProfile& profile, const std::string& signature) {
  if (profile.random != nullptr) {
    return profile.random->make(heap, signature);
  }
  if (signature == "Ljava/lang/String;") {
    return Heap::hold(heap.make("java/lang/String", profile.text));
  }
  if (signature == "[I") {
    return Heap::hold(heap.makeArray("[I", profile.primitives, jint{0x01020381}));
  }
  if (signature == "[B") {
    return Heap::hold(heap.makeArray("[B", profile.primitives, jbyte{0x42}));
  }
  if (signature == "[S") {
    return Heap::hold(heap.makeArray("[S", profile.primitives, jshort{1234}));
  }
  if (signature[0] == '[') {
    // The same element in every place: to make each of a table's rows would take most of the time.
    const std::size_t length = lengthOf(profile, signature);
    Object* const element = length == 0 ? nullptr : makeInput(heap, profile, signature.substr(1));
    return Heap::hold(heap.makeArray(signature.c_str(), length, element));
  }
  const std::string name = signature.substr(1, signature.size() - 2);
  Object* const object = heap.make(heap.findClass(name.c_str()));
  object->input = true;
  return Heap::hold(object);
}

}  // namespace quorvelj::testing::mini
