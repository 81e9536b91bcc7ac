#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "simulator/control.h"
#include "tests/support/real_jvm.h"

namespace quorvelj::testing {
namespace {

using Kind = Member::Kind;

/// Says at the end how much was compared.
class Compared : public ::testing::Environment {
 public:
  void TearDown() override { std::printf("records: %d values compared\n", values); }
  int values = 0;
};

Compared& compared() {
  static auto* const environment = new Compared;
  return *environment;
}

const auto* const kCompared = ::testing::AddGlobalTestEnvironment(&compared());

/// The fields that native code looked up during a call, in order; their names are the bridge's own
/// constants. The look-up is swapped in the thread's JNI function table for as long.
class FieldLog {
 public:
  FieldLog() : own_(*realJvm()->functions), original_(realJvm()->functions) {
    names().clear();
    lookUp() = own_.GetFieldID;
    own_.GetFieldID = &logged;
    realJvm()->functions = &own_;
  }
  ~FieldLog() { realJvm()->functions = original_; }
  FieldLog(const FieldLog&) = delete;
  FieldLog& operator=(const FieldLog&) = delete;

  static std::vector<const char*>& names() {
    static std::vector<const char*> looked;
    return looked;
  }

 private:
  using LookUp = decltype(JNINativeInterface_::GetFieldID);
  static LookUp& lookUp() {
    static LookUp original = nullptr;
    return original;
  }
  static jfieldID JNICALL logged(JNIEnv* env, jclass type, const char* name,
                                 const char* signature) {
    names().emplace_back(name);
    return lookUp()(env, type, name, signature);
  }

  JNINativeInterface_ own_;
  const JNINativeInterface_* original_;
};

/// "server[1].", the path of the object that holds a member.
std::string holderOf(const Member& member) {
  return member.path.substr(0, member.path.rfind('.') + 1);
}

/// Whether nothing comes between two members: ints that follow one another in an object.
bool adjacent(const Member& left, const Member& right) {
  return left.kind == Kind::kInt32 && right.kind == Kind::kInt32 &&
         left.offset + 4 == right.offset && holderOf(left) == holderOf(right) &&
         left.path.back() != ']' && right.path.back() != ']';
}

/// Expects the members' fields in the order of their list: adjacent ones without a gap, others with
/// other fields between them or not.
void expectOrder(const std::vector<Member>& members) {
  auto at = FieldLog::names().begin();
  for (std::size_t first = 0, end = 0; first < members.size(); first = end) {
    std::vector<std::string> run;
    do {
      const std::string name = members[end].path.substr(holderOf(members[end]).size());
      run.push_back(name.substr(0, name.find('[')));
    } while (++end < members.size() && adjacent(members[end - 1], members[end]));
    // Elements of one array are looked up once, as their array.
    if (at != FieldLog::names().begin() && *(at - 1) == run[0] &&
        members[first].path.back() == ']') {
      continue;
    }
    at = std::search(at, FieldLog::names().end(), run.begin(), run.end());
    if (at == FieldLog::names().end()) {
      ADD_FAILURE() << ::testing::PrintToString(run) << " of " << members[first].path
                    << " are not visited in this order";
      return;
    }
    at += static_cast<std::ptrdiff_t>(run.size());
  }
}

/// A text of ASCII letters that differs from member to member.
std::string sampleText(std::size_t seed, std::size_t length) {
  std::string sample(length, ' ');
  for (std::size_t index = 0; index < length; ++index) {
    sample[index] = static_cast<char>('A' + (seed + index) % 26);
  }
  return sample;
}

/// The value of a member in one round; bytes are at 0x80 in the first and at 0xFF in the second.
std::int32_t sampleNumber(const Member& member, int round) {
  const auto offset = static_cast<std::int32_t>(member.offset);
  switch (member.kind) {
    case Kind::kInt32:
      return round == 0 ? 0x70000000 + offset : -1 - offset;
    case Kind::kInt8:
      return round == 0 ? -128 + offset % 64 : -1 - offset % 64;
    default:
      return round == 0 ? 128 + offset % 64 : 255 - offset % 64;
  }
}

/// Raw bytes of a member and the text that Java shows of them.
std::vector<unsigned char> sampleBytes(const Member& member, int round) {
  std::vector<unsigned char> bytes(member.width);
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    bytes[index] =
        static_cast<unsigned char>((round == 0 ? 0x80 : 0x01) + member.offset % 64 + index);
  }
  return bytes;
}

std::string shown(const std::vector<unsigned char>& bytes) {
  std::string list;
  for (const unsigned char byte : bytes) {
    list += (list.empty() ? "" : ", ") + std::to_string(static_cast<signed char>(byte));
  }
  return '[' + list + ']';
}

void plant(std::vector<unsigned char>& record, const Member& member, std::int32_t value) {
  std::memcpy(record.data() + member.offset, &value, member.kind == Kind::kInt32 ? 4 : 1);
}

/// Calls a method and logs the fields that it looks up.
Called callLogged(const char* method, const std::vector<jobject>& arguments) {
  const FieldLog log;
  return call(method, arguments);
}

}  // namespace

Member int32At(std::size_t offset, const char* path) { return {path, offset, Kind::kInt32}; }
Member int8At(std::size_t offset, const char* path) { return {path, offset, Kind::kInt8}; }
Member uint8At(std::size_t offset, const char* path) { return {path, offset, Kind::kUInt8}; }
Member textAt(std::size_t offset, std::size_t width, const char* path) {
  return {path, offset, Kind::kText, width};
}
Member bytesAt(std::size_t offset, std::size_t width, const char* path) {
  return {path, offset, Kind::kBytes, width};
}

std::vector<Member> int32sAt(std::size_t offset, const std::vector<const char*>& paths) {
  std::vector<Member> members;
  for (const char* const path : paths) {
    members.push_back(int32At(offset, path));
    offset += 4;
  }
  return members;
}

void expectBuilt(const char* method, const std::vector<jobject>& arguments, std::size_t size,
                 const std::vector<Member>& members, const char* function) {
  function = function == nullptr ? method : function;
  for (const int round : {0, 1}) {
    SCOPED_TRACE(std::string(method) + ", round " + std::to_string(round));
    realJvm()->PushLocalFrame(64);
    std::vector<unsigned char> record(size, 0xEE);
    std::vector<std::string> expected;
    for (const Member& member : members) {
      ASSERT_LE(member.offset + (member.kind == Kind::kInt32 ? 4 : 1), size) << member.path;
      if (member.kind == Kind::kText) {
        // The second round leaves the text without a NUL: it ends where its member does.
        const std::string sample = sampleText(member.offset, member.width - (round == 0 ? 1 : 0));
        std::memcpy(record.data() + member.offset, sample.c_str(), member.width);
        expected.push_back(sample);
      } else if (member.kind == Kind::kBytes) {
        const auto sample = sampleBytes(member, round);
        std::memcpy(record.data() + member.offset, sample.data(), sample.size());
        expected.push_back(shown(sample));
      } else {
        plant(record, member, sampleNumber(member, round));
        expected.push_back(std::to_string(sampleNumber(member, round)));
      }
    }
    quorvelSimPrepareOutput(function, record.data(), record.size());
    const Called called = callLogged(method, arguments);
    quorvelSimPrepareOutput(function, nullptr, 0);
    ASSERT_EQ(called.failure, "");
    expectOrder(members);
    for (std::size_t index = 0; index < members.size(); ++index) {
      EXPECT_EQ(get(called.result, members[index].path), expected[index]) << members[index].path;
      ++compared().values;
    }
    realJvm()->PopLocalFrame(nullptr);
  }
}

void expectRead(const char* method, const std::vector<jobject>& arguments, jobject object,
                int parameter, std::size_t size, const std::vector<Member>& members) {
  for (const int round : {0, 1}) {
    SCOPED_TRACE(std::string(method) + ", round " + std::to_string(round));
    realJvm()->PushLocalFrame(64);
    std::vector<unsigned char> expected(size, 0);
    std::vector<unsigned char> known(size, 0);
    for (const Member& member : members) {
      std::size_t width = member.width;
      if (member.kind == Kind::kText) {
        // The second round's text is longer than its member and is cut to end in a NUL.
        const std::string sample = sampleText(member.offset, width - 1);
        set(object, member.path, round == 0 ? sample : sample + "too long");
        std::memcpy(expected.data() + member.offset, sample.c_str(), width);
      } else if (member.kind == Kind::kBytes) {
        const auto sample = sampleBytes(member, round);
        for (std::size_t index = 0; index < width; ++index) {
          set(object, member.path + '[' + std::to_string(index) + ']',
              std::to_string(static_cast<signed char>(sample[index])));
        }
        std::memcpy(expected.data() + member.offset, sample.data(), width);
      } else {
        width = member.kind == Kind::kInt32 ? 4 : 1;
        set(object, member.path, std::to_string(sampleNumber(member, round)));
        plant(expected, member, sampleNumber(member, round));
      }
      std::memset(known.data() + member.offset, 1, width);
      ++compared().values;
    }
    quorvelSimForceResult(method, 0, 1);
    EXPECT_EQ(callLogged(method, arguments).failure, "");
    expectOrder(members);
    std::vector<unsigned char> record(size);
    ASSERT_EQ(quorvelSimLastInput(method, parameter, record.data(), size), size);
    for (std::size_t index = 0; index < size; ++index) {
      if (known[index] != 0 && record[index] != expected[index]) {
        ADD_FAILURE() << "byte " << index << " is " << int{record[index]} << ", expected "
                      << int{expected[index]};
        break;
      }
    }
    realJvm()->PopLocalFrame(nullptr);
  }
}

}  // namespace quorvelj::testing
