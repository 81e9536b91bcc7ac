#include "tests/families/registered_unit.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace quorvelj::testing {

RegisteredUnit::RegisteredUnit() {
  quorvelSimReset();
  javaEnv()->PushLocalFrame(4096);
  call("QV_UnitAdd", {create("QVUnitParam", {{"unit_name", "north"},
                                             {"group_name", ""},
                                             {"alert", "5"},
                                             {"ctl0", "192.0.2.10"},
                                             {"ctl1", ""},
                                             {"serial", ""}})});
  unit_ = text("north");
  session_ = login("admin", "quorvel").result;
}

RegisteredUnit::~RegisteredUnit() {
  javaEnv()->PopLocalFrame(nullptr);
  for (const std::string& path : temporary_) {
    std::remove(path.c_str());
  }
}

Called RegisteredUnit::login(const std::string& user, const std::string& password) {
  return call("QV_LoginQVAccount",
              {unit_, create("LoginRequest",
                             {{"user_id", user}, {"passwd", password}, {"log_string", ""}})});
}

std::string RegisteredUnit::lastInput(const char* function, int parameter) {
  std::string bytes(quorvelSimLastInput(function, parameter, nullptr, 0), '\0');
  quorvelSimLastInput(function, parameter, bytes.data(), bytes.size());
  return bytes;
}

std::string RegisteredUnit::lastText(const char* function, int parameter) {
  return lastInput(function, parameter).c_str();
}

std::int32_t RegisteredUnit::lastInt(const char* function, int parameter, std::size_t offset) {
  std::int32_t value = 0;
  lastInput(function, parameter).copy(reinterpret_cast<char*>(&value), sizeof value, offset);
  return value;
}

void RegisteredUnit::expectFromUnit(const char* method, std::size_t size, const Members& members,
                                    const std::vector<int>& ints) {
  expectBuilt(method, inSession(session_, ints), size, members);
  EXPECT_EQ(lastInput(method, 1).substr(31), "Z") << method;
  expectUnitAndInts(method, ints);
}

void RegisteredUnit::expectRequest(const char* method, jobject object, std::size_t size,
                                   const Members& members, const std::vector<int>& ints) {
  const jobject session = create("QVSessionInfo");
  std::vector<jobject> arguments = inSession(session, ints);
  arguments.push_back(object);
  const int place = 2 + static_cast<int>(ints.size());
  expectRead(method, arguments, object, place, size, members);
  expectRead(method, arguments, session, 1, 32, {bytesAt(0, 32, "session_id")});
  expectUnitAndInts(method, ints);
}

void RegisteredUnit::expectRequest(const char* method, const char* className, std::size_t size,
                                   const Members& members, const std::vector<int>& ints) {
  expectRequest(method, create(className), size, members, ints);
}

void RegisteredUnit::expectPassed(const char* method, const std::string& kinds, bool value) {
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

void RegisteredUnit::expectTooShort(const char* method, const std::vector<jobject>& arguments) {
  const int calls = quorvelSimCallCount(method);
  quorvelSimForceResult(method, 0, 1);
  EXPECT_EQ(call(method, arguments).failure.substr(0, 30), "ArrayIndexOutOfBoundsException")
      << method;
  EXPECT_EQ(quorvelSimCallCount(method), calls + 1) << method;
}

std::ptrdiff_t RegisteredUnit::lengthOf(jobject object, const char* path) {
  const std::string shown = get(object, path);
  return 1 + std::count(shown.begin(), shown.end(), ',');
}

std::string RegisteredUnit::createGroup(int group) {
  const jobject request = create("CreateRaidGroup", {{"rgnum", std::to_string(group)},
                                                     {"level", "5"},
                                                     {"parity_hdu_count", "5"},
                                                     {"parity_count", "2"}});
  setLength(request, "rgdrv", 0);
  return run("QV_CreateRaidGroup", request);
}

std::string RegisteredUnit::createLu(int lun, int group, int high, int low) {
  const jobject request =
      create("LogicalUnitCreationRequest", {{"luNumber", std::to_string(lun)},
                                            {"rgNumber", std::to_string(group)},
                                            {"lu_capacity_h", std::to_string(high)},
                                            {"lu_capacity_l", std::to_string(low)}});
  setLength(request, "befor_lun", 128);
  return run("QV_CreateLogicalUnit", request);
}

std::string RegisteredUnit::temporary(const std::string& name) {
  return *temporary_
              .insert(::testing::TempDir() + "quorvelj-" + std::to_string(getpid()) + '-' + name)
              .first;
}

std::string RegisteredUnit::contentOf(const std::string& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

jobject RegisteredUnit::succeeding(const char* method, const std::vector<jobject>& arguments) {
  const Called called = call(method, arguments);
  EXPECT_EQ(called.failure, "") << method;
  return called.result;
}

std::vector<jobject> RegisteredUnit::inSession(jobject session, const std::vector<int>& ints) {
  std::vector<jobject> arguments{unit_, session};
  for (const int value : ints) {
    arguments.push_back(number(value));
  }
  return arguments;
}

void RegisteredUnit::expectUnitAndInts(const char* method, const std::vector<int>& ints) {
  EXPECT_EQ(lastInput(method, 0).size(), 65U) << method;
  EXPECT_EQ(lastText(method, 0), "north") << method;
  for (std::size_t index = 0; index < ints.size(); ++index) {
    EXPECT_EQ(lastInt(method, 2 + static_cast<int>(index)), ints[index]) << method;
  }
}

}  // namespace quorvelj::testing
