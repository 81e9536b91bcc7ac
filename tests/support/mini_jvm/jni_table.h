#pragma once

#include <jni.h>

namespace quorvelj::testing::mini {

/// The JNI functions that the bridge may use, over the mini JVM that has the environment. Any other
/// ends the process.
const JNINativeInterface_& jniTable();

}  // namespace quorvelj::testing::mini
