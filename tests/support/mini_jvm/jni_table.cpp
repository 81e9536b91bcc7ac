#include "tests/support/mini_jvm/jni_table.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <functional>
#include <iomanip>
#include <sstream>
#include <utility>

#include "tests/support/fail.h"
#include "tests/support/mini_jvm/inputs.h"

namespace quorvelj::testing::mini {
namespace {

constexpr char kBounds[] = "java/lang/ArrayIndexOutOfBoundsException";
constexpr char kNoMemory[] = "java/lang/OutOfMemoryError";

/// The elements of an array in the names of JNI's functions.
template <class Element>
struct Region {
  static constexpr char kGet[] = "GetIntArrayRegion";
  static constexpr char kSet[] = "SetIntArrayRegion";
};
template <>
struct Region<jshort> {
  static constexpr char kGet[] = "GetShortArrayRegion";
  static constexpr char kSet[] = "SetShortArrayRegion";
};
template <>
struct Region<jbyte> {
  static constexpr char kGet[] = "GetByteArrayRegion";
  static constexpr char kSet[] = "SetByteArrayRegion";
};

template <class Pointer>
Pointer as(jobject reference) {
  return static_cast<Pointer>(reference);
}

[[noreturn]] void JNICALL unlisted() {
  fail("a JNI function that the bridge must not use was called");
}

/// The JNI function that does its work by `Function`, on the JVM of its environment.
template <auto Function>
struct Entry;
template <class Result, class... Argument, Result (*Function)(MiniJvm&, Argument...)>
struct Entry<Function> {
  static Result JNICALL call(JNIEnv* env, Argument... arguments) {
    MiniJvm& jvm = MiniJvm::of(env);
    // The frame tells how deep the stack of native code is.
    const auto* const frame = static_cast<const char*>(__builtin_frame_address(0));
    jvm.deepestFrame = std::min(jvm.deepestFrame, frame, std::less<>());
    return Function(jvm, arguments...);
  }
};

/// Any of these may be called while an exception is pending: ExceptionOccurred, DeleteLocalRef, and
/// the functions that release.
bool allowedUnderException(const char* call) {
  return *call == 'E' || *call == 'D' || *call == 'R';
}

/// Enters a JNI call: counts and traces it. True where the call must fail.
template <class... Detail>
bool enter(MiniJvm& jvm, bool fallible, const char* call, const Detail&... detail) {
  ++jvm.calls;
  if (jvm.thrown != nullptr && !allowedUnderException(call)) {
    ++jvm.callsUnderException;
  }
  const bool fails = fallible && ++jvm.fallibleCalls == jvm.failingCall;
  if (jvm.recorded.tracing || fails) {
    std::ostringstream event;
    event << call;
    static_cast<void>(((event << ' ' << detail), ...));
    jvm.recorded.add(event.str());
    if (fails) {
      jvm.failedFunction = call;
      jvm.failedCall = event.str();
    }
  }
  return fails;
}

void throwNew(MiniJvm& jvm, const std::string& className, const std::string& message = "") {
  jvm.thrown = Heap::hold(jvm.heap.make(className.c_str(), message));
}

// The JNI functions. Each enters its call, then fails or does its work.

jclass findClass(MiniJvm& jvm, const char* name) {
  if (enter(jvm, true, "FindClass", name) || jvm.heap.isRemoved(name)) {
    throwNew(jvm, "java/lang/NoClassDefFoundError", name);
    return nullptr;
  }
  return as<jclass>(jvm.heap.refer(jvm.heap.findClass(name)->mirror));
}

jclass getObjectClass(MiniJvm& jvm, jobject object) {
  enter(jvm, false, "GetObjectClass");
  Object* const target = jvm.heap.resolve(object);
  return target == nullptr ? nullptr : as<jclass>(jvm.heap.refer(target->type->mirror));
}

jboolean isSameObject(MiniJvm& jvm, jobject left, jobject right) {
  enter(jvm, false, "IsSameObject");
  return jvm.heap.resolve(left) == jvm.heap.resolve(right) ? JNI_TRUE : JNI_FALSE;
}

Member* member(MiniJvm& jvm, const char* call, jclass type, const char* name, const char* signature,
               const char* error) {
  const bool fails = enter(jvm, true, call, name, signature);
  Object* const mirror = jvm.heap.resolve(type);
  const bool known = mirror != nullptr && mirror->mirrored != nullptr && !jvm.heap.isRemoved(name);
  Member* const found =
      fails || !known ? nullptr : jvm.heap.findMember(mirror->mirrored, name, signature);
  if (found == nullptr) {
    throwNew(jvm, error, name);
  }
  return found;
}
jfieldID getFieldId(MiniJvm& jvm, jclass type, const char* name, const char* signature) {
  return reinterpret_cast<jfieldID>(
      member(jvm, "GetFieldID", type, name, signature, "java/lang/NoSuchFieldError"));
}
jmethodID getMethodId(MiniJvm& jvm, jclass type, const char* name, const char* signature) {
  return reinterpret_cast<jmethodID>(
      member(jvm, "GetMethodID", type, name, signature, "java/lang/NoSuchMethodError"));
}

jobject newObjectV(MiniJvm& jvm, jclass type, jmethodID id, va_list arguments) {
  if (enter(jvm, true, "NewObject")) {
    throwNew(jvm, kNoMemory);
    return nullptr;
  }
  const auto* const constructor = reinterpret_cast<Member*>(id);
  Object* const object = jvm.heap.construct(jvm.heap.resolve(type)->mirrored);
  if (constructor->signature == "(I)V") {
    jvm.heap.codeOf(object) = {true, va_arg(arguments, jint), nullptr};
  } else if (constructor->signature == "([BIILjava/lang/String;)V") {
    Object* const bytes = jvm.heap.resolve(va_arg(arguments, jobject));
    const auto offset = static_cast<std::size_t>(va_arg(arguments, jint));
    const auto count = static_cast<std::size_t>(va_arg(arguments, jint));
    const auto& all = std::get<std::vector<jbyte>>(bytes->payload);
    if (offset + count > all.size()) {
      throwNew(jvm, "java/lang/StringIndexOutOfBoundsException");
      return nullptr;
    }
    object->payload = std::string(all.begin() + static_cast<std::ptrdiff_t>(offset),
                                  all.begin() + static_cast<std::ptrdiff_t>(offset + count));
  }
  return jvm.heap.refer(object);
}

jint throwObject(MiniJvm& jvm, jthrowable throwable) {
  enter(jvm, false, "Throw");
  jvm.thrown = Heap::hold(jvm.heap.resolve(throwable));
  return 0;
}
jint throwNewObject(MiniJvm& jvm, jclass type, const char* message) {
  const std::string& name = jvm.heap.resolve(type)->mirrored->name;
  if (enter(jvm, true, "ThrowNew", name, std::quoted(message))) {
    throwNew(jvm, kNoMemory);
    return -1;
  }
  throwNew(jvm, name, message);
  return 0;
}
jthrowable exceptionOccurred(MiniJvm& jvm) {
  enter(jvm, false, "ExceptionOccurred");
  return jvm.thrown == nullptr ? nullptr : as<jthrowable>(jvm.heap.refer(jvm.thrown));
}
void deleteLocalRef(MiniJvm& jvm, jobject reference) {
  enter(jvm, false, "DeleteLocalRef");
  jvm.heap.deleteReference(reference);
}

/// The slot of a field access, or null where the access fails.
Slot* access(MiniJvm& jvm, const char* call, jobject object, jfieldID id, const char* signature) {
  auto* const field = reinterpret_cast<Member*>(id);
  const bool fails = enter(jvm, *signature != 'I' || jvm.intsFail, call);
  Object* const target = jvm.heap.resolve(object);
  if (fails || target == nullptr) {
    throwNew(jvm, "java/lang/InternalError");
    return nullptr;
  }
  if ((field->holdsObject() ? *signature != 'L' : field->signature != signature) ||
      !target->type->sees(*field)) {
    jvm.heap.countMisuse();
  }
  Slot& slot = target->slot(*field);
  if (!slot.set && *call == 'G' &&
      (target->input || (!target->type->declared && field->signature == "[B"))) {
    slot = field->holdsObject() ? Slot{true, 0, makeInput(jvm.heap, jvm.profile, field->signature)}
                                : Slot{true, inputNumber(jvm.profile, *field), nullptr};
  }
  return &slot;
}
jint getIntField(MiniJvm& jvm, jobject object, jfieldID id) {
  const Slot* const slot = access(jvm, "GetIntField", object, id, "I");
  return slot == nullptr ? 0 : slot->number;
}
jshort getShortField(MiniJvm& jvm, jobject object, jfieldID id) {
  const Slot* const slot = access(jvm, "GetShortField", object, id, "S");
  return slot == nullptr ? jshort{0} : static_cast<jshort>(slot->number);
}
jobject getObjectField(MiniJvm& jvm, jobject object, jfieldID id) {
  const Slot* const slot = access(jvm, "GetObjectField", object, id, "L");
  return slot == nullptr ? nullptr : jvm.heap.refer(slot->object);
}
void store(Slot* slot, jint number, Object* object) {
  if (slot != nullptr) {
    *slot = {true, number, object};
  }
}
void setIntField(MiniJvm& jvm, jobject object, jfieldID id, jint value) {
  store(access(jvm, "SetIntField", object, id, "I"), value, nullptr);
}
void setShortField(MiniJvm& jvm, jobject object, jfieldID id, jshort value) {
  store(access(jvm, "SetShortField", object, id, "S"), value, nullptr);
}
/// What a field or an array keeps of a value.
Object* kept(MiniJvm& jvm, jobject value) {
  return value == nullptr ? nullptr : jvm.heap.keep(jvm.heap.resolve(value));
}
void setObjectField(MiniJvm& jvm, jobject object, jfieldID id, jobject value) {
  store(access(jvm, "SetObjectField", object, id, "L"), 0, kept(jvm, value));
}

jstring newStringUtf(MiniJvm& jvm, const char* text) {
  if (enter(jvm, true, "NewStringUTF", text)) {
    throwNew(jvm, kNoMemory);
    return nullptr;
  }
  return as<jstring>(jvm.heap.refer(jvm.heap.make("java/lang/String", std::string(text))));
}
jsize getStringUtfLength(MiniJvm& jvm, jstring text) {
  enter(jvm, false, "GetStringUTFLength");
  return static_cast<jsize>(jvm.heap.resolve(text)->length());
}
const char* getStringUtfChars(MiniJvm& jvm, jstring text, jboolean*) {
  if (enter(jvm, true, "GetStringUTFChars")) {
    throwNew(jvm, kNoMemory);
    return nullptr;
  }
  const std::string& source = *jvm.heap.resolve(text)->text();
  std::vector<char> copy(source.c_str(), source.c_str() + source.size() + 1);
  const char* const characters = copy.data();
  jvm.characters[characters] = std::move(copy);
  ++jvm.unreleased;
  return characters;
}
void releaseStringUtfChars(MiniJvm& jvm, jstring, const char* characters) {
  enter(jvm, false, "ReleaseStringUTFChars");
  jvm.characters.erase(characters);
  --jvm.unreleased;
}

jsize getArrayLength(MiniJvm& jvm, jarray array) {
  enter(jvm, false, "GetArrayLength");
  return static_cast<jsize>(jvm.heap.resolve(array)->length());
}
/// A new array of `length` elements of one payload type.
template <class Element, class Array>
Array newArray(MiniJvm& jvm, const char* call, const char* className, jsize length) {
  if (enter(jvm, true, call, length) || length < 0) {
    throwNew(jvm, length < 0 ? "java/lang/NegativeArraySizeException" : kNoMemory);
    return nullptr;
  }
  Object* const made = jvm.heap.makeArray(className, static_cast<std::size_t>(length), Element{});
  return as<Array>(jvm.heap.refer(made));
}
jintArray newIntArray(MiniJvm& jvm, jsize length) {
  return newArray<jint, jintArray>(jvm, "NewIntArray", "[I", length);
}
jshortArray newShortArray(MiniJvm& jvm, jsize length) {
  return newArray<jshort, jshortArray>(jvm, "NewShortArray", "[S", length);
}
jbyteArray newByteArray(MiniJvm& jvm, jsize length) {
  return newArray<jbyte, jbyteArray>(jvm, "NewByteArray", "[B", length);
}
jobjectArray newObjectArray(MiniJvm& jvm, jsize length, jclass type, jobject) {
  const std::string element = jvm.heap.resolve(type)->mirrored->name;
  const std::string name = element[0] == '[' ? '[' + element : "[L" + element + ';';
  return newArray<Object*, jobjectArray>(jvm, "NewObjectArray", name.c_str(), length);
}

/// The elements of a region, or null with the exception where it cannot be accessed.
template <class Element>
Element* region(MiniJvm& jvm, const char* call, jarray array, jsize start, jsize count) {
  const bool fails = enter(jvm, true, call, count);
  Object* const target = jvm.heap.resolve(array);
  auto* const payload = target == nullptr ? nullptr : target->get<std::vector<Element>>();
  if (payload == nullptr) {
    jvm.heap.countMisuse();
    return nullptr;
  }
  if (fails || start < 0 || count < 0 ||
      static_cast<std::size_t>(start) + static_cast<std::size_t>(count) > payload->size()) {
    throwNew(jvm, kBounds);
    return nullptr;
  }
  return payload->data() + start;
}
template <class Element, class Array>
void getRegion(MiniJvm& jvm, Array array, jsize start, jsize count, Element* values) {
  const Element* const first = region<Element>(jvm, Region<Element>::kGet, array, start, count);
  if (first != nullptr) {
    std::memcpy(values, first, static_cast<std::size_t>(count) * sizeof *values);
  }
}
template <class Element, class Array>
void setRegion(MiniJvm& jvm, Array array, jsize start, jsize count, const Element* values) {
  Element* const first = region<Element>(jvm, Region<Element>::kSet, array, start, count);
  if (first != nullptr) {
    std::memcpy(first, values, static_cast<std::size_t>(count) * sizeof *values);
  }
}

jint* getIntElements(MiniJvm& jvm, jintArray array, jboolean*) {
  if (enter(jvm, true, "GetIntArrayElements")) {
    throwNew(jvm, kNoMemory);
    return nullptr;
  }
  const auto& source = std::get<std::vector<jint>>(jvm.heap.resolve(array)->payload);
  auto* const copy = new jint[source.size()];
  std::copy(source.begin(), source.end(), copy);
  ++jvm.unreleased;
  return copy;
}
void releaseIntElements(MiniJvm& jvm, jintArray array, jint* elements, jint) {
  enter(jvm, false, "ReleaseIntArrayElements");
  auto& target = std::get<std::vector<jint>>(jvm.heap.resolve(array)->payload);
  std::copy_n(elements, target.size(), target.begin());
  --jvm.unreleased;
  delete[] elements;
}

/// The place of an element, or null with the exception where there is none.
Object** element(MiniJvm& jvm, const char* call, jobjectArray array, jsize index) {
  const bool fails = enter(jvm, true, call);
  auto& elements = *jvm.heap.resolve(array)->elements();
  if (fails || index < 0 || static_cast<std::size_t>(index) >= elements.size()) {
    throwNew(jvm, kBounds);
    return nullptr;
  }
  return &elements[static_cast<std::size_t>(index)];
}
jobject getElement(MiniJvm& jvm, jobjectArray array, jsize index) {
  Object** const place = element(jvm, "GetObjectArrayElement", array, index);
  return place == nullptr ? nullptr : jvm.heap.refer(*place);
}
void setElement(MiniJvm& jvm, jobjectArray array, jsize index, jobject value) {
  Object** const place = element(jvm, "SetObjectArrayElement", array, index);
  if (place != nullptr) {
    *place = kept(jvm, value);
  }
}

JNINativeInterface_ newTable() {
  JNINativeInterface_ table;
  auto* const entries = reinterpret_cast<void (*(*))()>(&table);
  std::fill_n(entries, sizeof table / sizeof *entries, reinterpret_cast<void (*)()>(&unlisted));
  table.FindClass = &Entry<&findClass>::call;
  table.GetObjectClass = &Entry<&getObjectClass>::call;
  table.IsSameObject = &Entry<&isSameObject>::call;
  table.GetFieldID = &Entry<&getFieldId>::call;
  table.GetMethodID = &Entry<&getMethodId>::call;
  table.NewObjectV = &Entry<&newObjectV>::call;
  table.Throw = &Entry<&throwObject>::call;
  table.ThrowNew = &Entry<&throwNewObject>::call;
  table.ExceptionOccurred = &Entry<&exceptionOccurred>::call;
  table.DeleteLocalRef = &Entry<&deleteLocalRef>::call;
  table.GetIntField = &Entry<&getIntField>::call;
  table.GetShortField = &Entry<&getShortField>::call;
  table.GetObjectField = &Entry<&getObjectField>::call;
  table.SetIntField = &Entry<&setIntField>::call;
  table.SetShortField = &Entry<&setShortField>::call;
  table.SetObjectField = &Entry<&setObjectField>::call;
  table.NewStringUTF = &Entry<&newStringUtf>::call;
  table.GetStringUTFLength = &Entry<&getStringUtfLength>::call;
  table.GetStringUTFChars = &Entry<&getStringUtfChars>::call;
  table.ReleaseStringUTFChars = &Entry<&releaseStringUtfChars>::call;
  table.GetArrayLength = &Entry<&getArrayLength>::call;
  table.NewObjectArray = &Entry<&newObjectArray>::call;
  table.GetObjectArrayElement = &Entry<&getElement>::call;
  table.SetObjectArrayElement = &Entry<&setElement>::call;
  table.NewIntArray = &Entry<&newIntArray>::call;
  table.NewShortArray = &Entry<&newShortArray>::call;
  table.NewByteArray = &Entry<&newByteArray>::call;
  table.GetIntArrayElements = &Entry<&getIntElements>::call;
  table.ReleaseIntArrayElements = &Entry<&releaseIntElements>::call;
  table.GetIntArrayRegion = &Entry<&getRegion<jint, jintArray>>::call;
  table.SetIntArrayRegion = &Entry<&setRegion<jint, jintArray>>::call;
  table.GetShortArrayRegion = &Entry<&getRegion<jshort, jshortArray>>::call;
  table.SetShortArrayRegion = &Entry<&setRegion<jshort, jshortArray>>::call;
  table.GetByteArrayRegion = &Entry<&getRegion<jbyte, jbyteArray>>::call;
  table.SetByteArrayRegion = &Entry<&setRegion<jbyte, jbyteArray>>::call;
  return table;
}

}  // namespace

const JNINativeInterface_& jniTable() {
  static const JNINativeInterface_ table = newTable();
  return table;
}

}  // namespace quorvelj::testing::mini
