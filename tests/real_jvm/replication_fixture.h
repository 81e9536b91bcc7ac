#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simulator/control.h"
#include "tests/support/real_jvm.h"

namespace quorvelj::testing {

using Members = std::vector<Member>;

inline Members operator+(Members left, const Members& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// A session on a unit of the simulator, for methods whose first arguments are these two.
class Replication : public ::testing::Test {
 protected:
  Replication() {
    quorvelSimReset();
    realJvm()->PushLocalFrame(1024);
    const jobject param = create("QVUnitParam");
    for (const char* const field : {"group_name", "ctl1", "serial"}) {
      set(param, field, "");
    }
    set(param, "unit_name", "north");
    set(param, "ctl0", "192.0.2.10");
    call("QV_UnitAdd", {param});
    unit_ = text("north");
    const jobject request = create("LoginRequest");
    set(request, "user_id", "admin");
    set(request, "passwd", "quorvel");
    set(request, "log_string", "");
    session_ = call("QV_LoginQVAccount", {unit_, request}).result;
  }
  ~Replication() override { realJvm()->PopLocalFrame(nullptr); }

  /// How an update of `object` failed, or "".
  std::string run(const char* method, jobject object) {
    return call(method, {unit_, session_, object}).failure;
  }
  std::string run(const char* method) { return call(method, {unit_, session_}).failure; }
  jobject information(const char* method) { return call(method, {unit_, session_}).result; }

  /// Expects the record of a new object of `className`, and the session's, from an update.
  void expectRequest(const char* method, const char* className, std::size_t size,
                     const Members& members) {
    const jobject object = create(className);
    const jobject session = create("QVSessionInfo");
    expectRead(method, {unit_, session, object}, object, 2, size, members);
    expectRead(method, {unit_, session, object}, session, 1, 32, {bytesAt(0, 32, "session_id")});
  }

  jobject unit_;
  jobject session_;
};

}  // namespace quorvelj::testing
