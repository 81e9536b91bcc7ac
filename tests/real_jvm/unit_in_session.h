#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "simulator/control.h"
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {

/// A registered unit with a session on it.
class UnitInSession : public RegisteredUnit {
 protected:
  // An alert to be found.
  UnitInSession() : RegisteredUnit(5) {}
  ~UnitInSession() override {
    for (const std::string& path : temporary_) {
      std::remove(path.c_str());
    }
  }

  static std::vector<char> lastInput(const char* function, int index) {
    std::vector<char> bytes(8192);
    bytes.resize(quorvelSimLastInput(function, index, bytes.data(), bytes.size()));
    return bytes;
  }
  static std::string lastText(const char* function, int index) {
    return lastInput(function, index).data();
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
      const std::vector<char> given = lastInput(method, static_cast<int>(index));
      SCOPED_TRACE("parameter " + std::to_string(index));
      switch (kinds[index]) {
        case 'u':
          ASSERT_EQ(given.size(), 65U);
          EXPECT_STREQ(given.data(), "north");
          break;
        case 's':
          ASSERT_EQ(given.size(), 32U);
          EXPECT_EQ(given[31], 0x5A);
          break;
        case 'p':
          ASSERT_EQ(given.size(), 1024U);
          EXPECT_EQ(given.data(), "/path/" + std::to_string(index));
          break;
        default:
          ASSERT_EQ(given.size(), 4U);
          EXPECT_EQ(given[0], static_cast<char>(-100 - static_cast<int>(index)));
          EXPECT_EQ(given[3], '\xFF');
      }
    }
    EXPECT_EQ(lastInput(method, static_cast<int>(kinds.size())).size(), 0U);
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

 private:
  std::set<std::string> temporary_;
};

}  // namespace quorvelj::testing
