// Every native method of quorvelj.dll, called by its decorated name: what it returns and throws.
// The families' own tests run on the DLL besides; with faults its code is asked in mini_jvm_tests.
#include <gtest/gtest.h>

#include <cstdio>

#include "simulator/control.h"
#include "tests/support/departures.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/windows/dll_methods.h"

namespace quorvelj::testing {
namespace {

class Dll : public ::testing::TestWithParam<NativeMethod> {
 protected:
  struct Outcome {
    jvalue result{};
    std::optional<PendingException> pending;
  };

  static Outcome play(int libraryResult) {
    quorvelSimReset();
    quorvelSimForceResult("*", libraryResult, 1);
    const auto output = outputFor(GetParam());
    quorvelSimPrepareOutput("*", output.data(), output.size());
    MiniJvm jvm;
    Outcome outcome;
    outcome.result = GetParam().invoke(jvm.env(), jvm.newArguments(GetParam()));
    outcome.pending = jvm.pending();
    EXPECT_EQ(jvm.heap.misuses(), 0);
    EXPECT_EQ(quorvelSimCallCount("*"), 1);
    return outcome;
  }
};

TEST_P(Dll, ResultsAndExceptions) {
  const Outcome success = play(0);
  EXPECT_FALSE(success.pending);
  EXPECT_TRUE(GetParam().resultKind() != 'L' || success.result.l != nullptr);
  EXPECT_FALSE(play(256).pending);
  EXPECT_EQ(play(65535).pending->className, "java/lang/OutOfMemoryError");
  for (const int code : {-1, 1234}) {
    const Outcome refused = play(code);
    if (departureOf(GetParam()).returnsResult) {
      EXPECT_EQ(refused.result.i, code);
    } else {
      ASSERT_TRUE(refused.pending);
      EXPECT_EQ(refused.pending->code, code);
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
