#pragma once

#include <jni.h>

#include <cstdarg>
#include <string>
#include <unordered_map>
#include <vector>

namespace quorvelj::testing {

/// The fields that native code looks up in one object, in order. Their names are the bridge's own
/// constants.
using Visit = std::vector<const char*>;

/// Logs which fields native code visits, object by object. From `start` to `stop` it takes the
/// place of five functions in the thread's JNI table.
class FieldLog {
 public:
  FieldLog();
  FieldLog(const FieldLog&) = delete;
  FieldLog& operator=(const FieldLog&) = delete;

  void start();
  void stop();

  /// The visits to objects of a class, equal ones once. The class's name is without its package.
  const std::vector<Visit>& visitsTo(const std::string& className);

 private:
  /// An object whose reference is in use.
  struct Object {
    jobject reference;
    std::string className;
    Visit visit;
  };

  static jclass JNICALL findClass(JNIEnv* env, const char* name);
  static jobject JNICALL newObject(JNIEnv* env, jclass type, jmethodID constructor,
                                   va_list arguments);
  static jclass JNICALL getObjectClass(JNIEnv* env, jobject object);
  static jfieldID JNICALL getFieldId(JNIEnv* env, jclass type, const char* name,
                                     const char* signature);
  static void JNICALL deleteLocalRef(JNIEnv* env, jobject reference);

  Object& open(jobject reference, const std::string& className);
  Object* find(jobject reference);
  Object& visited(JNIEnv* env, jobject reference);
  void close(Object& object);

  static FieldLog* current_;
  const JNINativeInterface_* original_;
  JNINativeInterface_ logging_;
  const char* foundClass_ = "";
  jobject looked_ = nullptr;
  /// An object that is inside another lies behind it.
  std::vector<Object> open_;
  std::unordered_map<std::string, std::vector<Visit>> visits_;
};

}  // namespace quorvelj::testing
