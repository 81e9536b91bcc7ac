#pragma once

#include "bridge/class_map.h"

// The ClassLookup of QUORVELJ_CACHE_IDS.
namespace quorvelj {

/// The Java class of a map's objects: makes new ones, and names their fields to the toolkit. An
/// object that is read may be of a subclass: identifiers are those of its very class.
class ClassLookup {
 public:
  static ClassLookup toBuild(Env env, const ClassMap& map);
  static ClassLookup toRead(Env env, const ClassMap& map, jobject object);
  /// The same class, of whose objects `map` names other fields.
  [[nodiscard]] ClassLookup withFieldsOf(Env env, const ClassMap& map) const;

  /// Returns a new object made by its no-argument constructor, or null.
  jobject newObject(Env env);
  FieldName operator[](const Field& field) const {
    return {field.name,
            table_ == nullptr ? nullptr : table_->ids() + (&field - map_->fields.data())};
  }

 private:
  ClassLookup(const ClassMap& map, FieldTable* table) : map_(&map), table_(table) {}

  const ClassMap* map_;
  /// Null where nothing is kept.
  FieldTable* table_;
};

}  // namespace quorvelj
