#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <type_traits>

#include "arraylib/all_information.h"
#include "arraylib/performance.h"

// Builders without class maps: what a line for each field and a function for each class would be,
// the JNI calls and their order those of the bridge. `write_builders` writes the functions, as
// `jobject build<Class>(JNIEnv*, const <Class>&)`; here are the calls that they consist of.
namespace written_out {

/// Whether a call left no exception; then lets go of the reference behind it.
inline bool finish(JNIEnv* env, jobject reference) {
  if (env->ExceptionOccurred() != nullptr) {
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

inline bool setInt(JNIEnv* env, jobject object, const char* name, jint value) {
  const jclass type = env->GetObjectClass(object);
  const jfieldID field = type == nullptr ? nullptr : env->GetFieldID(type, name, "I");
  if (field == nullptr) {
    return false;
  }
  env->SetIntField(object, field, value);
  return finish(env, type);
}

/// A text that cannot be stored does not end a builder.
inline bool setText(JNIEnv* env, jobject object, const char* name, const char* value) {
  const jclass type = env->GetObjectClass(object);
  const jstring text = type == nullptr ? nullptr : env->NewStringUTF(value);
  const jfieldID field =
      text == nullptr ? nullptr : env->GetFieldID(type, name, "Ljava/lang/String;");
  if (field != nullptr) {
    env->SetObjectField(object, field, text);
    if (finish(env, type)) {
      env->DeleteLocalRef(text);
    }
  }
  return true;
}

inline bool setObject(JNIEnv* env, jobject object, const char* name, const char* signature,
                      jobject value) {
  const jclass type = value == nullptr ? nullptr : env->GetObjectClass(object);
  const jfieldID field = type == nullptr ? nullptr : env->GetFieldID(type, name, signature);
  if (field == nullptr) {
    return false;
  }
  env->SetObjectField(object, field, value);
  if (!finish(env, type)) {
    return false;
  }
  env->DeleteLocalRef(value);
  return true;
}

/// Into the array that the constructor made.
template <std::size_t N>
bool setBytes(JNIEnv* env, jobject object, const char* name, const std::byte (&bytes)[N]) {
  const jclass type = env->GetObjectClass(object);
  const jfieldID field = type == nullptr ? nullptr : env->GetFieldID(type, name, "[B");
  if (field == nullptr) {
    return false;
  }
  const auto array = static_cast<jbyteArray>(env->GetObjectField(object, field));
  env->DeleteLocalRef(type);
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

/// An array of N objects, each made of its element by `make`.
template <class Element, std::size_t N, class Make>
jobjectArray newObjects(JNIEnv* env, const char* className, const Element (&elements)[N],
                        Make make) {
  const jobjectArray array = newArray(env, className, N);
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

/// An array of ints or bytes, or an array of such arrays; `signature` is its own.
template <class Element, std::size_t N>
jobject newNumbers(JNIEnv* env, const char* signature, const Element (&numbers)[N]) {
  if constexpr (std::is_array_v<Element>) {
    return newObjects(env, signature + 1, numbers, [signature](JNIEnv* jni, const Element& row) {
      return newNumbers(jni, signature + 1, row);
    });
  } else if constexpr (std::is_same_v<Element, std::byte>) {
    const jbyteArray array = env->NewByteArray(N);
    if (array == nullptr) {
      return nullptr;
    }
    env->SetByteArrayRegion(array, 0, N, reinterpret_cast<const jbyte*>(numbers));
    return env->ExceptionOccurred() == nullptr ? array : nullptr;
  } else {
    const jintArray array = env->NewIntArray(N);
    if (array == nullptr) {
      return nullptr;
    }
    if constexpr (std::is_same_v<Element, std::int32_t>) {
      env->SetIntArrayRegion(array, 0, N, numbers);
      return env->ExceptionOccurred() == nullptr ? array : nullptr;
    } else {
      jint* elements = env->GetIntArrayElements(array, nullptr);
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
  }
}

template <std::size_t N, std::size_t Width>
jobject newTexts(JNIEnv* env, const char (&texts)[N][Width]) {
  return newObjects(env, "java/lang/String", texts,
                    [](JNIEnv* jni, const char(&text)[Width]) { return jni->NewStringUTF(text); });
}

#include "written_out.inc"

}  // namespace written_out
