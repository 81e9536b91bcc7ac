// Logins to a unit, its own list of users, its limits and its clock.
#include <cstring>
#include <ctime>

#include "arraylib/units.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

constexpr std::size_t kMostUsers = 20;

/// The users of the unit's own list.
struct ArrayUsers {
  std::map<std::string, ArrayUser> registered;
  /// Who is logged in, by mode.
  std::map<std::int32_t, ArrayUser> loggedIn;
};

/// A clock that stands still at what it was set to: at first 1 March 2012, a Thursday, at 8:30.
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

struct LibraryPassword {
  std::string text = kFirstPassword;
};

/// Does `work` with the users of a unit whose name is in the long buffer.
template <class Work>
int onUsers(const LongUnitName* name, Work work) {
  Unit* const unit = findUnit(textOf(*name));
  return unit == nullptr ? kUnknownUnit : int{work(unit->part<ArrayUsers>())};
}

bool same(const ArrayUser& left, const ArrayUser& right) {
  return textOf(left.user) == textOf(right.user) && textOf(left.passwd) == textOf(right.passwd);
}

void copy(const ArrayUser& user, LoginPair* pair) {
  setText((*pair)[0], textOf(user.user));
  setText((*pair)[1], textOf(user.passwd));
}

/// A unit without users lets anybody in and returns no name.
int login(const LongUnitName* unit, std::int32_t mode, const ArrayUser* user, LoginPair* pair) {
  return onUsers(unit, [&](ArrayUsers& users) -> int {
    clear(pair);
    if (users.registered.empty()) {
      return 0;
    }
    const auto found = users.registered.find(textOf(user->user));
    if (found == users.registered.end() || !same(found->second, *user)) {
      return kLoginRefused;
    }
    users.loggedIn[mode] = found->second;
    copy(found->second, pair);
    return 0;
  });
}

int getLoginUser(const LongUnitName* unit, std::int32_t mode, LoginPair* pair) {
  return onUsers(unit, [&](const ArrayUsers& users) {
    clear(pair);
    const auto found = users.loggedIn.find(mode);
    if (found != users.loggedIn.end()) {
      copy(found->second, pair);
    }
    return 0;
  });
}

int logout(const LongUnitName* unit, std::int32_t mode) {
  return onUsers(unit, [&](ArrayUsers& users) {
    users.loggedIn.erase(mode);
    return 0;
  });
}

int checkLogin(const LongUnitName* unit, std::int32_t mode, std::int32_t* loggedIn) {
  return onUsers(unit, [&](const ArrayUsers& users) {
    *loggedIn = users.loggedIn.contains(mode) ? 1 : 0;
    return 0;
  });
}

/// A reboot ends every session and every login.
int reboot(const LongUnitName* unit, const QVSessionInfo* session) {
  return onUsers(unit, [&](ArrayUsers& users) -> int {
    auto& sessions = findUnit(textOf(*unit))->sessions;
    if (!sessions.contains(identifierOf(*session))) {
      return kUnknownSession;
    }
    sessions.clear();
    users.loggedIn.clear();
    return 0;
  });
}

int registerUser(const LongUnitName* unit, std::int32_t, const ArrayUser* user) {
  return onUsers(unit, [&](ArrayUsers& users) -> int {
    const std::string name = textOf(user->user);
    if (name.empty()) {
      return kInvalidName;
    }
    if (users.registered.size() == kMostUsers) {
      return kTooManyAccounts;
    }
    return users.registered.emplace(name, *user).second ? 0 : kAccountExists;
  });
}

int deleteUser(const LongUnitName* unit, std::int32_t, const ArrayUser* user) {
  return onUsers(unit, [&](ArrayUsers& users) -> int {
    return users.registered.erase(textOf(user->user)) == 0 ? kUnknownAccount : 0;
  });
}

int changeUser(const LongUnitName* unit, std::int32_t number, const ArrayUser* oldUser,
               const ArrayUser* newUser) {
  const int result = deleteUser(unit, number, oldUser);
  return result == 0 ? registerUser(unit, number, newUser) : result;
}

int deleteAllUsers(const LongUnitName* unit, std::int32_t) {
  return onUsers(unit, [](ArrayUsers& users) {
    users.registered.clear();
    return 0;
  });
}

int getUsers(const LongUnitName* unit, std::int32_t number, QVUserRegist* regist) {
  return onUsers(unit, [&](const ArrayUsers& users) {
    *regist = {static_cast<std::int32_t>(users.registered.size()), number};
    return 0;
  });
}

int changePassword(const Password* password) {
  state().host.part<LibraryPassword>().text = textOf(*password);
  return 0;
}

int checkPassword(const char* password) {
  return state().host.part<LibraryPassword>().text == password ? 0 : -1;
}

int getInformation(const UnitName* name, const QVSessionInfo*, UnitInformation* information) {
  const Unit& unit = unitOf(name);
  clear(information);
  setText(information->b_info.micro, unit.firmware);
  setText(information->b_info.next_road_micro, unit.firmware);
  information->b_info.device_type = unit.param.device_type;
  LogicalInformation& logical = information->l_info;
  logical.rg_count = kRaidGroups;
  logical.lu_count = kLogicalUnits;
  logical.hg_count = kHostGroups;
  logical.reboot_time = 360;
  logical.iscsi_target_count = kTargets;
  logical.iscsi_initiator_count = kInitiators;
  logical.iscsi_chap_user_count = kChapUsers;
  logical.account_count = kAccounts;
  logical.role_count = kRoles;
  logical.reserve_lu_count = kMigrations;
  logical.migration_pair_count = kMigrations;
  logical.gm_mirror_count = kMirrors;
  logical.gmss_ctg_count = kConsistencyGroups;
  logical.pool_count = kPools;
  logical.pool_lu_count = kPoolLus;
  PhysicalInformation& physical = information->p_info;
  physical.hdd_hdu_count = kSlots;
  physical.hdd_unit_count = kEnclosures;
  physical.port_count = kControllers * kPorts;
  physical.unit_count = kEnclosures;
  return 0;
}

int getTime(const UnitName* unit, const QVSessionInfo*, QVTime* time) {
  *time = partOf<Clock>(unit).time;
  return 0;
}

int setTime(const UnitName* unit, const QVSessionInfo*, const QVTime* time) {
  partOf<Clock>(unit).time = *time;
  return 0;
}

int setTimeNow(const UnitName* unit, const QVSessionInfo*) {
  const std::time_t now = std::time(nullptr);
  const std::tm* const local = std::localtime(&now);
  partOf<Clock>(unit).time = {local->tm_sec,  local->tm_min,  local->tm_hour,
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
SIMULATE(3, QV_GetUnitCTLPortKind)
SIMULATE(3, QV_GetUnitTime, getTime)
SIMULATE(3, QV_SetUnitTime, setTime)
SIMULATE(2, QV_SetUnitTimeNow, setTimeNow)
SIMULATE(3, QV_GetUnitIdentifier)
SIMULATE(3, QV_SetUnitIdentifier)
SIMULATE(3, QV_GetTimeInfo)
SIMULATE(3, QV_SetTimeInfo)

// Written out, because only here a text's own NUL says how long it is.
int QV_PasswdCheck(const char* password) {
  const Value values[] = {
      {Value::Role::kText, const_cast<char*>(password), std::strlen(password) + 1}};
  const Call running("QV_PasswdCheck", values, std::size(values), true);
  return running.settled() ? running.result() : checkPassword(password);
}
