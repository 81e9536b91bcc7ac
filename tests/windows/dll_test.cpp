// Every native method of quorvelj.dll, called by its decorated name: the library's special results,
// null arguments, and JNI calls that fail. The families' own tests run on the DLL besides.
#include <gtest/gtest.h>

#include <cstdio>

#include "simulator/control.h"
#include "tests/support/departures.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/windows/dll_methods.h"

namespace quorvelj::testing {
namespace {

constexpr int kFaults = 12;

class Dll : public ::testing::TestWithParam<NativeMethod> {
 protected:
  struct Outcome {
    jvalue result{};
    std::optional<PendingException> pending;
    int fallibleCalls = 0;
  };

  static Outcome play(int libraryResult, int failingCall, int nullArgument) {
    quorvelSimReset();
    quorvelSimForceResult("*", libraryResult, 1);
    const auto output = outputFor(GetParam());
    quorvelSimPrepareOutput("*", output.data(), output.size());
    MiniJvm jvm;
    std::vector<jvalue> arguments = jvm.newArguments(GetParam());
    if (nullArgument >= 0) {
      arguments[static_cast<std::size_t>(nullArgument)].l = nullptr;
    }
    jvm.failingCall = failingCall;
    Outcome outcome;
    outcome.result = GetParam().invoke(jvm.env(), arguments);
    outcome.pending = jvm.pending();
    outcome.fallibleCalls = jvm.fallibleCalls;
    EXPECT_EQ(jvm.heap.misuses(), 0);
    EXPECT_LE(quorvelSimCallCount("*"), 1);
    return outcome;
  }
};

TEST_P(Dll, ResultsAndExceptions) {
  const Outcome success = play(0, 0, -1);
  EXPECT_FALSE(success.pending);
  EXPECT_TRUE(GetParam().resultKind() != 'L' || success.result.l != nullptr);
  EXPECT_FALSE(play(256, 0, -1).pending);
  EXPECT_EQ(play(65535, 0, -1).pending->className, "java/lang/OutOfMemoryError");
  for (const int code : {-1, 1234}) {
    const Outcome refused = play(code, 0, -1);
    if (departureOf(GetParam()).returnsResult) {
      EXPECT_EQ(refused.result.i, code);
    } else {
      ASSERT_TRUE(refused.pending);
      EXPECT_EQ(refused.pending->code, code);
    }
  }
}

TEST_P(Dll, NullArguments) {
  const std::vector<std::string> types = GetParam().argumentTypes();
  for (std::size_t index = 0; index < types.size(); ++index) {
    if (types[index] != "I") {
      play(0, 0, static_cast<int>(index));
    }
  }
}

TEST_P(Dll, JniCallsFail) {
  for (const int code : {0, 1234}) {
    const int calls = play(code, 0, -1).fallibleCalls;
    const int faults = calls < kFaults ? calls : kFaults;
    for (int fault = 0; fault < faults; ++fault) {
      play(code, 1 + (faults == 1 ? 0 : fault * (calls - 1) / (faults - 1)), -1);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(NativeMethods, Dll,
                         ::testing::ValuesIn(nativeMethods().begin(), nativeMethods().end()),
                         [](const auto& parameter) { return parameter.param.name; });

/// Says at the end what was called.
class Summary : public ::testing::Environment {
 public:
  void TearDown() override {
    EXPECT_EQ(dllCalls().methods.size(), nativeMethods().size());
    std::printf("dll: %zu exported methods called, %d calls\n", dllCalls().methods.size(),
                dllCalls().calls);
  }
};

const auto* const kSummary = ::testing::AddGlobalTestEnvironment(new Summary);

}  // namespace
}  // namespace quorvelj::testing
