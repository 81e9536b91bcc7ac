#pragma once

#include <jni.h>

// What a native method calls Java through, and how a field or a class is named in it. Every access
// looks its class and field up, by name, and keeps nothing; where QUORVELJ_CACHE_IDS is defined, a
// native call looks up each class and field once and forgets it when it returns.

#ifdef QUORVELJ_CACHE_IDS
#include "bridge/cached_env.h"
#else

namespace quorvelj {

using Env = JNIEnv*;
using FieldName = const char*;

/// One call of a native method.
class NativeCall {
 public:
  explicit NativeCall(JNIEnv* jni) : jni_(jni) {}
  [[nodiscard]] Env env() const { return jni_; }

 private:
  JNIEnv* jni_;
};

inline const char* textOf(FieldName name) { return name; }
/// The identifier of a field, or null where it is not known yet.
inline jfieldID knownField(FieldName) { return nullptr; }
/// The class that a field is looked up in, or null where it is not known yet.
inline jclass knownOwner(Env, FieldName) { return nullptr; }
inline void keepField(FieldName, jfieldID) {}
/// Whether an int of this name is accessed without a look at exceptions; the walker looks once
/// behind a row of ints.
inline bool accessedInRow(FieldName) { return false; }
/// The class of this name, or null where it is not known yet.
inline jclass knownClass(Env, const char*) { return nullptr; }
/// Takes over the local reference to a class that was found. Returns the one to use instead, or
/// null where the caller keeps its own and deletes it.
inline jclass keepClass(Env, const char*, jclass) { return nullptr; }

/// The no-argument constructor of the class of this name, or null where it is not known yet.
inline jmethodID knownConstructor(Env, const char*) { return nullptr; }
inline void keepConstructor(Env, const char*, jmethodID) {}

}  // namespace quorvelj

#endif
