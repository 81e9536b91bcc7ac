#include "tests/support/test_runtime.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "bridge/runtime.h"

#ifdef QUORVELJ_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace quorvelj::testing {
namespace {

constexpr std::size_t kGuardBytes = 16;
constexpr int kGuard = 0xC3;
/// More than any machine has to spare.
constexpr std::size_t kMostMemory = std::size_t{1} << 28;

/// Released blocks of at least this size are used again, so many of them: fresh memory is slow.
constexpr std::size_t kLarge = 1 << 15;
#ifdef __SANITIZE_THREAD__
constexpr std::size_t kMostReleased = 0;  // For each of many threads they are too large.
#else
constexpr std::size_t kMostReleased = 4;
#endif

/// A record between its guard bytes.
struct Block {
  unsigned char* start;
  std::size_t size;
};

struct Thread {
  ~Thread() {
    for (const Block& block : released) {
      std::free(block.start);
    }
  }

  Recorder recorder;
  TestRuntime runtime;
  /// The bytes of each record that is not released.
  std::map<void*, std::size_t> records;
  /// The latest is the last.
  std::vector<Block> released;
};

Thread& thread() {
#ifdef _WIN32
  // What a thread has of its own is looked up slowly there, and the tests have one thread.
  static Thread instance;
#else
  static thread_local Thread instance;
#endif
  return instance;
}

/// To AddressSanitizer a released block is one that nobody may touch.
void forbid(const Block& block, bool forbidden) {
#ifdef QUORVELJ_ADDRESS_SANITIZER
  (forbidden ? __asan_poison_memory_region : __asan_unpoison_memory_region)(block.start,
                                                                            block.size);
#else
  static_cast<void>(block);
  static_cast<void>(forbidden);
#endif
}

unsigned char* obtain(std::size_t size) {
  std::vector<Block>& released = thread().released;
  const auto found = std::find_if(released.rbegin(), released.rend(),
                                  [&](const Block& block) { return block.size == size; });
  if (found == released.rend()) {
    return static_cast<unsigned char*>(std::malloc(size));
  }
  const Block block = *found;
  released.erase(found.base() - 1);
  forbid(block, false);
  return block.start;
}

void giveBack(const Block& block) {
  std::vector<Block>& released = thread().released;
  if (block.size < kLarge) {
    std::free(block.start);
    return;
  }
  forbid(block, true);
  released.push_back(block);
  if (released.size() > kMostReleased) {
    std::free(released.front().start);
    released.erase(released.begin());
  }
}

bool guarded(const unsigned char* guard) {
  return std::all_of(guard, guard + kGuardBytes, [](unsigned char byte) { return byte == kGuard; });
}

void* allocateGuarded(std::size_t bytes, int fill) {
  if (++testRuntime().allocations == testRuntime().refusedAllocation || bytes > kMostMemory) {
    return nullptr;
  }
  auto* const block = obtain(bytes + 2 * kGuardBytes);
  if (block == nullptr) {
    return nullptr;
  }
  std::memset(block, kGuard, kGuardBytes);
  std::memset(block + kGuardBytes, fill, bytes);
  std::memset(block + kGuardBytes + bytes, kGuard, kGuardBytes);
  thread().records[block + kGuardBytes] = bytes;
  ++testRuntime().liveRecords;
  testRuntime().liveBytes += bytes;
  testRuntime().mostBytes = std::max(testRuntime().mostBytes, testRuntime().liveBytes);
  return block + kGuardBytes;
}

}  // namespace

Recorder& recorder() { return thread().recorder; }

TestRuntime& testRuntime() { return thread().runtime; }

void resetTestRuntime(int refusedAllocation) {
  for (const auto& [record, bytes] : thread().records) {
    giveBack({static_cast<unsigned char*>(record) - kGuardBytes, bytes + 2 * kGuardBytes});
  }
  thread().records.clear();
  testRuntime() = {.refusedAllocation = refusedAllocation};
}

void dirtyStack() {
  char stale[64 * 1024];
  std::memset(stale, '?', sizeof stale);
  asm volatile("" : : "r"(stale) : "memory");
}

}  // namespace quorvelj::testing

namespace quorvelj {

using testing::recorder;
using testing::testRuntime;

void* allocateRecord(std::size_t bytes) {
  recorder().add("malloc " + std::to_string(bytes));
  return testing::allocateGuarded(bytes, testing::kFreshByte);
}

void* allocateZeroedRecords(std::size_t count, std::size_t bytes) {
  recorder().add("calloc " + std::to_string(count) + " x " + std::to_string(bytes));
  return bytes != 0 && count > SIZE_MAX / bytes ? nullptr
                                                : testing::allocateGuarded(count * bytes, 0);
}

void releaseRecord(void* record) {
  recorder().add(record == nullptr ? "free null" : "free");
  if (record == nullptr) {
    return;
  }
  auto& records = testing::thread().records;
  const auto found = records.find(record);
  if (found == records.end()) {
    ++testRuntime().damaged;
    return;
  }
  auto* const bytes = static_cast<unsigned char*>(record);
  if (!testing::guarded(bytes - testing::kGuardBytes) || !testing::guarded(bytes + found->second)) {
    ++testRuntime().damaged;
  }
  testRuntime().liveBytes -= found->second;
  --testRuntime().liveRecords;
  testing::giveBack({bytes - testing::kGuardBytes, found->second + 2 * testing::kGuardBytes});
  records.erase(found);
}

void* allocateKept(std::size_t bytes) {
  void* const kept = testRuntime().refusesKept ? nullptr : std::malloc(bytes);
  testRuntime().liveKept += kept == nullptr ? 0 : 1;
  return kept;
}

void releaseKept(void* kept) {
  testRuntime().liveKept -= 1;
  std::free(kept);
}

void flushOutput() { recorder().add("flush"); }

}  // namespace quorvelj
