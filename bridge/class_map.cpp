#include "bridge/class_map.h"

#include <algorithm>
#include <cstring>

#include "bridge/class_lookup.h"
#include "bridge/jni_toolkit.h"
#include "bridge/runtime.h"

namespace quorvelj {
namespace {

/// A member of a record as its type.
template <class Value>
Value valueAt(const std::byte* at) {
  Value value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

/// The ints of a record, which lie on a boundary of their own.
const std::int32_t* intsAt(const std::byte* at) {
  return reinterpret_cast<const std::int32_t*>(at);
}
std::int32_t* intsAt(std::byte* at) { return reinterpret_cast<std::int32_t*>(at); }
const std::int8_t* bytesAt(const std::byte* at) { return reinterpret_cast<const std::int8_t*>(at); }
std::int8_t* bytesAt(std::byte* at) { return reinterpret_cast<std::int8_t*>(at); }
const char* textAt(const std::byte* at) { return reinterpret_cast<const char*>(at); }
char* textAt(std::byte* at) { return reinterpret_cast<char*>(at); }

jsize lengthOf(const Field& field, std::size_t dimension) {
  return static_cast<jsize>(field.extents[dimension]);
}

/// The distance between two elements of a dimension.
std::size_t strideOf(const Field& field, std::size_t dimension) {
  std::size_t stride = field.elementBytes;
  for (std::size_t inner = dimension + 1; inner < field.rank; ++inner) {
    stride *= field.extents[inner];
  }
  return stride;
}

/// Whether Java has a single int for a field.
bool isInt(const Field& field) { return field.rank == 0 && field.kind <= FieldKind::kUInt8; }

/// Visits the fields, row by row those that are ints; stops at the first result that is not `kOk`.
template <class Int, class Other>
[[gnu::always_inline]] inline int eachField(Env env, const ClassMap& map, const ClassLookup& lookup,
                                            Int visitInt, Other visit) {
  const Field* field = map.fields.data();
  const std::size_t count = map.fields.size();
  std::size_t index = 0;
  while (index < count) {
    int result = kOk;
    if (isInt(*field)) {
      do {
        result = visitInt(*field, lookup.nameOf(*field, index));
      } while (result == kOk && ++index < count && isInt(*++field));
      result = result == kOk && lookup.rowFailed(env) ? kFailed : result;
    } else {
      result = visit(*field, lookup.nameOf(*field, index));
      ++index;
      ++field;
    }
    if (result != kOk) {
      return result;
    }
  }
  return kOk;
}

// Building

bool terminated(const char* slots, std::size_t count, std::size_t width) {
  for (std::size_t slot = 0; slot < count; ++slot) {
    if (std::memchr(slots + slot * width, '\0', width) == nullptr) {
      return false;
    }
  }
  return true;
}

/// Hands texts on in place where the library ended every one inside its width, else in a copy in
/// which every slot is one byte wider and ends in a NUL.
template <class Store>
int withTexts(Env env, const char* slots, std::size_t count, std::size_t width, Store store) {
  if (terminated(slots, count, width)) {
    return store(slots, width);
  }
  auto* const copy = static_cast<char*>(allocateRecord(count * (width + 1)));
  if (copy == nullptr) {
    throwArrayException(env, kOutOfMemory);
    return kFailed;
  }
  for (std::size_t slot = 0; slot < count; ++slot) {
    char* const start = copy + slot * (width + 1);
    std::memcpy(start, slots + slot * width, width);
    start[width] = '\0';
  }
  const int result = store(copy, width + 1);
  releaseRecord(copy);
  return result;
}

jobject newArray(Env env, const Field& field, std::size_t dimension, const std::byte* at);

/// The elements of one dimension that are objects: records, or the arrays of the next dimension.
jobjectArray newObjects(Env env, const Field& field, std::size_t dimension, const std::byte* at) {
  const jsize length = lengthOf(field, dimension);
  const std::size_t stride = strideOf(field, dimension);
  if (dimension + 1 == field.rank) {
    return buildArray(env, *field.element, at, length, stride);
  }
  const jobjectArray array = newObjectArrayByName(env, field.signature + dimension + 1, length);
  if (array == nullptr) {
    return nullptr;
  }
  for (jsize index = 0; index < length; ++index) {
    const jobject element = newArray(env, field, dimension + 1, at);
    if (element == nullptr || storeArrayElement(env, array, index, element) != kOk) {
      return nullptr;
    }
    at += stride;
  }
  return array;
}

jobject newArray(Env env, const Field& field, std::size_t dimension, const std::byte* at) {
  if (dimension + 1 < field.rank) {
    return newObjects(env, field, dimension, at);
  }
  switch (field.kind) {  // GCOV_EXCL_BR_LINE: a case for every kind.
    case FieldKind::kInt32:
      return newIntArray(env, intsAt(at), lengthOf(field, dimension));
    case FieldKind::kInt8:
      return newIntArrayFromBytes(env, bytesAt(at), lengthOf(field, dimension));
    case FieldKind::kBytes:
      return newByteArray(env, at, lengthOf(field, dimension));
    case FieldKind::kRecord:
      return newObjects(env, field, dimension, at);
    // GCOV_EXCL_START: `fieldOf` makes no arrays of these.
    case FieldKind::kUInt8:
    case FieldKind::kText:
    case FieldKind::kPart:
      break;
  }
  return nullptr;
  // GCOV_EXCL_STOP
}

/// Stores a new object in its field and deletes its local reference.
int storeNew(Env env, jobject object, const Field& field, FieldName name, jobject value) {
  if (value == nullptr || setObjectFieldByName(env, object, name, field.signature, value) != kOk) {
    return kFailed;
  }
  deleteLocalRef(env, value);
  return kOk;
}

/// Stores a text or an array of texts.
int setTexts(Env env, jobject object, const Field& field, FieldName name, const char* texts) {
  if (field.rank == 0) {
    // A text that cannot be stored does not end a builder.
    withTexts(env, texts, 1, field.elementBytes, [&](const char* text, std::size_t) {
      return setStringField(env, object, name, text);
    });
    return kOk;
  }
  return withTexts(
      env, texts, field.extents[0], field.elementBytes, [&](const char* slots, std::size_t stride) {
        return setStringArrayField(env, object, name, slots, lengthOf(field, 0), stride);
      });
}

int setFields(Env env, jobject object, const ClassLookup& lookup, const ClassMap& map,
              const std::byte* record);

int setField(Env env, jobject object, const ClassLookup& lookup, const Field& field, FieldName name,
             const std::byte* at) {
  const auto storeArray = [&] {
    return storeNew(env, object, field, name, newArray(env, field, 0, at));
  };
  switch (field.kind) {  // GCOV_EXCL_BR_LINE: a case for every kind.
    case FieldKind::kInt32:
      return field.rank == 1 ? setIntArrayField(env, object, name, intsAt(at), lengthOf(field, 0))
                             : storeArray();
    case FieldKind::kInt8:
      return storeArray();
    case FieldKind::kText:
      return setTexts(env, object, field, name, textAt(at));
    case FieldKind::kBytes:
      return field.rank == 1 ? setByteArrayField(env, object, name, at, lengthOf(field, 0))
                             : storeArray();
    case FieldKind::kRecord:
      return field.rank == 0 ? storeNew(env, object, field, name, build(env, *field.element, at))
                             : storeArray();
    case FieldKind::kPart:
      return setFields(env, object, lookup.withFieldsOf(*field.element), *field.element, at);
    case FieldKind::kUInt8:
      break;  // GCOV_EXCL_LINE: an int.
  }
  return kFailed;  // GCOV_EXCL_LINE: the switch answers for every kind.
}

std::int32_t intAt(const Field& field, const std::byte* at) {
  return field.kind == FieldKind::kInt32  ? valueAt<std::int32_t>(at)
         : field.kind == FieldKind::kInt8 ? valueAt<std::int8_t>(at)
                                          : valueAt<std::uint8_t>(at);
}

int setFields(Env env, jobject object, const ClassLookup& lookup, const ClassMap& map,
              const std::byte* record) {
  return eachField(
      env, map, lookup,
      [=](const Field& field, FieldName name) {
        return setIntField(env, object, name, intAt(field, record + field.offset));
      },
      [&](const Field& field, FieldName name) {
        return setField(env, object, lookup, field, name, record + field.offset);
      });
}

// Reading

/// Whether the reading of an object or an array inside ended with an exception. Any other failure
/// is the inner reader's own.
bool stopped(Env env, int result) { return result != kOk && exceptionPending(env); }

/// Reads the elements of one dimension, as many as there is room for. An element that is missing,
/// or whose reading ended without an exception, is passed over; an exception ends the array.
int readElements(Env env, const Field& field, std::size_t dimension, jobjectArray array,
                 std::byte* at) {
  const auto readElement = [&](jobject element, std::size_t stride) {
    if (dimension + 1 == field.rank) {
      return read(env, *field.element, element, at);
    }
    if (dimension + 2 == field.rank && field.kind == FieldKind::kInt8) {
      return copyIntArrayAsBytes(env, static_cast<jintArray>(element), bytesAt(at), stride);
    }
    return readElements(env, field, dimension + 1, static_cast<jobjectArray>(element), at);
  };
  const jsize length = std::min(env->GetArrayLength(array), lengthOf(field, dimension));
  const std::size_t stride = strideOf(field, dimension);
  for (jsize index = 0; index < length; ++index) {
    const jobject element = env->GetObjectArrayElement(array, index);
    if (element != nullptr && stopped(env, readElement(element, stride))) {
      return kFailed;
    }
    deleteLocalRef(env, element);
    at += stride;
  }
  return kOk;
}

/// Reads the object or array of a field.
int getObject(Env env, jobject object, const Field& field, FieldName name, std::byte* at) {
  const jobject value = getObjectField(env, object, name, field.signature);
  if (value == nullptr) {
    return kNothingToRead;
  }
  const int result = field.rank == 0
                         ? read(env, *field.element, value, at)
                         : readElements(env, field, 0, static_cast<jobjectArray>(value), at);
  if (stopped(env, result)) {
    return kFailed;
  }
  deleteLocalRef(env, value);
  return kOk;
}

int getInt(Env env, jobject object, const Field& field, FieldName name, std::byte* at) {
  const auto value = static_cast<std::int32_t>(getIntField(env, object, name));
  // The -1 of a field that could not be read is told from a stored one by the exception.
  if ((value == -1 || !accessedInRow(name)) && exceptionPending(env)) {
    return kFailed;
  }
  if (field.kind == FieldKind::kInt32) {
    std::memcpy(at, &value, sizeof value);
  } else {
    *at = static_cast<std::byte>(value & 0xFF);
  }
  return kOk;
}

int getField(Env env, jobject object, const Field& field, FieldName name, std::byte* at) {
  switch (field.kind) {  // GCOV_EXCL_BR_LINE: a case for every kind.
    case FieldKind::kInt32:
      return field.rank == 1 ? getIntArrayField(env, object, name, intsAt(at), lengthOf(field, 0))
                             : getIntMatrixField(env, object, name, intsAt(at), lengthOf(field, 0),
                                                 lengthOf(field, 1));
    case FieldKind::kInt8:
      return field.rank == 1
                 ? getIntArrayFieldAsBytes(env, object, name, bytesAt(at), field.extents[0])
                 : getObject(env, object, field, name, at);
    case FieldKind::kText:
      return field.rank == 0 ? getStringField(env, object, name, textAt(at), field.elementBytes)
                             : getStringArrayField(env, object, name, textAt(at),
                                                   field.elementBytes, field.extents[0]);
    case FieldKind::kBytes:
      switch (field.rank) {
        case 1:
          return getByteArrayField(env, object, name, at, lengthOf(field, 0));
        case 2:
          return getByteMatrixField(env, object, name, at, lengthOf(field, 0), lengthOf(field, 1));
        default:
          return kFailed;  // Built only.
      }
    case FieldKind::kRecord:
      return getObject(env, object, field, name, at);
    case FieldKind::kPart:
      return read(env, *field.element, object, at);
    case FieldKind::kUInt8:
      break;  // GCOV_EXCL_LINE: an int.
  }
  return kFailed;  // GCOV_EXCL_LINE: the switch answers for every kind.
}

}  // namespace

jobject build(Env env, const ClassMap& map, const void* record) {
  flushOutput();
  if (record == nullptr) {
    return nullptr;
  }
  const jobject object = newObjectByName(env, map.className);
  if (object == nullptr || setFields(env, object, ClassLookup::toBuild(env, map), map,
                                     static_cast<const std::byte*>(record)) != kOk) {
    return nullptr;
  }
  return object;
}

jobjectArray buildArray(Env env, const ClassMap& map, const void* records, jsize length,
                        std::size_t recordBytes) {
  const jobjectArray array = newObjectArrayByName(env, map.className, length);
  if (array == nullptr) {
    return nullptr;
  }
  auto record = static_cast<const std::byte*>(records);
  for (jsize index = 0; index < length; ++index) {
    const jobject element = build(env, map, record);
    if (element == nullptr || storeArrayElement(env, array, index, element) != kOk) {
      return nullptr;
    }
    record += recordBytes;
  }
  return array;
}

int read(Env env, const ClassMap& map, jobject object, void* record) {
  if (object == nullptr || record == nullptr) {
    return kNothingToRead;
  }
  const ClassLookup lookup = ClassLookup::toRead(env, map, object);
  const auto place = [record](const Field& field) {
    return static_cast<std::byte*>(record) + field.offset;
  };
  return eachField(
      env, map, lookup,
      [=](const Field& field, FieldName name) {
        return getInt(env, object, field, name, place(field));
      },
      [=](const Field& field, FieldName name) {
        return getField(env, object, field, name, place(field));
      });
}

}  // namespace quorvelj
