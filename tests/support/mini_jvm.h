#pragma once

#include <jni.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/java_fields.h"
#include "tests/support/native_methods.h"
#include "tests/support/pending_exception.h"

namespace quorvelj::testing {

namespace mini {
class Heap;
struct JniTable;
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
  ~MiniJvm();
  MiniJvm(const MiniJvm&) = delete;
  MiniJvm& operator=(const MiniJvm&) = delete;

  JNIEnv* env();

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

  /// Makes a class or every field of a name impossible to find.
  void removeClass(const std::string& name);
  void removeField(const std::string& name);

  /// Releases what native code makes and no longer refers to. It saves time and memory in a test
  /// that does not look at results.
  void forgetResults();

  /// Lets one JNI call fail: the n-th of those that can, counted from 1. 0 lets none fail.
  void failCall(int call);
  /// The JNI function that failed so, or "".
  std::string failedFunction() const;
  /// The JNI calls so far that could have failed.
  int fallibleCalls() const;
  /// All JNI calls so far, and those that JNI forbids while an exception is pending.
  int calls() const;
  int callsUnderException() const;
  /// The address of the deepest frame of a JNI function so far.
  const char* deepestFrame() const;

  std::optional<PendingException> pending() const;
  void clearPending();
  /// Local references that native code made and did not delete, and the most there were at once.
  int liveReferences() const;
  int mostReferences() const;
  /// Characters and array elements that were obtained and not released.
  int unreleased() const;
  /// References used after their deletion, or of the wrong kind.
  int misuses() const;

 private:
  mini::Heap& heap();
  const mini::Heap& heap() const;

  std::unique_ptr<mini::JniTable> jni_;
};

}  // namespace quorvelj::testing
