// Compares the ways to the same Java objects, side by side: the bridge, its variant that looks each
// class and field up once a native call, the same JNI calls written out by hand, by name and with
// identifiers kept for the whole process, and JNA's structures.
//
// Usage: ways [--quick] [--only CALL] [FILE]
//
// A round takes each way once, in an order that rotates; a repetition has enough rounds for a
// median. The heap is collected before each stretch that is timed, and a stretch in which it was
// collected is measured again. What is timed is the thread's processor time, which on a quiet
// machine is the time that passes. A call is repeated until its ratios in three repetitions agree.
//
// FILE gets the figures, words separated by tabs; scripts/chart.py draws them. The exit code is 1
// where a ratio misses what it must reach, or did not come to rest. --quick checks that the ways
// make the same JNI calls, and nothing else.
#include <dlfcn.h>
#include <jni.h>
#include <jvmti.h>
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "arraylib/all_information.h"
#include "arraylib/performance.h"
#include "benchmarks/jni_counter.h"
#include "benchmarks/machine.h"
#include "benchmarks/written_out.h"

#define EXPORTED "Java_tessaly_str_diskarray_DiskArrayUtilityJNI_"

namespace {

enum Way { kByName, kCached, kByHand, kKeptByHand, kJna, kWays };
constexpr const char* kWayNames[kWays] = {"by name", "cached", "by hand", "by hand, kept", "JNA"};

/// What the time of one way may be at most, as a part of another's.
struct Target {
  Way way;
  Way other;
  double most;
};

constexpr double kAgreement = 1.02;
constexpr std::size_t kAgreeing = 3;
constexpr std::size_t kMostRepetitions = 12;

/// One call of the comparison.
struct Row {
  explicit Row(const char* function) : call(function) {}

  const char* call;
  /// How many calls a timed stretch has, and how many rounds a repetition.
  int batch = 1;
  int rounds = 1;
  std::vector<Target> targets;
  std::function<void()> ways[kWays];

  long jniCalls[kWays] = {};
  /// Milliseconds of each way in each repetition, and the ratio of each target.
  std::vector<double> times[kWays];
  std::vector<std::vector<double>> ratios;
};

[[noreturn]] void fail(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::vfprintf(stderr, format, arguments);
  va_end(arguments);
  std::fputc('\n', stderr);
  std::exit(1);
}

// Measuring

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// The latest `kAgreeing` of a list.
std::vector<double> latest(const std::vector<double>& values) {
  const auto count = static_cast<std::ptrdiff_t>(std::min(values.size(), kAgreeing));
  return {values.end() - count, values.end()};
}

/// By what factor the latest repetitions differ.
double spread(const std::vector<double>& values) {
  const std::vector<double> some = latest(values);
  const auto [least, most] = std::minmax_element(some.begin(), some.end());
  return *most / *least;
}

double milliseconds(clockid_t clock) {
  timespec now;
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

class Measurement {
 public:
  explicit Measurement(JNIEnv* env) {
    JavaVM* machine = nullptr;
    env->GetJavaVM(&machine);
    jvmtiCapabilities capabilities{};
    capabilities.can_generate_garbage_collection_events = 1;
    jvmtiEventCallbacks callbacks{};
    callbacks.GarbageCollectionStart = [](jvmtiEnv*) { collections_ = collections_ + 1; };
    if (machine->GetEnv(reinterpret_cast<void**>(&tools_), JVMTI_VERSION_1_2) != JNI_OK ||
        tools_->AddCapabilities(&capabilities) != JVMTI_ERROR_NONE ||
        tools_->SetEventCallbacks(&callbacks, sizeof callbacks) != JVMTI_ERROR_NONE ||
        tools_->SetEventNotificationMode(JVMTI_ENABLE, JVMTI_EVENT_GARBAGE_COLLECTION_START,
                                         nullptr) != JVMTI_ERROR_NONE) {
      fail("the machine does not tell of its collections");
    }
  }

  /// Takes each way of a row once in each round.
  void repeat(Row& row) {
    std::vector<double> times[kWays];
    for (int round = 0; round < row.rounds; ++round) {
      for (int turn = 0; turn < kWays; ++turn) {
        const int way = (round + turn) % kWays;
        if (row.ways[way] != nullptr) {
          times[way].push_back(time(row, row.ways[way]));
        }
      }
    }
    for (int way = 0; way < kWays; ++way) {
      if (row.ways[way] != nullptr) {
        row.times[way].push_back(median(times[way]));
      }
    }
    row.ratios.resize(row.targets.size());
    for (std::size_t index = 0; index < row.targets.size(); ++index) {
      // Of the same round: what changes slowly meets both.
      std::vector<double> ratios(times[row.targets[index].way]);
      std::transform(ratios.begin(), ratios.end(), times[row.targets[index].other].begin(),
                     ratios.begin(), std::divides<>{});
      row.ratios[index].push_back(median(ratios));
    }
  }

  /// Stretches that were measured again, and by what factor the measured ones lasted longer than
  /// the thread worked.
  [[nodiscard]] int thrownAway() const { return thrownAway_; }
  [[nodiscard]] double waiting() const { return passed_ / worked_; }

 private:
  double time(const Row& row, const std::function<void()>& way) {
    for (int attempt = 0; attempt < 5; ++attempt) {
      tools_->ForceGarbageCollection();
      const int before = collections_;
      const double clock = milliseconds(CLOCK_MONOTONIC);
      const double start = milliseconds(CLOCK_THREAD_CPUTIME_ID);
      for (int index = 0; index < row.batch; ++index) {
        way();
      }
      const double worked = milliseconds(CLOCK_THREAD_CPUTIME_ID) - start;
      const double passed = milliseconds(CLOCK_MONOTONIC) - clock;
      if (collections_ == before) {
        worked_ += worked;
        passed_ += passed;
        return worked / row.batch;
      }
      ++thrownAway_;
    }
    fail("%s: every stretch has a collection in it", row.call);
  }

  inline static volatile int collections_ = 0;
  jvmtiEnv* tools_ = nullptr;
  int thrownAway_ = 0;
  double worked_ = 0;
  double passed_ = 0;
};

bool agrees(const Row& row) {
  return std::all_of(row.ratios.begin(), row.ratios.end(), [](const std::vector<double>& values) {
    return values.size() >= kAgreeing && spread(values) <= kAgreement;
  });
}

/// Counts the JNI calls of each way; those by hand must be those of the bridge.
void countCalls(JNIEnv* env, Row& row) {
  // The first call loads the classes, for which the machine makes JNI calls of its own.
  row.ways[kByName]();
  JniCounts counts[kWays];
  for (const Way way : {kByName, kCached, kByHand, kKeptByHand}) {
    if (row.ways[way] != nullptr) {
      counts[way] = countJni(env, row.ways[way]);
      row.jniCalls[way] = counts[way].total();
    }
  }
  if (!counts[kByName].isSame(counts[kByHand])) {
    fail("%s: by hand is not the same JNI calls as by name: %ld, %ld", row.call,
         row.jniCalls[kByHand], row.jniCalls[kByName]);
  }
  if (row.ways[kCached] != nullptr && !counts[kCached].isSameButForLookUps(counts[kKeptByHand])) {
    fail("%s: by hand with identifiers kept is not the JNI calls of the cached variant: %ld, %ld",
         row.call, row.jniCalls[kKeptByHand], row.jniCalls[kCached]);
  }
}

// The bridge

/// A library that is loaded beside others of its name.
class Bridge {
 public:
  explicit Bridge(const char* path) : library_(dlopen(path, RTLD_NOW | RTLD_LOCAL)) {
    if (library_ == nullptr) {
      fail("%s", dlerror());
    }
  }

  template <class Function>
  Function* method(const char* name) const {
    auto* const found = reinterpret_cast<Function*>(dlsym(library_, name));
    if (found == nullptr) {
      fail("%s", dlerror());
    }
    return found;
  }

 private:
  void* library_;
};

using QueryMethod = jobject(JNIEnv*, jobject, jstring, jobject);
using OutputMethod = void(JNIEnv*, jobject, jstring, jobject);

// By hand: the same calls without the bridge's frames and maps.

void copyName(JNIEnv* env, jstring text, UnitName& name) {
  name[0] = '\0';
  if (env->GetStringUTFLength(text) > 0) {
    const char* const characters = env->GetStringUTFChars(text, nullptr);
    std::snprintf(name, sizeof name, "%s", characters);
    env->ReleaseStringUTFChars(text, characters);
  }
}

template <class Record>
Record* allocateRecord() {
  auto* const record = static_cast<Record*>(std::malloc(sizeof(Record)));
  if (record == nullptr) {
    fail("no memory");
  }
  return record;
}

/// A query whose session is null in Java.
template <class Output, class Build>
jobject queryByHand(JNIEnv* env, jstring unit,
                    int (*function)(const UnitName*, const QVSessionInfo*, Output*), Build build) {
  std::fflush(stdout);
  UnitName name;
  copyName(env, unit, name);
  auto* const session = allocateRecord<QVSessionInfo>();
  auto* const output = allocateRecord<Output>();
  const int result = function(&name, session, output);
  std::free(session);
  const jobject object = result == 0 ? build(env, *output) : nullptr;
  std::free(output);
  std::fflush(stdout);
  return object;
}

/// The fields of a request that are read into records of their own.
template <class Field>
struct RequestFields {
  Field filename;
  Field snapshots[4];
};

template <class Field, class ReadRequest, class ReadSnapshot>
void outputByHand(JNIEnv* env, jstring unit, jobject request, const RequestFields<Field>& fields,
                  ReadRequest readRequest, ReadSnapshot readSnapshot) {
  std::fflush(stdout);
  UnitName name;
  copyName(env, unit, name);
  PerformanceOutputFile file;
  written_out::getText(env, request, fields.filename, file.filename);
  auto* const options = allocateRecord<PerformanceOutputAllRequest>();
  PerformanceAll* snapshots[4];
  for (PerformanceAll*& snapshot : snapshots) {
    snapshot = allocateRecord<PerformanceAll>();
  }
  readRequest(env, request, *options);
  for (std::size_t index = 0; index < std::size(snapshots); ++index) {
    written_out::getRecord(env, request, fields.snapshots[index], *snapshots[index], readSnapshot);
  }
  const int result = QV_PerformanceOutputAll(&name, &file, options, snapshots[0], snapshots[1],
                                             snapshots[2], snapshots[3]);
  std::free(options);
  for (PerformanceAll* const snapshot : snapshots) {
    std::free(snapshot);
  }
  if (result == 0) {
    std::fflush(stdout);
  }
}

// JNA

/// Reads the output of a query into JNA's structures.
std::function<void()> queryByJna([[maybe_unused]] JNIEnv* env, [[maybe_unused]] const char* call,
                                 [[maybe_unused]] const char* record, [[maybe_unused]] jint count) {
#ifdef QUORVELJ_JNA
  const jclass type = env->FindClass("quorvelj/benchmarks/JnaQuery");
  const jmethodID constructor = env->GetMethodID(
      type, "<init>", "(Ljava/lang/String;Ljava/lang/String;Ljava/lang/String;I)V");
  const jmethodID method = env->GetMethodID(type, "call", "()Ljava/lang/Object;");
  const jobject query =
      env->NewGlobalRef(env->NewObject(type, constructor, env->NewStringUTF(QUORVELJ_SIMULATOR),
                                       env->NewStringUTF(call), env->NewStringUTF(record), count));
  if (query == nullptr) {
    env->ExceptionDescribe();
    fail("%s: JNA cannot express it", call);
  }
  return [env, query, method] { release(env, env->CallObjectMethod(query, method)); };
#else
  return nullptr;
#endif
}

// The rows

/// A unit's name and the bridges, for the rows.
struct Stage {
  JNIEnv* env;
  jstring unit;
  Bridge product{QUORVELJ_LIBRARY};
#ifdef QUORVELJ_CACHED_LIBRARY
  Bridge cached{QUORVELJ_CACHED_LIBRARY};
#endif

  template <class Output, class ByName, class Kept>
  Row query(const char* call, int (*function)(const UnitName*, const QVSessionInfo*, Output*),
            ByName byName, Kept kept) const {
    Row row(call);
    prepare<Output>(call);
    const std::string exported = std::string(EXPORTED "QV_1") + (call + 3);
    const auto bridge = [this, &exported](const Bridge& library) {
      const auto method = library.method<QueryMethod>(exported.c_str());
      return [this, method] { release(env, method(env, nullptr, unit, nullptr)); };
    };
    row.ways[kByName] = bridge(product);
#ifdef QUORVELJ_CACHED_LIBRARY
    row.ways[kCached] = bridge(cached);
#endif
    row.ways[kByHand] = [this, function, byName] {
      release(env, queryByHand(env, unit, function, byName));
    };
    row.ways[kKeptByHand] = [this, function, kept] {
      release(env, queryByHand(env, unit, function, kept));
    };
    return row;
  }

  Row output() const;
};

Row Stage::output() const {
  namespace by_name = written_out::by_name;
  namespace kept = written_out::kept;
  using written_out::Name;
  static constexpr char kSnapshot[] = "Ltessaly/str/diskarray/PerformanceAll;";
  const RequestFields<Name> names{{"filename", "Ljava/lang/String;"},
                                  {{"preinfo0", kSnapshot},
                                   {"afterinfo0", kSnapshot},
                                   {"preinfo1", kSnapshot},
                                   {"afterinfo1", kSnapshot}}};
  const auto id = [this](Name name) {
    return written_out::keepField(env, kept::classOfPerformanceOutputAllRequest, name.text,
                                  name.signature);
  };
  const RequestFields<jfieldID> ids{id(names.filename),
                                    {id(names.snapshots[0]), id(names.snapshots[1]),
                                     id(names.snapshots[2]), id(names.snapshots[3])}};
  const jobject request = written_out::newObject(env, kept::classOfPerformanceOutputAllRequest);
  const auto counters = std::make_unique<PerformanceAll>();
  for (const jfieldID snapshot : ids.snapshots) {
    written_out::setObject(env, request, snapshot, kept::buildPerformanceAll(env, *counters));
  }
  quorvelSimPrepareOutput("QV_PerformanceOutputAll", "", 1);

  Row row("QV_PerformanceOutputAll");
  const auto bridge = [this, request](const Bridge& library) {
    const auto method = library.method<OutputMethod>(EXPORTED "QV_1PerformanceOutputAll");
    return [this, request, method] { method(env, nullptr, unit, request); };
  };
  row.ways[kByName] = bridge(product);
#ifdef QUORVELJ_CACHED_LIBRARY
  row.ways[kCached] = bridge(cached);
#endif
  row.ways[kByHand] = [this, request, names] {
    outputByHand(env, unit, request, names, by_name::readPerformanceOutputAllRequest,
                 by_name::readPerformanceAll);
  };
  row.ways[kKeptByHand] = [this, request, ids] {
    outputByHand(env, unit, request, ids, kept::readPerformanceOutputAllRequest,
                 kept::readPerformanceAll);
  };
  return row;
}

/// The list of all logical units, whose elements are stored without a look at exceptions.
template <class Class, class Build>
jobject listByHand(JNIEnv* env, const LogicalUnit (&list)[8192], Class type, Build build) {
  const jobjectArray array = written_out::newArray(env, type, std::size(list));
  jsize index = 0;
  for (const LogicalUnit& unit : list) {
    const jobject element = array == nullptr ? nullptr : build(env, unit);
    if (element == nullptr) {
      break;
    }
    env->SetObjectArrayElement(array, index++, element);
    env->DeleteLocalRef(element);
  }
  return array;
}

jobject listByName(JNIEnv* env, const LogicalUnit (&list)[8192]) {
  return listByHand(env, list, "tessaly/str/diskarray/LogicalUnit",
                    written_out::by_name::buildLogicalUnit);
}

jobject listByKept(JNIEnv* env, const LogicalUnit (&list)[8192]) {
  return listByHand(env, list, written_out::kept::classOfLogicalUnit.type,
                    written_out::kept::buildLogicalUnit);
}

std::vector<Row> makeRows(const Stage& stage, bool quick) {
  namespace by_name = written_out::by_name;
  namespace kept = written_out::kept;
  std::vector<Row> rows;
  const auto add = [&](Row row, int batch, int rounds, std::vector<Target> targets,
                       const char* record = nullptr, jint count = 0) {
    row.batch = batch;
    row.rounds = rounds;
    if (record != nullptr && !quick) {
      row.ways[kJna] = queryByJna(stage.env, row.call, record, count);
    }
    std::erase_if(targets, [&row](const Target& target) {
      return row.ways[target.way] == nullptr || row.ways[target.other] == nullptr;
    });
    row.targets = targets;
    rows.push_back(row);
  };
  constexpr Target kContract{kByName, kByHand, 1.03};
  constexpr Target kFloor{kCached, kKeptByHand, 1.10};
  constexpr Target kPeer{kCached, kJna, 1.0};
  add(stage.query("QV_GetLogicalUnit", QV_GetLogicalUnit, listByName, listByKept), 5, 15,
      {kContract, {kCached, kByName, 1.0 / 9}, kFloor, kPeer}, "LogicalUnit", 8192);
  add(stage.query("QV_GetPairInformation", QV_GetPairInformation, by_name::buildPairInfo,
                  kept::buildPairInfo),
      1, 5, {kContract, {kCached, kByName, 1.0 / 5}, kFloor, kPeer}, "PairInfo", 1);
  add(stage.query("QV_GetAllInformation", QV_GetAllInformation, by_name::buildArrayAllInformation,
                  kept::buildArrayAllInformation),
      1, 5, {kContract, {kCached, kByName, 1.0 / 5}, kFloor, kPeer}, "ArrayAllInformation", 1);
  add(stage.output(), 1, 15, {kContract, {kCached, kByName, 1.0 / 4}, kFloor});
  add(stage.query("QV_GetThreshold", QV_GetThreshold, by_name::buildThreshold,
                  kept::buildThreshold),
      5000, 15, {kContract, {kCached, kByName, 1.0}});
  return rows;
}

// Telling

/// Where figures go to for programs; null for nowhere.
void tell(std::ofstream& file, const Row& row) {
  for (int way = 0; way < kWays; ++way) {
    if (!row.times[way].empty()) {
      file << "time\t" << row.call << '\t' << kWayNames[way] << '\t'
           << median(latest(row.times[way])) << '\t' << spread(row.times[way]) << '\t'
           << row.jniCalls[way] << '\n';
    }
  }
  for (std::size_t index = 0; index < row.targets.size(); ++index) {
    const Target& target = row.targets[index];
    file << "ratio\t" << row.call << '\t' << kWayNames[target.way] << '\t'
         << kWayNames[target.other] << '\t' << median(latest(row.ratios[index])) << '\t'
         << spread(row.ratios[index]) << '\t' << target.most << '\n';
  }
}

/// Prints a row, and returns whether it reaches what it must.
bool print(const Row& row) {
  std::printf("\n%s, %zu repetitions\n", row.call, row.times[kByName].size());
  for (int way = 0; way < kWays; ++way) {
    if (row.times[way].empty()) {
      std::printf("  %-14s          -\n", kWayNames[way]);
      continue;
    }
    std::printf("  %-14s %10.4f ms +-%4.1f %%", kWayNames[way], median(latest(row.times[way])),
                (spread(row.times[way]) - 1) * 50);
    std::printf(way == kJna ? "\n" : "  %10ld JNI calls\n", row.jniCalls[way]);
  }
  bool reached = true;
  for (std::size_t index = 0; index < row.targets.size(); ++index) {
    const Target& target = row.targets[index];
    const double ratio = median(latest(row.ratios[index]));
    const double difference = spread(row.ratios[index]);
    const bool misses = ratio > target.most;
    const bool rests = difference <= kAgreement;
    std::printf("  %s / %s: %.3f, spread %.1f %%, at most %.3f%s%s\n", kWayNames[target.way],
                kWayNames[target.other], ratio, (difference - 1) * 100, target.most,
                misses ? "  MISSED" : "", rests ? "" : "  NOT AT REST");
    reached = reached && !misses && rests;
  }
  return reached;
}

std::string lineOf(const char* path, std::string_view beginning) {
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(beginning)) {
      return line.substr(line.find(": ") + 2);
    }
  }
  return "?";
}

}  // namespace

int main(int count, char** arguments) {
  bool quick = false;
  const char* only = "";
  const char* path = nullptr;
  for (int index = 1; index < count; ++index) {
    const std::string_view argument = arguments[index];
    if (argument == "--quick") {
      quick = true;
    } else if (argument == "--only" && index + 1 < count) {
      only = arguments[++index];
    } else {
      path = arguments[index];
    }
  }
  // What a call has allocated stays with the process: no way meets pages that are new to it.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, -1);
  // Every stretch fits into the young generation.
  JNIEnv* const env = startMachine(
      QUORVELJ_CLASS_PATH,
      quick ? std::vector<std::string>{"-Xmx1g", "-XX:-AlwaysPreTouch"}
            : std::vector<std::string>{"-Xms6g", "-Xmx6g", "-Xmn5g", "-XX:+UseSerialGC"});
  written_out::kept::lookUp(env);
  const Stage stage{env, env->NewStringUTF("unit")};
  std::vector<Row> rows = makeRows(stage, quick);
  std::erase_if(rows, [only](const Row& row) {
    return std::string_view(row.call).find(only) == std::string_view::npos;
  });
  for (Row& row : rows) {
    countCalls(env, row);
  }
  if (quick) {
    std::puts("ways: the same JNI calls");
    return 0;
  }

  Measurement measurement(env);
  // The first round is for the compilers of the machine.
  for (Row& row : rows) {
    Row warm = row;
    warm.rounds = 2;
    measurement.repeat(warm);
  }
  for (std::size_t repetition = 0; repetition < kMostRepetitions; ++repetition) {
    for (Row& row : rows) {
      if (!agrees(row) || row.ratios.empty()) {
        measurement.repeat(row);
      }
    }
  }
  bool reached = true;
  for (const Row& row : rows) {
    reached = print(row) && reached;
  }
  std::printf("\n%d stretches measured again; the clock went %.1f %% further than the work\n",
              measurement.thrownAway(), (measurement.waiting() - 1) * 100);
  if (path != nullptr) {
    std::ofstream file(path);
    file << "machine\t" << lineOf("/proc/cpuinfo", "model name") << '\n';
    for (const Row& row : rows) {
      tell(file, row);
    }
    if (!file.flush()) {
      fail("%s cannot be written", path);
    }
  }
  return reached ? 0 : 1;
}
