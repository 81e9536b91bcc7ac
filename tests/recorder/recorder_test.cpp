// The recorder over functions of the test's own in place of the real library's.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

#include "arraylib/accounts.h"
#include "arraylib/performance.h"
#include "arraylib/units.h"
#include "recorder/library.h"
#include "recorder/recording.h"
#include "recorder/replay.h"

namespace recorder {
namespace {

template <auto kFunction>
Function functionOf(const char* name) {
  return Known<kFunction>::function(name);
}
#define FUNCTION(name) functionOf<&name>(#name)

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A new file: one that is written anew goes to the disk at once.
void write(const std::string& path, const std::string& content) {
  std::remove(path.c_str());
  std::ofstream(path, std::ios::binary) << content;
}

template <class Real>
void* asReal(Real* real) {
  return reinterpret_cast<void*>(real);
}

/// The arguments of a call that takes a unit, a session and one record.
template <class Record>
struct Arguments {
  UnitName unit = "north";
  QVSessionInfo session{};
  Record record{};
  void* values[4] = {&unit, &session, &record, nullptr};
};

class Recorder : public ::testing::Test {
 protected:
  Recorder() { std::remove(path_.c_str()); }
  ~Recorder() override { std::remove(path_.c_str()); }

  const std::string path_ =
      ::testing::UnitTest::GetInstance()->current_test_info()->name() + std::string(".recording");
};

// What is written into an output

/// Writes bytes of 0x11 from `first` up to `end` into a threshold of 56 bytes.
int firstWritten = 0;
int endWritten = 0;
int writeThreshold(const UnitName*, const QVSessionInfo*, Threshold* threshold) {
  std::memset(reinterpret_cast<char*>(threshold) + firstWritten, 0x11,
              static_cast<std::size_t>(endWritten - firstWritten));
  return 0;
}

TEST_F(Recorder, MeasuresWhatIsWritten) {
  struct Row {
    int first;
    int end;
    std::string recorded;  // role, bytes, bytes behind
  };
  for (const Row& row : {
           Row{0, 56, "023800"},
           Row{0, 60, "023804"},
           Row{0, 52, "023800"},
           Row{4, 60, "023804"},
           Row{0, 56 + 65536, "0238808004"},
       }) {
    SCOPED_TRACE(std::to_string(row.first) + " to " + std::to_string(row.end));
    std::remove(path_.c_str());
    firstWritten = row.first;
    endWritten = row.end;
    Arguments<Threshold> arguments;
    std::memset(&arguments.record, 0x22, sizeof arguments.record);
    {
      Recording recording(path_);
      EXPECT_EQ(
          recording.call(FUNCTION(QV_GetThreshold), asReal(&writeThreshold), arguments.values), 0);
    }
    std::string expected(56, '\x22');
    for (int at = row.first; at < std::min(row.end, 56); ++at) {
      expected[static_cast<std::size_t>(at)] = '\x11';
    }
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&arguments.record), 56), expected);

    // The same from the recording: what was not written stays as it is.
    Arguments<Threshold> replayed;
    std::memset(&replayed.record, 0x22, sizeof replayed.record);
    EXPECT_EQ(Replay(path_).call(FUNCTION(QV_GetThreshold), replayed.values), 0);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&replayed.record), 56), expected);

    std::ostringstream hex;
    const std::string content = contentOf(path_);
    for (const char byte : content) {
      char digits[3];
      std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(byte));
      hex << digits;
    }
    EXPECT_NE(hex.str().find(row.recorded + "00"), std::string::npos) << hex.str();
  }
}

int fillUnits(std::int32_t count, QVUnitParam* table) {
  for (int index = 0; index < count; ++index) {
    table[index] = QVUnitParam{};
    table[index].unit_conf = static_cast<std::uint8_t>(index + 1);
  }
  return 0;
}

TEST_F(Recorder, HandsBackAsManyRecordsAsWereAskedFor) {
  std::int32_t count = 3;
  QVUnitParam table[4];
  std::memset(&table[3], 0x22, sizeof table[3]);
  void* values[] = {&count, table, nullptr};
  Recording recording(path_);
  EXPECT_EQ(recording.call(FUNCTION(QV_GetUnitParamTable), asReal(&fillUnits), values), 0);
  EXPECT_EQ(table[2].unit_conf, 3);
  EXPECT_EQ(table[3].unit_conf, 0x22);
}

// Secrets

int openSession(const UnitName*, const LoginRequest*, QVSessionInfo* session) {
  std::memcpy(session->session_id, "0123456789abcdef0123456789abcdef", 32);
  return 0;
}
int succeed(const UnitName*, const QVSessionInfo*, const Threshold*) { return 0; }

TEST_F(Recorder, PutsTokensInThePlaceOfSecrets) {
  Recording recording(path_);
  UnitName unit = "north";
  LoginRequest request{"admin", "pass\0older", 0, ""};
  QVSessionInfo session{};
  void* login[] = {&unit, &request, &session, nullptr};
  recording.call(FUNCTION(QV_LoginQVAccount), asReal(&openSession), login);
  EXPECT_EQ(std::memcmp(session.session_id, "0123456789abcdef0123456789abcdef", 32), 0);
  Arguments<Threshold> arguments;
  arguments.session = session;
  // What is not set is memory that others had.
  std::memcpy(&arguments.record, "rest of pass and more", 22);
  recording.call(FUNCTION(QV_SetThreshold), asReal(&succeed), arguments.values);
  const std::string content = contentOf(path_);
  for (const char* const secret : {"pass", "older", "0123456789abcdef"}) {
    EXPECT_EQ(content.find(secret), std::string::npos) << secret;
  }
  for (const char* const kept : {"admin", "secret-1", "secret-2", "rest of secr"}) {
    EXPECT_NE(content.find(kept), std::string::npos) << kept;
  }
}

// Answers

int counted = 0;
int countUp(const UnitName*, const QVSessionInfo*, Threshold* threshold) {
  *threshold = Threshold{};
  threshold->mechanical_recover = ++counted;
  return counted == 3 ? 4711 : 0;
}

/// Three calls on "north" and one on "south".
void recordFourCalls(const std::string& path) {
  Recording recording(path);
  counted = 0;
  for (const char* const unit : {"north", "north", "north", "south"}) {
    Arguments<Threshold> arguments;
    std::strcpy(arguments.unit, unit);
    recording.call(FUNCTION(QV_GetThreshold), asReal(&countUp), arguments.values);
  }
}

TEST_F(Recorder, AnswersInTheOrderOfTheRecording) {
  recordFourCalls(path_);
  Replay replay(path_);
  const auto ask = [&](const char* unit) {
    Arguments<Threshold> arguments;
    std::strcpy(arguments.unit, unit);
    // Behind the NUL of a text may be anything.
    std::memset(arguments.unit + 10, 'x', 40);
    const int result = replay.call(FUNCTION(QV_GetThreshold), arguments.values);
    return std::to_string(result) + ' ' + std::to_string(arguments.record.mechanical_recover);
  };
  EXPECT_EQ(ask("south"), "0 4");
  for (const char* const expected : {"0 1", "0 2", "4711 3", "4711 3"}) {
    EXPECT_EQ(ask("north"), expected);
  }
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(ask("east"), "29002 0");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            "quorvel recorder: QV_GetThreshold was not recorded with these arguments; the nearest "
            "is call 1, where argument 1 has at byte 0 \"north\" instead of \"east\"\n");
}

TEST_F(Recorder, KnowsOneSessionFromAnother) {
  {
    Recording recording(path_);
    counted = 0;
    for (const char id : {'a', 'b'}) {
      Arguments<Threshold> arguments;
      std::memset(arguments.session.session_id, id, 32);
      recording.call(FUNCTION(QV_GetThreshold), asReal(&countUp), arguments.values);
    }
  }
  Replay replay(path_);
  const auto ask = [&](char id) {
    Arguments<Threshold> arguments;
    std::memset(arguments.session.session_id, id, 32);
    replay.call(FUNCTION(QV_GetThreshold), arguments.values);
    return arguments.record.mechanical_recover;
  };
  EXPECT_EQ(ask('x'), 1);
  EXPECT_EQ(ask('y'), 2);
  EXPECT_EQ(ask('x'), 1);
  EXPECT_EQ(ask('y'), 2);
}

TEST_F(Recorder, EndsWithWhatADamagedFileHas) {
  recordFourCalls(path_);
  const std::string whole = contentOf(path_);
  std::mt19937 random(1);
  const auto below = [&](std::size_t end) { return random() % end; };
  int answered = 0;
  ::testing::internal::CaptureStderr();
#ifdef _WIN32
  constexpr int kFiles = 1'000;  // Wine opens files slowly.
#else
  constexpr int kFiles = 10'000;
#endif
  for (int file = 0; file < kFiles; ++file) {
    std::string content = whole.substr(0, file % 3 == 0 ? below(whole.size()) : whole.size());
    for (std::size_t change = below(4); change > 0 && !content.empty(); --change) {
      content[below(content.size())] = static_cast<char>(random());
    }
    // With sums that are right, what is inside is looked at.
    for (std::size_t at = kHeaderBytes; file % 2 == 0 && at + kEntryBytes <= content.size();) {
      const auto length = static_cast<std::size_t>(Reader(&content[at], 4).fixed(4)) %
                          (content.size() - at - kEntryBytes + 1);
      std::string head;
      putFixed(head, length, 4);
      putFixed(head, checksum(&content[at] + kEntryBytes, length), 4);
      content.replace(at, kEntryBytes, head);
      at += kEntryBytes + length;
    }
    write(path_, content);
    Replay replay(path_);
    for (int call = 0; call < 5; ++call) {
      Arguments<Threshold> arguments;
      answered += replay.call(FUNCTION(QV_GetThreshold), arguments.values) == 0 ? 1 : 0;
    }
  }
  const std::string lines = ::testing::internal::GetCapturedStderr();
  for (const char* const line :
       {" is no recording\n", " ends inside an entry at byte ", " is damaged at byte ",
        " has the version ", " is not one of QV_GetThreshold as this library declares it\n"}) {
    EXPECT_NE(lines.find(line), std::string::npos) << line;
  }
  EXPECT_GT(answered, kFiles);
}

// Under load

int echo(const UnitName* unit, const QVSessionInfo*, Threshold* threshold) {
  *threshold = Threshold{};
  threshold->mechanical_recover = std::atoi(*unit);
  return 0;
}

/// Calls from sixteen threads, each with a unit of its own, `calls` times or for ever.
void load(const std::string& path, int calls) {
  Recording recording(path);
  std::vector<std::thread> threads;
  for (int number = 1; number <= 16; ++number) {
    threads.emplace_back([&recording, number, calls] {
      for (int call = 0; call != calls; ++call) {
        Arguments<Threshold> arguments;
        std::snprintf(arguments.unit, sizeof arguments.unit, "%d", number);
        recording.call(FUNCTION(QV_GetThreshold), asReal(&echo), arguments.values);
        EXPECT_EQ(arguments.record.mechanical_recover, number);
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
}

TEST_F(Recorder, TakesCallsFromManyThreads) {
  load(path_, 100);
  Replay replay(path_);
  ::testing::internal::CaptureStderr();
  for (int number = 1; number <= 16; ++number) {
    Arguments<Threshold> arguments;
    std::snprintf(arguments.unit, sizeof arguments.unit, "%d", number);
    EXPECT_EQ(replay.call(FUNCTION(QV_GetThreshold), arguments.values), 0);
    EXPECT_EQ(arguments.record.mechanical_recover, number);
  }
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

#ifndef _WIN32
TEST_F(Recorder, LeavesWholeEntriesWhenItIsKilled) {
  std::mt19937 random(1);
  std::size_t longest = 0;
  for (int round = 0; round < 100; ++round) {
    std::remove(path_.c_str());
    const pid_t child = fork();
    if (child == 0) {
      load(path_, -1);
      _exit(0);
    }
    usleep(static_cast<unsigned>(1000 + random() % 100'000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string content = contentOf(path_);
    std::size_t at = kHeaderBytes;
    while (at + kEntryBytes <= content.size()) {
      Reader head(&content[at], kEntryBytes);
      const auto length = static_cast<std::size_t>(head.fixed(4));
      const auto sum = static_cast<std::uint32_t>(head.fixed(4));
      if (length > content.size() - at - kEntryBytes) {
        break;
      }
      ASSERT_EQ(sum, checksum(&content[at] + kEntryBytes, length)) << "at byte " << at;
      at += kEntryBytes + length;
    }
    longest = std::max(longest, at);
  }
  EXPECT_GT(longest, 10'000U);
}

TEST_F(Recorder, StopsWhenTheDiskIsFull) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit small = before;
  small.rlim_cur = 1000;
  Recording recording(path_);
  ::testing::internal::CaptureStderr();
  setrlimit(RLIMIT_FSIZE, &small);
  counted = 3;
  for (int call = 0; call < 100; ++call) {
    Arguments<Threshold> arguments;
    EXPECT_EQ(recording.call(FUNCTION(QV_GetThreshold), asReal(&countUp), arguments.values), 0);
    EXPECT_EQ(arguments.record.mechanical_recover, 4 + call);
  }
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            "quorvel recorder: the recording ends here: File too large\n");
  EXPECT_FALSE(recording.isOpen());
}
#endif

}  // namespace
}  // namespace recorder
