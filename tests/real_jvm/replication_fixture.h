#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {

using Members = std::vector<Member>;

/// A session on a unit of the simulator, for methods whose first arguments are these two.
class Replication : public RegisteredUnit {
 protected:
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
};

}  // namespace quorvelj::testing
