#include "tests/support/test_runtime.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

#include "bridge/runtime.h"

namespace quorvelj::testing {
namespace {

constexpr std::size_t kGuardBytes = 16;
constexpr int kGuard = 0xC3;
/// More than any machine has to spare.
constexpr std::size_t kMostMemory = std::size_t{1} << 28;

std::map<void*, std::size_t>& liveBlocks() {
  static thread_local std::map<void*, std::size_t> blocks;
  return blocks;
}

bool guarded(const unsigned char* guard) {
  return std::all_of(guard, guard + kGuardBytes, [](unsigned char byte) { return byte == kGuard; });
}

void* allocateGuarded(std::size_t bytes, int fill) {
  if (++testRuntime().allocations == testRuntime().refusedAllocation || bytes > kMostMemory) {
    return nullptr;
  }
  auto* const block = static_cast<unsigned char*>(std::malloc(bytes + 2 * kGuardBytes));
  if (block == nullptr) {
    return nullptr;
  }
  std::memset(block, kGuard, kGuardBytes);
  std::memset(block + kGuardBytes, fill, bytes);
  std::memset(block + kGuardBytes + bytes, kGuard, kGuardBytes);
  liveBlocks()[block + kGuardBytes] = bytes;
  ++testRuntime().liveRecords;
  testRuntime().liveBytes += bytes;
  testRuntime().mostBytes = std::max(testRuntime().mostBytes, testRuntime().liveBytes);
  return block + kGuardBytes;
}

}  // namespace

Recorder& recorder() {
  static thread_local Recorder instance;
  return instance;
}

TestRuntime& testRuntime() {
  static thread_local TestRuntime instance;
  return instance;
}

void resetTestRuntime(int refusedAllocation) {
  for (const auto& [record, bytes] : liveBlocks()) {
    std::free(static_cast<unsigned char*>(record) - kGuardBytes);
  }
  liveBlocks().clear();
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
  const auto found = testing::liveBlocks().find(record);
  if (found == testing::liveBlocks().end()) {
    ++testRuntime().damaged;
    return;
  }
  auto* const bytes = static_cast<unsigned char*>(record);
  if (!testing::guarded(bytes - testing::kGuardBytes) || !testing::guarded(bytes + found->second)) {
    ++testRuntime().damaged;
  }
  testRuntime().liveBytes -= found->second;
  testing::liveBlocks().erase(found);
  --testRuntime().liveRecords;
  std::free(bytes - testing::kGuardBytes);
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
