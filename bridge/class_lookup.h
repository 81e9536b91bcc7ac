#pragma once

#include "bridge/class_map.h"

namespace quorvelj {

/// Names the fields of a map's objects to the toolkit.
class ClassLookup {
 public:
#ifdef QUORVELJ_CACHE_IDS
  /// Of objects that were made by the name of the map's class.
  static ClassLookup toBuild(Env env, const ClassMap& map) {
    return {map, knownAs(env, map.className)};
  }
  /// Of the very class of an object, which may be a subclass with fields of the same names.
  static ClassLookup toRead(Env env, const ClassMap& map, jobject object);
  /// The same class, of whose objects `map` names other fields.
  [[nodiscard]] ClassLookup withFieldsOf(const ClassMap& map) const { return {map, known_}; }

  FieldName operator[](const Field& field) const {
    return {field.name, table_ == nullptr ? nullptr : table_->ids() + (&field - first_)};
  }

 private:
  ClassLookup(const ClassMap& map, KnownClass* known)
      : known_(known),
        table_(known == nullptr ? nullptr : NativeCall::fieldsOf(map, *known)),
        first_(map.fields.data()) {}

  KnownClass* known_;
  /// Null where nothing is kept.
  FieldTable* table_;
  const Field* first_;
#else
  static ClassLookup toBuild(Env, const ClassMap&) { return {}; }
  static ClassLookup toRead(Env, const ClassMap&, jobject) { return {}; }
  [[nodiscard]] ClassLookup withFieldsOf(const ClassMap&) const { return {}; }
  FieldName operator[](const Field& field) const { return field.name; }
#endif
};

}  // namespace quorvelj
