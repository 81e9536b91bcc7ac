#include "tests/support/field_log.h"

#include <algorithm>

#include "tests/support/caller.h"
#include "tests/support/callers_jvm.h"

namespace quorvelj::testing {

FieldLog* FieldLog::current_ = nullptr;

FieldLog::FieldLog() : original_(javaEnv()->functions), logging_(*original_) {
  logging_.FindClass = &findClass;
  logging_.NewObjectV = &newObject;
  logging_.GetObjectClass = &getObjectClass;
  logging_.GetFieldID = &getFieldId;
  logging_.DeleteLocalRef = &deleteLocalRef;
}

void FieldLog::start() {
  current_ = this;
  javaEnv()->functions = &logging_;
}

void FieldLog::stop() {
  javaEnv()->functions = original_;
  current_ = nullptr;
  while (!open_.empty()) {
    close(open_.back());
  }
}

const std::vector<Visit>& FieldLog::visitsTo(const std::string& className) {
  return visits_[className];
}

jclass JNICALL FieldLog::findClass(JNIEnv* env, const char* name) {
  current_->foundClass_ = name;
  return current_->original_->FindClass(env, name);
}

jobject JNICALL FieldLog::newObject(JNIEnv* env, jclass type, jmethodID constructor,
                                    va_list arguments) {
  const jobject object = current_->original_->NewObjectV(env, type, constructor, arguments);
  if (object != nullptr) {
    current_->open(object, current_->foundClass_);
  }
  return object;
}

jclass JNICALL FieldLog::getObjectClass(JNIEnv* env, jobject object) {
  current_->looked_ = object;
  return current_->original_->GetObjectClass(env, object);
}

jfieldID JNICALL FieldLog::getFieldId(JNIEnv* env, jclass type, const char* name,
                                      const char* signature) {
  current_->visited(env, current_->looked_).visit.push_back(name);
  return current_->original_->GetFieldID(env, type, name, signature);
}

void JNICALL FieldLog::deleteLocalRef(JNIEnv* env, jobject reference) {
  Object* const object = current_->find(reference);
  if (object != nullptr) {
    current_->close(*object);
  }
  current_->original_->DeleteLocalRef(env, reference);
}

FieldLog::Object& FieldLog::open(jobject reference, const std::string& className) {
  Object& object =
      open_.emplace_back(Object{reference, className.substr(className.rfind('/') + 1), {}});
  object.visit.reserve(32);
  return object;
}

FieldLog::Object* FieldLog::find(jobject reference) {
  const auto found = std::find_if(open_.rbegin(), open_.rend(), [&](const Object& object) {
    return object.reference == reference;
  });
  return found == open_.rend() ? nullptr : &*found;
}

FieldLog::Object& FieldLog::visited(JNIEnv* env, jobject reference) {
  if (Object* const known = find(reference)) {
    return *known;
  }
  // An object that the bridge reads: it was made before the log was opened.
  env->functions = original_;
  const std::string className = classOf(reference);
  env->functions = &logging_;
  return open(reference, className);
}

void FieldLog::close(Object& object) {
  std::vector<Visit>& known = visits_[object.className];
  if (!object.visit.empty() && std::find(known.begin(), known.end(), object.visit) == known.end()) {
    known.push_back(object.visit);
  }
  open_.erase(open_.begin() + (&object - open_.data()));
}

}  // namespace quorvelj::testing
