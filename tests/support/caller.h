#pragma once

#include <jni.h>

#include <initializer_list>
#include <string>
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

/// Fields of an object by their paths, and their values as text: "unit_name=north; alert=5". The
/// path of the object itself is empty, and "to#" is the length of the array "to".
struct FieldText {
  std::string path;
  std::string value;
};
struct Fields : std::vector<FieldText> {
  Fields(std::initializer_list<FieldText> fields = {}) : vector(fields) {}
  Fields(const std::string& list);
  Fields(const char* list) : Fields(std::string(list)) {}
};

/// A new object of the package's class.
jobject create(const char* className, const Fields& fields = {});
/// Sets the field at a path, "server[1].ip_address", from its text form; makes what lies on the
/// way. With a length an array is made anew.
void set(jobject object, const std::string& path, const std::string& value);
void set(jobject object, const Fields& fields);
/// Sets the field at a path to null.
void setNull(jobject object, const std::string& path);
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
