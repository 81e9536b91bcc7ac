// Every native method under faults: JNI calls that fail, allocations that fail, the library's
// special results, and Java inputs of every kind. `play` checks what holds after each of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>

#include "simulator/control.h"
#include "tests/support/departures.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

// Each of a method's first JNI calls, which are its frame's own, fails once. Of the others a spread
// fails, a smaller one the more the method costs, so that the sweep takes minutes. A JNI call costs
// 1, and so do 64 bytes of a record.
constexpr int kFirstCalls = 12;
constexpr std::size_t kMostFaults = 400;
constexpr std::size_t kFewestFaults = 3;
constexpr std::size_t kCostOfAll = 1'500'000;
constexpr std::size_t kBytesOfACall = 64;
constexpr int kOrdinaryCode = 1234;
constexpr char kText[] = "Ljava/lang/String;";

int injectedFaults = 0;

struct Fault {
  int jniCall = 0;
  int allocation = 0;
  int libraryResult = 0;
  int nullArgument = -1;
  bool staleStack = false;
  InputProfile inputs{};
  std::vector<unsigned char> output{};
};

struct Outcome {
  jvalue result{};
  std::optional<PendingException> pending;
  int fallibleCalls = 0;
  std::size_t cost = 1;
  int allocations = 0;
  int leakedRecords = 0;
  int libraryCalls = 0;
  std::string libraryFunction{};
  int newReferences = 0;
};

/// Leaves bytes on the stack where the next function has its buffers.
[[gnu::noinline]] void dirtyStack() {
  volatile char stale[64 * 1024];
  std::fill(std::begin(stale), std::end(stale), '?');
}

std::string lastFunction;

Outcome play(const NativeMethod& method, const Fault& fault) {
  const Departure& departure = departureOf(method);
  const auto output = fault.output.empty() ? outputFor(method) : fault.output;
  quorvelSimReset();
  quorvelSimObserve([](const char* function) { lastFunction = function; });
  quorvelSimForceResult("*", fault.libraryResult, 1);
  quorvelSimPrepareOutput("*", output.data(), output.size());
  resetTestRuntime(fault.allocation);
  MiniJvm jvm;
  jvm.profile = fault.inputs;
  std::vector<jvalue> arguments = jvm.newArguments(method);
  if (fault.nullArgument >= 0) {
    arguments[static_cast<std::size_t>(fault.nullArgument)].l = nullptr;
  }
  const int references = jvm.liveReferences();
  jvm.failCall(fault.jniCall);

  if (fault.staleStack) {
    dirtyStack();
  }
  Outcome outcome;
  outcome.result = method.invoke(jvm.env(), arguments);
  outcome.pending = jvm.pending();
  outcome.fallibleCalls = jvm.fallibleCalls();
  outcome.cost += static_cast<std::size_t>(jvm.calls()) + testRuntime().mostBytes / kBytesOfACall;
  outcome.allocations = testRuntime().allocations;
  outcome.leakedRecords = testRuntime().liveRecords;
  outcome.libraryCalls = quorvelSimCallCount("*");
  outcome.libraryFunction = lastFunction;
  outcome.newReferences = jvm.liveReferences() - references;

  ++injectedFaults;
  EXPECT_EQ(testRuntime().damaged, 0) << "a record was written outside of, or released twice";
  EXPECT_EQ(jvm.misuses(), 0) << "a dead, null or wrong reference was used";
  EXPECT_EQ(jvm.unreleased(), outcome.libraryCalls * departure.neverReleasedCharacters)
      << "characters or elements were not released";
  EXPECT_LE(outcome.libraryCalls, 1);
  if (method.resultKind() == 'L' && outcome.result.l == nullptr && fault.allocation == 0 &&
      fault.libraryResult != 256) {
    EXPECT_TRUE(outcome.pending) << "null without an exception";
  }
  return outcome;
}

void expectFailureValue(const NativeMethod& method, const Outcome& outcome) {
  if (method.resultKind() == 'L') {
    EXPECT_EQ(outcome.result.l, nullptr);
  } else if (method.resultKind() == 'I') {
    EXPECT_EQ(outcome.result.i, departureOf(method).failureValue);
  }
}

/// The same where the library refused with a code.
void expectRefusalValue(const NativeMethod& method, const Outcome& outcome, int code) {
  if (departureOf(method).returnsResult) {
    EXPECT_EQ(outcome.result.i, outcome.libraryCalls == 0 ? 2817 : code);
  } else {
    expectFailureValue(method, outcome);
  }
}

void expectCode(const Outcome& outcome, int code) {
  if (code == 256) {
    EXPECT_FALSE(outcome.pending);
    return;
  }
  ASSERT_TRUE(outcome.pending);
  if (code == 65535) {
    EXPECT_EQ(outcome.pending->className, "java/lang/OutOfMemoryError");
    EXPECT_EQ(outcome.pending->message, "");
  } else {
    EXPECT_EQ(outcome.pending->className, "tessaly/str/diskarray/DiskArrayException");
    EXPECT_EQ(outcome.pending->code, code);
  }
}

class Sweep : public ::testing::TestWithParam<NativeMethod> {
 protected:
  ~Sweep() override { resetTestRuntime(); }
  static void TearDownTestSuite() {
    std::printf("sweep: %zu native methods, %d faults and inputs injected\n",
                nativeMethods().size(), injectedFaults);
  }
};

TEST_P(Sweep, Succeeds) {
  const NativeMethod& method = GetParam();
  // Once on records of zeros, once on records without a NUL in any text.
  for (const auto& output :
       {std::vector<unsigned char>{}, std::vector<unsigned char>(1 << 20, 0xFF)}) {
    const Outcome outcome = play(method, {.output = output});
    EXPECT_FALSE(outcome.pending);
    EXPECT_EQ(outcome.libraryCalls, 1);
    EXPECT_EQ(outcome.leakedRecords, departureOf(method).neverReleased);
    EXPECT_EQ(outcome.newReferences, method.resultKind() == 'L' ? 1 : 0);
    EXPECT_TRUE(method.resultKind() != 'L' || outcome.result.l != nullptr);
  }
}

TEST_P(Sweep, LibraryResults) {
  for (const int code : {256, 65535, -1, kOrdinaryCode}) {
    SCOPED_TRACE("library result " + std::to_string(code));
    const Outcome outcome = play(GetParam(), {.libraryResult = code});
    expectCode(outcome, departureOf(GetParam()).returnsResult && code == -1 ? 256 : code);
    expectRefusalValue(GetParam(), outcome, code);
    EXPECT_EQ(outcome.leakedRecords, departureOf(GetParam()).neverReleased);
  }
}

TEST_P(Sweep, EachJniCallFails) {
  for (const int code : {0, kOrdinaryCode}) {
    const Outcome faultless = play(GetParam(), {.libraryResult = code});
    const int calls = faultless.fallibleCalls;
    const auto affordable =
        static_cast<int>(std::clamp(kCostOfAll / faultless.cost, kFewestFaults, kMostFaults));
    const int first = std::min(calls, kFirstCalls);
    const int spread = std::min(calls - first, affordable);
    for (int fault = 1; fault <= first + spread; ++fault) {
      const int call =
          fault <= first
              ? fault
              : first + static_cast<int>(std::int64_t{fault - first} * (calls - first) / spread);
      SCOPED_TRACE("JNI call " + std::to_string(call) + " of " + std::to_string(calls));
      const Outcome outcome = play(GetParam(), {.jniCall = call, .libraryResult = code});
      EXPECT_TRUE(outcome.libraryCalls == 1 || departureOf(GetParam()).stopsUnread);
      EXPECT_EQ(outcome.leakedRecords, departureOf(GetParam()).neverReleased);
      if (code != 0) {
        expectRefusalValue(GetParam(), outcome, code);
        EXPECT_TRUE(outcome.pending);
      }
    }
  }
}

TEST_P(Sweep, TextsThatCannotBeHadAreEmpty) {
  const std::vector<std::string> types = GetParam().argumentTypes();
  int texts = 0;
  for (std::size_t index = 0; index < types.size(); ++index) {
    if (types[index] != kText) {
      continue;
    }
    SCOPED_TRACE("argument " + std::to_string(index));
    // The texts are the first that a method asks the JVM for.
    const Outcome outcome = play(GetParam(), {.jniCall = ++texts, .staleStack = true});
    if (outcome.libraryCalls == 0) {
      EXPECT_TRUE(departureOf(GetParam()).stopsUnread);
      continue;
    }
    char first = '?';
    quorvelSimLastInput(outcome.libraryFunction.c_str(), GetParam().libraryIndexOf(index), &first,
                        1);
    EXPECT_EQ(first, '\0');
  }
}

TEST_P(Sweep, EachAllocationFails) {
  const NativeMethod& method = GetParam();
  const int allocations = play(method, {}).allocations;
  for (int allocation = 1; allocation <= allocations; ++allocation) {
    SCOPED_TRACE("allocation " + std::to_string(allocation));
    const Outcome outcome = play(method, {.allocation = allocation});
    if (allocation >= departureOf(method).firstUntestedAllocation) {
      EXPECT_FALSE(outcome.pending);
      EXPECT_EQ(outcome.libraryCalls, 1);
      EXPECT_EQ(outcome.leakedRecords, departureOf(method).neverReleased);
      continue;
    }
    expectCode(outcome, departureOf(method).silentWithoutMemory ? 256 : 65535);
    expectFailureValue(method, outcome);
    EXPECT_EQ(outcome.libraryCalls, 0);
    const Departure& departure = departureOf(method);
    const bool releases = method.resultKind() == 'V' || departure.releasesOnRefusal;
    EXPECT_EQ(outcome.leakedRecords,
              releases ? std::min(departure.neverReleased, allocation - 1) : allocation - 1);
  }
}

TEST_P(Sweep, EachArgumentIsNull) {
  const std::vector<std::string> types = GetParam().argumentTypes();
  for (std::size_t index = 0; index < types.size(); ++index) {
    if (types[index] == "I") {
      continue;
    }
    SCOPED_TRACE("argument " + std::to_string(index));
    const Outcome outcome = play(GetParam(), {.nullArgument = static_cast<int>(index)});
    const Departure& departure = departureOf(GetParam());
    if (types[index] == kText && !departure.acceptsNullText) {
      expectCode(outcome, 258);
      expectFailureValue(GetParam(), outcome);
      EXPECT_EQ(outcome.allocations, 0);
      EXPECT_EQ(outcome.libraryCalls, 0);
    } else if (departure.stopsUnread && index + 1 == types.size()) {
      expectCode(outcome, -1);
      EXPECT_EQ(outcome.libraryCalls, 0);
    } else {
      EXPECT_EQ(outcome.libraryCalls, 1);
      EXPECT_EQ(outcome.leakedRecords, departure.neverReleased);
    }
  }
}

TEST_P(Sweep, AnyJavaInput) {
  const std::string longText(10'000, 'x');
  for (const InputProfile& inputs : {
           InputProfile{.text = "", .primitives = 0, .objects = 0},
           InputProfile{.text = "x", .primitives = 1, .objects = 1},
           InputProfile{.text = longText, .primitives = 20'000, .objects = 10'000},
       }) {
    SCOPED_TRACE("arrays of " + std::to_string(inputs.primitives));
    const Outcome outcome = play(GetParam(), {.inputs = inputs});
    EXPECT_TRUE(outcome.libraryCalls == 1 || departureOf(GetParam()).stopsUnread);
    EXPECT_EQ(outcome.leakedRecords, departureOf(GetParam()).neverReleased);
  }
}

INSTANTIATE_TEST_SUITE_P(NativeMethods, Sweep,
                         ::testing::ValuesIn(nativeMethods().begin(), nativeMethods().end()),
                         [](const auto& parameter) { return parameter.param.name; });

}  // namespace
}  // namespace quorvelj::testing
