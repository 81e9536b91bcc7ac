#pragma once

#include <jni.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// The Java caller whose part the family tests play: it makes objects, finds what they hold, and
// calls the native methods of the product's own library, which has the simulator behind it. It is
// in a real JVM, or in the mini JVM where no real one can be had.
namespace quorvelj::testing {

/// The caller's JVM, started on first use.
JNIEnv* javaEnv();

/// Objects to hand to a native method.
jobject text(const std::string& value);
jobject number(jint value);
/// A new object of the package's class.
jobject create(const char* className);

/// Sets the field at a path, "server[1].ip_address", from its text form; makes what lies on the
/// way.
void set(jobject object, const std::string& path, const std::string& value);
/// Fields of an object: their paths, and their values as text.
struct FieldText {
  std::string_view path;
  std::string_view value;
};
using Fields = std::initializer_list<FieldText>;
void set(jobject object, Fields fields);
jobject create(const char* className, Fields fields);
/// Sets the field at a path to null.
void setNull(jobject object, const std::string& path);
/// Sets the array field at a path to a new array of a length; to null where that is -1.
void setLength(jobject object, const std::string& path, int length);

/// The field at a path as text: "-1", "null", "[1, 2]", "QVAccountRole[32]" for an array of objects
/// and "QVAccountRole" for an object.
std::string get(jobject object, const std::string& path);

struct Called {
  jobject result;
  /// "" or the exception: "DiskArrayException 258", "NoSuchFieldError percent".
  std::string failure;
};

/// Calls a native method; ints are given as `number`s.
Called call(const char* method, const std::vector<jobject>& arguments);

}  // namespace quorvelj::testing
