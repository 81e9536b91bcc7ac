#pragma once

#include <jni.h>

#include <cstddef>

// The Env of QUORVELJ_CACHE_IDS.
namespace quorvelj {

struct ClassMap;
class NativeCall;

/// A JNIEnv, and the native call that keeps what was looked up through it. Without a call nothing
/// is kept.
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

/// A field's name, and where its identifier is kept.
class FieldName {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): a name alone is looked up.
  FieldName(const char* text) : text_(text) {}
  FieldName(const char* text, jfieldID* kept) : text_(text), kept_(kept) {}
  [[nodiscard]] const char* text() const { return text_; }
  [[nodiscard]] jfieldID* kept() const { return kept_; }

 private:
  const char* text_;
  jfieldID* kept_ = nullptr;
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
};

/// The identifiers of one map's fields in one class.
struct FieldTable {
  FieldTable* next;
  const ClassMap* map;
  KnownClass* owner;
  std::size_t count;
  /// In the map's order; null until they are looked up.
  jfieldID* ids() { return reinterpret_cast<jfieldID*>(this + 1); }
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
  [[nodiscard]] KnownClass* classNamed(const char* name) const;
  /// Takes over the local reference `type`, and deletes it where the class is known already. `name`
  /// is the class's, or null where an object has shown the class. Null where there is no memory;
  /// the caller has its reference then.
  KnownClass* keepClass(const char* name, jclass type);
  /// The fields of `map` in the class of the map's name, or null where they are not kept yet.
  FieldTable* tableOf(const ClassMap& map);
  /// The same in the class `type`.
  FieldTable* tableOf(const ClassMap& map, jclass type);
  /// The same in the class `owner`, which may be null, made where they are not kept yet; null where
  /// there is no memory.
  FieldTable* keepTable(const ClassMap& map, KnownClass* owner);
  /// The class that a field is looked up in whose identifier is to be kept at this place.
  [[nodiscard]] jclass ownerOf(const jfieldID* place) const;

 private:
  template <class Wanted>
  FieldTable* findTable(Wanted wanted);

  JNIEnv* jni_;
  KnownClass* classes_ = nullptr;
  /// The one that was asked for last comes first.
  FieldTable* tables_ = nullptr;
};

inline const char* textOf(FieldName name) { return name.text(); }
inline jfieldID knownField(FieldName name) {
  return name.kept() == nullptr ? nullptr : *name.kept();
}
inline jclass knownOwner(Env env, FieldName name) {
  return name.kept() == nullptr ? nullptr : env.call()->ownerOf(name.kept());
}
inline void keepField(FieldName name, jfieldID id) {
  if (name.kept() != nullptr) {
    *name.kept() = id;
  }
}
inline jclass knownClass(Env env, const char* name) {
  const KnownClass* const known = env.call() == nullptr ? nullptr : env.call()->classNamed(name);
  return known == nullptr ? nullptr : known->type;
}
inline jclass keepClass(Env env, const char* name, jclass type) {
  const KnownClass* const kept =
      env.call() == nullptr ? nullptr : env.call()->keepClass(name, type);
  return kept == nullptr ? nullptr : kept->type;
}

}  // namespace quorvelj
