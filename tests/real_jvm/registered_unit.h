#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "simulator/control.h"
#include "tests/support/real_jvm.h"

namespace quorvelj::testing {

using Members = std::vector<Member>;
/// Fields of an object: their paths, and their values as text.
using Fields = std::vector<std::pair<std::string, std::string>>;

/// The members of two lists, one behind the other.
inline Members operator+(Members left, const Members& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// Consecutive texts of one width, and consecutive ints: their names, parted by spaces.
inline Members textsAt(std::size_t offset, std::size_t width, const char* names) {
  std::istringstream words(names);
  Members members;
  for (std::string name; words >> name; offset += width) {
    members.push_back(textAt(offset, width, name.c_str()));
  }
  return members;
}
inline Members int32sAt(std::size_t offset, const char* names) {
  Members members = textsAt(offset, 4, names);
  for (Member& member : members) {
    member.kind = Member::Kind::kInt32;
  }
  return members;
}

/// The members of a record that lies at an offset of another, and in Java at a path, "rg[199].".
inline Members at(std::size_t offset, const std::string& path, Members members) {
  for (Member& member : members) {
    member.offset += offset;
    member.path.insert(0, path);
  }
  return members;
}

/// The same members at several places, as in the first and the last element of an array.
struct Place {
  std::size_t offset;
  std::string path;
};
inline Members at(const std::vector<Place>& places, const Members& members) {
  Members all;
  for (const Place& place : places) {
    all = all + at(place.offset, place.path, members);
  }
  return all;
}

inline void set(jobject object, const Fields& fields) {
  for (const auto& [path, value] : fields) {
    set(object, path, value);
  }
}
inline jobject create(const char* className, const Fields& fields) {
  const jobject object = create(className);
  set(object, fields);
  return object;
}
inline void expectFields(jobject object, const Fields& fields) {
  for (const auto& [path, value] : fields) {
    EXPECT_EQ(get(object, path), value) << path;
  }
}

/// Tests in a real JVM with the unit "north" registered, which has an alert, and a session on it.
class RegisteredUnit : public ::testing::Test {
 protected:
  RegisteredUnit() {
    quorvelSimReset();
    realJvm()->PushLocalFrame(4096);
    call("QV_UnitAdd", {create("QVUnitParam", {{"unit_name", "north"},
                                               {"group_name", ""},
                                               {"alert", "5"},
                                               {"ctl0", "192.0.2.10"},
                                               {"ctl1", ""},
                                               {"serial", ""}})});
    unit_ = text("north");
    session_ = login("admin", "quorvel").result;
  }
  ~RegisteredUnit() override {
    realJvm()->PopLocalFrame(nullptr);
    for (const std::string& path : temporary_) {
      std::remove(path.c_str());
    }
  }

  Called login(const std::string& user, const std::string& password) {
    return call("QV_LoginQVAccount",
                {unit_, create("LoginRequest",
                               {{"user_id", user}, {"passwd", password}, {"log_string", ""}})});
  }

  /// Calls a method with the unit, the session and further arguments: objects, ints and texts.
  /// Returns how it failed, or "".
  template <class... Argument>
  std::string run(const char* method, const Argument&... arguments) {
    return call(method, {unit_, session_, argument(arguments)...}).failure;
  }
  /// The same of a method that must not fail. Returns its result.
  template <class... Argument>
  jobject information(const char* method, const Argument&... arguments) {
    const Called called = call(method, {unit_, session_, argument(arguments)...});
    EXPECT_EQ(called.failure, "") << method;
    return called.result;
  }

  /// The bytes of what a library function was last given as its `parameter`.
  static std::string lastInput(const char* function, int parameter) {
    std::string bytes(quorvelSimLastInput(function, parameter, nullptr, 0), '\0');
    quorvelSimLastInput(function, parameter, bytes.data(), bytes.size());
    return bytes;
  }
  static std::string lastText(const char* function, int parameter) {
    return lastInput(function, parameter).c_str();
  }
  /// An int of it, where it is a record at an offset.
  static std::int32_t lastInt(const char* function, int parameter, std::size_t offset = 0) {
    std::int32_t value = 0;
    lastInput(function, parameter).copy(reinterpret_cast<char*>(&value), sizeof value, offset);
    return value;
  }

  /// A query by unit, session and ints, which the library is given in this order.
  void expectFromUnit(const char* method, std::size_t size, const Members& members,
                      const std::vector<int>& ints = {}) {
    expectBuilt(method, inSession(session_, ints), size, members);
    EXPECT_EQ(lastInput(method, 1).substr(31), "Z") << method;
    expectUnitAndInts(method, ints);
  }
  /// An update by unit, session, ints and an object, which the library is given in this order.
  void expectRequest(const char* method, jobject object, std::size_t size, const Members& members,
                     const std::vector<int>& ints = {}) {
    const jobject session = create("QVSessionInfo");
    std::vector<jobject> arguments = inSession(session, ints);
    arguments.push_back(object);
    const int place = 2 + static_cast<int>(ints.size());
    expectRead(method, arguments, object, place, size, members);
    expectRead(method, arguments, session, 1, 32, {bytesAt(0, 32, "session_id")});
    expectUnitAndInts(method, ints);
  }
  void expectRequest(const char* method, const char* className, std::size_t size,
                     const Members& members, const std::vector<int>& ints = {}) {
    expectRequest(method, create(className), size, members, ints);
  }

  /// Calls `method` with arguments of the given kinds, u the unit, s the session, p a path and i an
  /// int, and finds them in that order in the library's call. What the library writes is returned
  /// where `value` is set.
  void expectPassed(const char* method, const std::string& kinds, bool value = false) {
    SCOPED_TRACE(method);
    std::vector<jobject> arguments;
    for (std::size_t index = 0; index < kinds.size(); ++index) {
      const std::string place = std::to_string(index);
      arguments.push_back(kinds[index] == 'u'   ? unit_
                          : kinds[index] == 's' ? session_
                          : kinds[index] == 'p' ? text("/path/" + place)
                                                : number(-100 - static_cast<jint>(index)));
    }
    constexpr std::int32_t kWritten = -123456789;
    quorvelSimPrepareOutput(method, &kWritten, sizeof kWritten);
    const Called called = call(method, arguments);
    quorvelSimPrepareOutput(method, nullptr, 0);
    EXPECT_EQ(called.failure, "");
    if (value) {
      EXPECT_EQ(get(called.result, ""), "-123456789");
      quorvelSimForceResult(method, 77, 1);
      EXPECT_EQ(call(method, arguments).failure, "DiskArrayException 77");
    }
    for (std::size_t index = 0; index < kinds.size(); ++index) {
      const std::string given = lastInput(method, static_cast<int>(index));
      SCOPED_TRACE("parameter " + std::to_string(index));
      switch (kinds[index]) {
        case 'u':
          ASSERT_EQ(given.size(), 65U);
          EXPECT_STREQ(given.c_str(), "north");
          break;
        case 's':
          ASSERT_EQ(given.size(), 32U);
          EXPECT_EQ(given[31], 'Z');
          break;
        case 'p':
          ASSERT_EQ(given.size(), 1024U);
          EXPECT_EQ(given.c_str(), "/path/" + std::to_string(index));
          break;
        default:
          ASSERT_EQ(given.size(), 4U);
          EXPECT_EQ(given[0], static_cast<char>(-100 - static_cast<int>(index)));
          EXPECT_EQ(given[3], '\xFF');
      }
    }
    EXPECT_EQ(lastInput(method, static_cast<int>(kinds.size())).size(), 0U);
  }

  /// Too short an array ends the reading and no more: the library is called with what there is.
  static void expectTooShort(const char* method, const std::vector<jobject>& arguments) {
    const int calls = quorvelSimCallCount(method);
    quorvelSimForceResult(method, 0, 1);
    EXPECT_EQ(call(method, arguments).failure.substr(0, 30), "ArrayIndexOutOfBoundsException")
        << method;
    EXPECT_EQ(quorvelSimCallCount(method), calls + 1) << method;
  }

  /// The number of ints in an array.
  static std::ptrdiff_t lengthOf(jobject object, const char* path) {
    const std::string shown = get(object, path);
    return 1 + std::count(shown.begin(), shown.end(), ',');
  }

  /// RAID 5 of two parity groups of 5 drives: 15,628,201,344 blocks.
  std::string createGroup(int group) {
    const jobject request = create("CreateRaidGroup", {{"rgnum", std::to_string(group)},
                                                       {"level", "5"},
                                                       {"parity_hdu_count", "5"},
                                                       {"parity_count", "2"}});
    setLength(request, "rgdrv", 0);
    return run("QV_CreateRaidGroup", request);
  }
  std::string createLu(int lun, int group, int high, int low) {
    const jobject request =
        create("LogicalUnitCreationRequest", {{"luNumber", std::to_string(lun)},
                                              {"rgNumber", std::to_string(group)},
                                              {"lu_capacity_h", std::to_string(high)},
                                              {"lu_capacity_l", std::to_string(low)}});
    setLength(request, "befor_lun", 128);
    return run("QV_CreateLogicalUnit", request);
  }

  /// A path of this process's own; what is written there goes when the test ends.
  std::string temporary(const std::string& name) {
    return *temporary_
                .insert(::testing::TempDir() + "quorvelj-" + std::to_string(getpid()) + '-' + name)
                .first;
  }
  static std::string contentOf(const std::string& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  jobject unit_;
  jobject session_;

 private:
  static jobject argument(jobject object) { return object; }
  static jobject argument(int value) { return number(value); }
  static jobject argument(const std::string& value) { return text(value); }

  std::vector<jobject> inSession(jobject session, const std::vector<int>& ints) {
    std::vector<jobject> arguments{unit_, session};
    for (const int value : ints) {
      arguments.push_back(number(value));
    }
    return arguments;
  }
  static void expectUnitAndInts(const char* method, const std::vector<int>& ints) {
    EXPECT_EQ(lastInput(method, 0).size(), 65U) << method;
    EXPECT_EQ(lastText(method, 0), "north") << method;
    for (std::size_t index = 0; index < ints.size(); ++index) {
      EXPECT_EQ(lastInt(method, 2 + static_cast<int>(index)), ints[index]) << method;
    }
  }

  std::set<std::string> temporary_;
};

}  // namespace quorvelj::testing
