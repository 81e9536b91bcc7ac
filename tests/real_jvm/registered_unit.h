#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "simulator/control.h"
#include "tests/support/real_jvm.h"

namespace quorvelj::testing {

/// The members of two lists, one behind the other.
inline std::vector<Member> operator+(std::vector<Member> left, const std::vector<Member>& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// Tests in a real JVM with the unit "north" registered and a session on it.
class RegisteredUnit : public ::testing::Test {
 protected:
  explicit RegisteredUnit(int alert = 0) {
    quorvelSimReset();
    realJvm()->PushLocalFrame(4096);
    const jobject param = create("QVUnitParam");
    for (const char* const field : {"group_name", "ctl1", "serial"}) {
      set(param, field, "");
    }
    set(param, "unit_name", "north");
    set(param, "ctl0", "192.0.2.10");
    set(param, "alert", std::to_string(alert));
    call("QV_UnitAdd", {param});
    unit_ = text("north");
    const jobject request = create("LoginRequest");
    set(request, "user_id", "admin");
    set(request, "passwd", "quorvel");
    set(request, "log_string", "");
    session_ = call("QV_LoginQVAccount", {unit_, request}).result;
  }
  ~RegisteredUnit() override { realJvm()->PopLocalFrame(nullptr); }

  /// A query by unit and session.
  void expectFromUnit(const char* method, std::size_t size, const std::vector<Member>& members) {
    expectBuilt(method, {unit_, session_}, size, members);
  }
  /// An update by unit, session and an object of a class.
  void expectToUnit(const char* method, const char* className, std::size_t size,
                    const std::vector<Member>& members) {
    const jobject object = create(className);
    const jobject session = create("QVSessionInfo");
    expectRead(method, {unit_, session, object}, object, 2, size, members);
    expectRead(method, {unit_, session, object}, session, 1, 32, {bytesAt(0, 32, "session_id")});
  }
  /// An int that the last call of a function was given.
  static int lastInt(const char* function, int index) {
    int value = 0;
    quorvelSimLastInput(function, index, &value, sizeof value);
    return value;
  }
  /// A text that the last call of a function was given.
  static std::string lastText(const char* function, int index) {
    char buffer[1024] = {};
    quorvelSimLastInput(function, index, buffer, sizeof buffer);
    return buffer;
  }
  /// The members with their paths behind `prefix`.
  static std::vector<Member> within(const std::string& prefix, std::vector<Member> members) {
    for (Member& member : members) {
      member.path.insert(0, prefix);
    }
    return members;
  }
  static std::vector<Member> joined(const std::vector<std::vector<Member>>& lists) {
    std::vector<Member> all;
    for (const std::vector<Member>& list : lists) {
      all.insert(all.end(), list.begin(), list.end());
    }
    return all;
  }
  /// The number of ints in an array.
  static std::ptrdiff_t lengthOf(jobject object, const char* path) {
    const std::string shown = get(object, path);
    return 1 + std::count(shown.begin(), shown.end(), ',');
  }

  jobject unit_;
  jobject session_;
};

}  // namespace quorvelj::testing
