#include "bridge/jni_toolkit.h"

#include <algorithm>
#include <cstring>

#include "bridge/runtime.h"

namespace quorvelj {
namespace {

constexpr char kClassNotFoundClass[] = "java/lang/ClassNotFoundException";
constexpr char kStringClass[] = "java/lang/String";
constexpr char kStringSignature[] = "Ljava/lang/String;";
constexpr double kScale = 100.0;

// jint is `long` on 32-bit Windows; everywhere it has the 32 bits of std::int32_t.
static_assert(sizeof(jint) == sizeof(std::int32_t));
jint* asJava(std::int32_t* values) { return reinterpret_cast<jint*>(values); }
const jint* asJava(const std::int32_t* values) { return reinterpret_cast<const jint*>(values); }
jbyte* asJava(std::byte* bytes) { return reinterpret_cast<jbyte*>(bytes); }
const jbyte* asJava(const std::byte* bytes) { return reinterpret_cast<const jbyte*>(bytes); }

/// A class, found by name at this moment where it is not known; null with the exception.
struct FoundClass {
  FoundClass(Env env, const char* name)
      : type(knownClass(env, name)),
        reference(type != nullptr ? nullptr : findClassOrThrow(env, name)) {
    if (reference != nullptr) {
      type = keepClass(env, name, reference);
      reference = type != nullptr ? nullptr : reference;
      type = type != nullptr ? type : reference;
    }
  }

  jclass type;
  /// To the class, where it is not kept.
  jclass reference;
};

/// Copies a terminated text; a buffer of no bytes is left alone.
void copyText(const char* text, char* buffer, std::size_t length) {
  if (length == 0) {
    return;
  }
  std::strncpy(buffer, text, length - 1);
  buffer[length - 1] = '\0';
}

/// Copies the characters of `text`; `kFailed` where they cannot be had.
int copyCharacters(Env env, jstring text, char* buffer, std::size_t length) {
  const char* const characters = env->GetStringUTFChars(text, nullptr);
  if (characters == nullptr) {
    return kFailed;
  }
  copyText(characters, buffer, length);
  env->ReleaseStringUTFChars(text, characters);
  return kOk;
}

/// The low 16 bits of the scaled value truncated to 32 bits. A value outside 32 bits truncates to
/// 0x80000000, as the processor's conversion does, of which the low bits are 0.
jshort toScaledShort(double value) {
  const double scaled = value * kScale;
  if (!(scaled > -2147483649.0 && scaled < 2147483648.0)) {
    return 0;
  }
  return static_cast<jshort>(static_cast<std::int32_t>(scaled));
}

/// Copies the rows of a matrix field. `Region` copies one row: `(row, index)`.
template <class Region>
int getMatrixField(Env env, jobject object, FieldName name, const char* signature, jsize rows,
                   Region copyRow) {
  const auto array = static_cast<jobjectArray>(getObjectField(env, object, name, signature));
  if (array == nullptr) {
    return kFailed;
  }
  for (jsize index = 0; index < rows; ++index) {
    const jobject row = env->GetObjectArrayElement(array, index);
    if (row == nullptr) {
      return kFailed;
    }
    copyRow(row, static_cast<std::size_t>(index));
    if (finish(env, row) != kOk) {
      return kFailed;
    }
  }
  deleteLocalRef(env, array);
  return kOk;
}

}  // namespace

void throwNewByName(Env env, const char* className, const char* message) {
  const jclass type = findClassOrThrow(env, className);
  if (type != nullptr) {
    env->ThrowNew(type, message);
  }
}

void throwClassNotFound(Env env, const char* className) {
  if (std::strncmp(className, kClassNotFoundClass, sizeof kClassNotFoundClass) != 0) {
    throwNewByName(env, kClassNotFoundClass, className);
  }
}

void throwArrayException(Env env, int code) {
  if (code == kNeverThrown) {
    return;
  }
  if (code == kOutOfMemory) {
    throwNewByName(env, "java/lang/OutOfMemoryError", "");
    return;
  }
  const jclass type = findClassOrThrow(env, kArrayExceptionClass);
  if (type == nullptr) {
    return;
  }
  const jmethodID constructor = env->GetMethodID(type, "<init>", kArrayExceptionConstructor);
  if (constructor == nullptr) {
    return;
  }
  const jobject exception = env->NewObject(type, constructor, static_cast<jint>(code));
  if (exception != nullptr) {
    env->Throw(static_cast<jthrowable>(exception));
  }
}

jclass findClassOrThrow(Env env, const char* className) {
  const jclass type = env->FindClass(className);
  if (type == nullptr) {
    throwClassNotFound(env, className);
  }
  return type;
}

jobject newObjectByName(Env env, const char* className) {
  const FoundClass found(env, className);
  if (found.type == nullptr) {
    return nullptr;
  }
  jmethodID constructor = knownConstructor(env, className);
  if (constructor == nullptr) {
    constructor = env->GetMethodID(found.type, "<init>", "()V");
    keepConstructor(env, className, constructor);
  }
  if (constructor == nullptr) {
    return nullptr;
  }
  const jobject object = env->NewObject(found.type, constructor);
  if (object != nullptr) {
    deleteLocalRef(env, found.reference);
  }
  return object;
}

jobjectArray newObjectArrayByName(Env env, const char* elementClassName, jsize length) {
  const FoundClass found(env, elementClassName);
  if (found.type == nullptr) {
    return nullptr;
  }
  const jobjectArray array = env->NewObjectArray(length, found.type, nullptr);
  deleteLocalRef(env, found.reference);
  return array;
}

jobject newInteger(Env env, jint value) {
  const jclass type = findClassOrThrow(env, "java/lang/Integer");
  if (type == nullptr) {
    return nullptr;
  }
  const jmethodID constructor = env->GetMethodID(type, "<init>", kArrayExceptionConstructor);
  if (constructor == nullptr) {
    return nullptr;
  }
  const jobject integer = env->NewObject(type, constructor, value);
  deleteLocalRef(env, type);
  return integer;
}

jintArray newIntArrayFromBytes(Env env, const std::int8_t* bytes, jsize count) {
  const jintArray array = env->NewIntArray(count);
  if (array == nullptr) {
    return nullptr;
  }
  jint* const elements = env->GetIntArrayElements(array, nullptr);
  if (elements == nullptr) {
    return nullptr;
  }
  std::copy(bytes, bytes + count, elements);
  env->ReleaseIntArrayElements(array, elements, 0);
  return array;
}

jintArray newIntArray(Env env, const std::int32_t* values, jsize count) {
  const jintArray array = env->NewIntArray(count);
  if (array == nullptr) {
    return nullptr;
  }
  env->SetIntArrayRegion(array, 0, count, asJava(values));
  return exceptionPending(env) ? nullptr : array;
}

jbyteArray newByteArray(Env env, const std::byte* bytes, jsize count) {
  const jbyteArray array = env->NewByteArray(count);
  if (array == nullptr) {
    return nullptr;
  }
  env->SetByteArrayRegion(array, 0, count, asJava(bytes));
  return exceptionPending(env) ? nullptr : array;
}

int getStringField(Env env, jobject object, FieldName name, char* buffer, std::size_t length) {
  const auto text = static_cast<jstring>(getObjectField(env, object, name, kStringSignature));
  if (text == nullptr || copyCharacters(env, text, buffer, length) != kOk) {
    return kFailed;
  }
  deleteLocalRef(env, text);
  return kOk;
}

// The string is made between the look-ups of the class and of the field.
int setStringField(Env env, jobject object, FieldName name, const char* value) {
  FoundField field(env, object, name);
  if (!field.hasClass()) {
    return kFailed;
  }
  const jstring text = env->NewStringUTF(value);
  if (text == nullptr) {
    return kFailed;
  }
  field.find(env, kStringSignature);
  if (!field) {
    return kFailed;
  }
  env->SetObjectField(object, field.id, text);
  if (finish(env, field.reference) != kOk) {
    return kFailed;
  }
  deleteLocalRef(env, text);
  return kOk;
}

int setSjisStringField(Env env, jobject object, FieldName name, const char* bytes, jsize count) {
  // Looked up directly: a missing String class is not reported as ClassNotFoundException here.
  const jclass stringType = env->FindClass(kStringClass);
  if (stringType == nullptr) {
    return kFailed;
  }
  const jmethodID constructor = env->GetMethodID(stringType, "<init>", "([BIILjava/lang/String;)V");
  if (constructor == nullptr) {
    return kFailed;
  }
  const jbyteArray array = env->NewByteArray(count);
  if (array == nullptr) {
    return kFailed;
  }
  env->SetByteArrayRegion(array, 0, count, reinterpret_cast<const jbyte*>(bytes));
  const jstring charset = env->NewStringUTF("Shift_JIS");
  // Bytes without a NUL count as one more than there are, which the constructor refuses, as it
  // refuses any length beyond the array; nothing behind the bytes is looked at.
  const void* const end = std::memchr(bytes, '\0', static_cast<std::size_t>(count));
  const jint length =
      end == nullptr ? count + 1 : static_cast<jint>(static_cast<const char*>(end) - bytes);
  const jobject text = env->NewObject(stringType, constructor, array, jint{0}, length, charset);
  if (text == nullptr) {
    return kFailed;
  }
  const FoundField field(env, object, name, kStringSignature);
  if (!field) {
    return kFailed;
  }
  env->SetObjectField(object, field.id, text);
  if (finish(env, field.reference) != kOk) {
    return kFailed;
  }
  deleteLocalRef(env, stringType);
  deleteLocalRef(env, text);
  deleteLocalRef(env, array);
  deleteLocalRef(env, charset);
  return kOk;
}

double getScaledShortField(Env env, jobject object, FieldName name) {
  const FoundField field(env, object, name, "S");
  if (!field) {
    return -1.0;
  }
  const jshort value = env->GetShortField(object, field.id);
  deleteLocalRef(env, field.reference);
  return value / kScale;
}

int setScaledShortField(Env env, jobject object, FieldName name, double value) {
  const FoundField field(env, object, name, "S");
  if (!field) {
    return kFailed;
  }
  env->SetShortField(object, field.id, toScaledShort(value));
  return finish(env, field.reference);
}

int getIntArrayField(Env env, jobject object, FieldName name, std::int32_t* values, jsize count) {
  const auto array = static_cast<jintArray>(getObjectField(env, object, name, "[I"));
  if (array == nullptr) {
    return kFailed;
  }
  env->GetIntArrayRegion(array, 0, count, asJava(values));
  return finish(env, array);
}

int setIntArrayField(Env env, jobject object, FieldName name, const std::int32_t* values,
                     jsize count) {
  const jintArray array = newIntArray(env, values, count);
  if (array == nullptr) {
    return kFailed;
  }
  const int result = setObjectFieldByName(env, object, name, "[I", array);
  deleteLocalRef(env, array);
  return result;
}

int getIntArrayFieldAsBytes(Env env, jobject object, FieldName name, std::int8_t* bytes,
                            std::size_t capacity) {
  const auto array = static_cast<jintArray>(getObjectField(env, object, name, "[I"));
  if (array == nullptr || copyIntArrayAsBytes(env, array, bytes, capacity) != kOk) {
    return kFailed;
  }
  deleteLocalRef(env, array);
  return kOk;
}

int copyIntArrayAsBytes(Env env, jintArray array, std::int8_t* bytes, std::size_t capacity) {
  const auto length = static_cast<std::size_t>(env->GetArrayLength(array));
  if (length == 0) {
    if (capacity > 0) {
      bytes[0] = 0;
    }
    return kOk;
  }
  jint* const elements = env->GetIntArrayElements(array, nullptr);
  if (elements == nullptr) {
    return kFailed;
  }
  for (std::size_t index = 0; index < std::min(length, capacity); ++index) {
    bytes[index] = static_cast<std::int8_t>(elements[index]);
  }
  env->ReleaseIntArrayElements(array, elements, 0);
  return kOk;
}

int getIntMatrixField(Env env, jobject object, FieldName name, std::int32_t* values, jsize rows,
                      jsize cols) {
  return getMatrixField(env, object, name, "[[I", rows, [=](jobject row, std::size_t index) {
    env->GetIntArrayRegion(static_cast<jintArray>(row), 0, cols,
                           asJava(values + index * static_cast<std::size_t>(cols)));
  });
}

int getByteArrayField(Env env, jobject object, FieldName name, std::byte* bytes, jsize count) {
  const auto array = static_cast<jbyteArray>(getObjectField(env, object, name, "[B"));
  if (array == nullptr) {
    return kFailed;
  }
  env->GetByteArrayRegion(array, 0, count, asJava(bytes));
  return finish(env, array);
}

int setByteArrayField(Env env, jobject object, FieldName name, const std::byte* bytes,
                      jsize count) {
  const auto array = static_cast<jbyteArray>(getObjectField(env, object, name, "[B"));
  if (array == nullptr) {
    return kFailed;
  }
  env->SetByteArrayRegion(array, 0, count, asJava(bytes));
  return finish(env, array);
}

int getByteMatrixField(Env env, jobject object, FieldName name, std::byte* bytes, jsize rows,
                       jsize cols) {
  return getMatrixField(env, object, name, "[[B", rows, [=](jobject row, std::size_t index) {
    env->GetByteArrayRegion(static_cast<jbyteArray>(row), 0, cols,
                            asJava(bytes + index * static_cast<std::size_t>(cols)));
  });
}

int getScaledShortArrayField(Env env, jobject object, FieldName name, double* values, jsize count) {
  const auto array = static_cast<jshortArray>(getObjectField(env, object, name, "[S"));
  if (array == nullptr) {
    return kFailed;
  }
  const auto length = static_cast<std::size_t>(count);
  const auto shorts = static_cast<jshort*>(allocateRecord(length * sizeof(jshort)));
  if (shorts == nullptr) {
    return kFailed;
  }
  env->GetShortArrayRegion(array, 0, count, shorts);
  if (exceptionPending(env)) {
    releaseRecord(shorts);
    return kFailed;
  }
  std::transform(shorts, shorts + length, values, [](jshort value) { return value / kScale; });
  deleteLocalRef(env, array);
  releaseRecord(shorts);
  return kOk;
}

int setScaledShortArrayField(Env env, jobject object, FieldName name, const double* values,
                             jsize count) {
  const auto length = static_cast<std::size_t>(count);
  const auto shorts = static_cast<jshort*>(allocateRecord(length * sizeof(jshort)));
  if (shorts == nullptr) {
    return kFailed;
  }
  const jshortArray array = env->NewShortArray(count);
  if (array == nullptr) {
    releaseRecord(shorts);
    return kFailed;
  }
  std::transform(values, values + length, shorts, toScaledShort);
  env->SetShortArrayRegion(array, 0, count, shorts);
  if (exceptionPending(env)) {
    releaseRecord(shorts);
    return kFailed;
  }
  const int result = setObjectFieldByName(env, object, name, "[S", array);
  deleteLocalRef(env, array);
  releaseRecord(shorts);
  return result;
}

int getStringArrayField(Env env, jobject object, FieldName name, char* table, std::size_t stride,
                        std::size_t capacity) {
  const auto array =
      static_cast<jobjectArray>(getObjectField(env, object, name, "[Ljava/lang/String;"));
  if (array == nullptr) {
    return kFailed;
  }
  const auto length = static_cast<std::size_t>(env->GetArrayLength(array));
  for (std::size_t index = 0; index < std::min(length, capacity); ++index) {
    const auto text =
        static_cast<jstring>(env->GetObjectArrayElement(array, static_cast<jsize>(index)));
    if (text == nullptr || copyCharacters(env, text, table + index * stride, stride) != kOk) {
      return kFailed;
    }
    deleteLocalRef(env, text);
  }
  deleteLocalRef(env, array);
  return kOk;
}

int setStringArrayField(Env env, jobject object, FieldName name, const char* table, jsize count,
                        std::size_t stride) {
  const jobjectArray array = newObjectArrayByName(env, kStringClass, count);
  if (array == nullptr) {
    return kFailed;
  }
  for (jsize index = 0; index < count; ++index) {
    const jstring text = env->NewStringUTF(table + static_cast<std::size_t>(index) * stride);
    if (text == nullptr || storeArrayElement(env, array, index, text) != kOk) {
      return kFailed;
    }
  }
  setObjectFieldByName(env, object, name, "[Ljava/lang/String;", array);
  deleteLocalRef(env, array);
  return kOk;
}

int copyJavaStringToBuffer(Env env, jstring text, char* buffer, std::size_t length) {
  if (text == nullptr || env->GetStringUTFLength(text) == 0) {
    buffer[0] = '\0';
    return kFailed;
  }
  return copyCharacters(env, text, buffer, length);
}

}  // namespace quorvelj
