#include "tests/support/mini_jvm/jni_table.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <sstream>
#include <utility>

#include "tests/support/mini_jvm/inputs.h"
#include "tests/support/recorder.h"

namespace quorvelj::testing::mini {
namespace {

constexpr char kBounds[] = "java/lang/ArrayIndexOutOfBoundsException";
constexpr char kNoMemory[] = "java/lang/OutOfMemoryError";

/// The elements of an array in the names of JNI's functions.
template <class Element>
struct Region {
  static constexpr char kGet[] = "GetIntArrayRegion ";
  static constexpr char kSet[] = "SetIntArrayRegion ";
};
template <>
struct Region<jshort> {
  static constexpr char kGet[] = "GetShortArrayRegion ";
  static constexpr char kSet[] = "SetShortArrayRegion ";
};
template <>
struct Region<jbyte> {
  static constexpr char kGet[] = "GetByteArrayRegion ";
  static constexpr char kSet[] = "SetByteArrayRegion ";
};

template <class Pointer>
Pointer as(jobject reference) {
  return static_cast<Pointer>(reference);
}

[[noreturn]] void JNICALL unlisted() {
  std::fputs("a JNI function that the bridge must not use was called\n", stderr);
  std::abort();
}

JniTable& tableOf(JNIEnv* env) { return *reinterpret_cast<JniTable::Env*>(env)->table; }

/// Notes how deep the stack of native code is, from the JNI function that it called.
[[gnu::always_inline]] inline void noteStack(JNIEnv* env) {
  const auto* const frame = static_cast<const char*>(__builtin_frame_address(0));
  const char*& deepest = tableOf(env).deepestFrame;
  if (std::less<>()(frame, deepest)) {
    deepest = frame;
  }
}

/// Any of these may be called while an exception is pending: ExceptionOccurred, DeleteLocalRef, and
/// the functions that release.
bool allowedUnderException(const char* call) {
  return *call == 'E' || *call == 'D' || *call == 'R';
}

}  // namespace

template <class... Detail>
bool JniTable::enter(bool fallible, const char* call, const Detail&... detail) {
  ++calls;
  if (pending != nullptr && !allowedUnderException(call)) {
    ++callsUnderException;
  }
  if (recorder().tracing) {
    std::ostringstream event;
    event << call;
    static_cast<void>((event << ... << detail));
    recorder().add(event.str());
  }
  if (fallible && ++fallibleCalls == failingCall) {
    failedFunction = call;
    return true;
  }
  return false;
}

// What a call costs its field.

void JniTable::costs(Member& field, const char* call, int depth) {
  if (recording) {
    addCalls(field.calls, {call, depth, fallibleCalls, fallibleCalls});
  }
}
void JniTable::costs(Object* object, const char* call) {
  if (!recording) {
    return;
  }
  if (object->holder != nullptr) {
    costs(*object->holder, call, object->depth);
  } else {
    addCalls(object->calls, {call, 0, fallibleCalls, fallibleCalls});
  }
}
void JniTable::costsWhatIsMadeNext(const char* call) {
  if (recording) {
    addCalls(unclaimed, {call, 0, fallibleCalls, fallibleCalls});
  }
}
Object* JniTable::made(Object* object, const char* call) {
  if (recording) {
    object->calls = std::exchange(unclaimed, {});
    costs(object, call);
  }
  return object;
}
void JniTable::holds(Member& field, int depth, Object* value) {
  if (recording && value != nullptr && value->holder == nullptr) {
    mergeCalls(field.calls, value->calls, depth);
    if (value->elements() != nullptr && !field.heldArray && !value->calls.empty()) {
      heap.endFirstArray(value->calls.front().first);
      field.heldArray = true;
    }
    value->calls.clear();
    value->holder = &field;
    value->depth = depth;
  }
}
void JniTable::holds(Object* array, Object* value) {
  if (array->holder != nullptr) {
    holds(*array->holder, array->depth + 1, value);
  } else if (recording && value != nullptr) {
    mergeCalls(array->calls, value->calls, 1);
    value->calls.clear();
  }
}

namespace {

/// The JNI functions. Each enters its call, then fails or does its work.
struct Functions {
  static jclass JNICALL findClass(JNIEnv* env, const char* name) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    if (jvm.enter(true, "FindClass ", name) || jvm.heap.isRemoved(name)) {
      jvm.throwNew("java/lang/NoClassDefFoundError", name);
      return nullptr;
    }
    jvm.costsWhatIsMadeNext("FindClass ");
    return as<jclass>(jvm.heap.refer(jvm.heap.findClass(name)->mirror));
  }

  static jclass JNICALL getObjectClass(JNIEnv* env, jobject object) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    jvm.enter(false, "GetObjectClass");
    Object* const target = jvm.heap.resolve(object);
    return target == nullptr ? nullptr : as<jclass>(jvm.heap.refer(target->type->mirror));
  }

  static Member* member(JNIEnv* env, const char* call, jclass type, const char* name,
                        const char* signature, const char* error) {
    JniTable& jvm = tableOf(env);
    const bool fails = jvm.enter(true, call, name, " ", signature);
    Object* const mirror = jvm.heap.resolve(type);
    if (fails || mirror == nullptr || mirror->mirrored == nullptr || jvm.heap.isRemoved(name)) {
      jvm.throwNew(error, name);
      return nullptr;
    }
    Member* const found = jvm.heap.findMember(mirror->mirrored, name, signature);
    if (found == nullptr) {
      jvm.throwNew(error, name);
    } else if (*signature == '(') {
      jvm.costsWhatIsMadeNext(call);
    } else {
      jvm.costs(*found, call);
    }
    return found;
  }
  static jfieldID JNICALL getFieldId(JNIEnv* env, jclass type, const char* name,
                                     const char* signature) {
    noteStack(env);
    return reinterpret_cast<jfieldID>(
        member(env, "GetFieldID ", type, name, signature, "java/lang/NoSuchFieldError"));
  }
  static jmethodID JNICALL getMethodId(JNIEnv* env, jclass type, const char* name,
                                       const char* signature) {
    noteStack(env);
    return reinterpret_cast<jmethodID>(
        member(env, "GetMethodID ", type, name, signature, "java/lang/NoSuchMethodError"));
  }

  static jobject JNICALL newObjectV(JNIEnv* env, jclass type, jmethodID id, va_list arguments) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    if (jvm.enter(true, "NewObject")) {
      jvm.throwNew(kNoMemory);
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
        jvm.throwNew("java/lang/StringIndexOutOfBoundsException");
        return nullptr;
      }
      object->payload = std::string(all.begin() + static_cast<std::ptrdiff_t>(offset),
                                    all.begin() + static_cast<std::ptrdiff_t>(offset + count));
    }
    return jvm.heap.refer(jvm.made(object, "NewObject"));
  }

  static jint JNICALL throwObject(JNIEnv* env, jthrowable throwable) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    jvm.enter(false, "Throw");
    jvm.pending = Heap::hold(jvm.heap.resolve(throwable));
    return 0;
  }
  static jint JNICALL throwNewObject(JNIEnv* env, jclass type, const char* message) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    const std::string& name = jvm.heap.resolve(type)->mirrored->name;
    if (jvm.enter(true, "ThrowNew ", name.c_str(), " \"", message, "\"")) {
      jvm.throwNew(kNoMemory);
      return -1;
    }
    jvm.throwNew(name, message);
    return 0;
  }
  static jthrowable JNICALL exceptionOccurred(JNIEnv* env) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    jvm.enter(false, "ExceptionOccurred");
    return jvm.pending == nullptr ? nullptr : as<jthrowable>(jvm.heap.refer(jvm.pending));
  }
  static void JNICALL deleteLocalRef(JNIEnv* env, jobject reference) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    jvm.enter(false, "DeleteLocalRef");
    jvm.heap.deleteReference(reference);
  }

  /// The slot of a field access, or null where the access fails.
  static Slot* access(JNIEnv* env, const char* call, jobject object, jfieldID id,
                      const char* signature) {
    JniTable& jvm = tableOf(env);
    auto* const field = reinterpret_cast<Member*>(id);
    const bool fails = jvm.enter(true, call);
    Object* const target = jvm.heap.resolve(object);
    if (fails || target == nullptr) {
      jvm.throwNew("java/lang/InternalError");
      return nullptr;
    }
    if ((field->holdsObject() ? *signature != 'L' : field->signature != signature) ||
        !target->type->sees(*field)) {
      jvm.heap.countMisuse();
    }
    jvm.costs(*field, call);
    Slot& slot = target->slot(*field);
    if (!slot.set && *call == 'G' &&
        (target->input || (!target->type->declared && field->signature == "[B"))) {
      slot = field->holdsObject()
                 ? Slot{true, 0, makeInput(jvm.heap, jvm.profile, field->signature)}
                 : Slot{true, inputNumber(jvm.profile, *field), nullptr};
    }
    return &slot;
  }
  static jint JNICALL getIntField(JNIEnv* env, jobject object, jfieldID id) {
    noteStack(env);
    const Slot* const slot = access(env, "GetIntField", object, id, "I");
    return slot == nullptr ? 0 : slot->number;
  }
  static jshort JNICALL getShortField(JNIEnv* env, jobject object, jfieldID id) {
    noteStack(env);
    const Slot* const slot = access(env, "GetShortField", object, id, "S");
    return slot == nullptr ? jshort{0} : static_cast<jshort>(slot->number);
  }
  static jobject JNICALL getObjectField(JNIEnv* env, jobject object, jfieldID id) {
    noteStack(env);
    const Slot* const slot = access(env, "GetObjectField", object, id, "L");
    if (slot == nullptr) {
      return nullptr;
    }
    tableOf(env).holds(*reinterpret_cast<Member*>(id), 0, slot->object);
    return tableOf(env).heap.refer(slot->object);
  }
  static void store(Slot* slot, jint number, Object* object) {
    if (slot != nullptr) {
      *slot = {true, number, object};
    }
  }
  static void JNICALL setIntField(JNIEnv* env, jobject object, jfieldID id, jint value) {
    noteStack(env);
    store(access(env, "SetIntField", object, id, "I"), value, nullptr);
  }
  static void JNICALL setShortField(JNIEnv* env, jobject object, jfieldID id, jshort value) {
    noteStack(env);
    store(access(env, "SetShortField", object, id, "S"), value, nullptr);
  }
  static void JNICALL setObjectField(JNIEnv* env, jobject object, jfieldID id, jobject value) {
    noteStack(env);
    Slot* const slot = access(env, "SetObjectField", object, id, "L");
    if (slot == nullptr || value == nullptr) {
      store(slot, 0, nullptr);
      return;
    }
    Object* const stored = tableOf(env).heap.resolve(value);
    tableOf(env).holds(*reinterpret_cast<Member*>(id), 0, stored);
    store(slot, 0, tableOf(env).heap.keep(stored));
  }

  static jstring JNICALL newStringUtf(JNIEnv* env, const char* text) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    if (jvm.enter(true, "NewStringUTF ", text)) {
      jvm.throwNew(kNoMemory);
      return nullptr;
    }
    Object* const made = jvm.heap.make("java/lang/String", std::string(text));
    return as<jstring>(jvm.heap.refer(jvm.made(made, "NewStringUTF ")));
  }
  static jsize JNICALL getStringUtfLength(JNIEnv* env, jstring text) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    jvm.enter(false, "GetStringUTFLength");
    return static_cast<jsize>(jvm.heap.resolve(text)->length());
  }
  static const char* JNICALL getStringUtfChars(JNIEnv* env, jstring text, jboolean*) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    if (jvm.enter(true, "GetStringUTFChars")) {
      jvm.throwNew(kNoMemory);
      return nullptr;
    }
    Object* const object = jvm.heap.resolve(text);
    jvm.costs(object, "GetStringUTFChars");
    const std::string& source = *object->text();
    std::vector<char> copy(source.c_str(), source.c_str() + source.size() + 1);
    const char* const characters = copy.data();
    jvm.characters[characters] = std::move(copy);
    ++jvm.unreleased;
    return characters;
  }
  static void JNICALL releaseStringUtfChars(JNIEnv* env, jstring, const char* characters) {
    noteStack(env);
    tableOf(env).enter(false, "ReleaseStringUTFChars");
    tableOf(env).characters.erase(characters);
    --tableOf(env).unreleased;
  }

  static jsize JNICALL getArrayLength(JNIEnv* env, jarray array) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    jvm.enter(false, "GetArrayLength");
    return static_cast<jsize>(jvm.heap.resolve(array)->length());
  }
  /// A new array of `length` elements of one payload type.
  template <class Element, class Array>
  static Array newArray(JNIEnv* env, const char* call, const char* className, jsize length) {
    JniTable& jvm = tableOf(env);
    if (jvm.enter(true, call, length) || length < 0) {
      jvm.throwNew(length < 0 ? "java/lang/NegativeArraySizeException" : kNoMemory);
      return nullptr;
    }
    Object* const made = jvm.heap.makeArray(className, static_cast<std::size_t>(length), Element{});
    return as<Array>(jvm.heap.refer(jvm.made(made, call)));
  }
  static jintArray JNICALL newIntArray(JNIEnv* env, jsize length) {
    noteStack(env);
    return newArray<jint, jintArray>(env, "NewIntArray ", "[I", length);
  }
  static jshortArray JNICALL newShortArray(JNIEnv* env, jsize length) {
    noteStack(env);
    return newArray<jshort, jshortArray>(env, "NewShortArray ", "[S", length);
  }
  static jbyteArray JNICALL newByteArray(JNIEnv* env, jsize length) {
    noteStack(env);
    return newArray<jbyte, jbyteArray>(env, "NewByteArray ", "[B", length);
  }
  static jobjectArray JNICALL newObjectArray(JNIEnv* env, jsize length, jclass type, jobject) {
    noteStack(env);
    const std::string element = tableOf(env).heap.resolve(type)->mirrored->name;
    const std::string name = element[0] == '[' ? '[' + element : "[L" + element + ';';
    return newArray<Object*, jobjectArray>(env, "NewObjectArray ", name.c_str(), length);
  }

  /// The elements of a region, or null with the exception where it cannot be accessed.
  template <class Element>
  static Element* region(JNIEnv* env, const char* call, jarray array, jsize start, jsize count) {
    JniTable& jvm = tableOf(env);
    const bool fails = jvm.enter(true, call, count);
    Object* const target = jvm.heap.resolve(array);
    auto* const payload = target == nullptr ? nullptr : target->get<std::vector<Element>>();
    if (payload == nullptr) {
      jvm.heap.countMisuse();
      return nullptr;
    }
    if (fails || start < 0 || count < 0 ||
        static_cast<std::size_t>(start) + static_cast<std::size_t>(count) > payload->size()) {
      jvm.throwNew(kBounds);
      return nullptr;
    }
    jvm.costs(target, call);
    return payload->data() + start;
  }
  template <class Array, class Element>
  static void JNICALL getRegion(JNIEnv* env, Array array, jsize start, jsize count,
                                Element* values) {
    noteStack(env);
    const Element* const first = region<Element>(env, Region<Element>::kGet, array, start, count);
    if (first != nullptr) {
      std::copy_n(first, count, values);
    }
  }
  template <class Array, class Element>
  static void JNICALL setRegion(JNIEnv* env, Array array, jsize start, jsize count,
                                const Element* values) {
    noteStack(env);
    Element* const first = region<Element>(env, Region<Element>::kSet, array, start, count);
    if (first != nullptr) {
      std::copy_n(values, count, first);
    }
  }

  static jint* JNICALL getIntElements(JNIEnv* env, jintArray array, jboolean*) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    if (jvm.enter(true, "GetIntArrayElements")) {
      jvm.throwNew(kNoMemory);
      return nullptr;
    }
    Object* const held = jvm.heap.resolve(array);
    jvm.costs(held, "GetIntArrayElements");
    const auto& source = std::get<std::vector<jint>>(held->payload);
    auto* const copy = new jint[source.size()];
    std::copy(source.begin(), source.end(), copy);
    ++jvm.unreleased;
    return copy;
  }
  static void JNICALL releaseIntElements(JNIEnv* env, jintArray array, jint* elements, jint) {
    noteStack(env);
    JniTable& jvm = tableOf(env);
    jvm.enter(false, "ReleaseIntArrayElements");
    auto& target = std::get<std::vector<jint>>(jvm.heap.resolve(array)->payload);
    std::copy_n(elements, target.size(), target.begin());
    --jvm.unreleased;
    delete[] elements;
  }

  /// The place of an element, or null with the exception where there is none.
  static Object** element(JNIEnv* env, const char* call, jobjectArray array, jsize index) {
    JniTable& jvm = tableOf(env);
    const bool fails = jvm.enter(true, call);
    Object* const target = jvm.heap.resolve(array);
    auto& elements = *target->elements();
    if (fails || index < 0 || static_cast<std::size_t>(index) >= elements.size()) {
      jvm.throwNew(kBounds);
      return nullptr;
    }
    jvm.costs(target, call);
    return &elements[static_cast<std::size_t>(index)];
  }
  static jobject JNICALL getElement(JNIEnv* env, jobjectArray array, jsize index) {
    noteStack(env);
    Object** const place = element(env, "GetObjectArrayElement", array, index);
    if (place == nullptr) {
      return nullptr;
    }
    JniTable& jvm = tableOf(env);
    jvm.holds(jvm.heap.resolve(array), *place);
    return jvm.heap.refer(*place);
  }
  static void JNICALL setElement(JNIEnv* env, jobjectArray array, jsize index, jobject value) {
    noteStack(env);
    Object** const place = element(env, "SetObjectArrayElement", array, index);
    if (place == nullptr || value == nullptr) {
      if (place != nullptr) {
        *place = nullptr;
      }
      return;
    }
    JniTable& jvm = tableOf(env);
    Object* const stored = jvm.heap.resolve(value);
    jvm.holds(jvm.heap.resolve(array), stored);
    *place = jvm.heap.keep(stored);
  }
};

}  // namespace

void JniTable::throwNew(const std::string& className, const std::string& message) {
  pending = Heap::hold(heap.make(className.c_str(), message));
}

JniTable::JniTable(const InputProfile& inputs)
    : profile(inputs), functions(std::make_unique<JNINativeInterface_>()) {
  JNINativeInterface_& table = *functions;
  auto* const entries = reinterpret_cast<void (*(*))()>(&table);
  std::fill_n(entries, sizeof table / sizeof *entries, reinterpret_cast<void (*)()>(&unlisted));
  table.FindClass = &Functions::findClass;
  table.GetObjectClass = &Functions::getObjectClass;
  table.GetFieldID = &Functions::getFieldId;
  table.GetMethodID = &Functions::getMethodId;
  table.NewObjectV = &Functions::newObjectV;
  table.Throw = &Functions::throwObject;
  table.ThrowNew = &Functions::throwNewObject;
  table.ExceptionOccurred = &Functions::exceptionOccurred;
  table.DeleteLocalRef = &Functions::deleteLocalRef;
  table.GetIntField = &Functions::getIntField;
  table.GetShortField = &Functions::getShortField;
  table.GetObjectField = &Functions::getObjectField;
  table.SetIntField = &Functions::setIntField;
  table.SetShortField = &Functions::setShortField;
  table.SetObjectField = &Functions::setObjectField;
  table.NewStringUTF = &Functions::newStringUtf;
  table.GetStringUTFLength = &Functions::getStringUtfLength;
  table.GetStringUTFChars = &Functions::getStringUtfChars;
  table.ReleaseStringUTFChars = &Functions::releaseStringUtfChars;
  table.GetArrayLength = &Functions::getArrayLength;
  table.NewObjectArray = &Functions::newObjectArray;
  table.GetObjectArrayElement = &Functions::getElement;
  table.SetObjectArrayElement = &Functions::setElement;
  table.NewIntArray = &Functions::newIntArray;
  table.NewShortArray = &Functions::newShortArray;
  table.NewByteArray = &Functions::newByteArray;
  table.GetIntArrayElements = &Functions::getIntElements;
  table.ReleaseIntArrayElements = &Functions::releaseIntElements;
  table.GetIntArrayRegion = &Functions::getRegion;
  table.SetIntArrayRegion = &Functions::setRegion;
  table.GetShortArrayRegion = &Functions::getRegion;
  table.SetShortArrayRegion = &Functions::setRegion;
  table.GetByteArrayRegion = &Functions::getRegion;
  table.SetByteArrayRegion = &Functions::setRegion;
  env = {{functions.get()}, this};
}

}  // namespace quorvelj::testing::mini
