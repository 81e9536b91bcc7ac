#pragma once

#include <jni.h>

#include <optional>
#include <string>

#include "tests/support/pending_exception.h"

// What a caller needs of its JVM beyond the JNI functions that the bridge uses.
namespace quorvelj::testing {

/// The class of an object, in slash form.
std::string classOf(jobject object);

/// The value of a java.lang.Integer.
jint valueOf(jobject integer);

/// Takes the exception that the last call left.
std::optional<PendingException> takeException();

}  // namespace quorvelj::testing
