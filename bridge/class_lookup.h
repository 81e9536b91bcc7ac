#pragma once

#include "bridge/class_map.h"
#include "bridge/jni_toolkit.h"

#ifdef QUORVELJ_CACHE_IDS
#include "bridge/cached_class_lookup.h"
#else

namespace quorvelj {

/// The Java class of a map's objects: makes new ones, and names their fields to the toolkit.
class ClassLookup {
 public:
  static ClassLookup toBuild(Env, const ClassMap& map) { return ClassLookup(map); }
  static ClassLookup toRead(Env, const ClassMap& map, jobject) { return ClassLookup(map); }
  /// The same class, of whose objects `map` names other fields.
  [[nodiscard]] ClassLookup withFieldsOf(Env, const ClassMap& map) const {
    return ClassLookup(map);
  }

  /// Returns a new object made by its no-argument constructor, or null.
  jobject newObject(Env env) { return newObjectByName(env, map_->className); }
  FieldName operator[](const Field& field) const { return field.name; }

 private:
  explicit ClassLookup(const ClassMap& map) : map_(&map) {}

  const ClassMap* map_;
};

}  // namespace quorvelj

#endif
