#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quorvelj::testing {

/// What a new record is filled with.
inline constexpr unsigned char kFreshByte = 0xA5;

/// The bridge's C runtime under test, one for each thread: counts what is allocated, refuses one
/// allocation on demand, fills new records with `kFreshByte` and keeps guard bytes around them.
struct TestRuntime {
  /// The allocation to refuse, counted from 1; 0 refuses none.
  int refusedAllocation = 0;
  int allocations = 0;
  /// Records not yet released.
  int liveRecords = 0;
  /// Bytes of records not yet released, and the most there were at once.
  std::size_t liveBytes = 0;
  std::size_t mostBytes = 0;
  /// Records that were written outside of, or released twice.
  int damaged = 0;
  /// Whether there is no memory for what a native call keeps, and how much of it is not released.
  bool refusesKept = false;
  int liveKept = 0;
};

/// The running thread's.
TestRuntime& testRuntime();

/// Begins anew, and frees the records that the calls before left behind.
void resetTestRuntime(int refusedAllocation = 0);

/// Leaves bytes on the stack where the next function has its buffers.
void dirtyStack();

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
