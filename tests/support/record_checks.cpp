#include "tests/support/record_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>

#include "simulator/control.h"
#include "tests/support/fail.h"
#include "tests/support/field_log.h"
#include "tests/support/split.h"
#include "tests/support/variant.h"

namespace quorvelj::testing {
namespace {

using Kind = Member::Kind;

/// A member of a kind that a list names, such as "int32" or "text17".
Member memberOf(const std::string& kind) {
  static const std::map<std::string_view, Member> members{
      {"int32", {"", 0, Kind::kInt32, 4}}, {"int8", {"", 0, Kind::kInt8, 1}},
      {"uint8", {"", 0, Kind::kUInt8, 1}}, {"text", {"", 0, Kind::kText, 0}},
      {"bytes", {"", 0, Kind::kBytes, 0}}, {"visited", {"", 0, Kind::kVisited, 0}}};
  const bool known = members.contains(kind);
  const std::size_t letters = known ? kind.size() : kind.find_first_of("0123456789");
  const auto found = members.find(kind.substr(0, letters));
  if (found == members.end() || (!known && found->second.width != 0)) {
    fail("no kind of member: " + kind);
  }
  Member member = found->second;
  if (!known) {
    member.width = std::stoul(kind.substr(letters));
  }
  return member;
}

using Names = std::vector<std::string>;

/// Those of the names that are among the others.
Names common(const Names& names, const Names& others) {
  Names found;
  std::copy_if(names.begin(), names.end(), std::back_inserter(found), [&](const auto& name) {
    return std::find(others.begin(), others.end(), name) != others.end();
  });
  return found;
}

/// The fields that a list of members expects in each object, by the object's path: "", "server[1]".
std::map<std::string, Names> expectedFields(const Members& members) {
  std::map<std::string, Names> expected;
  for (const Member& member : members) {
    std::string holder;
    for (const std::string& step : split(member.path, ".")) {
      const std::string name = step.substr(0, step.find('['));
      Names& names = expected[holder];
      if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) {
        names.push_back(name);
      }
      holder += (holder.empty() ? "" : ".") + step;
    }
  }
  return expected;
}

/// Expects every object below `root` to be visited in the order of its members in the list. Where
/// identifiers are kept, only the first object of a class would show it.
void expectOrder(FieldLog& log, jobject root, const Members& members) {
  if (keepsIdentifiers()) {
    return;
  }
  for (const auto& [holder, expected] : expectedFields(members)) {
    bool complete = expected.empty();
    for (const Visit& visit : log.visitsTo(get(root, holder))) {
      const Names visited(visit.begin(), visit.end());
      const Names listed = common(expected, visited);
      EXPECT_EQ(common(visited, expected), listed) << "the order of fields in \"" << holder << '"';
      complete = complete || listed.size() == expected.size();
    }
    EXPECT_TRUE(complete) << "no object is visited in all fields of \"" << holder << '"';
  }
}

/// Who fills a record: the library, whose texts may be without a NUL, or the bridge, which cuts
/// texts that are too long and ends each in a NUL.
enum class FilledBy : std::uint8_t { kLibrary, kBridge };

/// A member's value, as bytes of the record and as text in Java.
struct Sample {
  std::string bytes;
  std::string java;
};

/// ASCII letters that differ from member to member.
Sample sampleOfText(const Member& member, int round, FilledBy filledBy) {
  const bool hasNul = round == 0 || filledBy == FilledBy::kBridge;
  std::string letters(member.width - (hasNul ? 1 : 0), ' ');
  for (std::size_t index = 0; index < letters.size(); ++index) {
    letters[index] = static_cast<char>('A' + (member.offset + index) % 26);
  }
  const bool isCut = round == 1 && filledBy == FilledBy::kBridge;
  return {letters + std::string(hasNul ? 1 : 0, '\0'), letters + (isCut ? "too long" : "")};
}

Sample sampleOfBytes(const Member& member, int round) {
  Sample sample;
  for (std::size_t index = 0; index < member.width; ++index) {
    const auto byte = static_cast<char>((round == 0 ? 0x80 : 0x01) + member.offset % 64 + index);
    sample.bytes += byte;
    sample.java += (index == 0 ? "" : ", ") + std::to_string(int{static_cast<signed char>(byte)});
  }
  sample.java = '[' + sample.java + ']';
  return sample;
}

/// The value of a member in one of two rounds; single bytes are at 0x80 in the first and at 0xFF in
/// the second.
Sample sampleOf(const Member& member, int round, FilledBy filledBy) {
  if (member.kind == Kind::kText) {
    return sampleOfText(member, round, filledBy);
  }
  if (member.kind == Kind::kBytes) {
    return sampleOfBytes(member, round);
  }
  const auto offset = static_cast<std::int32_t>(member.offset);
  std::int32_t value = round == 0 ? 0x70000000 + offset : -1 - offset;
  if (member.kind != Kind::kInt32) {
    value = (round == 0 ? -128 + offset % 64 : -1 - offset % 64) +
            (member.kind == Kind::kUInt8 ? 256 : 0);
  }
  return {{reinterpret_cast<const char*>(&value), member.width}, std::to_string(value)};
}

/// Sets the field of a member; raw bytes from the last one on, which makes the whole array.
void setSample(jobject object, const Member& member, const Sample& sample) {
  if (member.kind != Kind::kBytes) {
    set(object, member.path, sample.java);
    return;
  }
  for (std::size_t index = member.width; index-- > 0;) {
    set(object, member.path + '[' + std::to_string(index) + ']',
        std::to_string(int{static_cast<signed char>(sample.bytes[index])}));
  }
}

Members withValues(Members members) {
  std::erase_if(members, [](const Member& member) { return member.kind == Kind::kVisited; });
  return members;
}

/// Deletes the local references that are made during its life.
struct LocalFrame {
  LocalFrame() { javaEnv()->PushLocalFrame(64); }
  ~LocalFrame() { javaEnv()->PopLocalFrame(nullptr); }
  LocalFrame(const LocalFrame&) = delete;
  LocalFrame& operator=(const LocalFrame&) = delete;
};

Called callLogged(FieldLog& log, const char* method, const std::vector<jobject>& arguments) {
  if (!keepsIdentifiers()) {
    log.start();
  }
  const Called called = call(method, arguments);
  if (!keepsIdentifiers()) {
    log.stop();
  }
  EXPECT_EQ(called.failure, "");
  return called;
}

}  // namespace

Members::Members(const char* list) {
  for (const std::string& part : split(list, "; ")) {
    const std::vector<std::string> words = split(part, " ");
    const std::size_t colon = words[0].find(':');
    Member member = memberOf(words[0].substr(colon + 1));
    member.offset = colon == std::string::npos ? 0 : std::stoul(words[0]);
    for (auto path = words.begin() + 1; path != words.end(); ++path) {
      member.path = *path;
      push_back(member);
      member.offset += member.width;
    }
  }
}

Members operator+(Members left, const Members& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

Members at(const std::string& places, const Members& members) {
  Members all;
  for (const std::string& place : split(places, " ")) {
    for (Member member : members) {
      member.offset += std::stoul(place);
      member.path = place.substr(place.find(':') + 1) + '.' + member.path;
      all.push_back(member);
    }
  }
  return all;
}

void expectFields(jobject object, const Fields& fields) {
  for (const auto& [path, value] : fields) {
    EXPECT_EQ(get(object, path), value) << path;
  }
}

void expectBuilt(const char* method, const std::vector<jobject>& arguments, std::size_t size,
                 const Members& members, const char* function) {
  function = function == nullptr ? method : function;
  const Members valued = withValues(members);
  for (const int round : {0, 1}) {
    SCOPED_TRACE(std::string(method) + ", round " + std::to_string(round));
    const LocalFrame frame;
    std::string record(size, '\xEE');
    for (const Member& member : valued) {
      ASSERT_LE(member.offset + member.width, size) << member.path;
      record.replace(member.offset, member.width,
                     sampleOf(member, round, FilledBy::kLibrary).bytes);
    }
    quorvelSimPrepareOutput(function, record.data(), record.size());
    FieldLog log;
    const Called called = callLogged(log, method, arguments);
    quorvelSimPrepareOutput(function, nullptr, 0);
    ASSERT_NE(called.result, nullptr);
    expectOrder(log, called.result, members);
    for (const Member& member : valued) {
      EXPECT_EQ(get(called.result, member.path), sampleOf(member, round, FilledBy::kLibrary).java)
          << member.path;
    }
  }
}

void expectRead(const char* method, const std::vector<jobject>& arguments, jobject object,
                int parameter, std::size_t size, const Members& members) {
  const Members valued = withValues(members);
  for (const int round : {0, 1}) {
    SCOPED_TRACE(std::string(method) + ", round " + std::to_string(round));
    const LocalFrame frame;
    for (const Member& member : valued) {
      setSample(object, member, sampleOf(member, round, FilledBy::kBridge));
    }
    quorvelSimForceResult(method, 0, 1);
    FieldLog log;
    callLogged(log, method, arguments);
    expectOrder(log, object, members);
    std::string record(size, '\0');
    ASSERT_EQ(quorvelSimLastInput(method, parameter, record.data(), size), size);
    for (const Member& member : valued) {
      EXPECT_EQ(record.substr(member.offset, member.width),
                sampleOf(member, round, FilledBy::kBridge).bytes)
          << member.path;
    }
  }
}

}  // namespace quorvelj::testing
