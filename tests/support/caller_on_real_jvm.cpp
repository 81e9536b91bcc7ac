// A caller in a real JVM of this process, with the Java half and the product's own library on its
// paths.
#include <algorithm>
#include <cstring>

#include "tests/support/caller.h"
#include "tests/support/callers_jvm.h"
#include "tests/support/fail.h"
#include "tests/support/native_methods.h"
#include "tests/support/variant.h"

namespace quorvelj::testing {
namespace {

constexpr char kToString[] = "()Ljava/lang/String;";

JNIEnv* start() {
  std::string classPath = "-Djava.class.path=" QUORVELJ_CLASS_PATH;
  std::string libraryPath = "-Djava.library.path=" QUORVELJ_LIBRARY_PATH;
  libraryPath += keepsIdentifiers() ? "/cached" : "";
  JavaVMOption options[] = {{classPath.data(), nullptr}, {libraryPath.data(), nullptr}};
  JavaVMInitArgs arguments{JNI_VERSION_1_8, 2, options, JNI_FALSE};
  JavaVM* jvm = nullptr;
  JNIEnv* env = nullptr;
  if (JNI_CreateJavaVM(&jvm, reinterpret_cast<void**>(&env), &arguments) != JNI_OK) {
    fail("no Java virtual machine could be started");
  }
  return env;
}

/// Ends the test run on an exception that belongs to the test, not to what it tests.
template <class Found>
Found checked(Found found) {
  if (javaEnv()->ExceptionCheck() == JNI_TRUE) {
    javaEnv()->ExceptionDescribe();
    fail("the test's own call of Java threw");
  }
  return found;
}

jclass classNamed(const char* name) { return checked(javaEnv()->FindClass(name)); }

jmethodID methodOf(jclass type, const char* name, const char* signature) {
  return checked(javaEnv()->GetMethodID(type, name, signature));
}

/// What a Java method returns, as a text; null as "".
std::string textFrom(jobject object, jmethodID method) {
  const auto text = static_cast<jstring>(checked(javaEnv()->CallObjectMethod(object, method)));
  if (text == nullptr) {
    return "";
  }
  const char* const characters = javaEnv()->GetStringUTFChars(text, nullptr);
  std::string copy = characters;
  javaEnv()->ReleaseStringUTFChars(text, characters);
  javaEnv()->DeleteLocalRef(text);
  return copy;
}

/// Ends the test run where Java's declaration has another class in the place of an argument or of
/// the result.
void checkClass(const std::string& signature, jobject object) {
  const std::string name =
      signature[0] == 'L' ? signature.substr(1, signature.size() - 2) : signature;
  if (javaEnv()->IsInstanceOf(object, classNamed(name.c_str())) == JNI_FALSE) {
    fail("a " + classOf(object) + " is not a " + name);
  }
}

jvalue callByWayOfJava(const NativeMethod& method, JNIEnv* env,
                       const std::vector<jvalue>& arguments) {
  const std::vector<std::string> types = method.argumentTypes();
  for (std::size_t index = 0; index < types.size(); ++index) {
    if (types[index] != "I") {
      checkClass(types[index], arguments[index].l);
    }
  }
  const jclass type = classNamed("tessaly/str/diskarray/DiskArrayUtilityJNI");
  const jobject array = checked(env->NewObject(type, methodOf(type, "<init>", "()V")));
  const jmethodID id = methodOf(type, method.name, method.signature);
  jvalue result{};
  switch (method.resultKind()) {
    case 'V':
      env->CallVoidMethodA(array, id, arguments.data());
      break;
    case 'I':
      result.i = env->CallIntMethodA(array, id, arguments.data());
      break;
    default:
      result.l = env->CallObjectMethodA(array, id, arguments.data());
      if (env->ExceptionCheck() == JNI_FALSE) {
        checkClass(std::strchr(method.signature, ')') + 1, result.l);
      }
  }
  return result;
}

}  // namespace

JNIEnv* javaEnv() {
  static JNIEnv* const env = start();
  return env;
}

std::string classOf(jobject object) {
  static const jmethodID getName = methodOf(classNamed("java/lang/Class"), "getName", kToString);
  const jclass type = javaEnv()->GetObjectClass(object);
  std::string name = textFrom(type, getName);
  javaEnv()->DeleteLocalRef(type);
  std::replace(name.begin(), name.end(), '.', '/');
  return name;
}

jint valueOf(jobject integer) {
  static const jmethodID intValue = methodOf(classNamed("java/lang/Integer"), "intValue", "()I");
  return javaEnv()->CallIntMethod(integer, intValue);
}

std::optional<PendingException> takeException() {
  const jthrowable thrown = javaEnv()->ExceptionOccurred();
  if (thrown == nullptr) {
    return std::nullopt;
  }
  javaEnv()->ExceptionClear();
  const jclass type = javaEnv()->GetObjectClass(thrown);
  PendingException taken{classOf(thrown),
                         textFrom(thrown, methodOf(type, "getMessage", kToString))};
  if (taken.className == "tessaly/str/diskarray/DiskArrayException") {
    taken.code = javaEnv()->CallIntMethod(thrown, methodOf(type, "getCode", "()I"));
  }
  return taken;
}

std::span<const NativeMethod> nativeMethods() {
#define NATIVE_METHOD_ENTRY(name, escaped, signature) {#name, signature, nullptr, &callByWayOfJava},
  static constexpr NativeMethod kMethods[] = {
#include "native_methods.inc"
  };
#undef NATIVE_METHOD_ENTRY
  return kMethods;
}

}  // namespace quorvelj::testing
