// Every native method with Java arguments made at random. QUORVELJ_FUZZ_INPUTS of them are made,
// the first by QUORVELJ_FUZZ_SEED, each next by the next seed: a failing one is repeated alone by
// its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "tests/support/departures.h"
#include "tests/support/drawing.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/mini_jvm/inputs.h"
#include "tests/support/simulated_library.h"

namespace quorvelj::testing {
namespace {

constexpr char kText[] = "Ljava/lang/String;";
constexpr int kOrdinaryCode = 1234;

/// What there was at the call of the library.
struct AtLibrary {
  MiniJvm* jvm = nullptr;
  std::string function;
  int callsUnderException = 0;
  bool pending = false;
};
AtLibrary atLibrary;

std::uint32_t numberOf(const char* variable, std::uint32_t otherwise) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? otherwise : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

std::vector<unsigned char> libraryInput(int index) {
  std::vector<unsigned char> bytes(
      quorvelSimLastInput(atLibrary.function.c_str(), index, nullptr, 0));
  quorvelSimLastInput(atLibrary.function.c_str(), index, bytes.data(), bytes.size());
  return bytes;
}

/// A text that reached the library: as much as fits in front of a NUL.
void expectText(const NativeMethod& method, std::size_t argument, const std::string& text) {
  const auto buffer = libraryInput(method.libraryIndexOf(argument));
  if (departureOf(method).neverReleasedCharacters > 0) {
    return;  // Java's own characters, of which the simulator sees the first.
  }
  ASSERT_GT(buffer.size(), 1U);
  const auto end = std::find(buffer.begin(), buffer.end(), 0);
  ASSERT_NE(end, buffer.end()) << "no NUL inside the buffer of argument " << argument;
  EXPECT_EQ(std::string(buffer.begin(), end), text.substr(0, buffer.size() - 1));
}

/// What reached the library of the arguments.
void expectInputs(const NativeMethod& method, MiniJvm& jvm, const std::vector<jvalue>& arguments) {
  const std::vector<std::string> types = method.argumentTypes();
  for (std::size_t index = 0; index < types.size(); ++index) {
    const jobject argument = types[index] == "I" ? nullptr : arguments[index].l;
    if (types[index] == kText) {
      expectText(method, index,
                 argument == nullptr ? "" : jvm.textOf(static_cast<jstring>(argument)));
    } else if (types[index] != "I" && argument == nullptr) {
      // A selection that is null selects nothing, and the record of a user lies on the stack, as
      // zeros.
      const bool zeros = types[index] == "[B" || departureOf(method).nullOfZeros;
      const unsigned char untouched = zeros ? 0 : kFreshByte;
      const auto record = libraryInput(method.libraryIndexOf(index));
      EXPECT_EQ(std::count(record.begin(), record.end(), untouched), std::ssize(record))
          << "the record of null, argument " << index << ", was written";
    }
  }
}

void expectException(const NativeMethod& method, const std::optional<PendingException>& pending,
                     bool reached, int libraryResult) {
  const std::string shown = pending ? pending->shown() : "";
  if (!reached) {
    const std::array allowed{"DiskArrayException 258", "DiskArrayException -1",
                             "DiskArrayException 2817", ""};
    const std::size_t count = departureOf(method).stopsUnread           ? 3
                              : departureOf(method).silentWithoutMemory ? 4
                                                                        : 1;
    EXPECT_NE(std::find(allowed.begin(), allowed.begin() + count, shown), allowed.begin() + count)
        << shown;
  } else if (libraryResult != 0) {
    EXPECT_EQ(shown, "DiskArrayException " + std::to_string(libraryResult));
  } else if (pending) {
    const std::string readers[] = {"NoSuchFieldError", "ArrayIndexOutOfBoundsException"};
    EXPECT_TRUE(atLibrary.pending);
    EXPECT_TRUE(shown.starts_with(readers[0]) || shown.starts_with(readers[1])) << shown;
  }
}

class Fuzz : public SimulatedLibrary {
 protected:
  void play(const NativeMethod& method, std::uint32_t seed) {
    mini::RandomInputs random(seed);
    quorvelSimReset();
    quorvelSimObserve([](const char* function) {
      atLibrary.function = function;
      atLibrary.callsUnderException = atLibrary.jvm->callsUnderException;
      atLibrary.pending = atLibrary.jvm->pending().has_value();
    });
    // What fills a result is not what is asked here.
    const int libraryResult =
        method.resultKind() != 'L' && random.below(2) == 0 ? 0 : kOrdinaryCode;
    quorvelSimForceResult("*", libraryResult, 2);
    resetTestRuntime();
    MiniJvm& jvm = *jvm_;
    jvm.clearPending();
    jvm.profile.random = &random;
    const std::vector<jvalue> arguments = jvm.newArguments(method);
    const int misuses = jvm.heap.misuses();
    const int unreleased = jvm.unreleased;
    const int before = jvm.callsUnderException;
    atLibrary = {&jvm, "", before, false};
    method.invoke(jvm.env(), arguments);

    const Departure& departure = departureOf(method);
    const int libraryCalls = quorvelSimCallCount("*");
    EXPECT_LE(libraryCalls, 1);
    EXPECT_EQ(testRuntime().damaged, 0) << "a record was written outside of, or released twice";
    EXPECT_EQ(testRuntime().liveRecords,
              testRuntime().allocations == 0 ? 0 : departure.neverReleased);
    EXPECT_EQ(jvm.heap.misuses(), misuses) << "a dead, null or wrong reference or field was used";
    EXPECT_EQ(jvm.unreleased - unreleased, libraryCalls * departure.neverReleasedCharacters);
    EXPECT_EQ(atLibrary.callsUnderException, before) << "read on while an exception was pending";
    expectException(method, jvm.pending(), libraryCalls == 1, libraryResult);
    if (libraryCalls == 1) {
      expectInputs(method, jvm, arguments);
    }
  }

  std::unique_ptr<MiniJvm> jvm_;
};

TEST_F(Fuzz, AnyArguments) {
  const std::uint32_t inputs = numberOf("QUORVELJ_FUZZ_INPUTS", 20'000);
  const std::uint32_t seed = numberOf("QUORVELJ_FUZZ_SEED", 1);
  std::printf("fuzz: QUORVELJ_FUZZ_INPUTS=%u QUORVELJ_FUZZ_SEED=%u\n", inputs, seed);
  auto draw = drawingByCost(recordBytes());
  constexpr std::uint32_t kInputsOfAJvm = 500;
  for (std::uint32_t input = 0; input < inputs && !HasFailure(); ++input) {
    if (input % kInputsOfAJvm == 0) {
      jvm_ = std::make_unique<MiniJvm>();
      jvm_->declare(javaFields());
    }
    std::mt19937 random(seed + input);
    const NativeMethod& method = nativeMethods()[draw(random)];
    SCOPED_TRACE(
        std::string(method.name) +
        ", again by QUORVELJ_FUZZ_INPUTS=1 QUORVELJ_FUZZ_SEED=" + std::to_string(seed + input));
    play(method, seed + input);
  }
}

}  // namespace
}  // namespace quorvelj::testing
