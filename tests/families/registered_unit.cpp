#include "tests/families/registered_unit.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>

#include "tests/support/native_methods.h"
#include "tests/support/split.h"

namespace quorvelj::testing {

RegisteredUnit::RegisteredUnit() {
  quorvelSimReset();
  javaEnv()->PushLocalFrame(4096);
  call("QV_UnitAdd",
       {create("QVUnitParam",
               "unit_name=north; group_name=; alert=5; ctl0=192.0.2.10; ctl1=; serial=")});
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
              {unit_, create("LoginRequest", "user_id=" + user + "; passwd=" + password)});
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
  expectBuilt(method, argumentsOf(method, ints, session_, nullptr), size, members);
  EXPECT_EQ(lastInput(method, 1).substr(31), "Z") << method;
  expectUnitAndInts(method, ints);
}

void RegisteredUnit::expectRequest(const char* method, jobject object, std::size_t size,
                                   const Members& members, const std::vector<int>& ints) {
  const jobject session = create("QVSessionInfo");
  const std::vector<jobject> arguments = argumentsOf(method, ints, session, object);
  const auto place = std::find(arguments.begin(), arguments.end(), object) - arguments.begin();
  expectRead(method, arguments, object, static_cast<int>(place), size, members);
  if (std::find(arguments.begin(), arguments.end(), session) != arguments.end()) {
    expectRead(method, arguments, session, 1, 32, "0:bytes32 session_id");
    EXPECT_EQ(lastInput(method, 0).size(), 65U) << method;
  }
  expectUnitAndInts(method, ints);
}

void RegisteredUnit::expectRequest(const char* methods, const char* className, std::size_t size,
                                   const Members& members, const std::vector<int>& ints) {
  for (const std::string& method : split(methods, " ")) {
    expectRequest(method.c_str(), create(className), size, members, ints);
  }
}

void RegisteredUnit::expectGetAndSet(const std::string& operation, const char* className,
                                     std::size_t size, const Members& members,
                                     const std::vector<int>& ints) {
  expectFromUnit(("QV_Get" + operation).c_str(), size, members, ints);
  expectRequest(("QV_Set" + operation).c_str(), className, size, members, ints);
}

void RegisteredUnit::expectPassed(const std::string& methods) {
  for (const std::string& listed : split(methods, "; ")) {
    callWithKinds(listed);
  }
}

void RegisteredUnit::expectPassedAndReturned(const std::string& methods) {
  for (const std::string& listed : split(methods, "; ")) {
    EXPECT_EQ(get(callWithKinds(listed).result, ""), "-123456789") << listed;
    quorvelSimForceResult(split(listed, " ")[0].c_str(), 77, 1);
    EXPECT_EQ(callWithKinds(listed, "DiskArrayException 77").result, nullptr) << listed;
  }
}

Called RegisteredUnit::callWithKinds(const std::string& listed, const char* failure) {
  SCOPED_TRACE(listed);
  const std::string name = listed.substr(0, listed.find(' '));
  const char* const method = name.c_str();
  const std::string kinds = listed.substr(std::min(name.size() + 1, listed.size()));
  std::vector<jobject> arguments;
  for (const char kind : kinds) {
    const auto place = static_cast<jint>(arguments.size());
    arguments.push_back(kind == 'u'   ? unit_
                        : kind == 's' ? session_
                        : kind == 'p' ? text("/path/" + std::to_string(place))
                                      : number(-100 - place));
  }
  constexpr std::int32_t kWritten = -123456789;
  quorvelSimPrepareOutput(method, &kWritten, sizeof kWritten);
  const Called called = call(method, arguments);
  quorvelSimPrepareOutput(method, nullptr, 0);
  EXPECT_EQ(called.failure, failure);
  static const std::map<char, std::size_t> sizes{{'u', 65}, {'s', 32}, {'p', 1024}, {'i', 4}};
  int place = 0;
  for (const char kind : kinds) {
    SCOPED_TRACE("parameter " + std::to_string(place));
    EXPECT_EQ(lastInput(method, place).size(), sizes.at(kind));
    if (kind == 'i') {
      EXPECT_EQ(lastInt(method, place), -100 - place);
    } else if (kind == 's') {
      EXPECT_EQ(lastInput(method, place).substr(31), "Z");
    } else {
      EXPECT_EQ(lastText(method, place), kind == 'u' ? "north" : "/path/" + std::to_string(place));
    }
    ++place;
  }
  EXPECT_EQ(lastInput(method, place).size(), 0U);
  return called;
}

void RegisteredUnit::expectTooShort(const char* method, const std::vector<jobject>& arguments) {
  const int calls = quorvelSimCallCount(method);
  quorvelSimForceResult(method, 0, 1);
  EXPECT_EQ(call(method, arguments).failure.substr(0, 30), "ArrayIndexOutOfBoundsException")
      << method;
  EXPECT_EQ(quorvelSimCallCount(method), calls + 1) << method;
}

std::string RegisteredUnit::createGroup(int group) {
  return run("QV_CreateRaidGroup",
             create("CreateRaidGroup", "rgnum=" + std::to_string(group) +
                                           "; level=5; parity_hdu_count=5; parity_count=2"));
}

std::string RegisteredUnit::createLu(int lun, int group, int high, int low) {
  return run("QV_CreateLogicalUnit",
             create("LogicalUnitCreationRequest", "luNumber=" + std::to_string(lun) +
                                                      "; rgNumber=" + std::to_string(group) +
                                                      "; lu_capacity_h=" + std::to_string(high) +
                                                      "; lu_capacity_l=" + std::to_string(low)));
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

std::vector<jobject> RegisteredUnit::argumentsOf(const char* method, const std::vector<int>& ints,
                                                 jobject session, jobject object) {
  std::vector<jobject> arguments;
  auto next = ints.begin();
  for (const std::string& type : nativeMethod(method).argumentTypes()) {
    arguments.push_back(type == "I"                      ? number(*next++)
                        : type == "Ljava/lang/String;"   ? unit_
                        : type.ends_with("SessionInfo;") ? session
                                                         : object);
  }
  return arguments;
}

void RegisteredUnit::expectUnitAndInts(const char* method, const std::vector<int>& ints) {
  auto next = ints.begin();
  int place = 0;
  for (const std::string& type : nativeMethod(method).argumentTypes()) {
    if (type == "I") {
      EXPECT_EQ(lastInt(method, place), *next++) << method;
    } else if (type == "Ljava/lang/String;") {
      EXPECT_EQ(lastText(method, place), "north") << method;
    }
    ++place;
  }
}

}  // namespace quorvelj::testing
