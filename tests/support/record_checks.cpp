#include "tests/support/record_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>
#include <unordered_set>

#include "simulator/control.h"
#include "tests/support/field_log.h"

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

/// A field that a list of members expects to be visited.
struct Expected {
  std::string name;
  /// Nothing is visited between this field and the one before.
  bool adjacent;
};

/// The fields that a list of members expects in each object, by the object's path: "", "server[1]".
using ExpectedByHolder = std::map<std::string, std::vector<Expected>>;

/// Whether a member follows another in their object: ints that lie side by side.
bool adjacent(const Member& left, const Member& right) {
  const std::string_view leftPath = left.path;
  const std::string_view rightPath = right.path;
  const auto holderOf = [](std::string_view path) { return path.substr(0, path.rfind('.') + 1); };
  return left.kind == Kind::kInt32 && right.kind == Kind::kInt32 &&
         left.offset + 4 == right.offset && holderOf(leftPath) == holderOf(rightPath) &&
         leftPath.back() != ']' && rightPath.back() != ']';
}

ExpectedByHolder expectedFields(const Members& members) {
  ExpectedByHolder expected;
  for (std::size_t index = 0; index < members.size(); ++index) {
    const std::string path = members[index].path;
    std::string holder;
    for (std::size_t start = 0; start <= path.size();) {
      const std::size_t dot = std::min(path.find('.', start), path.size());
      const std::string name = path.substr(start, std::min(path.find('[', start), dot) - start);
      auto& names = expected[holder];
      const bool listed = std::any_of(names.begin(), names.end(),
                                      [&](const Expected& field) { return field.name == name; });
      if (!name.empty() && !listed) {
        const bool isLast = dot == path.size();
        names.push_back(
            {name, isLast && index > 0 && adjacent(members[index - 1], members[index])});
      }
      holder = path.substr(0, dot);
      start = dot + 1;
    }
  }
  return expected;
}

/// Whether the expected fields that a visit has are in their order; `found` counts them.
bool inOrder(const Visit& visit, const std::vector<Expected>& expected, std::size_t& found) {
  auto last = visit.begin();
  found = 0;
  for (const Expected& field : expected) {
    const auto at = std::find(visit.begin(), visit.end(), field.name);
    if (at == visit.end()) {
      continue;
    }
    if (found != 0 && (field.adjacent ? at != last + 1 : at <= last)) {
      return false;
    }
    last = at;
    ++found;
  }
  return true;
}

/// Expects every object below `root` to be visited in the order of its members in the list.
void expectOrder(FieldLog& log, jobject root, const Members& members) {
  for (const auto& [holder, expected] : expectedFields(members)) {
    if (expected.empty()) {
      continue;
    }
    bool complete = false;
    for (const Visit& visit : log.visitsTo(get(root, holder))) {
      std::size_t found = 0;
      EXPECT_TRUE(inOrder(visit, expected, found))
          << "in \"" << holder << "\" the fields are visited in the order "
          << ::testing::PrintToString(std::vector<std::string>(visit.begin(), visit.end()));
      complete = complete || found == expected.size();
    }
    EXPECT_TRUE(complete) << "no object is visited in all fields of \"" << holder << '"';
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

/// The value of a number in one round; bytes are at 0x80 in the first and at 0xFF in the second.
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

/// The raw bytes of a member in one round.
std::string sampleBytes(const Member& member, int round) {
  std::string bytes;
  for (std::size_t index = 0; index < member.width; ++index) {
    bytes += static_cast<char>((round == 0 ? 0x80 : 0x01) + member.offset % 64 + index);
  }
  return bytes;
}

/// A member's value, as bytes of the record and as text in Java.
struct Sample {
  std::string bytes;
  std::string java;
};

Sample sampleOf(const Member& member, int round) {
  if (member.kind == Kind::kBytes) {
    Sample sample{sampleBytes(member, round), ""};
    for (const char byte : sample.bytes) {
      sample.java += (sample.java.empty() ? "" : ", ") + std::to_string(int{byte});
    }
    sample.java = '[' + sample.java + ']';
    return sample;
  }
  const std::int32_t value = sampleNumber(member, round);
  return {{reinterpret_cast<const char*>(&value), member.width}, std::to_string(value)};
}

/// What the library returns. The second round's texts are without a NUL: each ends where its member
/// does.
Sample builtSample(const Member& member, int round) {
  if (member.kind != Kind::kText) {
    return sampleOf(member, round);
  }
  const std::string letters = sampleText(member.offset, member.width - (round == 0 ? 1 : 0));
  return {letters + std::string(round == 0 ? 1 : 0, '\0'), letters};
}

/// What Java hands over. The second round's texts are longer than their members: each is cut to end
/// in a NUL.
Sample readSample(const Member& member, int round) {
  if (member.kind != Kind::kText) {
    return sampleOf(member, round);
  }
  const std::string letters = sampleText(member.offset, member.width - 1);
  return {letters + '\0', round == 0 ? letters : letters + "too long"};
}

/// Sets the field of a member; raw bytes from the last one on, which makes the whole array.
void setSample(jobject object, const Member& member, const Sample& sample) {
  if (member.kind != Kind::kBytes) {
    set(object, member.path, sample.java);
    return;
  }
  for (std::size_t index = member.width; index-- > 0;) {
    set(object, std::string(member.path) + '[' + std::to_string(index) + ']',
        std::to_string(int{static_cast<signed char>(sample.bytes[index])}));
  }
}

/// The members that have a value to compare.
Members withValues(Members members) {
  members.erase(std::remove_if(members.begin(), members.end(),
                               [](const Member& member) { return member.kind == Kind::kVisited; }),
                members.end());
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
  log.start();
  const Called called = call(method, arguments);
  log.stop();
  return called;
}

}  // namespace

const char* kept(const std::string& path) {
  static std::unordered_set<std::string> paths;
  return paths.insert(path).first->c_str();
}

Members operator+(Members left, const Members& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

Members int32sAt(std::size_t offset, std::initializer_list<const char*> paths) {
  Members members;
  for (const char* const path : paths) {
    members.push_back(int32At(offset, path));
    offset += 4;
  }
  return members;
}

Members textsAt(std::size_t offset, std::size_t width, const std::string& names) {
  Members members;
  for (std::size_t start = 0; start < names.size(); offset += width) {
    const std::size_t end = std::min(names.find(' ', start), names.size());
    members.push_back(textAt(offset, width, kept(names.substr(start, end - start))));
    start = end + 1;
  }
  return members;
}

Members int32sAt(std::size_t offset, const std::string& names) {
  Members members = textsAt(offset, 4, names);
  for (Member& member : members) {
    member.kind = Kind::kInt32;
  }
  return members;
}

Members visited(const std::string& names) {
  Members members = textsAt(0, 0, names);
  for (Member& member : members) {
    member.kind = Kind::kVisited;
  }
  return members;
}

Members at(std::size_t offset, const std::string& path, const Members& members) {
  return at({{offset, path}}, members);
}

Members at(std::initializer_list<Location> locations, const Members& members) {
  Members all;
  for (const Location& location : locations) {
    for (const Member& member : members) {
      Member& moved = all.emplace_back(member);
      moved.offset += location.offset;
      moved.path = kept(std::string(location.path) + member.path);
    }
  }
  return all;
}

void expectFields(jobject object, Fields fields) {
  for (const auto& [path, value] : fields) {
    EXPECT_EQ(get(object, std::string(path)), value) << path;
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
      record.replace(member.offset, member.width, builtSample(member, round).bytes);
    }
    quorvelSimPrepareOutput(function, record.data(), record.size());
    FieldLog log;
    const Called called = callLogged(log, method, arguments);
    quorvelSimPrepareOutput(function, nullptr, 0);
    ASSERT_EQ(called.failure, "");
    expectOrder(log, called.result, members);
    for (const Member& member : valued) {
      EXPECT_EQ(get(called.result, member.path), builtSample(member, round).java) << member.path;
      ++compared().values;
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
      setSample(object, member, readSample(member, round));
    }
    quorvelSimForceResult(method, 0, 1);
    FieldLog log;
    EXPECT_EQ(callLogged(log, method, arguments).failure, "");
    expectOrder(log, object, members);
    std::string record(size, '\0');
    ASSERT_EQ(quorvelSimLastInput(method, parameter, record.data(), size), size);
    for (const Member& member : valued) {
      EXPECT_EQ(record.substr(member.offset, member.width), readSample(member, round).bytes)
          << member.path;
      ++compared().values;
    }
  }
}

}  // namespace quorvelj::testing
