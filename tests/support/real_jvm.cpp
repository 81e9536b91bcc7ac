#include "tests/support/real_jvm.h"

#include <cstdio>
#include <cstdlib>

namespace quorvelj::testing {
namespace {

JNIEnv* start() {
  std::string classPath = "-Djava.class.path=" QUORVELJ_CLASS_PATH;
  std::string libraryPath = "-Djava.library.path=" QUORVELJ_LIBRARY_PATH;
  JavaVMOption options[] = {{classPath.data(), nullptr}, {libraryPath.data(), nullptr}};
  JavaVMInitArgs arguments{JNI_VERSION_1_8, 2, options, JNI_FALSE};
  JavaVM* jvm = nullptr;
  JNIEnv* env = nullptr;
  if (JNI_CreateJavaVM(&jvm, reinterpret_cast<void**>(&env), &arguments) != JNI_OK) {
    std::fputs("no Java virtual machine could be started\n", stderr);
    std::abort();
  }
  return env;
}

/// Ends the test run on an exception that belongs to the test, not to what it tests.
void check() {
  if (realJvm()->ExceptionCheck() == JNI_TRUE) {
    realJvm()->ExceptionDescribe();
    std::abort();
  }
}

jclass bench() {
  const jclass type = realJvm()->FindClass("TestBench");
  check();
  return type;
}

template <class... Argument>
jobject callBench(const char* name, const char* signature, Argument... arguments) {
  const jmethodID method = realJvm()->GetStaticMethodID(bench(), name, signature);
  check();
  const jobject result = realJvm()->CallStaticObjectMethod(bench(), method, arguments...);
  check();
  return result;
}

template <class... Argument>
void runBench(const char* name, const char* signature, Argument... arguments) {
  const jmethodID method = realJvm()->GetStaticMethodID(bench(), name, signature);
  check();
  realJvm()->CallStaticVoidMethod(bench(), method, arguments...);
  check();
}

std::string fromJava(jobject value) {
  const auto string = static_cast<jstring>(value);
  const char* const characters = realJvm()->GetStringUTFChars(string, nullptr);
  std::string copy = characters;
  realJvm()->ReleaseStringUTFChars(string, characters);
  return copy;
}

}  // namespace

JNIEnv* realJvm() {
  static JNIEnv* const env = start();
  return env;
}

jobject text(const std::string& value) { return realJvm()->NewStringUTF(value.c_str()); }

jobject number(jint value) {
  const jclass type = realJvm()->FindClass("java/lang/Integer");
  return realJvm()->NewObject(type, realJvm()->GetMethodID(type, "<init>", "(I)V"), value);
}

jobject create(const char* className) {
  return callBench("create", "(Ljava/lang/String;)Ljava/lang/Object;", text(className));
}

void set(jobject object, const std::string& path, const std::string& value) {
  runBench("set", "(Ljava/lang/Object;Ljava/lang/String;Ljava/lang/String;)V", object, text(path),
           text(value));
}

void setNull(jobject object, const char* field) {
  runBench("set", "(Ljava/lang/Object;Ljava/lang/String;Ljava/lang/String;)V", object, text(field),
           jobject{});
}

void setLength(jobject object, const char* field, int length) {
  runBench("setLength", "(Ljava/lang/Object;Ljava/lang/String;I)V", object, text(field), length);
}

std::string get(jobject object, const std::string& path) {
  return fromJava(callBench("get", "(Ljava/lang/Object;Ljava/lang/String;)Ljava/lang/String;",
                            object, text(path)));
}

Called call(const char* method, const std::vector<jobject>& arguments) {
  const jobjectArray array = realJvm()->NewObjectArray(
      static_cast<jsize>(arguments.size()), realJvm()->FindClass("java/lang/Object"), nullptr);
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    realJvm()->SetObjectArrayElement(array, static_cast<jsize>(index), arguments[index]);
  }
  const jobject result = callBench(
      "call", "(Ljava/lang/String;[Ljava/lang/Object;)Ljava/lang/Object;", text(method), array);
  const jfieldID failure = realJvm()->GetStaticFieldID(bench(), "failure", "Ljava/lang/String;");
  return {result, fromJava(realJvm()->GetStaticObjectField(bench(), failure))};
}

}  // namespace quorvelj::testing
