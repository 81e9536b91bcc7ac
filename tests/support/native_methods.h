#pragma once

#include <jni.h>

#include <functional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace quorvelj::testing {

/// One native method of the Java class, as the header that javac generates lists it.
struct NativeMethod {
  std::string name;       // "QV_GetUnitParam"
  std::string signature;  // "(Ljava/lang/String;)Ltessaly/str/diskarray/QVUnitParam;"
  std::function<jvalue(JNIEnv* env, const std::vector<jvalue>& arguments)> invoke;

  /// The JNI types of the arguments: "I", "Ljava/lang/String;".
  std::vector<std::string> argumentTypes() const;
  /// 'V', 'I', or 'L' for an object or an array.
  char resultKind() const;

  friend void PrintTo(const NativeMethod& method, std::ostream* out) { *out << method.name; }
};

/// All of them: those linked into this program, or those of the DLL that it loads. There is no list
/// to keep: a method is here by being declared in Java.
std::span<const NativeMethod> nativeMethods();

const NativeMethod& nativeMethod(const std::string& name);

}  // namespace quorvelj::testing
