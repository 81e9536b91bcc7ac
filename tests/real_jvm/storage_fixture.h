#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "simulator/control.h"
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {

/// Consecutive ints of an object at a path, as "rg[199].".
inline std::vector<Member> int32sIn(const std::string& path, std::size_t offset,
                                    const std::vector<const char*>& fields) {
  std::vector<Member> members = int32sAt(offset, fields);
  for (Member& member : members) {
    member.path = path + member.path;
  }
  return members;
}

/// A registered unit with a session, in a real Java process.
class StorageTest : public RegisteredUnit {
 protected:
  /// A method's plain ints, and whether a session is before them.
  struct Arguments {
    const char* method;
    bool session;
    int numbers;
    /// The class of the object behind them.
    const char* object = nullptr;
  };

  /// Expects the unit name, the session and every int at its place among the library's parameters.
  void expectArguments(const std::vector<Arguments>& methods) {
    const jobject session = create("QVSessionInfo");
    set(session, "session_id[31]", "77");
    for (const auto& [method, withSession, numbers, object] : methods) {
      SCOPED_TRACE(method);
      std::vector<jobject> arguments{unit_};
      if (withSession) {
        arguments.push_back(session);
      }
      for (int index = 0; index < numbers; ++index) {
        arguments.push_back(number(1001 + index));
      }
      if (object != nullptr) {
        arguments.push_back(create(object));
      }
      quorvelSimForceResult(method, 0, 1);
      call(method, arguments);
      ASSERT_EQ(quorvelSimCallCount(method), 1);
      EXPECT_EQ(input(method, 0), std::string("north") + std::string(60, '\0'));
      int parameter = 1;
      if (withSession) {
        EXPECT_EQ(input(method, parameter++), std::string(31, '\0') + '\x4D');
      }
      for (int index = 0; index < numbers; ++index) {
        std::int32_t given = 0;
        ASSERT_EQ(quorvelSimLastInput(method, parameter++, &given, sizeof given), sizeof given);
        EXPECT_EQ(given, 1001 + index);
      }
    }
  }

  /// A parameter that the library was last given. The names of units are compared up to their NUL.
  static std::string input(const char* method, int parameter) {
    std::string bytes(quorvelSimLastInput(method, parameter, nullptr, 0), '\0');
    quorvelSimLastInput(method, parameter, bytes.data(), bytes.size());
    if (parameter == 0) {
      std::memset(bytes.data() + bytes.find('\0'), 0, bytes.size() - bytes.find('\0'));
    }
    return bytes;
  }
  /// An int of a record that the library was last given.
  static std::int32_t inputInt(const char* method, int parameter, std::size_t offset) {
    std::int32_t value = 0;
    std::memcpy(&value, input(method, parameter).data() + offset, sizeof value);
    return value;
  }

  std::string ask(const char* method, const std::vector<jobject>& arguments,
                  const std::string& path) {
    const Called called = call(method, arguments);
    EXPECT_EQ(called.failure, "") << method;
    return called.result == nullptr ? "null" : get(called.result, path);
  }
  std::string change(const char* method, const std::vector<jobject>& arguments) {
    return call(method, arguments).failure;
  }

  /// RAID 5 of two parity groups of 5 drives: 15,628,201,344 blocks.
  std::string createGroup(int group) {
    const jobject request = create("CreateRaidGroup");
    setAll(request, {{"rgnum", group}, {"level", 5}, {"parity_hdu_count", 5}, {"parity_count", 2}});
    setLength(request, "rgdrv", 0);
    return change("QV_CreateRaidGroup", {unit_, session_, request});
  }
  std::string createLu(int lun, int group, int high, int low) {
    const jobject request = create("LogicalUnitCreationRequest");
    setAll(
        request,
        {{"luNumber", lun}, {"rgNumber", group}, {"lu_capacity_h", high}, {"lu_capacity_l", low}});
    setLength(request, "befor_lun", 128);
    return change("QV_CreateLogicalUnit", {unit_, session_, request});
  }
  static void setAll(jobject object, const std::vector<std::pair<const char*, int>>& fields) {
    for (const auto& [field, value] : fields) {
      set(object, field, std::to_string(value));
    }
  }
};

}  // namespace quorvelj::testing
