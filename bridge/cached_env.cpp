#include "bridge/cached_env.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

#include "bridge/class_lookup.h"
#include "bridge/jni_toolkit.h"
#include "bridge/runtime.h"

namespace quorvelj {

NativeCall::~NativeCall() {
  while (classes_ != nullptr) {
    jni_->DeleteLocalRef(classes_->type);
    while (classes_->tables != nullptr) {
      releaseKept(std::exchange(classes_->tables, classes_->tables->next));
    }
    releaseKept(std::exchange(classes_, classes_->next));
  }
}

template <class Wanted>
KnownClass* NativeCall::find(Wanted wanted) {
  for (KnownClass** link = &classes_; *link != nullptr; link = &(*link)->next) {
    KnownClass* const known = *link;
    if (wanted(*known)) {
      *link = known->next;
      known->next = std::exchange(classes_, known);
      return known;
    }
  }
  return nullptr;
}

KnownClass* NativeCall::seek(const char* name) {
  // As a rule a name is one constant.
  KnownClass* const known = find([name](const KnownClass& other) { return other.name == name; });
  return known != nullptr ? known : find([name](const KnownClass& other) {
    return other.name != nullptr && std::strcmp(other.name, name) == 0;
  });
}

KnownClass* NativeCall::keepRead(const ClassMap& map, jclass type) {
  KnownClass* const known = find([this, &map, type](const KnownClass& other) {
    return other.tableOf(map) != nullptr && jni_->IsSameObject(other.type, type) == JNI_TRUE;
  });
  if (known == nullptr) {
    return keep(nullptr, type);
  }
  jni_->DeleteLocalRef(type);
  return known;
}

KnownClass* NativeCall::keep(const char* name, jclass type) {
  KnownClass* known = find([this, name, type](const KnownClass& other) {
    // Classes of two names are two classes.
    return (name == nullptr || other.name == nullptr) &&
           jni_->IsSameObject(other.type, type) == JNI_TRUE;
  });
  if (known != nullptr) {
    jni_->DeleteLocalRef(type);
    known->name = name == nullptr ? known->name : name;
    return known;
  }
  known = static_cast<KnownClass*>(allocateKept(sizeof(KnownClass)));
  if (known != nullptr) {
    *known = {classes_, name, type, nullptr, nullptr};
    classes_ = known;
  }
  return known;
}

FieldTable* NativeCall::newFields(const ClassMap& map, KnownClass& known) {
  const std::size_t count = map.fields.size();
  auto* const table =
      static_cast<FieldTable*>(allocateKept(sizeof(FieldTable) + count * sizeof(jfieldID)));
  if (table != nullptr) {
    *table = {known.tables, &map, count};
    std::fill_n(table->ids(), count, nullptr);
    known.tables = table;
  }
  return table;
}

jclass NativeCall::ownerOf(const jfieldID* place) const {
  for (const KnownClass* known = classes_; known != nullptr; known = known->next) {
    for (FieldTable* table = known->tables; table != nullptr; table = table->next) {
      if (!std::less<>{}(place, table->ids()) &&
          std::less<>{}(place, table->ids() + table->count)) {
        return known->type;
      }
    }
  }
  return nullptr;
}

ClassLookup ClassLookup::toRead(Env env, const ClassMap& map, jobject object) {
  if (env.call() == nullptr || map.fields.empty()) {
    return {map, nullptr};
  }
  const jclass type = env->GetObjectClass(object);
  KnownClass* const known = env.call()->keepRead(map, type);
  if (known == nullptr) {
    deleteLocalRef(env, type);
  }
  return {map, known};
}

}  // namespace quorvelj
