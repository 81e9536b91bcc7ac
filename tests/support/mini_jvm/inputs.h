#pragma once

#include <string>

#include "tests/support/mini_jvm.h"
#include "tests/support/mini_jvm/heap.h"
#include "tests/support/mini_jvm/random_inputs.h"

// The making of what native code is given: texts, arrays and objects that follow a profile.
namespace quorvelj::testing::mini {

/// A new value of a field or an argument of this JNI type, which is an object or an array.
Object* makeInput(Heap& heap, const InputProfile& profile, const std::string& signature);

/// The value of an int field that no test set; it differs from field to field.
inline jint inputNumber(const InputProfile& profile, const Member& field) {
  return profile.random != nullptr ? profile.random->number()
                                   : static_cast<jint>(0x01020304 + field.index);
}

}  // namespace quorvelj::testing::mini
