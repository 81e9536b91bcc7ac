#include "tests/support/mini_jvm.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>

#include "tests/support/recorder.h"

namespace quorvelj::testing {

struct MiniJvm::Member {
  std::string name;
  std::string signature;
  std::size_t index;
  /// The length of the array that the constructor makes, or -1.
  int madeLength = -1;
};

struct MiniJvm::Class {
  std::string name;
  std::map<std::string, std::unique_ptr<Member>> members;
  std::unordered_map<const void*, Member*> recentMembers;
  /// Those whose arrays the constructor makes.
  std::vector<Member*> made;
  bool learnt = false;
  Object* mirror = nullptr;
};

struct MiniJvm::Object {
  Class* type = nullptr;
  Class* mirrored = nullptr;
  bool input = false;
  std::vector<Slot> slots;
  std::variant<std::monostate, std::string, std::vector<jint>, std::vector<jbyte>,
               std::vector<jshort>, std::vector<Object*>>
      payload;

  std::string* text() { return std::get_if<std::string>(&payload); }
  std::vector<Object*>* elements() { return std::get_if<std::vector<Object*>>(&payload); }
  std::size_t length() const {
    return std::visit(
        [](const auto& value) -> std::size_t {
          if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::monostate>) {
            return 0;
          } else {
            return value.size();
          }
        },
        payload);
  }
};

struct MiniJvm::Reference {
  Object* object;
  bool live;
};

namespace {

constexpr char kText[] = "Ljava/lang/String;";
constexpr char kBounds[] = "java/lang/ArrayIndexOutOfBoundsException";
constexpr std::size_t kMostRows = 100;
constexpr char kNoMemory[] = "java/lang/OutOfMemoryError";

/// What JNI's functions call the elements of an array.
template <class Element>
constexpr const char* kNameOf = "Int";
template <>
constexpr const char* kNameOf<jshort> = "Short";
template <>
constexpr const char* kNameOf<jbyte> = "Byte";

template <class Pointer>
Pointer as(jobject reference) {
  return static_cast<Pointer>(reference);
}

[[noreturn]] void JNICALL unlisted() {
  std::fputs("a JNI function that the bridge must not use was called\n", stderr);
  std::abort();
}

}  // namespace

template <class... Detail>
bool MiniJvm::enter(bool fallible, const char* call, const Detail&... detail) {
  ++calls_;
  if (recorder().tracing) {
    std::ostringstream event;
    event << call;
    static_cast<void>((event << ... << detail));
    recorder().add(event.str());
  }
  return fallible && ++fallibleCalls_ == failingCall_;
}

/// The JNI functions. Each enters its call, fails where it is to, and does its work otherwise.
struct MiniJvm::Functions {
  static MiniJvm& of(JNIEnv* env) { return *reinterpret_cast<Env*>(env)->jvm; }

  static jclass JNICALL findClass(JNIEnv* env, const char* name) {
    MiniJvm& jvm = of(env);
    if (jvm.enter(true, "FindClass ", name) || jvm.isMissing(name)) {
      jvm.throwNew("java/lang/NoClassDefFoundError", name);
      return nullptr;
    }
    return as<jclass>(jvm.refer(jvm.findClass(name)->mirror));
  }

  static jclass JNICALL getObjectClass(JNIEnv* env, jobject object) {
    MiniJvm& jvm = of(env);
    jvm.enter(false, "GetObjectClass");
    Object* const target = jvm.resolve(object);
    return target == nullptr ? nullptr : as<jclass>(jvm.refer(target->type->mirror));
  }

  static Member* member(JNIEnv* env, const char* call, jclass type, const char* name,
                        const char* signature, const char* error) {
    MiniJvm& jvm = of(env);
    const bool fails = jvm.enter(true, call, name, " ", signature);
    Object* const mirror = jvm.resolve(type);
    if (fails || mirror == nullptr || mirror->mirrored == nullptr || jvm.isMissing(name)) {
      jvm.throwNew(error, name);
      return nullptr;
    }
    const bool fixed = mirror->mirrored->learnt && *name != '<';
    Member* const found = jvm.findMember(mirror->mirrored, name, signature, !fixed);
    if (found == nullptr) {
      jvm.throwNew(error, name);
    }
    return found;
  }
  static jfieldID JNICALL getFieldId(JNIEnv* env, jclass type, const char* name,
                                     const char* signature) {
    return reinterpret_cast<jfieldID>(
        member(env, "GetFieldID ", type, name, signature, "java/lang/NoSuchFieldError"));
  }
  static jmethodID JNICALL getMethodId(JNIEnv* env, jclass type, const char* name,
                                       const char* signature) {
    return reinterpret_cast<jmethodID>(
        member(env, "GetMethodID ", type, name, signature, "java/lang/NoSuchMethodError"));
  }

  static jobject JNICALL newObjectV(JNIEnv* env, jclass type, jmethodID id, va_list arguments) {
    MiniJvm& jvm = of(env);
    if (jvm.enter(true, "NewObject")) {
      jvm.throwNew(kNoMemory);
      return nullptr;
    }
    const auto* const constructor = reinterpret_cast<Member*>(id);
    Object* const object = jvm.make(jvm.resolve(type)->mirrored);
    for (const Member* const member : object->type->made) {
      Object* const array = jvm.make(jvm.findClass("[B"));
      array->payload = std::vector<jbyte>(static_cast<std::size_t>(member->madeLength));
      jvm.slotOf(object, member) = {true, 0, array};
    }
    if (constructor->signature == "(I)V") {
      jvm.slotOf(object, jvm.findMember(object->type, "code", "I")) = {
          true, va_arg(arguments, jint), nullptr};
    } else if (constructor->signature == "([BIILjava/lang/String;)V") {
      Object* const bytes = jvm.resolve(va_arg(arguments, jobject));
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
    return jvm.refer(object);
  }

  static jint JNICALL throwObject(JNIEnv* env, jthrowable throwable) {
    MiniJvm& jvm = of(env);
    jvm.enter(false, "Throw");
    jvm.pending_ = jvm.resolve(throwable);
    return 0;
  }
  static jint JNICALL throwNewObject(JNIEnv* env, jclass type, const char* message) {
    MiniJvm& jvm = of(env);
    const std::string& name = jvm.resolve(type)->mirrored->name;
    if (jvm.enter(true, "ThrowNew ", name.c_str(), " \"", message, "\"")) {
      jvm.throwNew(kNoMemory);
      return -1;
    }
    jvm.throwNew(name, message);
    return 0;
  }
  static jthrowable JNICALL exceptionOccurred(JNIEnv* env) {
    MiniJvm& jvm = of(env);
    jvm.enter(false, "ExceptionOccurred");
    return jvm.pending_ == nullptr ? nullptr : as<jthrowable>(jvm.refer(jvm.pending_));
  }
  static void JNICALL deleteLocalRef(JNIEnv* env, jobject reference) {
    MiniJvm& jvm = of(env);
    jvm.enter(false, "DeleteLocalRef");
    if (jvm.resolve(reference) != nullptr) {
      auto* const dead = reinterpret_cast<Reference*>(reference);
      dead->live = false;
      jvm.deleted_.push_back(dead);
      --jvm.liveReferences_;
    }
  }

  /// The slot of a field access, or null where the access fails.
  static Slot* access(JNIEnv* env, const char* call, jobject object, jfieldID id,
                      const char* signature) {
    MiniJvm& jvm = of(env);
    const auto* const field = reinterpret_cast<Member*>(id);
    const bool fails = jvm.enter(true, call);
    Object* const target = jvm.resolve(object);
    if (fails || target == nullptr) {
      jvm.throwNew("java/lang/InternalError");
      return nullptr;
    }
    const bool reference = field->signature[0] == 'L' || field->signature[0] == '[';
    if (reference ? *signature != 'L' : field->signature != signature) {
      ++jvm.misuses_;
    }
    Slot& slot = jvm.slotOf(target, field);
    if (!slot.set && *call == 'G' && !target->type->learnt &&
        (target->input || field->signature == "[B")) {
      slot.set = true;
      if (reference) {
        slot.object = jvm.makeInput(field->signature);
      } else {
        slot.number = static_cast<jint>(0x01020304 + field->index);
      }
    }
    return &slot;
  }
  static jint JNICALL getIntField(JNIEnv* env, jobject object, jfieldID id) {
    const Slot* const slot = access(env, "GetIntField", object, id, "I");
    return slot == nullptr ? 0 : slot->number;
  }
  static jshort JNICALL getShortField(JNIEnv* env, jobject object, jfieldID id) {
    const Slot* const slot = access(env, "GetShortField", object, id, "S");
    return slot == nullptr ? jshort{0} : static_cast<jshort>(slot->number);
  }
  static jobject JNICALL getObjectField(JNIEnv* env, jobject object, jfieldID id) {
    const Slot* const slot = access(env, "GetObjectField", object, id, "L");
    return slot == nullptr ? nullptr : of(env).refer(slot->object);
  }
  static void store(Slot* slot, jint number, Object* object) {
    if (slot != nullptr) {
      *slot = {true, number, object};
    }
  }
  static void JNICALL setIntField(JNIEnv* env, jobject object, jfieldID id, jint value) {
    store(access(env, "SetIntField", object, id, "I"), value, nullptr);
  }
  static void JNICALL setShortField(JNIEnv* env, jobject object, jfieldID id, jshort value) {
    store(access(env, "SetShortField", object, id, "S"), value, nullptr);
  }
  static void JNICALL setObjectField(JNIEnv* env, jobject object, jfieldID id, jobject value) {
    Slot* const slot = access(env, "SetObjectField", object, id, "L");
    store(slot, 0, value == nullptr ? nullptr : of(env).resolve(value));
  }

  static jstring JNICALL newStringUtf(JNIEnv* env, const char* text) {
    MiniJvm& jvm = of(env);
    if (jvm.enter(true, "NewStringUTF ", text)) {
      jvm.throwNew(kNoMemory);
      return nullptr;
    }
    return jvm.newText(text);
  }
  static jsize JNICALL getStringUtfLength(JNIEnv* env, jstring text) {
    MiniJvm& jvm = of(env);
    jvm.enter(false, "GetStringUTFLength");
    return static_cast<jsize>(jvm.resolve(text)->length());
  }
  static const char* JNICALL getStringUtfChars(JNIEnv* env, jstring text, jboolean*) {
    MiniJvm& jvm = of(env);
    if (jvm.enter(true, "GetStringUTFChars")) {
      jvm.throwNew(kNoMemory);
      return nullptr;
    }
    const std::string& source = *jvm.resolve(text)->text();
    std::vector<char> copy(source.c_str(), source.c_str() + source.size() + 1);
    const char* const characters = copy.data();
    jvm.characters_[characters] = std::move(copy);
    ++jvm.unreleased_;
    return characters;
  }
  static void JNICALL releaseStringUtfChars(JNIEnv* env, jstring, const char* characters) {
    of(env).enter(false, "ReleaseStringUTFChars");
    of(env).characters_.erase(characters);
    --of(env).unreleased_;
  }

  static jsize JNICALL getArrayLength(JNIEnv* env, jarray array) {
    MiniJvm& jvm = of(env);
    jvm.enter(false, "GetArrayLength");
    return static_cast<jsize>(jvm.resolve(array)->length());
  }
  /// A new array of `length` elements of one payload type.
  template <class Payload, class Array>
  static Array newArray(JNIEnv* env, const char* call, const char* className, jsize length) {
    MiniJvm& jvm = of(env);
    if (jvm.enter(true, call, length) || length < 0) {
      jvm.throwNew(length < 0 ? "java/lang/NegativeArraySizeException" : kNoMemory);
      return nullptr;
    }
    Object* const object = jvm.make(jvm.findClass(className));
    object->payload = Payload(static_cast<std::size_t>(length));
    return as<Array>(jvm.refer(object));
  }
  static jintArray JNICALL newIntArray(JNIEnv* env, jsize length) {
    return newArray<std::vector<jint>, jintArray>(env, "NewIntArray ", "[I", length);
  }
  static jshortArray JNICALL newShortArray(JNIEnv* env, jsize length) {
    return newArray<std::vector<jshort>, jshortArray>(env, "NewShortArray ", "[S", length);
  }
  static jbyteArray JNICALL newByteArray(JNIEnv* env, jsize length) {
    return newArray<std::vector<jbyte>, jbyteArray>(env, "NewByteArray ", "[B", length);
  }
  static jobjectArray JNICALL newObjectArray(JNIEnv* env, jsize length, jclass type, jobject) {
    const std::string element = of(env).resolve(type)->mirrored->name;
    const std::string name = element[0] == '[' ? '[' + element : "[L" + element + ';';
    return newArray<std::vector<Object*>, jobjectArray>(env, "NewObjectArray ", name.c_str(),
                                                        length);
  }

  /// The elements of a region, or null with the exception where it cannot be accessed.
  template <class Element>
  static Element* region(JNIEnv* env, const char* call, jarray array, jsize start, jsize count) {
    MiniJvm& jvm = of(env);
    const bool fails = jvm.enter(true, call, kNameOf<Element>, "ArrayRegion ", count);
    Object* const target = jvm.resolve(array);
    auto* const payload =
        target == nullptr ? nullptr : std::get_if<std::vector<Element>>(&target->payload);
    if (payload == nullptr) {
      ++jvm.misuses_;
      return nullptr;
    }
    if (fails || start < 0 || count < 0 ||
        static_cast<std::size_t>(start) + static_cast<std::size_t>(count) > payload->size()) {
      jvm.throwNew(kBounds);
      return nullptr;
    }
    return payload->data() + start;
  }
  template <class Array, class Element>
  static void JNICALL getRegion(JNIEnv* env, Array array, jsize start, jsize count,
                                Element* values) {
    const Element* const first = region<Element>(env, "Get", array, start, count);
    if (first != nullptr) {
      std::copy_n(first, count, values);
    }
  }
  template <class Array, class Element>
  static void JNICALL setRegion(JNIEnv* env, Array array, jsize start, jsize count,
                                const Element* values) {
    Element* const first = region<Element>(env, "Set", array, start, count);
    if (first != nullptr) {
      std::copy_n(values, count, first);
    }
  }

  static jint* JNICALL getIntElements(JNIEnv* env, jintArray array, jboolean*) {
    MiniJvm& jvm = of(env);
    if (jvm.enter(true, "GetIntArrayElements")) {
      jvm.throwNew(kNoMemory);
      return nullptr;
    }
    const auto& source = std::get<std::vector<jint>>(jvm.resolve(array)->payload);
    auto* const copy = new jint[source.size()];
    std::copy(source.begin(), source.end(), copy);
    ++jvm.unreleased_;
    return copy;
  }
  static void JNICALL releaseIntElements(JNIEnv* env, jintArray array, jint* elements, jint) {
    MiniJvm& jvm = of(env);
    jvm.enter(false, "ReleaseIntArrayElements");
    auto& target = std::get<std::vector<jint>>(jvm.resolve(array)->payload);
    std::copy_n(elements, target.size(), target.begin());
    --jvm.unreleased_;
    delete[] elements;
  }

  /// The place of an element, or null with the exception where there is none.
  static Object** element(JNIEnv* env, const char* call, jobjectArray array, jsize index) {
    MiniJvm& jvm = of(env);
    const bool fails = jvm.enter(true, call);
    auto& elements = *jvm.resolve(array)->elements();
    if (fails || index < 0 || static_cast<std::size_t>(index) >= elements.size()) {
      jvm.throwNew(kBounds);
      return nullptr;
    }
    return &elements[static_cast<std::size_t>(index)];
  }
  static jobject JNICALL getElement(JNIEnv* env, jobjectArray array, jsize index) {
    Object** const place = element(env, "GetObjectArrayElement", array, index);
    return place == nullptr ? nullptr : of(env).refer(*place);
  }
  static void JNICALL setElement(JNIEnv* env, jobjectArray array, jsize index, jobject value) {
    Object** const place = element(env, "SetObjectArrayElement", array, index);
    if (place != nullptr) {
      *place = value == nullptr ? nullptr : of(env).resolve(value);
    }
  }
};

MiniJvm::MiniJvm() : env_{}, table_(std::make_unique<JNINativeInterface_>()) {
  JNINativeInterface_& table = *table_;
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
  env_.env.functions = table_.get();
  env_.jvm = this;
}

MiniJvm::~MiniJvm() = default;

bool MiniJvm::isMissing(std::string_view name) const {
  return !missing_.empty() && std::find(missing_.begin(), missing_.end(), name) != missing_.end();
}

// The bridge asks by the same constants over and over: what an address named before is tried first,
// and compared, because a test's own texts come and go.

MiniJvm::Class* MiniJvm::findClass(const char* name) {
  Class*& recent = recentClasses_[name];
  if (recent != nullptr && recent->name == name) {
    return recent;
  }
  std::unique_ptr<Class>& type = classes_[name];
  if (type == nullptr) {
    type = std::make_unique<Class>();
    type->name = name;
    type->mirror = make(nullptr);
    type->mirror->mirrored = type.get();
  }
  recent = type.get();
  return recent;
}

MiniJvm::Member* MiniJvm::findMember(Class* type, const char* name, const char* signature,
                                     bool make) {
  Member*& recent = type->recentMembers[name];
  if (recent != nullptr && recent->name == name && recent->signature == signature) {
    return recent;
  }
  const std::string key = std::string(name) + ' ' + signature;
  if (!make && !type->members.contains(key)) {
    return nullptr;
  }
  std::unique_ptr<Member>& member = type->members[key];
  if (member == nullptr) {
    member = std::make_unique<Member>(Member{name, signature, type->members.size() - 1, -1});
  }
  recent = member.get();
  return recent;
}

MiniJvm::Object* MiniJvm::make(Class* type) {
  Object& object = objects_.emplace_back();
  object.type = type;
  return &object;
}

MiniJvm::Object* MiniJvm::makeInput(const std::string& signature) {
  Object* const object = make(findClass("Input"));
  if (signature == kText) {
    object->type = findClass("java/lang/String");
    object->payload = profile.text;
  } else if (signature == "[I") {
    object->payload = std::vector<jint>(profile.primitives, 0x01020381);
  } else if (signature == "[B") {
    object->payload = std::vector<jbyte>(profile.primitives, jbyte{0x42});
  } else if (signature == "[S") {
    object->payload = std::vector<jshort>(profile.primitives, jshort{1234});
  } else if (signature[0] == '[') {
    // Rows are fewer than the elements of a list, or a table would be all of memory; those of ints
    // and bytes are as many as any fixed-length copy takes, where the rows themselves are.
    std::size_t length = profile.objects;
    if (signature[1] == '[') {
      const bool primitive = signature.back() != ';';
      length = std::min(primitive ? profile.primitives : profile.objects, kMostRows);
    }
    std::vector<Object*> elements(length);
    std::generate(elements.begin(), elements.end(), [&] { return makeInput(signature.substr(1)); });
    object->payload = std::move(elements);
  } else {
    object->input = true;
  }
  return object;
}

MiniJvm::Object* MiniJvm::makeThrowable(const std::string& className, const std::string& message,
                                        jint code) {
  Object* const throwable = make(findClass(className.c_str()));
  throwable->payload = message;
  slotOf(throwable, findMember(throwable->type, "code", "I")).number = code;
  return throwable;
}

void MiniJvm::throwNew(const std::string& className, const std::string& message) {
  pending_ = makeThrowable(className, message);
}

std::optional<PendingException> MiniJvm::pending() const {
  if (pending_ == nullptr) {
    return std::nullopt;
  }
  auto* const self = const_cast<MiniJvm*>(this);
  const std::string* const message = pending_->text();
  return PendingException{
      pending_->type->name, message == nullptr ? "" : *message,
      self->slotOf(pending_, self->findMember(pending_->type, "code", "I")).number};
}

jobject MiniJvm::refer(Object* object) {
  if (object == nullptr) {
    return nullptr;
  }
  mostReferences_ = std::max(mostReferences_, ++liveReferences_);
  // A deleted reference stays dead for a while, so that its use is noticed.
  constexpr std::size_t kStaysDead = 4096;
  if (deleted_.size() < kStaysDead) {
    return reinterpret_cast<jobject>(&references_.emplace_back(Reference{object, true}));
  }
  Reference* const reused = deleted_.front();
  deleted_.pop_front();
  *reused = {object, true};
  return reinterpret_cast<jobject>(reused);
}

MiniJvm::Object* MiniJvm::resolve(jobject reference) {
  const auto* const known = reinterpret_cast<Reference*>(reference);
  if (known == nullptr || !known->live) {
    ++misuses_;
    return nullptr;
  }
  return known->object;
}

MiniJvm::Slot& MiniJvm::slotOf(Object* object, const Member* member) {
  if (object->slots.size() <= member->index) {
    object->slots.resize(object->type->members.size());
  }
  return object->slots[member->index];
}

void MiniJvm::learnClasses(std::istream& fields) {
  std::string className;
  std::string name;
  std::string signature;
  for (int length = 0; fields >> className >> name >> signature >> length;) {
    Class* const type = findClass(("tessaly/str/diskarray/" + className).c_str());
    type->learnt = true;
    Member* const member = findMember(type, name.c_str(), signature.c_str());
    member->madeLength = length;
    if (length >= 0) {
      type->made.push_back(member);
    }
  }
}

std::string MiniJvm::signatureOf(jobject object, const std::string& field) {
  for (const auto& [key, member] : resolve(object)->type->members) {
    if (member->name == field) {
      return member->signature;
    }
  }
  return "";
}

std::string MiniJvm::classOf(jobject object) { return resolve(object)->type->name; }

jstring MiniJvm::newText(const std::string& text) {
  Object* const object = make(findClass("java/lang/String"));
  object->payload = text;
  return as<jstring>(refer(object));
}

jobject MiniJvm::newInput() {
  Object* const object = make(findClass("Input"));
  object->input = true;
  return refer(object);
}

jvalue MiniJvm::newArgument(const std::string& signature) {
  jvalue value{};
  if (signature == "I") {
    value.i = 3;
  } else {
    value.l = refer(makeInput(signature));
  }
  return value;
}

jintArray MiniJvm::newInts(const std::vector<jint>& values) {
  Object* const object = make(findClass("[I"));
  object->payload = values;
  return as<jintArray>(refer(object));
}

void MiniJvm::setObject(jobject object, const std::string& name, const std::string& signature,
                        jobject value) {
  Object* const target = resolve(object);
  slotOf(target, findMember(target->type, name.c_str(), signature.c_str())) = {
      true, 0, value == nullptr ? nullptr : resolve(value)};
}

MiniJvm::Slot& MiniJvm::namedSlot(jobject object, const std::string& name) {
  Object* const target = resolve(object);
  for (const auto& [key, member] : target->type->members) {
    if (member->name == name && slotOf(target, member.get()).set) {
      return slotOf(target, member.get());
    }
  }
  std::fprintf(stderr, "no field %s was set\n", name.c_str());
  std::abort();
}

jint MiniJvm::intOf(jobject object, const std::string& name) {
  return namedSlot(object, name).number;
}
jobject MiniJvm::objectOf(jobject object, const std::string& name) {
  return refer(namedSlot(object, name).object);
}
std::string MiniJvm::textOf(jobject object, const std::string& name) {
  return *namedSlot(object, name).object->text();
}
std::vector<jint> MiniJvm::intsOf(jobject array) {
  return std::get<std::vector<jint>>(resolve(array)->payload);
}
std::vector<jbyte> MiniJvm::bytesOf(jobject array) {
  return std::get<std::vector<jbyte>>(resolve(array)->payload);
}
std::vector<jobject> MiniJvm::elementsOf(jobject array) {
  std::vector<jobject> elements;
  for (Object* const element : *resolve(array)->elements()) {
    elements.push_back(refer(element));
  }
  return elements;
}

}  // namespace quorvelj::testing
