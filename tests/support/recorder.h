#pragma once

#include <string>
#include <vector>

namespace quorvelj::testing {

/// The events of one call in the order in which they happened: JNI calls, allocations, releases,
/// flushes and library calls. Empty unless tracing is on.
struct Recorder {
  bool tracing = false;
  std::vector<std::string> events;

  void add(const std::string& event) {
    if (tracing) {
      events.push_back(event);
    }
  }
};

/// The running thread's.
Recorder& recorder();

}  // namespace quorvelj::testing
