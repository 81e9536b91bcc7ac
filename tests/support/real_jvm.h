#pragma once

#include <jni.h>

#include <cstddef>
#include <string>
#include <vector>

// A real Java virtual machine in this process, with the Java half and the product's own library on
// its paths, and the simulator behind it.
namespace quorvelj::testing {

/// The machine, started on first use.
JNIEnv* realJvm();

/// Objects to hand to a native method.
jobject text(const std::string& value);
jobject number(jint value);
/// A new object of the package's class.
jobject create(const char* className);

/// Sets the field at a path, "server[1].ip_address", from its text form; makes what lies on the
/// way.
void set(jobject object, const std::string& path, const std::string& value);
/// Sets a text field to null, or an array field to a new array of a length or to null.
void setNull(jobject object, const char* field);
void setLength(jobject object, const char* field, int length);

/// The field at a path as text: "-1", "null", "[1, 2]", "QVAccountRole[32]" for an array of objects
/// and "QVAccountRole" for an object.
std::string get(jobject object, const std::string& path);

struct Called {
  jobject result;
  /// "" or "DiskArrayException 258" or "OutOfMemoryError ".
  std::string failure;
};

/// Calls a native method by way of Java.
Called call(const char* method, const std::vector<jobject>& arguments);

/// One member of a record, as its description prints it.
struct Member {
  enum class Kind { kInt32, kInt8, kUInt8, kText, kBytes };
  std::string path;
  std::size_t offset;
  Kind kind;
  std::size_t width = 4;
};

Member int32At(std::size_t offset, const char* path);
Member int8At(std::size_t offset, const char* path);
Member uint8At(std::size_t offset, const char* path);
Member textAt(std::size_t offset, std::size_t width, const char* path);
Member bytesAt(std::size_t offset, std::size_t width, const char* path);

/// Consecutive ints from an offset on.
std::vector<Member> int32sAt(std::size_t offset, const std::vector<const char*>& paths);

// Members are listed in the order in which the bridge visits them, which is checked as well.

/// Plants values in a record of `size` bytes that the library returns from `method`, and finds each
/// of them under its path in the Java result; bytes at 0x80 and at 0xFF, texts with and without
/// their NUL. `function` is the library's where it is not named like the method.
void expectBuilt(const char* method, const std::vector<jobject>& arguments, std::size_t size,
                 const std::vector<Member>& members, const char* function = nullptr);

/// Sets the fields of `object`, which must be among the arguments, and finds each value at its
/// place in the record of `size` bytes that the library was given as its `parameter`; texts as long
/// as fits, and longer.
void expectRead(const char* method, const std::vector<jobject>& arguments, jobject object,
                int parameter, std::size_t size, const std::vector<Member>& members);

}  // namespace quorvelj::testing
