#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simulator/control.h"
#include "tests/support/real_jvm.h"

namespace quorvelj::testing {

/// A registered unit with an open session, in a real Java process.
class RealSession : public ::testing::Test {
 protected:
  RealSession() {
    quorvelSimReset();
    realJvm()->PushLocalFrame(512);
    const jobject param = create("QVUnitParam");
    for (const char* const field : {"group_name", "ctl0", "ctl1", "serial"}) {
      set(param, field, "");
    }
    set(param, "unit_name", "north");
    call("QV_UnitAdd", {param});
    unit_ = text("north");
    const jobject request = create("LoginRequest");
    set(request, "user_id", "admin");
    set(request, "passwd", "quorvel");
    set(request, "log_string", "test");
    session_ = call("QV_LoginQVAccount", {unit_, request}).result;
  }
  ~RealSession() override { realJvm()->PopLocalFrame(nullptr); }

  jobject unit_;
  jobject session_;
};

/// Members of a record that lies at an offset of another, under a path of its own.
inline std::vector<Member> placed(std::size_t offset, const std::string& path,
                                  std::vector<Member> members) {
  for (Member& member : members) {
    member.offset += offset;
    member.path = path + member.path;
  }
  return members;
}

inline std::vector<Member> operator+(std::vector<Member> left, const std::vector<Member>& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// The int that a library function was last given as its `parameter`.
inline int lastNumber(const char* function, int parameter) {
  int value = 0;
  quorvelSimLastInput(function, parameter, &value, sizeof value);
  return value;
}

/// The text that a library function was last given as its `parameter`.
inline std::string lastText(const char* function, int parameter) {
  char buffer[1024] = {};
  quorvelSimLastInput(function, parameter, buffer, sizeof buffer);
  return buffer;
}

}  // namespace quorvelj::testing
