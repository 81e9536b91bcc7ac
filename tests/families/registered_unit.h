#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "simulator/control.h"
#include "tests/support/caller.h"
#include "tests/support/record_checks.h"

namespace quorvelj::testing {

/// Tests with the unit "north" registered, which has an alert, and a session on it.
class RegisteredUnit : public ::testing::Test {
 protected:
  RegisteredUnit();
  ~RegisteredUnit() override;

  Called login(const std::string& user, const std::string& password);

  /// Calls a method with the unit, the session and further arguments: objects, ints and texts.
  /// Returns how it failed, or "".
  template <class... Argument>
  std::string run(const char* method, const Argument&... arguments) {
    return call(method, {unit_, session_, argument(arguments)...}).failure;
  }
  /// The same of a method that must not fail. Returns its result.
  template <class... Argument>
  jobject information(const char* method, const Argument&... arguments) {
    return succeeding(method, {unit_, session_, argument(arguments)...});
  }

  /// The bytes of what a library function was last given as its `parameter`.
  static std::string lastInput(const char* function, int parameter);
  static std::string lastText(const char* function, int parameter);
  /// An int in it at an offset, or the int itself.
  static std::int32_t lastInt(const char* function, int parameter, std::size_t offset = 0);

  /// `expectBuilt` of a query by unit, session and ints, which reach the library in this order.
  void expectFromUnit(const char* method, std::size_t size, const Members& members,
                      const std::vector<int>& ints = {});
  /// `expectRead` of an update by unit, session, ints and an object, which reach the library in
  /// this order.
  void expectRequest(const char* method, jobject object, std::size_t size, const Members& members,
                     const std::vector<int>& ints = {});
  void expectRequest(const char* method, const char* className, std::size_t size,
                     const Members& members, const std::vector<int>& ints = {});

  /// Calls `method` with arguments of the given kinds, u the unit, s the session, p a path and i an
  /// int, and finds them in that order in the library's call. What the library writes is returned
  /// where `value` is set.
  void expectPassed(const char* method, const std::string& kinds, bool value = false);

  /// Expects an array that is too short to end the reading: the library is called all the same.
  static void expectTooShort(const char* method, const std::vector<jobject>& arguments);

  /// The number of ints in an array.
  static std::ptrdiff_t lengthOf(jobject object, const char* path);

  /// RAID 5 of two parity groups of 5 drives: 15,628,201,344 blocks.
  std::string createGroup(int group);
  std::string createLu(int lun, int group, int high, int low);

  /// The path of a file of this test, which is removed at its end.
  std::string temporary(const std::string& name);
  static std::string contentOf(const std::string& path);

  jobject unit_;
  jobject session_;

 private:
  static jobject argument(jobject object) { return object; }
  static jobject argument(int value) { return number(value); }
  static jobject argument(const std::string& value) { return text(value); }

  static jobject succeeding(const char* method, const std::vector<jobject>& arguments);
  std::vector<jobject> inSession(jobject session, const std::vector<int>& ints);
  static void expectUnitAndInts(const char* method, const std::vector<int>& ints);

  std::set<std::string> temporary_;
};

}  // namespace quorvelj::testing
