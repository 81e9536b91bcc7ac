// Every native method under faults: JNI calls that fail, allocations that fail, the library's
// special results, and Java inputs of every kind. `play` checks what holds after each of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <set>

#include "arraylib/all_information.h"
#include "bridge/class_map.h"
#include "simulator/control.h"
#include "tests/support/class_maps.h"
#include "tests/support/departures.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {
namespace {

/// A method that makes no more JNI calls than these has each of them failed; of more the first, in
/// which it takes its arguments and begins its result, and the last.
#ifdef QUORVELJ_CACHE_IDS
constexpr int kFewCalls = 1000;
/// The variant that keeps identifiers trusts JNI, which raises nothing there.
constexpr bool kIntsFail = false;
#else
constexpr int kFewCalls = 5000;
constexpr bool kIntsFail = true;
#endif
constexpr int kFirstCalls = 40;
constexpr std::size_t kLargeRecord = 1 << 24;
/// A native method has 16 KB for itself and the library in a 32-bit JVM.
constexpr std::ptrdiff_t kMostStack = 8 * 1024;
constexpr int kOrdinaryCode = 1234;
constexpr unsigned char kUnread = 0xA5;
constexpr char kText[] = "Ljava/lang/String;";
const std::vector<unsigned char> kWithoutNul(1 << 20, 0xFF);

using Bytes = std::vector<unsigned char>;

struct Fault {
  int jniCall = 0;
  int allocation = 0;
  int libraryResult = 0;
  int nullArgument = -1;
  InputProfile inputs{};
  Bytes output{};
};

struct Outcome {
  jvalue result{};
  std::optional<PendingException> pending;
  int fallibleCalls = 0;
  std::string failedFunction{};
  int callsUnderException = 0;
  int allocations = 0;
  int leakedRecords = 0;
  int newReferences = 0;
  // Of the library's call, where there was one.
  int libraryCalls = 0;
  std::string function{};
  int fallibleCallsBefore = 0;
  int callsUnderExceptionBefore = 0;
};

struct Totals {
  int jniFaults = 0;
  int allocations = 0;
  int libraryResults = 0;
  int inputs = 0;
  int fields = 0;
  std::ptrdiff_t stack = 0;
  std::string deepest;
} totals;

/// What came of each JNI call that failed, once: the method or field, the call, and the outcome.
std::set<std::string> outcomesOfFailedCalls;

void noteFailedCall(const std::string& where, MiniJvm& jvm, bool isNull) {
  const std::optional<PendingException> pending = jvm.pending();
  outcomesOfFailedCalls.insert(
      where + ' ' + jvm.failedCall + '\t' + (isNull ? "null " : "") +
      (pending ? pending->className + ' ' + pending->message + ' ' + std::to_string(pending->code)
               : "no exception"));
}

const char* const kNoFrame = reinterpret_cast<const char*>(UINTPTR_MAX);

/// What the simulator's observer looks at.
struct Play {
  MiniJvm jvm;
  Outcome outcome;
  const char* libraryFrame = kNoFrame;
};
Play* playing = nullptr;

void observe(const char* function) {
  playing->outcome.function = function;
  playing->outcome.fallibleCallsBefore = playing->jvm.fallibleCalls;
  playing->outcome.callsUnderExceptionBefore = playing->jvm.callsUnderException;
  playing->libraryFrame = static_cast<const char*>(__builtin_frame_address(0));
}

Outcome play(const NativeMethod& method, const Fault& fault) {
  const Departure& departure = departureOf(method);
  const Bytes output = fault.output.empty() ? outputFor(method) : fault.output;
  Play current;
  playing = &current;
  auto& [jvm, outcome, libraryFrame] = current;
  quorvelSimReset();
  quorvelSimObserve(&observe);
  quorvelSimForceResult("*", fault.libraryResult, 1);
  quorvelSimPrepareOutput("*", output.data(), output.size());
  resetTestRuntime(fault.allocation);
  jvm.profile = fault.inputs;
  jvm.heap.forgetResults();
  std::vector<jvalue> arguments = jvm.newArguments(method);
  if (fault.nullArgument >= 0) {
    arguments[static_cast<std::size_t>(fault.nullArgument)].l = nullptr;
  }
  const int references = jvm.heap.liveReferences();
  jvm.failingCall = fault.jniCall;
  jvm.intsFail = kIntsFail;

  dirtyStack();
  outcome.result = method.invoke(jvm.env(), arguments);
  outcome.pending = jvm.pending();
  outcome.fallibleCalls = jvm.fallibleCalls;
  outcome.callsUnderException = jvm.callsUnderException;
  outcome.failedFunction = jvm.failedFunction;
  outcome.allocations = testRuntime().allocations;
  outcome.leakedRecords = testRuntime().liveRecords;
  outcome.libraryCalls = quorvelSimCallCount("*");
  outcome.newReferences = jvm.heap.liveReferences() - references;

  if (fault.jniCall != 0) {
    noteFailedCall(std::string(method.name) + ' ' + std::to_string(fault.libraryResult), jvm,
                   method.resultKind() == 'L' && outcome.result.l == nullptr);
  }
  quorvelSimObserve(nullptr);
  playing = nullptr;
  (fault.jniCall != 0         ? totals.jniFaults
   : fault.allocation != 0    ? totals.allocations
   : fault.libraryResult != 0 ? totals.libraryResults
                              : totals.inputs) += 1;
  const char* const deepest = std::min(jvm.deepestFrame, libraryFrame);
  const std::ptrdiff_t stack = deepest == kNoFrame ? 0 : callersFrame - deepest;
  if (stack > totals.stack) {
    totals.stack = stack;
    totals.deepest = method.name;
  }
#ifndef QUORVELJ_ADDRESS_SANITIZER
  EXPECT_LE(stack, kMostStack);
#endif
  EXPECT_EQ(testRuntime().liveKept, 0) << "what the call kept was not released";
  EXPECT_EQ(testRuntime().damaged, 0) << "a record was written outside of, or released twice";
  EXPECT_EQ(jvm.heap.misuses(), 0) << "a dead, null or wrong reference was used";
  EXPECT_EQ(jvm.unreleased, outcome.libraryCalls * departure.neverReleasedCharacters)
      << "characters or elements were not released";
  EXPECT_LE(outcome.libraryCalls, 1);
  if (method.resultKind() == 'L' && outcome.result.l == nullptr && fault.allocation == 0 &&
      fault.libraryResult != 256) {
    EXPECT_TRUE(outcome.pending) << "null without an exception";
  }
  return std::move(outcome);
}

/// The outcome of a fault that is played once.
const Outcome& once(std::map<std::string, Outcome>& outcomes, const NativeMethod& method,
                    const Fault& fault) {
  const auto [found, isNew] = outcomes.try_emplace(method.name);
  if (isNew) {
    found->second = play(method, fault);
  }
  return found->second;
}

/// The method's call without a fault, on records of zeros.
const Outcome& faultless(const NativeMethod& method) {
  static std::map<std::string, Outcome> outcomes;
  return once(outcomes, method, {});
}

/// The same on records without a NUL in any text.
const Outcome& withoutNul(const NativeMethod& method) {
  static std::map<std::string, Outcome> outcomes;
  return once(outcomes, method, {.output = kWithoutNul});
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

// What reached the library

/// An element that cannot be had is like one that is missing.
bool isPassedOver(const std::string& function) { return function == "GetObjectArrayElement"; }

/// Whether a parameter of the library holds the text of the inputs and nothing else.
bool isText(const Bytes& input) {
  const std::string text = InputProfile{}.text;
  return input.size() > text.size() && std::equal(text.begin(), text.end(), input.begin()) &&
         std::all_of(input.begin() + static_cast<std::ptrdiff_t>(text.size()), input.end(),
                     [](unsigned char byte) { return byte == 0; });
}

/// What the library was given last, parameter by parameter, into `inputs`, whose memory is kept.
void takeInputs(const std::string& function, std::vector<Bytes>& inputs) {
  constexpr std::size_t kMostParameters = 10;
  inputs.resize(kMostParameters);
  for (int index = 0; Bytes & bytes : inputs) {
    bytes.resize(quorvelSimLastInput(function.c_str(), index, nullptr, 0));
    quorvelSimLastInput(function.c_str(), index++, bytes.data(), bytes.size());
  }
}

/// The library's parameters that are the texts of a method.
std::vector<std::size_t> textParameters(const NativeMethod& method) {
  const std::vector<std::string> types = method.argumentTypes();
  std::vector<std::size_t> texts;
  for (std::size_t index = 0; index < types.size(); ++index) {
    if (types[index] == kText) {
      texts.push_back(static_cast<std::size_t>(method.libraryIndexOf(index)));
    }
  }
  return texts;
}

/// Expects that `input` is `whole` but for bytes that were not read, which are `fresh`, and that it
/// has at least what `earlier` has, which was stopped by a fault before.
void expectUnreadBehindFault(const Bytes& input, const Bytes& whole, const Bytes& earlier,
                             unsigned char fresh) {
  constexpr std::size_t kBlock = 512;
  ASSERT_EQ(input.size(), whole.size());
  for (std::size_t at = 0; at < input.size(); at += kBlock) {
    const std::size_t count = std::min(kBlock, input.size() - at);
    if (std::memcmp(&input[at], &whole[at], count) == 0 ||
        (!earlier.empty() && std::memcmp(&input[at], &earlier[at], count) == 0)) {
      continue;
    }
    for (std::size_t byte = at; byte < at + count; ++byte) {
      if (input[byte] != whole[byte]) {
        ASSERT_EQ(input[byte], fresh) << "byte " << byte << " was written";
        ASSERT_TRUE(earlier.empty() || earlier[byte] != whole[byte])
            << "byte " << byte << " was read behind a fault";
      }
    }
  }
}

/// What the faults of one method leave in the library's inputs.
class Inputs {
 public:
  Inputs(const NativeMethod& method, const Outcome& faultlessOutcome)
      : texts_(textParameters(method)) {
    takeInputs(faultlessOutcome.function, whole_);
    earlier_.resize(whole_.size());
    fresh_.resize(whole_.size(), departureOf(method).nullOfZeros ? 0 : kUnread);
    // What lies on the stack begins as zeros, like the array of this argument.
    const std::vector<std::string> types = method.argumentTypes();
    const auto array = std::find(types.begin(), types.end(), "[B");
    if (array != types.end()) {
      fresh_[static_cast<std::size_t>(array - types.begin())] = 0;
    }
  }

  /// After a fault in a call before the library's. The texts are what a method asks for first.
  void expectAfterFault(int jniCall, const Outcome& outcome) {
    takeInputs(outcome.function, inputs_);
    const auto failedText = static_cast<std::size_t>(jniCall - 1);
    for (std::size_t text = 0; text < texts_.size(); ++text) {
      Bytes& input = inputs_[texts_[text]];
      EXPECT_STREQ(reinterpret_cast<const char*>(input.data()),
                   text == failedText ? "" : InputProfile{}.text.c_str());
      input = whole_[texts_[text]];
    }
    if (failedText < texts_.size() || isPassedOver(outcome.failedFunction)) {
      return;
    }
    EXPECT_TRUE(isLater_ || inputs_ != whole_) << "all was read";
    bool isName = false;
    for (std::size_t index = 0; index < inputs_.size(); ++index) {
      SCOPED_TRACE("parameter " + std::to_string(index));
      if (isText(whole_[index]) && inputs_[index][0] == '\0') {
        // A name that a request holds: the library gets it by itself, and it is asked for first.
        isName = true;
        continue;
      }
      expectUnreadBehindFault(inputs_[index], whole_[index], earlier_[index], fresh_[index]);
    }
    if (!isName) {
      std::swap(earlier_, inputs_);
      isLater_ = true;
    }
  }

 private:
  std::vector<std::size_t> texts_;
  std::vector<Bytes> whole_;
  std::vector<Bytes> earlier_;
  std::vector<Bytes> inputs_;
  Bytes fresh_;
  bool isLater_ = false;
};

// Which JNI calls fail

/// The calls to fail of so many that a method makes.
std::vector<int> failingOf(int calls) {
  std::vector<int> failing;
  for (int call = 1; call <= calls; ++call) {
    if (calls <= kFewCalls || call <= kFirstCalls || call == calls) {
      failing.push_back(call);
    }
  }
  return failing;
}

/// Builds or reads one field of an object only, and fails each JNI call. Of its arrays two elements
/// in each dimension are enough, and of the objects in them the mere objects.
void sweepField(const std::string& className, const Field& whole, bool built) {
  static std::vector<std::byte> record(sizeof(ArrayAllInformation));
  constexpr std::uint32_t kElements = 2;
  constexpr int kCallsForTheObject = 3;
  const ClassMap bare{whole.kind == FieldKind::kRecord ? whole.element->className : "", {}};
  Field field = whole;
  field.element = &bare;
  for (std::uint32_t& extent : field.extents) {
    extent = std::min(extent, kElements);
  }
  const ClassMap map{className.c_str(), {&field, 1}};
  int calls = 0;
  for (int failedCall = 0; failedCall <= calls; ++failedCall) {
    SCOPED_TRACE(className + '.' + field.name + ", JNI call " + std::to_string(failedCall));
    resetTestRuntime();
    MiniJvm jvm;
    jvm.failingCall = failedCall;
    jvm.intsFail = kIntsFail;
    if (built) {
      const jobject object = build(NativeCall(jvm.env()).env(), map, record.data());
      noteFailedCall(map.className + std::string(" built ") + field.name, jvm, object == nullptr);
      // A text that cannot be stored does not end a builder, nor do texts that are not stored last.
      const std::string& failed = jvm.failedFunction;
      const bool goesOn = field.kind == FieldKind::kText && failedCall > kCallsForTheObject &&
                          (field.rank == 0 || failed == "GetFieldID" || failed == "SetObjectField");
      EXPECT_EQ(object != nullptr, failedCall == 0 || goesOn);
      // A class that is missing is named by an exception that takes the place of the JVM's.
      EXPECT_TRUE(goesOn || failed == "FindClass" || jvm.callsUnderException == 0);
    } else {
      const jobject object = jvm.newInput('L' + className + ';');
      const int result = read(NativeCall(jvm.env()).env(), map, object, record.data());
      noteFailedCall(map.className + std::string(" read ") + field.name, jvm, result != 0);
      EXPECT_TRUE((result == 0) == (failedCall == 0) || isPassedOver(jvm.failedFunction));
      EXPECT_TRUE(isPassedOver(jvm.failedFunction) || jvm.callsUnderException == 0);
    }
    EXPECT_EQ(jvm.pending().has_value(), failedCall != 0);
    EXPECT_EQ(jvm.heap.misuses() + jvm.unreleased + testRuntime().liveRecords, 0);
    calls = failedCall == 0 ? jvm.fallibleCalls : calls;
  }
  totals.jniFaults += calls;
  totals.fields += 1;
}

void sweepFields(const std::string& className, const ClassMap& map) {
  for (const Field& field : map.fields) {
    if (field.kind == FieldKind::kPart) {
      sweepFields(className, *field.element);
      continue;
    }
    sweepField(className, field, true);
    const bool isBuiltOnly = field.kind == FieldKind::kBytes && field.rank == kMaxRank;
    if (!isBuiltOnly) {
      sweepField(className, field, false);
    }
  }
}

TEST(SweepOfFields, JniCallsFail) {
  for (const auto& [className, mapped] : mappedClasses()) {
    if (!className.empty()) {
      sweepFields(className, *mapped.map);
    }
  }
  for (const NativeMethod& method : nativeMethods()) {
    for (const ClassMap* const map : departureOf(method).alsoReads) {
      sweepFields(map->className, *map);
    }
  }
}

class Sweep : public ::testing::TestWithParam<NativeMethod> {
 protected:
  ~Sweep() override { resetTestRuntime(); }
  static void TearDownTestSuite();
};

TEST_P(Sweep, Succeeds) {
  const NativeMethod& method = GetParam();
  for (const Outcome& outcome : {faultless(method), withoutNul(method)}) {
    EXPECT_FALSE(outcome.pending);
    EXPECT_EQ(outcome.callsUnderException, 0);
    EXPECT_EQ(outcome.libraryCalls, 1);
    const std::string function = departureOf(method).function;
    EXPECT_EQ(outcome.function, function.empty() ? method.name : function);
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

TEST_P(Sweep, JniCallsFail) {
  const NativeMethod& method = GetParam();
  const Outcome refused = play(method, {.libraryResult = kOrdinaryCode});
  const Inputs read(method, refused);
  const bool isLarge = testRuntime().mostBytes > kLargeRecord;
  for (const int code : {0, kOrdinaryCode}) {
    Inputs inputs = read;
    const int calls = code == 0 ? faultless(method).fallibleCalls : refused.fallibleCalls;
    for (const int fault : failingOf(calls)) {
      if (code != 0 && isLarge && fault <= refused.fallibleCallsBefore) {
        continue;  // It is read in the same way, whatever the library answers.
      }
      SCOPED_TRACE("JNI call " + std::to_string(fault) + " of " + std::to_string(calls));
      const Outcome outcome = play(method, {.jniCall = fault, .libraryResult = code});
      EXPECT_TRUE(outcome.pending);
      EXPECT_TRUE(outcome.libraryCalls == 1 || departureOf(method).stopsUnread);
      EXPECT_EQ(outcome.leakedRecords, departureOf(method).neverReleased);
      if (code != 0) {
        expectRefusalValue(method, outcome, code);
      }
      if (outcome.libraryCalls == 1 && fault <= refused.fallibleCallsBefore) {
        inputs.expectAfterFault(fault, outcome);
      }
    }
  }
}

TEST_P(Sweep, EachAllocationFails) {
  const NativeMethod& method = GetParam();
  const Departure& departure = departureOf(method);
  const int allocations = faultless(method).allocations;
  for (int allocation = 1; allocation <= allocations; ++allocation) {
    SCOPED_TRACE("allocation " + std::to_string(allocation));
    const Outcome outcome = play(method, {.allocation = allocation});
    if (allocation >= departure.firstUntestedAllocation) {
      EXPECT_FALSE(outcome.pending);
      EXPECT_EQ(outcome.libraryCalls, 1);
      EXPECT_EQ(outcome.leakedRecords, departure.neverReleased);
      continue;
    }
    expectCode(outcome, departure.silentWithoutMemory ? 256 : 65535);
    expectFailureValue(method, outcome);
    EXPECT_EQ(outcome.libraryCalls, 0);
    const bool releases = method.resultKind() == 'V' || departure.releasesOnRefusal;
    EXPECT_EQ(outcome.leakedRecords,
              releases ? std::min(departure.neverReleased, allocation - 1) : allocation - 1);
  }
  // Behind them come the copies of texts that the library left without a NUL.
  const int copies = withoutNul(method).allocations - allocations;
  for (const int copy : copies == 0 ? std::set<int>{} : std::set<int>{1, copies}) {
    SCOPED_TRACE("copy " + std::to_string(copy));
    const Outcome outcome = play(method, {.allocation = allocations + copy, .output = kWithoutNul});
    // A frame throws its own exception for what cannot be built.
    ASSERT_TRUE(outcome.pending);
    const bool ended = outcome.pending->code == 2817 && outcome.result.l == nullptr;
    expectCode(outcome, ended ? 2817 : 65535);
    EXPECT_EQ(outcome.leakedRecords, departure.neverReleased);
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
    EXPECT_EQ(outcome.callsUnderExceptionBefore, 0) << "something was read behind an exception";
  }
}

void Sweep::TearDownTestSuite() {
  std::printf(
      "sweep: %d JNI faults, %d allocations refused, %d library results, %d inputs\n"
      "fields: of %d, built or read alone, each JNI call failed\n"
      "stack: at most %td bytes, in %s\n",
      totals.jniFaults, totals.allocations, totals.libraryResults, totals.inputs, totals.fields,
      totals.stack, totals.deepest.c_str());
  if (const char* const file = std::getenv("QUORVELJ_OUTCOMES")) {
    std::ofstream outcomes(file);
    for (const std::string& outcome : outcomesOfFailedCalls) {
      outcomes << outcome << '\n';
    }
  }
}

INSTANTIATE_TEST_SUITE_P(NativeMethods, Sweep,
                         ::testing::ValuesIn(nativeMethods().begin(), nativeMethods().end()),
                         [](const auto& parameter) { return parameter.param.name; });

}  // namespace
}  // namespace quorvelj::testing
