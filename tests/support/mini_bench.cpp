// The bench of the real-JVM tests on the mini JVM, where no JVM can be had: the same tests of
// records and behaviour, on the Java half's classes as a list made from the jar gives them.
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>

#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/real_jvm.h"

namespace quorvelj::testing {
namespace {

constexpr char kText[] = "Ljava/lang/String;";
constexpr char kIntegerClass[] = "java/lang/Integer";

/// The machine, and what the tests call of JNI beyond the functions that the bridge may use.
struct Bench {
  Bench() : table(*jvm.env()->functions) {
    std::ifstream classes(QUORVELJ_CLASSES);
    if (!classes) {
      std::fputs("no list of classes\n", stderr);
      std::abort();
    }
    jvm.learnClasses(classes);
    table.PushLocalFrame = &pushFrame;
    table.PopLocalFrame = &popFrame;
    jvm.env()->functions = &table;
  }
  static jint JNICALL pushFrame(JNIEnv*, jint);
  static jobject JNICALL popFrame(JNIEnv*, jobject);

  MiniJvm jvm;
  JNINativeInterface_ table;
};

std::unique_ptr<Bench> current;
int frames = 0;

MiniJvm& jvm() {
  if (current == nullptr) {
    current = std::make_unique<Bench>();
  }
  return current->jvm;
}

jint JNICALL Bench::pushFrame(JNIEnv*, jint) {
  ++frames;
  return 0;
}

// With the last frame goes the machine, and all that a test made in it.
jobject JNICALL Bench::popFrame(JNIEnv*, jobject) {
  if (--frames == 0) {
    current.reset();
  }
  return nullptr;
}

/// The value at a path: a field of an object, or an element of an array.
struct Place {
  jobject holder;
  std::string field;  // "" for an element
  jsize index;
  std::string signature;
};

bool isArray(const std::string& signature) { return signature[0] == '['; }

std::vector<std::string> steps(const std::string& path) {
  std::vector<std::string> found;
  std::string step;
  for (const char letter : path + '.') {
    if (letter == '.' || letter == '[' || letter == ']') {
      if (!step.empty()) {
        found.push_back(step);
      }
      step.clear();
    } else {
      step += letter;
    }
  }
  return found;
}

Place enter(jobject holder, const std::string& holderSignature, const std::string& step) {
  if (std::isdigit(static_cast<unsigned char>(step[0])) != 0) {
    return {holder, "", static_cast<jsize>(std::stoi(step)), holderSignature.substr(1)};
  }
  const std::string signature = jvm().signatureOf(holder, step);
  if (signature.empty()) {
    std::fprintf(stderr, "no field %s\n", step.c_str());
    std::abort();
  }
  return {holder, step, 0, signature};
}

jfieldID fieldOf(const Place& place) {
  return realJvm()->GetFieldID(realJvm()->GetObjectClass(place.holder), place.field.c_str(),
                               place.signature.c_str());
}

jobject load(const Place& place) {
  return place.field.empty() ? realJvm()->GetObjectArrayElement(
                                   static_cast<jobjectArray>(place.holder), place.index)
                             : realJvm()->GetObjectField(place.holder, fieldOf(place));
}

void store(const Place& place, jobject value) {
  if (place.field.empty()) {
    realJvm()->SetObjectArrayElement(static_cast<jobjectArray>(place.holder), place.index, value);
  } else {
    realJvm()->SetObjectField(place.holder, fieldOf(place), value);
  }
}

jobject newArray(const std::string& signature, jsize length) {
  if (signature == "[I") {
    return realJvm()->NewIntArray(length);
  }
  if (signature == "[B") {
    return realJvm()->NewByteArray(length);
  }
  std::string element = signature.substr(1);
  if (element[0] == 'L') {
    element = element.substr(1, element.size() - 2);
  }
  return realJvm()->NewObjectArray(length, realJvm()->FindClass(element.c_str()), nullptr);
}

jobject newObject(const std::string& className) {
  const jclass type = realJvm()->FindClass(className.c_str());
  return realJvm()->NewObject(type, realJvm()->GetMethodID(type, "<init>", "()V"));
}

/// The array at a place, made longer where it has not `length` elements.
jobject grown(const Place& place, jsize length) {
  const jobject old = load(place);
  const jsize oldLength = old == nullptr ? 0 : realJvm()->GetArrayLength(static_cast<jarray>(old));
  if (old != nullptr && oldLength >= length) {
    return old;
  }
  const jobject array = newArray(place.signature, length);
  if (place.signature == "[I" && old != nullptr) {
    const std::vector<jint> values = jvm().intsOf(old);
    realJvm()->SetIntArrayRegion(static_cast<jintArray>(array), 0, oldLength, values.data());
  } else if (place.signature == "[B" && old != nullptr) {
    const std::vector<jbyte> values = jvm().bytesOf(old);
    realJvm()->SetByteArrayRegion(static_cast<jbyteArray>(array), 0, oldLength, values.data());
  } else if (old != nullptr) {
    const std::vector<jobject> values = jvm().elementsOf(old);
    for (jsize index = 0; index < oldLength; ++index) {
      realJvm()->SetObjectArrayElement(static_cast<jobjectArray>(array), index,
                                       values[static_cast<std::size_t>(index)]);
    }
  }
  store(place, array);
  return array;
}

/// The place at the end of a path; makes what lies on the way.
Place locate(jobject object, const std::string& path) {
  const std::vector<std::string> all = steps(path);
  Place place = enter(object, jvm().classOf(object), all[0]);
  for (std::size_t step = 1; step < all.size(); ++step) {
    if (isArray(place.signature)) {
      const auto length = static_cast<jsize>(std::stoi(all[step]) + 1);
      place = enter(grown(place, length), place.signature, all[step]);
      continue;
    }
    if (load(place) == nullptr) {
      store(place, newObject(place.signature.substr(1, place.signature.size() - 2)));
    }
    place = enter(load(place), place.signature, all[step]);
  }
  return place;
}

void storeText(const Place& place, const std::string& value) {
  if (place.signature == kText) {
    store(place, jvm().newText(value));
  } else if (!place.field.empty()) {
    realJvm()->SetIntField(place.holder, fieldOf(place), static_cast<jint>(std::stol(value)));
  } else if (place.signature == "I") {
    const jint number = static_cast<jint>(std::stol(value));
    realJvm()->SetIntArrayRegion(static_cast<jintArray>(place.holder), place.index, 1, &number);
  } else {
    const auto byte = static_cast<jbyte>(std::stol(value));
    realJvm()->SetByteArrayRegion(static_cast<jbyteArray>(place.holder), place.index, 1, &byte);
  }
}

template <class Value>
std::string listOf(const std::vector<Value>& values) {
  std::string list;
  for (const Value value : values) {
    list += (list.empty() ? "" : ", ") + std::to_string(value);
  }
  return '[' + list + ']';
}

std::string shown(jobject value, const std::string& signature) {
  if (value == nullptr) {
    return "null";
  }
  const std::string className = jvm().classOf(value);
  if (className == kIntegerClass) {
    return std::to_string(jvm().intOf(value, "code"));
  }
  if (signature == "[I") {
    return listOf(jvm().intsOf(value));
  }
  if (signature == "[B") {
    return listOf(jvm().bytesOf(value));
  }
  if (isArray(className)) {
    const std::size_t start = className.rfind('/') + 1;
    return className.substr(start, className.size() - start - 1) + '[' +
           std::to_string(realJvm()->GetArrayLength(static_cast<jarray>(value))) + ']';
  }
  if (className != "java/lang/String") {
    return className.substr(className.rfind('/') + 1);
  }
  const auto text = static_cast<jstring>(value);
  const char* const characters = realJvm()->GetStringUTFChars(text, nullptr);
  std::string copy = characters;
  realJvm()->ReleaseStringUTFChars(text, characters);
  return copy;
}

}  // namespace

JNIEnv* realJvm() { return jvm().env(); }

jobject text(const std::string& value) { return jvm().newText(value); }

jobject number(jint value) {
  const jclass type = realJvm()->FindClass(kIntegerClass);
  return realJvm()->NewObject(type, realJvm()->GetMethodID(type, "<init>", "(I)V"), value);
}

jobject create(const char* className) {
  return newObject(std::string("tessaly/str/diskarray/") + className);
}

void set(jobject object, const std::string& path, const std::string& value) {
  storeText(locate(object, path), value);
}

void setNull(jobject object, const char* field) { store(locate(object, field), nullptr); }

void setLength(jobject object, const char* field, int length) {
  const Place place = locate(object, field);
  store(place, length < 0 ? nullptr : newArray(place.signature, static_cast<jsize>(length)));
}

std::string get(jobject object, const std::string& path) {
  if (object == nullptr) {
    return "null";
  }
  Place place{object, "", 0, jvm().classOf(object)};
  jobject value = object;
  for (const std::string& step : steps(path)) {
    place = enter(value, place.signature, step);
    if (place.signature == "I" && !place.field.empty()) {
      return std::to_string(realJvm()->GetIntField(place.holder, fieldOf(place)));
    }
    if (place.signature == "I") {
      return std::to_string(jvm().intsOf(place.holder)[static_cast<std::size_t>(place.index)]);
    }
    if (place.signature == "B") {
      return std::to_string(jvm().bytesOf(place.holder)[static_cast<std::size_t>(place.index)]);
    }
    value = load(place);
  }
  return shown(value, place.signature);
}

Called call(const char* method, const std::vector<jobject>& arguments) {
  const NativeMethod& native = nativeMethod(method);
  const std::vector<std::string> types = native.argumentTypes();
  std::vector<jvalue> values(arguments.size());
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    if (types[index] == "I") {
      values[index].i = jvm().intOf(arguments[index], "code");
    } else {
      values[index].l = arguments[index];
    }
  }
  const jvalue result = native.invoke(realJvm(), values);
  const auto pending = jvm().pending();
  jvm().clearPending();
  if (pending) {
    const std::string name = pending->className.substr(pending->className.rfind('/') + 1);
    return {nullptr, name == "DiskArrayException" ? name + ' ' + std::to_string(pending->code)
                                                  : name + ' ' + pending->message};
  }
  switch (native.resultKind()) {
    case 'V':
      return {nullptr, ""};
    case 'I':
      return {number(result.i), ""};
    default:
      return {result.l, ""};
  }
}

}  // namespace quorvelj::testing
