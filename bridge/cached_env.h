#pragma once

#include <jni.h>

#include <cstddef>

// The Env of QUORVELJ_CACHE_IDS.
namespace quorvelj {

struct ClassMap;
class NativeCall;

/// A JNIEnv, and the native call that keeps what is looked up through it. Without a call nothing is
/// kept.
class Env {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): by itself a JNIEnv looks everything up by name.
  Env(JNIEnv* jni) : jni_(jni) {}
  Env(JNIEnv* jni, NativeCall& call) : jni_(jni), call_(&call) {}
  explicit operator bool() const { return jni_ != nullptr; }
  JNIEnv* operator->() const { return jni_; }
  [[nodiscard]] NativeCall* call() const { return call_; }

 private:
  JNIEnv* jni_;
  NativeCall* call_ = nullptr;
};

/// A field's name, and the place where its identifier is kept.
struct FieldName {
  // NOLINTNEXTLINE(google-explicit-constructor): a mere name is looked up.
  FieldName(const char* fieldText, jfieldID* fieldPlace = nullptr)
      : text(fieldText), place(fieldPlace) {}

  const char* text;
  jfieldID* place;
};

/// The identifiers of one map's fields in one class.
struct FieldTable {
  FieldTable* next;
  const ClassMap* map;
  std::size_t count;
  /// In the map's order; null until they are looked up.
  jfieldID* ids() { return reinterpret_cast<jfieldID*>(this + 1); }
};

/// A class that a native call has come across.
struct KnownClass {
  KnownClass* next;
  /// Slash form; null where only an object has shown the class.
  const char* name;
  /// A local reference, which keeps the identifiers valid.
  jclass type;
  /// The no-argument constructor; null until it is looked up.
  jmethodID constructor;
  FieldTable* tables;
  [[nodiscard]] FieldTable* tableOf(const ClassMap& map) const {
    FieldTable* table = tables;
    while (table != nullptr && table->map != &map) {
      table = table->next;
    }
    return table;
  }
};

/// One call of a native method, and the classes and fields that it has looked up. What there is no
/// memory to keep is looked up again.
class NativeCall {
 public:
  explicit NativeCall(JNIEnv* jni) : jni_(jni) {}
  ~NativeCall();
  NativeCall(const NativeCall&) = delete;
  NativeCall& operator=(const NativeCall&) = delete;
  Env env() { return {jni_, *this}; }

  /// The class of this name, or null where it is not known.
  KnownClass* named(const char* name) {
    return classes_ != nullptr && classes_->name == name ? classes_ : seek(name);
  }
  /// Takes over the local reference `type`, and deletes it where the class is known already. `name`
  /// is the class's, or null where an object has shown the class. Returns null where there is no
  /// memory; the caller keeps its reference then.
  KnownClass* keep(const char* name, jclass type);
  /// The same for the class of an object that `map` reads: as a rule that of the one before.
  KnownClass* keepRead(const ClassMap& map, jclass type);
  /// The fields of `map` in a class that is known, or null where there is no memory.
  static FieldTable* fieldsOf(const ClassMap& map, KnownClass& known) {
    FieldTable* const table = known.tableOf(map);
    return table != nullptr ? table : newFields(map, known);
  }
  /// The class that a field is looked up in whose identifier has its place there.
  jclass ownerOf(const jfieldID* place) const;

 private:
  template <class Wanted>
  KnownClass* find(Wanted wanted);
  KnownClass* seek(const char* name);
  static FieldTable* newFields(const ClassMap& map, KnownClass& known);

  JNIEnv* jni_;
  /// The one that was asked for last comes first.
  KnownClass* classes_ = nullptr;
};

inline const char* textOf(FieldName name) { return name.text; }
inline jfieldID knownField(FieldName name) { return name.place == nullptr ? nullptr : *name.place; }
inline jclass knownOwner(Env env, FieldName name) {
  return name.place == nullptr ? nullptr : env.call()->ownerOf(name.place);
}
inline void keepField(FieldName name, jfieldID id) {
  if (name.place != nullptr) {
    *name.place = id;
  }
}
/// JNI's access of a field that was found raises nothing.
inline bool accessedInRow(FieldName name) { return name.place != nullptr; }
inline KnownClass* knownAs(Env env, const char* name) {
  return env.call() == nullptr ? nullptr : env.call()->named(name);
}
inline jclass knownClass(Env env, const char* name) {
  const KnownClass* const known = knownAs(env, name);
  return known == nullptr ? nullptr : known->type;
}
inline jclass keepClass(Env env, const char* name, jclass type) {
  const KnownClass* const known = env.call() == nullptr ? nullptr : env.call()->keep(name, type);
  return known == nullptr ? nullptr : known->type;
}
inline jmethodID knownConstructor(Env env, const char* name) {
  const KnownClass* const known = knownAs(env, name);
  return known == nullptr ? nullptr : known->constructor;
}
inline void keepConstructor(Env env, const char* name, jmethodID constructor) {
  if (KnownClass* const known = knownAs(env, name)) {
    known->constructor = constructor;
  }
}

}  // namespace quorvelj
