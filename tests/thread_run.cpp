// Sixteen threads, each with a JVM in memory of its own, call native methods with arguments made at
// random, while the library succeeds, refuses and does what it will by turns. Linked with bridge
// and simulator under ThreadSanitizer. Usage: thread_run SECONDS
#include <atomic>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "simulator/control.h"
#include "tests/support/departures.h"
#include "tests/support/drawing.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/mini_jvm/inputs.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

constexpr int kThreads = 16;
constexpr int kRefusal = 1234;

/// What one thread did.
struct Tally {
  long calls = 0;
  long libraryCalls = 0;
  long documentedLeaks = 0;
  int liveRecords = 0;
  int faults = 0;
};

thread_local Tally tally;

void check(bool holds, const NativeMethod& method, const char* what) {
  constexpr int kMostShown = 5;
  if (!holds && ++tally.faults <= kMostShown) {
    std::fprintf(stderr, "%s: %s\n", method.name, what);
  }
}

void callOnce(const NativeMethod& method, MiniJvm& jvm) {
  const TestRuntime before = testRuntime();
  method.invoke(jvm.env(), jvm.newArguments(method));
  jvm.clearPending();
  ++tally.calls;
  const int leaks =
      testRuntime().allocations == before.allocations ? 0 : departureOf(method).neverReleased;
  tally.documentedLeaks += leaks;
  check(testRuntime().liveRecords - before.liveRecords == leaks, method, "records leaked");
  check(testRuntime().damaged == 0, method, "a record was damaged");
  check(jvm.heap.misuses() == 0, method, "a reference was misused");
}

void work(unsigned seed, const std::discrete_distribution<std::size_t>& byCost,
          const std::atomic<bool>& ended, Tally& result) {
  constexpr int kCallsOfAJvm = 100;
  auto draw = byCost;
  std::mt19937 random(seed);
  mini::RandomInputs inputs(seed);
  while (!ended) {
    MiniJvm jvm;
    jvm.profile.random = random() % 2 == 0 ? &inputs : nullptr;
    for (int call = 0; call < kCallsOfAJvm && !ended; ++call) {
      callOnce(nativeMethods()[draw(random)], jvm);
    }
  }
  tally.liveRecords = testRuntime().liveRecords;
  resetTestRuntime();
  result = tally;
}

/// What builds most takes too long to be built here.
void refuseLargeResults(const std::vector<std::size_t>& bytes) {
  constexpr std::size_t kLarge = 300'000;
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    if (bytes[index] > kLarge) {
      quorvelSimForceResult(nativeMethods()[index].name, kRefusal, INT_MAX);
    }
  }
}

int run(int seconds) {
  quorvelSimReset();
  const std::vector<std::size_t> bytes = recordBytes();
  const auto byCost = drawingByCost(bytes);
  refuseLargeResults(bytes);
  quorvelSimObserve([](const char*) { ++tally.libraryCalls; });
  const int before = quorvelSimCallCount("*");
  std::atomic<bool> ended = false;
  Tally tallies[kThreads];
  std::vector<std::thread> threads;
  for (unsigned index = 0; index < kThreads; ++index) {
    threads.emplace_back([&, index] { work(index, byCost, ended, tallies[index]); });
  }
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  for (int turn = 0; std::chrono::steady_clock::now() < end; ++turn) {
    quorvelSimForceResult("*", turn % 2 == 0 ? 0 : kRefusal, turn % 3 == 0 ? 0 : INT_MAX);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  ended = true;
  Tally all;
  for (int index = 0; index < kThreads; ++index) {
    threads[static_cast<std::size_t>(index)].join();
    all.calls += tallies[index].calls;
    all.libraryCalls += tallies[index].libraryCalls;
    all.documentedLeaks += tallies[index].documentedLeaks;
    all.liveRecords += tallies[index].liveRecords;
    all.faults += tallies[index].faults;
  }
  const int counted = quorvelSimCallCount("*") - before;
  std::printf(
      "threads: %d, %ld calls, %ld of the library, which counts %d; %d records left, "
      "%ld of them documented; %d faults\n",
      kThreads, all.calls, all.libraryCalls, counted, all.liveRecords, all.documentedLeaks,
      all.faults);
  return all.faults == 0 && all.libraryCalls == counted && all.calls > 0 &&
                 all.liveRecords == all.documentedLeaks
             ? EXIT_SUCCESS
             : EXIT_FAILURE;
}

}  // namespace
}  // namespace quorvelj::testing

int main(int count, char** arguments) {
  return quorvelj::testing::run(count > 1 ? std::atoi(arguments[1]) : 10);
}
