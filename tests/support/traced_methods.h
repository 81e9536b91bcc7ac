#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "arraylib/accounts.h"
#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/recorder.h"
#include "tests/support/test_runtime.h"

// Native methods on the mini JVM, and what a call does, event by event.
namespace quorvelj::testing {

using Events = std::vector<std::string>;

inline Events operator+(Events left, const Events& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// The allocation of a record, or of an array of them.
template <class Record>
std::string mallocOf() {
  return "malloc " + std::to_string(sizeof(Record));
}

inline const Events kCopyName{"GetStringUTFLength", "GetStringUTFChars", "ReleaseStringUTFChars"};
inline const Events kReadSession{"GetObjectClass", "GetFieldID session_id [B", "GetObjectField",
                                 "DeleteLocalRef", "GetByteArrayRegion 32",    "ExceptionOccurred",
                                 "DeleteLocalRef"};
/// What comes first in a frame with a unit and a session.
inline const Events kBegin =
    Events{"flush"} + kCopyName + Events{mallocOf<QVSessionInfo>()} + kReadSession;
inline const Events kStore{"SetObjectArrayElement", "ExceptionOccurred", "DeleteLocalRef"};
inline const Events kThrow{"FindClass tessaly/str/diskarray/DiskArrayException",
                           "GetMethodID <init> (I)V", "NewObject", "Throw"};
inline const Events kThrowOutOfMemory{"FindClass java/lang/OutOfMemoryError",
                                      "ThrowNew java/lang/OutOfMemoryError \"\""};

inline Events newObject(const std::string& name) {
  return {"FindClass tessaly/str/diskarray/" + name, "GetMethodID <init> ()V", "NewObject",
          "DeleteLocalRef"};
}
inline Events newArray(const std::string& name, int length) {
  return {"FindClass tessaly/str/diskarray/" + name, "NewObjectArray " + std::to_string(length),
          "DeleteLocalRef"};
}
inline Events setInt(const std::string& name) {
  return {"GetObjectClass", "GetFieldID " + name + " I", "SetIntField", "ExceptionOccurred",
          "DeleteLocalRef"};
}

/// Leaves bytes where the next function has its buffers.
[[gnu::noinline]] inline void dirtyStack() {
  volatile char stale[64 * 1024];
  std::fill(std::begin(stale), std::end(stale), '?');
}

// Functions, because a macro would split its arguments at the commas of the lists.
inline void expectEvents(const Events& actual, const Events& expected) {
  EXPECT_EQ(actual, expected);
}
inline void expectStart(const Events& actual, const Events& expected) {
  const auto length = static_cast<std::ptrdiff_t>(std::min(actual.size(), expected.size()));
  EXPECT_EQ(Events(actual.begin(), actual.begin() + length), expected);
}
inline void expectEnd(const Events& actual, const Events& expected) {
  const auto length = static_cast<std::ptrdiff_t>(std::min(actual.size(), expected.size()));
  EXPECT_EQ(Events(actual.end() - length, actual.end()), expected);
}
inline std::ptrdiff_t countOf(const Events& events, const char* event) {
  return std::count(events.begin(), events.end(), event);
}
/// The events that begin in one of these ways.
inline Events only(const Events& events, const Events& beginnings) {
  Events kept;
  std::copy_if(events.begin(), events.end(), std::back_inserter(kept), [&](const auto& event) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const auto& beginning) { return event.starts_with(beginning); });
  });
  return kept;
}

/// Tests of methods whose library calls succeed, with records of zeros, until they are told else.
class TracedMethods : public ::testing::Test {
 protected:
  TracedMethods() {
    quorvelSimReset();
    quorvelSimForceResult("*", 0, 1000);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
    resetTestRuntime();
  }
  ~TracedMethods() override {
    quorvelSimReset();
    resetTestRuntime();
  }

  /// Texts, inputs, and ints of 3.
  std::vector<jvalue> argumentsOf(const char* method) {
    return jvm_.newArguments(nativeMethod(method));
  }
  jvalue invoke(const char* method, const std::vector<jvalue>& arguments) {
    return result_ = nativeMethod(method).invoke(jvm_.env(), arguments);
  }
  jvalue invoke(const char* method) { return invoke(method, argumentsOf(method)); }

  template <class Call>
  Events traceOf(Call call) {
    recorder() = {.tracing = true, .events = {}};
    call();
    recorder().tracing = false;
    return std::move(recorder().events);
  }
  Events trace(const char* method, const std::vector<jvalue>& arguments) {
    return traceOf([&] { invoke(method, arguments); });
  }
  Events trace(const char* method) { return trace(method, argumentsOf(method)); }

  /// Takes the pending exception: "DiskArrayException 258", "NoSuchFieldError percent" or "".
  std::string thrown() {
    const auto pending = jvm_.pending();
    jvm_.clearPending();
    return pending ? pending->shown() : "";
  }

  MiniJvm jvm_;
  jvalue result_{};
};

}  // namespace quorvelj::testing
