#include "tests/support/caller.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <unordered_map>

#include "tests/support/callers_jvm.h"
#include "tests/support/fail.h"
#include "tests/support/java_fields.h"
#include "tests/support/native_methods.h"
#include "tests/support/split.h"

namespace quorvelj::testing {
namespace {

constexpr char kText[] = "Ljava/lang/String;";

/// The value at a path: a field of an object, or an element of an array.
struct Place {
  jobject holder;
  jfieldID field;  // null for an element
  jsize index;
  std::string signature;
};

/// "server[1].ip_address" in its steps: "server", "1", "ip_address".
std::vector<std::string> stepsOf(const std::string& path) {
  std::vector<std::string> steps;
  std::string step;
  for (const char letter : path + '.') {
    if (std::string_view(".[]#").find(letter) == std::string_view::npos) {
      step += letter;
    } else if (!step.empty()) {
      steps.push_back(step);
      step.clear();
    }
  }
  return steps;
}

const std::string& signatureOf(const std::string& className, const std::string& field) {
  static const auto signatures = [] {
    std::unordered_map<std::string, std::string> all;
    for (const JavaField& listed : javaFields()) {
      all[listed.className + ' ' + listed.name] = listed.signature;
    }
    return all;
  }();
  const auto found = signatures.find(className + ' ' + field);
  if (found == signatures.end()) {
    fail("no field " + field + " in " + className);
  }
  return found->second;
}

Place enter(jobject holder, const std::string& step) {
  const std::string type = classOf(holder);
  if (std::isdigit(static_cast<unsigned char>(step[0])) != 0) {
    return {holder, nullptr, static_cast<jsize>(std::stoi(step)), type.substr(1)};
  }
  const std::string& signature = signatureOf(type, step);
  const jfieldID field =
      javaEnv()->GetFieldID(javaEnv()->GetObjectClass(holder), step.c_str(), signature.c_str());
  return {holder, field, 0, signature};
}

bool isNumber(const Place& place) { return place.signature == "I" || place.signature == "B"; }

jint loadNumber(const Place& place) {
  if (place.field != nullptr) {
    return javaEnv()->GetIntField(place.holder, place.field);
  }
  if (place.signature == "I") {
    jint value = 0;
    javaEnv()->GetIntArrayRegion(static_cast<jintArray>(place.holder), place.index, 1, &value);
    return value;
  }
  jbyte value = 0;
  javaEnv()->GetByteArrayRegion(static_cast<jbyteArray>(place.holder), place.index, 1, &value);
  return value;
}

void storeNumber(const Place& place, jint value) {
  if (place.field != nullptr) {
    javaEnv()->SetIntField(place.holder, place.field, value);
  } else if (place.signature == "I") {
    javaEnv()->SetIntArrayRegion(static_cast<jintArray>(place.holder), place.index, 1, &value);
  } else {
    const auto byte = static_cast<jbyte>(value);
    javaEnv()->SetByteArrayRegion(static_cast<jbyteArray>(place.holder), place.index, 1, &byte);
  }
}

jobject load(const Place& place) {
  return place.field == nullptr ? javaEnv()->GetObjectArrayElement(
                                      static_cast<jobjectArray>(place.holder), place.index)
                                : javaEnv()->GetObjectField(place.holder, place.field);
}

void store(const Place& place, jobject value) {
  if (place.field == nullptr) {
    javaEnv()->SetObjectArrayElement(static_cast<jobjectArray>(place.holder), place.index, value);
  } else {
    javaEnv()->SetObjectField(place.holder, place.field, value);
  }
}

/// "Ltessaly/str/diskarray/QVTime;" as FindClass takes it, and an array as it is.
std::string classNameOf(const std::string& signature) {
  return signature[0] == 'L' ? signature.substr(1, signature.size() - 2) : signature;
}

template <class... Argument>
jobject newObject(const std::string& className, const char* constructor, Argument... arguments) {
  const jclass type = javaEnv()->FindClass(className.c_str());
  if (type == nullptr) {
    fail("no class " + className);
  }
  return javaEnv()->NewObject(type, javaEnv()->GetMethodID(type, "<init>", constructor),
                              arguments...);
}

jobject newArray(const std::string& signature, jsize length) {
  if (signature == "[I") {
    return javaEnv()->NewIntArray(length);
  }
  if (signature == "[B") {
    return javaEnv()->NewByteArray(length);
  }
  const std::string element = classNameOf(signature.substr(1));
  return javaEnv()->NewObjectArray(length, javaEnv()->FindClass(element.c_str()), nullptr);
}

jsize lengthOf(jobject array) { return javaEnv()->GetArrayLength(static_cast<jarray>(array)); }

/// The array at a place; in its place a longer one where it has not `length` elements.
jobject grown(const Place& place, jsize length) {
  const jobject old = load(place);
  const jsize oldLength = old == nullptr ? 0 : lengthOf(old);
  if (old != nullptr && oldLength >= length) {
    return old;
  }
  const jobject array = newArray(place.signature, length);
  for (jsize index = 0; index < oldLength; ++index) {
    const Place from{old, nullptr, index, place.signature.substr(1)};
    const Place to{array, nullptr, index, place.signature.substr(1)};
    isNumber(from) ? storeNumber(to, loadNumber(from)) : store(to, load(from));
  }
  store(place, array);
  return array;
}

/// The place at the end of a path; makes what lies on the way.
Place locate(jobject object, const std::string& path) {
  const std::vector<std::string> steps = stepsOf(path);
  Place place = enter(object, steps[0]);
  for (std::size_t step = 1; step < steps.size(); ++step) {
    jobject value = nullptr;
    if (place.signature[0] == '[') {
      value = grown(place, static_cast<jsize>(std::stoi(steps[step]) + 1));
    } else {
      value = load(place);
      if (value == nullptr) {
        value = newObject(classNameOf(place.signature), "()V");
        store(place, value);
      }
    }
    place = enter(value, steps[step]);
  }
  return place;
}

std::string copyOf(jstring text) {
  const char* const characters = javaEnv()->GetStringUTFChars(text, nullptr);
  std::string copy = characters;
  javaEnv()->ReleaseStringUTFChars(text, characters);
  return copy;
}

/// "[1, 2]"
std::string numbersOf(jobject array, const std::string& signature) {
  std::string list;
  for (jsize index = 0; index < lengthOf(array); ++index) {
    list += (index == 0 ? "" : ", ") +
            std::to_string(loadNumber({array, nullptr, index, signature.substr(1)}));
  }
  return '[' + list + ']';
}

std::string shown(jobject value) {
  if (value == nullptr) {
    return "null";
  }
  const std::string className = classOf(value);
  if (className == "java/lang/String") {
    return copyOf(static_cast<jstring>(value));
  }
  if (className == "java/lang/Integer") {
    return std::to_string(valueOf(value));
  }
  if (className == "[I" || className == "[B") {
    return numbersOf(value, className);
  }
  const std::string name = className.substr(className.rfind('/') + 1);
  return className[0] == '['
             ? name.substr(0, name.size() - 1) + '[' + std::to_string(lengthOf(value)) + ']'
             : name;
}

}  // namespace

jobject text(const std::string& value) { return javaEnv()->NewStringUTF(value.c_str()); }

jobject number(jint value) { return newObject("java/lang/Integer", "(I)V", value); }

Fields::Fields(const std::string& list) {
  for (const std::string& field : split(list, "; ")) {
    const std::size_t sign = field.find('=');
    if (sign == std::string::npos) {
      fail("no value: " + field);
    }
    push_back({field.substr(0, sign), field.substr(sign + 1)});
  }
}

jobject create(const char* className, const Fields& fields) {
  const jobject object = newObject(std::string("tessaly/str/diskarray/") + className, "()V");
  set(object, fields);
  return object;
}

void set(jobject object, const std::string& path, const std::string& value) {
  const Place place = locate(object, path);
  if (path.ends_with('#')) {
    store(place, newArray(place.signature, static_cast<jsize>(std::stol(value))));
  } else if (isNumber(place)) {
    storeNumber(place, static_cast<jint>(std::stol(value)));
  } else if (place.signature == kText) {
    store(place, text(value));
  } else {
    fail(path + " is neither a number nor a text");
  }
}

void set(jobject object, const Fields& fields) {
  for (const auto& [path, value] : fields) {
    set(object, path, value);
  }
}

void setNull(jobject object, const std::string& path) { store(locate(object, path), nullptr); }

std::string get(jobject object, const std::string& path) {
  jobject value = object;
  for (const std::string& step : stepsOf(path)) {
    if (value == nullptr) {
      break;
    }
    const Place place = enter(value, step);
    if (isNumber(place)) {
      return std::to_string(loadNumber(place));
    }
    value = load(place);
  }
  return path.ends_with('#') ? std::to_string(lengthOf(value)) : shown(value);
}

Called call(const char* method, const std::vector<jobject>& arguments) {
  const NativeMethod& native = nativeMethod(method);
  const std::vector<std::string> types = native.argumentTypes();
  if (arguments.size() != types.size()) {
    fail(std::string(method) + " takes " + std::to_string(types.size()) + " arguments");
  }
  std::vector<jvalue> values(arguments.size());
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    if (types[index] == "I") {
      values[index].i = valueOf(arguments[index]);
    } else {
      values[index].l = arguments[index];
    }
  }
  const jvalue result = native.invoke(javaEnv(), values);
  if (const auto thrown = takeException()) {
    return {nullptr, thrown->shown()};
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
