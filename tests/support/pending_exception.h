#pragma once

#include <jni.h>

#include <string>

namespace quorvelj::testing {

/// An exception that native code left behind.
struct PendingException {
  std::string className;  // slash form
  std::string message;
  jint code = 0;  // a DiskArrayException's

  /// "DiskArrayException 258", "NoSuchFieldError percent" or, without a message,
  /// "OutOfMemoryError".
  [[nodiscard]] std::string shown() const {
    const std::string name = className.substr(className.rfind('/') + 1);
    const std::string detail = name == "DiskArrayException" ? std::to_string(code) : message;
    return detail.empty() ? name : name + ' ' + detail;
  }
};

}  // namespace quorvelj::testing
