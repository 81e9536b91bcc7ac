#pragma once

#include <jni.h>

#include <cstdint>
#include <random>
#include <string>

#include "tests/support/mini_jvm.h"
#include "tests/support/mini_jvm/heap.h"

// The making of what native code is given: texts, arrays and objects.
namespace quorvelj::testing::mini {

/// Inputs that Java's types allow, and no more: null and shared objects, arrays of any length,
/// subclasses that hide fields, classes without the fields, numbers and texts of any content. Equal
/// seeds make equal inputs.
class RandomInputs {
 public:
  explicit RandomInputs(std::uint32_t seed) : random_(seed) {}

  jint number();
  /// A value of this JNI type, or null.
  Object* make(Heap& heap, const std::string& signature);
  /// From 0 to below `end`.
  std::size_t below(std::size_t end) { return random_() % end; }

 private:
  bool oneIn(std::size_t times) { return below(times) == 0; }
  std::string text();
  std::size_t length();
  Object* makeArray(Heap& heap, const std::string& signature);
  Object* makeObject(Heap& heap, const std::string& className);

  std::mt19937 random_;
};

/// A new value of a field or an argument of this JNI type, which is an object or an array.
Object* makeInput(Heap& heap, const InputProfile& profile, const std::string& signature);

/// The value of an int field that no test set; it differs from field to field.
inline jint inputNumber(const InputProfile& profile, const Member& field) {
  return profile.random != nullptr ? profile.random->number()
                                   : static_cast<jint>(0x01020304 + field.index);
}

}  // namespace quorvelj::testing::mini
