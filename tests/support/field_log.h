#pragma once

#include <jni.h>

#include <algorithm>
#include <cstdarg>
#include <string>
#include <unordered_map>
#include <vector>

#include "tests/support/caller.h"
#include "tests/support/callers_jvm.h"

namespace quorvelj::testing {

/// The fields that native code looks up in one object, in order. Their names are the bridge's own
/// constants.
using Visit = std::vector<const char*>;

/// Logs which fields native code visits, object by object. From `start` to `stop` it takes the
/// place of five functions in the thread's JNI table.
class FieldLog {
 public:
  FieldLog() : original_(javaEnv()->functions), logging_(*original_) {
    logging_.FindClass = &findClass;
    logging_.NewObjectV = &newObject;
    logging_.GetObjectClass = &getObjectClass;
    logging_.GetFieldID = &getFieldId;
    logging_.DeleteLocalRef = &deleteLocalRef;
  }
  FieldLog(const FieldLog&) = delete;
  FieldLog& operator=(const FieldLog&) = delete;

  void start() {
    current_ = this;
    javaEnv()->functions = &logging_;
  }
  void stop() {
    javaEnv()->functions = original_;
    current_ = nullptr;
    while (!open_.empty()) {
      close(open_.back());
    }
  }

  /// The visits to objects of a class, equal ones once. The class's name is without its package.
  const std::vector<Visit>& visitsTo(const std::string& className) { return visits_[className]; }

 private:
  /// An object whose reference is in use.
  struct Object {
    jobject reference;
    std::string className;
    Visit visit;
  };

  static jclass JNICALL findClass(JNIEnv* env, const char* name) {
    current_->foundClass_ = name;
    return current_->original_->FindClass(env, name);
  }
  static jobject JNICALL newObject(JNIEnv* env, jclass type, jmethodID constructor,
                                   va_list arguments) {
    const jobject object = current_->original_->NewObjectV(env, type, constructor, arguments);
    if (object != nullptr) {
      current_->open(object, current_->foundClass_);
    }
    return object;
  }
  static jclass JNICALL getObjectClass(JNIEnv* env, jobject object) {
    current_->looked_ = object;
    return current_->original_->GetObjectClass(env, object);
  }
  static jfieldID JNICALL getFieldId(JNIEnv* env, jclass type, const char* name,
                                     const char* signature) {
    current_->visited(env, current_->looked_).visit.push_back(name);
    return current_->original_->GetFieldID(env, type, name, signature);
  }
  static void JNICALL deleteLocalRef(JNIEnv* env, jobject reference) {
    Object* const object = current_->find(reference);
    if (object != nullptr) {
      current_->close(*object);
    }
    current_->original_->DeleteLocalRef(env, reference);
  }

  Object& open(jobject reference, const std::string& className) {
    Object& object =
        open_.emplace_back(Object{reference, className.substr(className.rfind('/') + 1), {}});
    object.visit.reserve(32);
    return object;
  }
  Object* find(jobject reference) {
    const auto found = std::find_if(open_.rbegin(), open_.rend(), [&](const Object& object) {
      return object.reference == reference;
    });
    return found == open_.rend() ? nullptr : &*found;
  }
  Object& visited(JNIEnv* env, jobject reference) {
    if (Object* const known = find(reference)) {
      return *known;
    }
    // An object that the bridge reads: it was made before the log was opened.
    env->functions = original_;
    const std::string className = classOf(reference);
    env->functions = &logging_;
    return open(reference, className);
  }
  void close(Object& object) {
    std::vector<Visit>& known = visits_[object.className];
    if (!object.visit.empty() &&
        std::find(known.begin(), known.end(), object.visit) == known.end()) {
      known.push_back(object.visit);
    }
    open_.erase(open_.begin() + (&object - open_.data()));
  }

  static inline FieldLog* current_ = nullptr;
  const JNINativeInterface_* original_;
  JNINativeInterface_ logging_;
  const char* foundClass_ = "";
  jobject looked_ = nullptr;
  /// An object that is inside another lies behind it.
  std::vector<Object> open_;
  std::unordered_map<std::string, std::vector<Visit>> visits_;
};

}  // namespace quorvelj::testing
