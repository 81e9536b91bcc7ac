// Logins to a unit, its own list of users, and its clock.
#include <cstring>
#include <ctime>

#include "arraylib/units.h"
#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr std::size_t kMostUsers = 20;
constexpr std::int32_t kControllers = 2;
constexpr std::int32_t kLogicalUnits = 4096;

/// What a unit keeps of the users of its own list.
struct ArrayUsers {
  std::map<std::string, ArrayUser> registered;
  /// Who is logged in, by mode.
  std::map<std::int32_t, ArrayUser> loggedIn;
};

/// A clock that stands still at what it was set to; at first on 1 March 2012, a Thursday, at 8:30.
struct Clock {
  QVTime time{.tm_sec = 0,
              .tm_min = 30,
              .tm_hour = 8,
              .tm_mday = 1,
              .tm_mon = 2,
              .tm_year = 112,
              .tm_wday = 4,
              .tm_yday = 60,
              .tm_isdst = 0};
};

/// The password of the library, which belongs to no unit.
struct LibraryPassword {
  std::string text = kFirstPassword;
};

std::string& libraryPassword() { return state().units[""].part<LibraryPassword>().text; }

/// The users of a unit, or null where the name is not registered.
ArrayUsers* usersOf(const LongUnitName* unit) {
  Unit* const known = findUnit(textOf(*unit));
  return known == nullptr ? nullptr : &known->part<ArrayUsers>();
}

bool same(const ArrayUser& left, const ArrayUser& right) {
  return textOf(left.user) == textOf(right.user) && textOf(left.passwd) == textOf(right.passwd);
}

void tell(const ArrayUser& user, LoginPair* pair) {
  setText((*pair)[0], textOf(user.user));
  setText((*pair)[1], textOf(user.passwd));
}

/// Without users anybody is let in, and nobody is named.
int login(const LongUnitName* unit, std::int32_t mode, const ArrayUser* user, LoginPair* pair) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  std::memset(pair, 0, sizeof *pair);
  if (users->registered.empty()) {
    return 0;
  }
  const auto found = users->registered.find(textOf(user->user));
  if (found == users->registered.end() || !same(found->second, *user)) {
    return kLoginRefused;
  }
  users->loggedIn[mode] = found->second;
  tell(found->second, pair);
  return 0;
}

int getLoginUser(const LongUnitName* unit, std::int32_t mode, LoginPair* pair) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  std::memset(pair, 0, sizeof *pair);
  const auto found = users->loggedIn.find(mode);
  if (found != users->loggedIn.end()) {
    tell(found->second, pair);
  }
  return 0;
}

int logout(const LongUnitName* unit, std::int32_t mode) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  users->loggedIn.erase(mode);
  return 0;
}

int checkLogin(const LongUnitName* unit, std::int32_t mode, std::int32_t* loggedIn) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  *loggedIn = users->loggedIn.contains(mode) ? 1 : 0;
  return 0;
}

/// Ends every session, as a restart does.
int reboot(const LongUnitName* unit, const QVSessionInfo* session) {
  Unit* const known = findUnit(textOf(*unit));
  if (known == nullptr) {
    return kUnknownUnit;
  }
  if (!known->sessions.contains(identifierOf(*session))) {
    return kUnknownSession;
  }
  known->sessions.clear();
  known->part<ArrayUsers>().loggedIn.clear();
  return 0;
}

int changePassword(const Password* password) {
  libraryPassword() = textOf(*password);
  return 0;
}

int checkPassword(const char* password) { return libraryPassword() == password ? 0 : -1; }

int registerUser(const LongUnitName* unit, std::int32_t, const ArrayUser* user) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  if (textOf(user->user).empty()) {
    return kInvalidName;
  }
  if (users->registered.size() == kMostUsers) {
    return kTooManyAccounts;
  }
  return users->registered.emplace(textOf(user->user), *user).second ? 0 : kAccountExists;
}

int deleteUser(const LongUnitName* unit, std::int32_t, const ArrayUser* user) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  return users->registered.erase(textOf(user->user)) == 0 ? kUnknownAccount : 0;
}

int changeUser(const LongUnitName* unit, std::int32_t number, const ArrayUser* oldUser,
               const ArrayUser* newUser) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  const std::string oldName = textOf(oldUser->user);
  const auto found = users->registered.find(oldName);
  if (found == users->registered.end() || !same(found->second, *oldUser)) {
    return kLoginRefused;
  }
  if (textOf(newUser->user) != oldName && users->registered.contains(textOf(newUser->user))) {
    return kAccountExists;
  }
  users->registered.erase(found);
  return registerUser(unit, number, newUser);
}

int deleteAllUsers(const LongUnitName* unit, std::int32_t) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  users->registered.clear();
  return 0;
}

int getUsers(const LongUnitName* unit, std::int32_t number, QVUserRegist* regist) {
  ArrayUsers* const users = usersOf(unit);
  if (users == nullptr) {
    return kUnknownUnit;
  }
  *regist = {static_cast<std::int32_t>(users->registered.size()), number};
  return 0;
}

int getInformation(const UnitName* unit, const QVSessionInfo*, UnitInformation* information) {
  const QVUnitParam& param = findUnit(textOf(*unit))->param;
  *information = {};
  setText(information->b_info.micro, "0957/A");
  setText(information->b_info.next_road_micro, "0957/A");
  information->b_info.device_type = param.device_type;
  information->l_info.rg_count = 200;
  information->l_info.lu_count = kLogicalUnits;
  information->l_info.account_count = 21;
  information->l_info.role_count = 3;
  information->l_info.reboot_time = 360;
  information->p_info.ps_count = kControllers;
  information->p_info.fan_count = 2 * kControllers;
  information->p_info.enc_count = kControllers;
  information->p_info.port_count = 4 * kControllers;
  information->p_info.unit_count = 60;
  information->p_info.hdd_unit_count = 30;
  return 0;
}

int getPortKinds(const UnitName*, const QVSessionInfo*, CTLPortKind* kinds) {
  *kinds = {1, 1};
  return 0;
}

int getTime(const UnitName* unit, const QVSessionInfo*, QVTime* time) {
  *time = findUnit(textOf(*unit))->part<Clock>().time;
  return 0;
}

int setTime(const UnitName* unit, const QVSessionInfo*, const QVTime* time) {
  findUnit(textOf(*unit))->part<Clock>().time = *time;
  return 0;
}

int setTimeNow(const UnitName* unit, const QVSessionInfo*) {
  const std::time_t now = std::time(nullptr);
  const std::tm* const local = std::localtime(&now);
  findUnit(textOf(*unit))->part<Clock>().time = {local->tm_sec,  local->tm_min,  local->tm_hour,
                                                 local->tm_mday, local->tm_mon,  local->tm_year,
                                                 local->tm_wday, local->tm_yday, local->tm_isdst};
  return 0;
}

}  // namespace

SIMULATE(4, QV_LoginQVUnit, login)
SIMULATE(3, QV_GetLoginUser, getLoginUser)
SIMULATE(2, QV_LogoutQVUnit, logout)
SIMULATE(3, QV_CheckLogin, checkLogin)
SIMULATE(2, QV_ResetLogin, logout)
SIMULATE(2, QV_KeepSession)
SIMULATE(2, QV_TestUnitReady)
SIMULATE(2, QV_UnitReboot, reboot)
SIMULATE(1, QV_PasswdChange, changePassword)
SIMULATE(3, QV_RegistUser, registerUser)
SIMULATE(4, QV_ChangeUser, changeUser)
SIMULATE(3, QV_DeleteUser, deleteUser)
SIMULATE(2, QV_DeleteAllUser, deleteAllUsers)
SIMULATE(3, QV_GetUserInformation, getUsers)
SIMULATE(3, QV_GetUnitInformation, getInformation)
SIMULATE(3, QV_GetUnitCTLPortKind, getPortKinds)
SIMULATE(3, QV_GetUnitTime, getTime)
SIMULATE(3, QV_SetUnitTime, setTime)
SIMULATE(2, QV_SetUnitTimeNow, setTimeNow)
SIMULATE(3, QV_GetUnitIdentifier)
SIMULATE(3, QV_SetUnitIdentifier)
SIMULATE(3, QV_GetTimeInfo)
SIMULATE(3, QV_SetTimeInfo)

// Written out, because only here a text's own NUL says how long it is.
int QV_PasswdCheck(const char* password) {
  const std::array<Value, 1> values{
      Value{Value::Role::kText, const_cast<char*>(password), std::strlen(password) + 1}};
  return run("QV_PasswdCheck", values, [=] { return checkPassword(password); });
}
