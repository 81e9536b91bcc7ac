#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simulator/control.h"
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {

/// A registered unit with an open session, in a real Java process.
class RealSession : public RegisteredUnit {
 protected:
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
