#pragma once

#include <jni.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/mini_jvm.h"
#include "tests/support/mini_jvm/heap.h"

// The JNI functions that the bridge may use, over a heap.
namespace quorvelj::testing::mini {

/// The mini JVM as native code sees it, and the traces that native code leaves there.
struct JniTable {
  /// Inputs follow `profile`, which must outlive the table.
  explicit JniTable(const InputProfile& profile);
  JniTable(const JniTable&) = delete;
  JniTable& operator=(const JniTable&) = delete;

  /// Enters a JNI call: counts and traces it. True where the call must fail.
  template <class... Detail>
  bool enter(bool fallible, const char* call, const Detail&... detail);
  void throwNew(const std::string& className, const std::string& message = "");

  struct Env {
    JNIEnv env;
    JniTable* table;
  };

  const InputProfile& profile;
  Env env{};
  std::unique_ptr<JNINativeInterface_> functions;
  Heap heap;
  Object* pending = nullptr;
  /// Characters that native code holds.
  std::map<const char*, std::vector<char>> characters;
  /// Characters and elements that native code holds.
  int unreleased = 0;
  int failingCall = 0;
  const char* failedFunction = "";
  int fallibleCalls = 0;
  int calls = 0;
  /// Those that JNI forbids while an exception is pending, as one was.
  int callsUnderException = 0;
  /// The frame of the deepest JNI function that native code called.
  const char* deepestFrame = reinterpret_cast<const char*>(UINTPTR_MAX);
};

}  // namespace quorvelj::testing::mini
