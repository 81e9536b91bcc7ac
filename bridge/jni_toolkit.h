#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <limits>

#include "bridge/env.h"

// The operations through which the bridge touches Java. Every one addresses a field by its name and
// JNI signature at the moment of the call; `env.h` says what is kept between two of them.
//
// Unless stated otherwise an operation returns `kOk` or `kFailed`. On success it deletes the local
// references that it made; on failure it returns at once and leaves them to the JVM, which releases
// them when the native method returns. It throws nothing of its own, but leaves pending what the
// JVM threw.
namespace quorvelj {

/// Results of the toolkit and of readers.
inline constexpr int kOk = 0;
/// A toolkit operation failed; also thrown where a Java result could not be built.
inline constexpr int kFailed = 2817;
/// A reader was given a null object or a null record.
inline constexpr int kNothingToRead = -1;

/// Codes with a meaning of their own to `throwArrayException`.
inline constexpr int kMissingArgument = 258;
inline constexpr int kOutOfMemory = 65535;
inline constexpr int kNeverThrown = 256;

/// For the operations that copy as many elements as the Java array holds.
inline constexpr std::size_t kNoCapacity = std::numeric_limits<std::size_t>::max();

// Throwing

/// The class of all other codes, and its constructor's signature.
inline constexpr char kArrayExceptionClass[] = "tessaly/str/diskarray/DiskArrayException";
inline constexpr char kArrayExceptionConstructor[] = "(I)V";

/// Throws a new `className` (slash form) with `message`.
void throwNewByName(Env env, const char* className, const char* message);

/// Throws `java.lang.ClassNotFoundException` with the slash-form `className` as its message. Does
/// nothing where that is the class that is missing.
void throwClassNotFound(Env env, const char* className);

/// Throws `DiskArrayException(code)`; `java.lang.OutOfMemoryError` with an empty message for
/// `kOutOfMemory`; nothing for `kNeverThrown`. A class or constructor that is missing leaves the
/// exception of its own look-up pending instead.
void throwArrayException(Env env, int code);

/// Whether an exception is pending.
inline bool exceptionPending(Env env);

// Classes and objects

/// Deletes `reference` where both it and `env` are given.
inline void deleteLocalRef(Env env, jobject reference);

/// Returns the class, or null with `java.lang.ClassNotFoundException` pending.
jclass findClassOrThrow(Env env, const char* className);

/// Returns a new object made by its no-argument constructor, or null.
jobject newObjectByName(Env env, const char* className);

/// Returns a new array of `length` nulls, or null.
jobjectArray newObjectArrayByName(Env env, const char* elementClassName, jsize length);

/// Returns a new `java.lang.Integer`, or null.
jobject newInteger(Env env, jint value);

/// Returns a new `int[]` of `count` bytes, each widened with its sign, or null.
jintArray newIntArrayFromBytes(Env env, const std::int8_t* bytes, jsize count);

/// Returns a new `int[]` of `count` ints, or null.
jintArray newIntArray(Env env, const std::int32_t* values, jsize count);

/// Returns a new `byte[]` of `count` bytes, or null.
jbyteArray newByteArray(Env env, const std::byte* bytes, jsize count);

/// Stores `element` at `index` and deletes its local reference.
inline int storeArrayElement(Env env, jobjectArray array, jsize index, jobject element);

// Single values

/// Returns the value of an `I` field, or -1 where the class or the field is missing. Does not test
/// for a pending exception.
inline jint getIntField(Env env, jobject object, FieldName name);
inline int setIntField(Env env, jobject object, FieldName name, jint value);

/// Returns a local reference to the field's value, or null.
inline jobject getObjectField(Env env, jobject object, FieldName name, const char* signature);
inline int setObjectFieldByName(Env env, jobject object, FieldName name, const char* signature,
                                jobject value);

/// Copies a `String` field as modified UTF-8 into `buffer` of `length` bytes: cut to `length` - 1
/// bytes, terminated, and zero-filled behind the text.
int getStringField(Env env, jobject object, FieldName name, char* buffer, std::size_t length);
/// Sets a `String` field from the NUL-terminated modified UTF-8 `value`.
int setStringField(Env env, jobject object, FieldName name, const char* value);
/// Sets a `String` field from Shift_JIS `bytes`, of which `count` are handed to Java and those
/// before the first NUL make up the text.
int setSjisStringField(Env env, jobject object, FieldName name, const char* bytes, jsize count);

/// Returns an `S` field divided by 100.0, or -1.0 where the class or the field is missing.
double getScaledShortField(Env env, jobject object, FieldName name);
/// Sets an `S` field to `value` times 100.0, truncated toward zero; its low 16 bits are kept.
int setScaledShortField(Env env, jobject object, FieldName name, double value);

// Arrays. A fixed-length region starts at element 0; a Java array that is shorter than it leaves
// `java.lang.ArrayIndexOutOfBoundsException` pending.

/// Copies the first `count` elements of an `int[]` field.
int getIntArrayField(Env env, jobject object, FieldName name, std::int32_t* values, jsize count);
/// Stores a new `int[]` of `count` elements.
int setIntArrayField(Env env, jobject object, FieldName name, const std::int32_t* values,
                     jsize count);
/// Copies the low byte of every element of an `int[]` field, `capacity` at the most; an empty array
/// gives a single 0 byte.
int getIntArrayFieldAsBytes(Env env, jobject object, FieldName name, std::int8_t* bytes,
                            std::size_t capacity = kNoCapacity);
/// The same of an array at hand.
int copyIntArrayAsBytes(Env env, jintArray array, std::int8_t* bytes,
                        std::size_t capacity = kNoCapacity);
/// Copies the first `cols` elements of the first `rows` rows of an `int[][]` field.
int getIntMatrixField(Env env, jobject object, FieldName name, std::int32_t* values, jsize rows,
                      jsize cols);
/// Copies the first `count` elements of a `byte[]` field.
int getByteArrayField(Env env, jobject object, FieldName name, std::byte* bytes, jsize count);
/// Copies `count` bytes into the `byte[]` that the field already holds.
int setByteArrayField(Env env, jobject object, FieldName name, const std::byte* bytes, jsize count);
/// Copies the first `cols` elements of the first `rows` rows of a `byte[][]` field.
int getByteMatrixField(Env env, jobject object, FieldName name, std::byte* bytes, jsize rows,
                       jsize cols);
/// Copies the first `count` elements of a `short[]` field, each divided by 100.0.
int getScaledShortArrayField(Env env, jobject object, FieldName name, double* values, jsize count);
/// Stores a new `short[]` of `count` values times 100.0, truncated as in `setScaledShortField`.
int setScaledShortArrayField(Env env, jobject object, FieldName name, const double* values,
                             jsize count);
/// Copies the elements of a `String[]` field into slots of `stride` bytes, `capacity` slots at the
/// most. A text is cut to `stride` - 1 bytes and terminated. Stops at the first null element.
int getStringArrayField(Env env, jobject object, FieldName name, char* table, std::size_t stride,
                        std::size_t capacity = kNoCapacity);
/// Stores a new `String[]` made of `count` slots of `stride` bytes. The result of the last store is
/// not looked at.
int setStringArrayField(Env env, jobject object, FieldName name, const char* table, jsize count,
                        std::size_t stride);

// Arguments

/// Copies `text` as modified UTF-8 into `buffer` of `length` bytes, cut and terminated as in
/// `getStringField`. An empty text gives an empty buffer and `kFailed`, and so does a null one,
/// with which JNI must not be called. Where the characters cannot be had the buffer is left alone.
int copyJavaStringToBuffer(Env env, jstring text, char* buffer, std::size_t length);

// What each field takes is inline: walking the maps costs what the JNI calls cost.

inline bool exceptionPending(Env env) { return env->ExceptionOccurred() != nullptr; }

inline void deleteLocalRef(Env env, jobject reference) {
  if (env && reference != nullptr) {
    env->DeleteLocalRef(reference);
  }
}

/// A field of an object, found by name at this moment where it is not known.
struct FoundField {
  /// Finds its class.
  FoundField(Env env, jobject object, FieldName fieldName)
      : name(fieldName),
        id(knownField(name)),
        owner(id != nullptr ? nullptr : knownOwner(env, name)),
        reference(id != nullptr || owner != nullptr || object == nullptr
                      ? nullptr
                      : env->GetObjectClass(object)) {}
  FoundField(Env env, jobject object, FieldName fieldName, const char* signature)
      : FoundField(env, object, fieldName) {
    find(env, signature);
  }
  void find(Env env, const char* signature) {
    const jclass type = owner != nullptr ? owner : reference;
    if (id == nullptr && type != nullptr) {
      id = env->GetFieldID(type, textOf(name), signature);
      keepField(name, id);
    }
  }
  [[nodiscard]] bool hasClass() const {
    return id != nullptr || owner != nullptr || reference != nullptr;
  }
  explicit operator bool() const { return id != nullptr; }

  FieldName name;
  jfieldID id;
  jclass owner;
  /// To the class, where it was not known.
  jclass reference;
};

/// Ends a store or a copy: the exception that it may have raised, then the reference behind it.
inline int finish(Env env, jobject reference) {
  if (exceptionPending(env)) {
    return kFailed;
  }
  deleteLocalRef(env, reference);
  return kOk;
}

inline int storeArrayElement(Env env, jobjectArray array, jsize index, jobject element) {
  env->SetObjectArrayElement(array, index, element);
  return finish(env, element);
}

inline jint getIntField(Env env, jobject object, FieldName name) {
  const FoundField field(env, object, name, "I");
  if (!field) {
    return -1;
  }
  const jint value = env->GetIntField(object, field.id);
  deleteLocalRef(env, field.reference);
  return value;
}

inline int setIntField(Env env, jobject object, FieldName name, jint value) {
  const FoundField field(env, object, name, "I");
  if (!field) {
    return kFailed;
  }
  env->SetIntField(object, field.id, value);
  return accessedInRow(name) ? kOk : finish(env, field.reference);
}

inline jobject getObjectField(Env env, jobject object, FieldName name, const char* signature) {
  const FoundField field(env, object, name, signature);
  if (!field) {
    return nullptr;
  }
  const jobject value = env->GetObjectField(object, field.id);
  deleteLocalRef(env, field.reference);
  return value;
}

inline int setObjectFieldByName(Env env, jobject object, FieldName name, const char* signature,
                                jobject value) {
  const FoundField field(env, object, name, signature);
  if (!field) {
    return kFailed;
  }
  env->SetObjectField(object, field.id, value);
  return finish(env, field.reference);
}

}  // namespace quorvelj
