#pragma once

#include <jni.h>

#include <iosfwd>
#include <span>
#include <string>
#include <vector>

namespace quorvelj::testing {

/// One native method of the Java class, as the header that javac generates lists it.
struct NativeMethod {
  using AnyFunction = void (*)();

  const char* name;       // "QV_GetUnitParam"
  const char* signature;  // "(Ljava/lang/String;)Ltessaly/str/diskarray/QVUnitParam;"
  /// The method itself; null where it is called by way of Java.
  AnyFunction function;
  jvalue (*call)(const NativeMethod& method, JNIEnv* env, const std::vector<jvalue>& arguments);

  jvalue invoke(JNIEnv* env, const std::vector<jvalue>& arguments) const {
    return call(*this, env, arguments);
  }

  /// The JNI types of the arguments: "I", "Ljava/lang/String;".
  [[nodiscard]] std::vector<std::string> argumentTypes() const;
  /// The place of an argument among the library's: it takes the session before a path, wherever
  /// Java has it.
  [[nodiscard]] int libraryIndexOf(std::size_t argument) const;
  /// 'V', 'I', or 'L' for an object or an array.
  [[nodiscard]] char resultKind() const;
};

/// The frame from which the last native method of this thread was called.
extern thread_local const char* callersFrame;

/// How GoogleTest shows a method.
void PrintTo(const NativeMethod& method, std::ostream* out);

/// All native methods: those linked into this program, those of the DLL that it loads, or those of
/// the Java class in its JVM. The list is made from the Java class.
std::span<const NativeMethod> nativeMethods();

const NativeMethod& nativeMethod(const std::string& name);

}  // namespace quorvelj::testing
