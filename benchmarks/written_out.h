#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <type_traits>

#include "arraylib/all_information.h"
#include "arraylib/performance.h"

// Builders and readers without class maps: what a line for each field and a function for each class
// would be, the JNI calls and their order those of the bridge. `write_builders` writes the
// functions, as `jobject build<Class>(JNIEnv*, const <Class>&)` and `bool read<Class>(JNIEnv*,
// jobject, <Class>&)`, in two forms: in the namespace `by_name` each line looks its field up, in
// `kept` all are looked up once, by `lookUp(JNIEnv*)`. Here are the calls that they consist of.
namespace written_out {

/// A field that a line looks up.
struct Name {
  const char* text;
  const char* signature;
};

/// A class that is looked up once, and its no-argument constructor.
struct KeptClass {
  jclass type;
  jmethodID constructor;
};

/// A field of an object: found by its name at this moment, or found long ago.
template <class Field>
struct Found;

template <>
struct Found<Name> {
  Found(JNIEnv* env, jobject object) : type(env->GetObjectClass(object)) {}
  bool find(JNIEnv* env, Name name) {
    id = type == nullptr ? nullptr : env->GetFieldID(type, name.text, name.signature);
    return id != nullptr;
  }
  void letGo(JNIEnv* env) const { env->DeleteLocalRef(type); }
  bool finishInt(JNIEnv* env) const {
    if (env->ExceptionOccurred() != nullptr) {
      return false;
    }
    letGo(env);
    return true;
  }

  jclass type;
  jfieldID id = nullptr;
};

template <>
struct Found<jfieldID> {
  Found(JNIEnv*, jobject) {}
  bool find(JNIEnv*, jfieldID kept) {
    id = kept;
    return true;
  }
  void letGo(JNIEnv*) const {}
  /// `excepted` stands behind a row of ints.
  bool finishInt(JNIEnv*) const { return true; }

  jfieldID id = nullptr;
};

inline bool excepted(JNIEnv* env) { return env->ExceptionOccurred() != nullptr; }

/// Whether a call left no exception; then lets go of the reference behind it.
inline bool finish(JNIEnv* env, jobject reference) {
  if (excepted(env)) {
    return false;
  }
  env->DeleteLocalRef(reference);
  return true;
}

inline jobject newObject(JNIEnv* env, const char* className) {
  std::fflush(stdout);
  const jclass type = env->FindClass(className);
  const jmethodID constructor = type == nullptr ? nullptr : env->GetMethodID(type, "<init>", "()V");
  const jobject object = constructor == nullptr ? nullptr : env->NewObject(type, constructor);
  if (object != nullptr) {
    env->DeleteLocalRef(type);
  }
  return object;
}

inline jobject newObject(JNIEnv* env, const KeptClass& kept) {
  std::fflush(stdout);
  return env->NewObject(kept.type, kept.constructor);
}

template <class Field>
bool setInt(JNIEnv* env, jobject object, Field field, jint value) {
  Found<Field> found(env, object);
  if (!found.find(env, field)) {
    return false;
  }
  env->SetIntField(object, found.id, value);
  return found.finishInt(env);
}

/// A text that cannot be stored does not end a builder.
template <class Field>
bool setText(JNIEnv* env, jobject object, Field field, const char* value) {
  Found<Field> found(env, object);
  const jstring text = env->NewStringUTF(value);
  if (text != nullptr && found.find(env, field)) {
    env->SetObjectField(object, found.id, text);
    if (!excepted(env)) {
      found.letGo(env);
      env->DeleteLocalRef(text);
    }
  }
  return true;
}

template <class Field>
bool setObject(JNIEnv* env, jobject object, Field field, jobject value) {
  if (value == nullptr) {
    return false;
  }
  Found<Field> found(env, object);
  if (!found.find(env, field)) {
    return false;
  }
  env->SetObjectField(object, found.id, value);
  if (excepted(env)) {
    return false;
  }
  found.letGo(env);
  env->DeleteLocalRef(value);
  return true;
}

template <class Field>
jobject getObject(JNIEnv* env, jobject object, Field field) {
  Found<Field> found(env, object);
  if (!found.find(env, field)) {
    return nullptr;
  }
  const jobject value = env->GetObjectField(object, found.id);
  found.letGo(env);
  return value;
}

/// Into the array that the constructor made.
template <class Field, std::size_t N>
bool setBytes(JNIEnv* env, jobject object, Field field, const std::byte (&bytes)[N]) {
  const auto array = static_cast<jbyteArray>(getObject(env, object, field));
  if (array == nullptr) {
    return false;
  }
  env->SetByteArrayRegion(array, 0, N, reinterpret_cast<const jbyte*>(bytes));
  return finish(env, array);
}

inline jobjectArray newArray(JNIEnv* env, const char* className, std::size_t length) {
  const jclass type = env->FindClass(className);
  if (type == nullptr) {
    return nullptr;
  }
  const jobjectArray array = env->NewObjectArray(static_cast<jsize>(length), type, nullptr);
  env->DeleteLocalRef(type);
  return array;
}

inline jobjectArray newArray(JNIEnv* env, jclass kept, std::size_t length) {
  return env->NewObjectArray(static_cast<jsize>(length), kept, nullptr);
}

/// An array of N objects, each made of its element by `make`.
template <class Class, class Element, std::size_t N, class Make>
jobjectArray newObjects(JNIEnv* env, Class elementClass, const Element (&elements)[N], Make make) {
  const jobjectArray array = newArray(env, elementClass, N);
  if (array == nullptr) {
    return nullptr;
  }
  jsize index = 0;
  for (const Element& element : elements) {
    const jobject made = make(env, element);
    if (made == nullptr) {
      return nullptr;
    }
    env->SetObjectArrayElement(array, index++, made);
    if (!finish(env, made)) {
      return nullptr;
    }
  }
  return array;
}

/// An array of bytes or numbers.
template <std::size_t N>
jobject newNumbers(JNIEnv* env, const std::byte (&bytes)[N]) {
  const jbyteArray array = env->NewByteArray(N);
  if (array == nullptr) {
    return nullptr;
  }
  env->SetByteArrayRegion(array, 0, N, reinterpret_cast<const jbyte*>(bytes));
  return excepted(env) ? nullptr : array;
}

template <std::size_t N>
jobject newNumbers(JNIEnv* env, const std::int32_t (&numbers)[N]) {
  const jintArray array = env->NewIntArray(N);
  if (array == nullptr) {
    return nullptr;
  }
  env->SetIntArrayRegion(array, 0, N, numbers);
  return excepted(env) ? nullptr : array;
}

template <std::size_t N>
jobject newNumbers(JNIEnv* env, const std::int8_t (&numbers)[N]) {
  const jintArray array = env->NewIntArray(N);
  jint* const elements = array == nullptr ? nullptr : env->GetIntArrayElements(array, nullptr);
  if (elements == nullptr) {
    return nullptr;
  }
  jint* element = elements;
  for (const std::int8_t number : numbers) {
    *element++ = number;
  }
  env->ReleaseIntArrayElements(array, elements, 0);
  return array;
}

/// An array of such arrays; first the class of its elements, then those of theirs.
template <class Element, std::size_t N, class Class, class... Inner>
jobject newNumbers(JNIEnv* env, const Element (&rows)[N], Class rowClass, Inner... inner) {
  return newObjects(env, rowClass, rows, [inner...](JNIEnv* jni, const Element& row) {
    return newNumbers(jni, row, inner...);
  });
}

template <class Class, std::size_t N, std::size_t Width>
jobject newTexts(JNIEnv* env, Class stringClass, const char (&texts)[N][Width]) {
  return newObjects(env, stringClass, texts,
                    [](JNIEnv* jni, const char(&text)[Width]) { return jni->NewStringUTF(text); });
}

template <class Field>
bool getInt(JNIEnv* env, jobject object, Field field, std::int32_t& value) {
  Found<Field> found(env, object);
  if (!found.find(env, field)) {
    return false;
  }
  value = env->GetIntField(object, found.id);
  if constexpr (std::is_same_v<Field, Name>) {
    found.letGo(env);
    return !excepted(env);
  } else {
    return true;
  }
}

template <class Field, std::size_t N>
bool getText(JNIEnv* env, jobject object, Field field, char (&buffer)[N]) {
  const auto text = static_cast<jstring>(getObject(env, object, field));
  const char* const characters = text == nullptr ? nullptr : env->GetStringUTFChars(text, nullptr);
  if (characters == nullptr) {
    return false;
  }
  std::strncpy(buffer, characters, N - 1);
  buffer[N - 1] = '\0';
  env->ReleaseStringUTFChars(text, characters);
  env->DeleteLocalRef(text);
  return true;
}

inline void copyRegion(JNIEnv* env, jobject array, std::int32_t* numbers, std::size_t count) {
  env->GetIntArrayRegion(static_cast<jintArray>(array), 0, static_cast<jsize>(count), numbers);
}

inline void copyRegion(JNIEnv* env, jobject array, std::byte* bytes, std::size_t count) {
  env->GetByteArrayRegion(static_cast<jbyteArray>(array), 0, static_cast<jsize>(count),
                          reinterpret_cast<jbyte*>(bytes));
}

template <class Field, class Element, std::size_t N>
bool getNumbers(JNIEnv* env, jobject object, Field field, Element (&numbers)[N]) {
  const jobject array = getObject(env, object, field);
  if (array == nullptr) {
    return false;
  }
  if constexpr (std::is_array_v<Element>) {
    jsize index = 0;
    for (Element& numbersOfRow : numbers) {
      const jobject row = env->GetObjectArrayElement(static_cast<jobjectArray>(array), index++);
      if (row == nullptr) {
        return false;
      }
      copyRegion(env, row, numbersOfRow, sizeof numbersOfRow / sizeof numbersOfRow[0]);
      if (!finish(env, row)) {
        return false;
      }
    }
    env->DeleteLocalRef(array);
    return true;
  } else {
    copyRegion(env, array, numbers, N);
    return finish(env, array);
  }
}

/// What a record is read from, and an array of records from its elements.
template <class Record, class Read>
void readInto(JNIEnv* env, jobject object, Record& record, Read read) {
  if constexpr (std::is_array_v<Record>) {
    const auto array = static_cast<jobjectArray>(object);
    const jsize length = env->GetArrayLength(array);
    jsize index = 0;
    for (auto& element : record) {
      if (index == length) {
        break;
      }
      const jobject inner = env->GetObjectArrayElement(array, index++);
      if (inner != nullptr) {
        readInto(env, inner, element, read);
        env->DeleteLocalRef(inner);
      }
    }
  } else {
    read(env, object, record);
  }
}

template <class Field, class Record, class Read>
bool getRecord(JNIEnv* env, jobject object, Field field, Record& record, Read read) {
  const jobject value = getObject(env, object, field);
  if (value == nullptr) {
    return false;
  }
  readInto(env, value, record, read);
  env->DeleteLocalRef(value);
  return true;
}

/// Whether an object is of this very class: a subclass may have fields of the same names.
inline bool isOf(JNIEnv* env, jobject object, const KeptClass& kept) {
  const jclass type = env->GetObjectClass(object);
  const bool is = env->IsSameObject(type, kept.type) == JNI_TRUE;
  env->DeleteLocalRef(type);
  return is;
}

/// Looks a class up for `kept`; without it there is nothing to measure.
inline jclass keepClass(JNIEnv* env, const char* name) {
  const jclass type = env->FindClass(name);
  if (type == nullptr) {
    std::abort();
  }
  const auto kept = static_cast<jclass>(env->NewGlobalRef(type));
  env->DeleteLocalRef(type);
  return kept;
}

inline jfieldID keepField(JNIEnv* env, const KeptClass& owner, const char* name,
                          const char* signature) {
  const jfieldID field = env->GetFieldID(owner.type, name, signature);
  if (field == nullptr) {
    std::abort();
  }
  return field;
}

#include "written_out.inc"

}  // namespace written_out
