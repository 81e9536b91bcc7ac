#include "bridge/cached_env.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>

#include "bridge/class_lookup.h"
#include "bridge/jni_toolkit.h"
#include "bridge/runtime.h"

namespace quorvelj {
namespace {

bool isNamed(const KnownClass& known, const char* name) {
  return known.name != nullptr && (known.name == name || std::strcmp(known.name, name) == 0);
}

}  // namespace

NativeCall::~NativeCall() {
  while (tables_ != nullptr) {
    releaseKept(std::exchange(tables_, tables_->next));
  }
  while (classes_ != nullptr) {
    jni_->DeleteLocalRef(classes_->type);
    releaseKept(std::exchange(classes_, classes_->next));
  }
}

KnownClass* NativeCall::classNamed(const char* name) const {
  KnownClass* known = classes_;
  while (known != nullptr && !isNamed(*known, name)) {
    known = known->next;
  }
  return known;
}

KnownClass* NativeCall::keepClass(const char* name, jclass type) {
  for (KnownClass* known = classes_; known != nullptr; known = known->next) {
    // Classes of two names are two classes.
    if ((name == nullptr || known->name == nullptr) &&
        jni_->IsSameObject(known->type, type) == JNI_TRUE) {
      jni_->DeleteLocalRef(type);
      known->name = name == nullptr ? known->name : name;
      return known;
    }
  }
  auto* const known = static_cast<KnownClass*>(allocateKept(sizeof(KnownClass)));
  if (known != nullptr) {
    *known = {classes_, name, type, nullptr};
    classes_ = known;
  }
  return known;
}

template <class Wanted>
FieldTable* NativeCall::findTable(Wanted wanted) {
  for (FieldTable** link = &tables_; *link != nullptr; link = &(*link)->next) {
    FieldTable* const table = *link;
    if (wanted(*table)) {
      *link = table->next;
      table->next = tables_;
      tables_ = table;
      return table;
    }
  }
  return nullptr;
}

FieldTable* NativeCall::tableOf(const ClassMap& map) {
  return findTable([&map](const FieldTable& table) {
    return table.map == &map && isNamed(*table.owner, map.className);
  });
}

FieldTable* NativeCall::tableOf(const ClassMap& map, jclass type) {
  return findTable([this, &map, type](const FieldTable& table) {
    return table.map == &map && jni_->IsSameObject(table.owner->type, type) == JNI_TRUE;
  });
}

FieldTable* NativeCall::keepTable(const ClassMap& map, KnownClass* owner) {
  if (owner == nullptr) {
    return nullptr;
  }
  FieldTable* table = findTable(
      [&map, owner](const FieldTable& other) { return other.map == &map && other.owner == owner; });
  if (table != nullptr) {
    return table;
  }
  const std::size_t count = map.fields.size();
  table = static_cast<FieldTable*>(allocateKept(sizeof(FieldTable) + count * sizeof(jfieldID)));
  if (table != nullptr) {
    *table = {tables_, &map, owner, count};
    std::fill_n(table->ids(), count, nullptr);
    tables_ = table;
  }
  return table;
}

jclass NativeCall::ownerOf(const jfieldID* place) const {
  FieldTable* table = tables_;
  while (std::less<>{}(place, table->ids()) || !std::less<>{}(place, table->ids() + table->count)) {
    table = table->next;
  }
  return table->owner->type;
}

ClassLookup ClassLookup::toBuild(Env env, const ClassMap& map) {
  return {map, env.call() == nullptr ? nullptr : env.call()->tableOf(map)};
}

ClassLookup ClassLookup::toRead(Env env, const ClassMap& map, jobject object) {
  NativeCall* const call = env.call();
  if (call == nullptr || map.fields.empty()) {
    return {map, nullptr};
  }
  const jclass type = env->GetObjectClass(object);
  FieldTable* table = call->tableOf(map, type);
  if (table != nullptr) {
    deleteLocalRef(env, type);
    return {map, table};
  }
  KnownClass* const owner = call->keepClass(nullptr, type);
  if (owner == nullptr) {
    deleteLocalRef(env, type);
  }
  return {map, call->keepTable(map, owner)};
}

ClassLookup ClassLookup::withFieldsOf(Env env, const ClassMap& map) const {
  return {map, table_ == nullptr ? nullptr : env.call()->keepTable(map, table_->owner)};
}

jobject ClassLookup::newObject(Env env) {
  NativeCall* const call = env.call();
  if (table_ == nullptr && call != nullptr) {
    KnownClass* known = call->classNamed(map_->className);
    if (known == nullptr) {
      const jclass type = findClassOrThrow(env, map_->className);
      if (type == nullptr) {
        return nullptr;
      }
      known = call->keepClass(map_->className, type);
      if (known == nullptr) {
        deleteLocalRef(env, type);
      }
    }
    table_ = call->keepTable(*map_, known);
  }
  if (table_ == nullptr) {
    return newObjectByName(env, map_->className);
  }
  KnownClass& owner = *table_->owner;
  if (owner.constructor == nullptr) {
    owner.constructor = env->GetMethodID(owner.type, "<init>", "()V");
  }
  return owner.constructor == nullptr ? nullptr : env->NewObject(owner.type, owner.constructor);
}

}  // namespace quorvelj
