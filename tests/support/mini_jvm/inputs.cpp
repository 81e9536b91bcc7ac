#include "tests/support/mini_jvm/inputs.h"

#include <algorithm>
#include <array>

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

template <class Number>
std::vector<Number> counted(std::size_t length, jint first) {
  std::vector<Number> numbers(length);
  std::generate(numbers.begin(), numbers.end(), [&] { return static_cast<Number>(first++); });
  return numbers;
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

jint RandomInputs::number() {
  constexpr std::array kEdges{0, 1, 2, 3, -1, 127, 128, 255, 256, -128, -129, INT32_MAX, INT32_MIN};
  return oneIn(3) ? static_cast<jint>(random_()) : kEdges.at(below(kEdges.size()));
}

std::string RandomInputs::text() {
  // Around the widths of the library's buffers.
  constexpr std::array kLengths{0, 1, 8, 9, 16, 17, 32, 33, 64, 65, 66, 256, 257, 1023, 1024, 6000};
  const auto length = static_cast<std::size_t>(kLengths.at(below(kLengths.size())));
  if (oneIn(2)) {
    return std::string(length, 'x');
  }
  // Modified UTF-8 has no byte 0: Java's U+0000 are two bytes.
  std::string bytes(length, '\0');
  std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(1 + below(255)); });
  return bytes;
}

std::size_t RandomInputs::length() {
  // Most arrays hold what a fixed-length copy takes: a shorter one ends the reading.
  constexpr std::array kLengths{0, 1, 2, 30, 300, 9000};
  return oneIn(4) ? static_cast<std::size_t>(kLengths.at(below(kLengths.size()))) : 2100;
}

Object* RandomInputs::make(Heap& heap, const std::string& signature) {
  if (oneIn(12)) {
    return nullptr;
  }
  if (signature == "Ljava/lang/String;") {
    return heap.make("java/lang/String", text());
  }
  return signature[0] == '[' ? makeArray(heap, signature)
                             : makeObject(heap, signature.substr(1, signature.size() - 2));
}

Object* RandomInputs::makeArray(Heap& heap, const std::string& signature) {
  if (signature == "[I") {
    return heap.make("[I", counted<jint>(length(), number()));
  }
  if (signature == "[B") {
    return heap.make("[B", counted<jbyte>(length(), number()));
  }
  if (signature == "[S") {
    return heap.make("[S", counted<jshort>(length(), number()));
  }
  // A few elements, each of them many times where the array is long.
  std::array<Object*, 3> some{};
  std::generate(some.begin(), some.end(), [&] { return make(heap, signature.substr(1)); });
  std::vector<Object*> elements(oneIn(8) ? length() : below(30));
  std::generate(elements.begin(), elements.end(), [&] { return some.at(below(some.size())); });
  return heap.make(signature.c_str(), std::move(elements));
}

Object* RandomInputs::makeObject(Heap& heap, const std::string& className) {
  Class* type = heap.findClass(className.c_str());
  if (oneIn(4) && type->declared) {
    const Class& parent = *type;
    type = heap.derive(type);
    for (const auto& [key, field] : parent.members) {
      // A field of the same name in another type is passed by: a look-up asks for the type as well.
      if (field->signature[0] != '(' && oneIn(4)) {
        heap.addMember(type, field->name, oneIn(2) ? "J" : field->signature);
      }
    }
  } else if (oneIn(40)) {
    type = heap.findClass("Stranger");
    type->declared = true;
  }
  Object* const object = heap.make(type);
  object->input = true;
  return object;
}

}  // namespace quorvelj::testing::mini
