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
    const Called called = call(method, {unit_, session_, argument(arguments)...});
    EXPECT_EQ(called.failure, "") << method;
    return called.result;
  }
  template <class... Argument>
  void update(const char* method, const Argument&... arguments) {
    EXPECT_EQ(run(method, arguments...), "") << method;
  }

  /// The bytes of what a library function was last given as its `parameter`.
  static std::string lastInput(const char* function, int parameter);
  static std::string lastText(const char* function, int parameter);
  /// An int in it at an offset, or the int itself.
  static std::int32_t lastInt(const char* function, int parameter, std::size_t offset = 0);

  /// `expectBuilt` of a query by unit, session and ints, which reach the library as they are.
  void expectFromUnit(const char* method, std::size_t size, const Members& members,
                      const std::vector<int>& ints = {});
  /// `expectRead` of a method that takes one object besides unit, session and ints, any of which
  /// may be missing, and which reach the library as they are.
  void expectRequest(const char* method, jobject object, std::size_t size, const Members& members,
                     const std::vector<int>& ints = {});
  /// The same of several methods, parted by spaces, that take a class.
  void expectRequest(const char* methods, const char* className, std::size_t size,
                     const Members& members, const std::vector<int>& ints = {});
  /// The query "QV_Get<operation>", which returns an object of the class, and the update
  /// "QV_Set<operation>", which takes one.
  void expectGetAndSet(const std::string& operation, const char* className, std::size_t size,
                       const Members& members, const std::vector<int>& ints = {});

  /// Calls methods with arguments of the listed kinds, as in "QV_SpinUpDriveByRG usi; QV_UnitDelete
  /// u", and finds the arguments in that order in the library's calls. The kinds are u for the
  /// unit, s for the session, p for a path and i for an int.
  void expectPassed(const std::string& methods);
  /// The same of methods that return the int that the library writes.
  void expectPassedAndReturned(const std::string& methods);

  /// Expects an array that is too short to end the reading: the library is called all the same.
  static void expectTooShort(const char* method, const std::vector<jobject>& arguments);

  static jobject element(jobject array, int index) {
    return javaEnv()->GetObjectArrayElement(static_cast<jobjectArray>(array), index);
  }

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

  std::vector<jobject> argumentsOf(const char* method, const std::vector<int>& ints,
                                   jobject session, jobject object);
  Called callWithKinds(const std::string& listed, const char* failure = "");
  static void expectUnitAndInts(const char* method, const std::vector<int>& ints);

  std::set<std::string> temporary_;
};

}  // namespace quorvelj::testing
