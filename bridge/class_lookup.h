#pragma once

#include "bridge/class_map.h"
#include "bridge/jni_toolkit.h"

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

  /// A field of this place among the map's.
  [[nodiscard]] FieldName nameOf(const Field& field, std::size_t index) const {
    return {field.name, table_ == nullptr ? nullptr : table_->ids() + index};
  }
  /// Whether an access in the row of ints that ends here left an exception.
  [[nodiscard]] bool rowFailed(Env env) const { return table_ != nullptr && exceptionPending(env); }

 private:
  ClassLookup(const ClassMap& map, KnownClass* known)
      : known_(known), table_(known == nullptr ? nullptr : NativeCall::fieldsOf(map, *known)) {}

  KnownClass* known_;
  /// Null where nothing is kept.
  FieldTable* table_;
#else
  static ClassLookup toBuild(Env, const ClassMap&) { return {}; }
  static ClassLookup toRead(Env, const ClassMap&, jobject) { return {}; }
  [[nodiscard]] ClassLookup withFieldsOf(const ClassMap&) const { return {}; }
  [[nodiscard]] FieldName nameOf(const Field& field, std::size_t) const { return field.name; }
  [[nodiscard]] bool rowFailed(Env) const { return false; }
#endif
};

}  // namespace quorvelj
