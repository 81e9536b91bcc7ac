#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/java_fields.h"
#include "tests/support/mini_jvm/heap.h"
#include "tests/support/native_methods.h"
#include "tests/support/pending_exception.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {

namespace mini {
class RandomInputs;
}  // namespace mini

/// What the fields of an input object hold until they are set.
struct InputProfile {
  std::string text = "text";
  std::size_t primitives = 8192;  // elements of int, byte and short arrays
  std::size_t objects = 3;        // elements of object arrays
  /// Makes the arguments and the fields instead.
  mini::RandomInputs* random = nullptr;
};

/// A Java virtual machine of the JNI functions that the bridge may use, over objects in memory. A
/// class, a field or a method comes into being when native code asks for it. Any other JNI function
/// ends the process.
class MiniJvm {
 public:
  MiniJvm();
  MiniJvm(const MiniJvm&) = delete;
  MiniJvm& operator=(const MiniJvm&) = delete;

  JNIEnv* env() { return &env_.env; }
  /// The one that has this environment.
  static MiniJvm& of(JNIEnv* env) { return *reinterpret_cast<Env*>(env)->jvm; }

  /// Declares classes: each has these fields and no others.
  void declare(const std::vector<JavaField>& fields);
  /// The name of an object's class, in slash form.
  std::string classOf(jobject object);

  /// Objects for a test to hand over. An input's fields follow the profile until they are set.
  jstring newText(const std::string& text);
  jobject newInput(const std::string& signature = "Ljava/lang/Object;");
  /// The arguments of a method after the profile: ints of 3, texts, inputs, and arrays of inputs.
  std::vector<jvalue> newArguments(const NativeMethod& method);
  jintArray newInts(const std::vector<jint>& values);
  void setObject(jobject object, const char* name, const char* signature, jobject value);
  InputProfile profile;

  /// What a test finds in an object that the bridge filled. A field that was never set ends the
  /// process.
  jint intOf(jobject object, const char* name);
  std::string textOf(jobject object, const char* name);
  std::string textOf(jstring text);
  jobject objectOf(jobject object, const char* name);
  std::vector<jint> intsOf(jobject array);
  std::vector<jbyte> bytesOf(jobject array);
  std::vector<jobject> elementsOf(jobject array);

  std::optional<PendingException> pending();
  void clearPending() { thrown = nullptr; }

  /// Whether an access to an int can be made to fail. In no JVM it does.
  bool intsFail = true;
  /// The JNI call to fail: the n-th of those that can, counted from 1; 0 fails none.
  int failingCall = 0;
  /// The JNI function that failed so, or "".
  std::string failedFunction;
  /// The same with its texts.
  std::string failedCall;
  /// The JNI calls so far that could have failed, all of them, and those that JNI forbids while an
  /// exception is pending, as one was.
  int fallibleCalls = 0;
  int calls = 0;
  int callsUnderException = 0;
  /// The frame of the deepest JNI function so far.
  const char* deepestFrame = reinterpret_cast<const char*>(UINTPTR_MAX);
  /// Characters and array elements that native code obtained and did not release.
  int unreleased = 0;
  std::map<const char*, std::vector<char>> characters;
  mini::Object* thrown = nullptr;
  mini::Heap heap;
  /// The recorder of the thread that made the JVM, and has it for itself.
  Recorder& recorded = recorder();

 private:
  struct Env {
    JNIEnv env;
    MiniJvm* jvm;
  };
  Env env_;
};

}  // namespace quorvelj::testing
