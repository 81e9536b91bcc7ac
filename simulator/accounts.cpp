// Accounts and the sessions that they open.
#include "arraylib/accounts.h"

#include <cstring>

#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

constexpr const char* kRoleNames[] = {"", "Account Administrator", "Storage Administrator",
                                      "Viewer"};
static_assert(std::size(kRoleNames) == kRoles + 1);
/// The user of the sessions that the alert check opens. No account has this name.
constexpr char kAlertCheckUser[] = "";

/// The account of a session's user, or null.
Account* ownAccount(const UnitName* unit, const QVSessionInfo* session) {
  Unit& known = unitOf(unit);
  const auto found = known.accounts.find(known.sessions[identifierOf(*session)]);
  return found == known.accounts.end() ? nullptr : &found->second;
}

void open(const UnitName* unit, const std::string& user, QVSessionInfo* session) {
  const std::int32_t number = ++state().sessionsOpened;
  std::memset(session, 0x5A, sizeof *session);
  std::memcpy(session->session_id, &number, sizeof number);
  unitOf(unit).sessions[identifierOf(*session)] = user;
}

int login(const UnitName* unit, const LoginRequest* request, QVSessionInfo* session) {
  const auto& accounts = unitOf(unit).accounts;
  const auto found = accounts.find(textOf(request->user_id));
  if (found == accounts.end() || found->second.account_enable == 0 ||
      textOf(found->second.passwd) != textOf(request->passwd)) {
    return kLoginRefused;
  }
  open(unit, found->first, session);
  return 0;
}

int loginForAlertCheck(const UnitName* unit, std::int32_t, QVSessionInfo* session) {
  open(unit, kAlertCheckUser, session);
  return 0;
}

int logout(const UnitName* unit, const QVSessionInfo* session, const LogoutOption*) {
  unitOf(unit).sessions.erase(identifierOf(*session));
  return 0;
}

int forceLogout(const UnitName* unit, const QVSessionInfo*, const AccountIdentifier* account) {
  Unit& known = unitOf(unit);
  const std::string user = textOf(account->user_id);
  if (!known.accounts.contains(user)) {
    return kUnknownAccount;
  }
  std::erase_if(known.sessions, [&](const auto& session) { return session.second == user; });
  return 0;
}

int deleteAccount(const UnitName* unit, const QVSessionInfo* session,
                  const AccountIdentifier* account) {
  const int result = forceLogout(unit, session, account);
  unitOf(unit).accounts.erase(textOf(account->user_id));
  return result;
}

int createAccount(const UnitName* unit, const QVSessionInfo*, const Account* account) {
  auto& accounts = unitOf(unit).accounts;
  const std::string user = textOf(account->user_id);
  if (user.empty()) {
    return kInvalidName;
  }
  if (accounts.size() == kAccounts) {
    return kTooManyAccounts;
  }
  return accounts.emplace(user, *account).second ? 0 : kAccountExists;
}

int changeAccount(const UnitName* unit, const QVSessionInfo*, const Account* account) {
  auto& accounts = unitOf(unit).accounts;
  const auto found = accounts.find(textOf(account->user_id));
  if (found == accounts.end()) {
    return kUnknownAccount;
  }
  const std::string password =
      textOf(account->set_passwd != 0 ? account->passwd : found->second.passwd);
  found->second = *account;
  setText(found->second.passwd, password);
  return 0;
}

int changeOwnPassword(const UnitName* unit, const QVSessionInfo* session,
                      const OwnPasswordChange* change) {
  Account* const own = ownAccount(unit, session);
  if (own == nullptr || textOf(own->user_id) != textOf(change->user_id)) {
    return kUnknownAccount;
  }
  if (textOf(own->passwd) != textOf(change->old_passwd)) {
    return kLoginRefused;
  }
  setText(own->passwd, textOf(change->new_passwd));
  return 0;
}

int getRoles(const UnitName*, const QVSessionInfo*, QVAccountRoleInformation* roles) {
  clear(roles);
  for (std::size_t index = 1; index < std::size(kRoleNames); ++index) {
    roles->role_valid_index |= 1 << index;
    setText(roles->role_info[index].role_name, kRoleNames[index]);
  }
  return 0;
}

int getAccounts(const UnitName* unit, const QVSessionInfo*, QVAccountInfoList* list) {
  clear(list);
  auto* next = std::begin(list->account_info);
  for (const auto& [user, account] : unitOf(unit).accounts) {
    setText(next->user_id, user);
    next->account_type = account.account_type;
    next->role = account.role;
    next->account_enable = account.account_enable;
    ++next;
  }
  return 0;
}

int getOwnPermission(const UnitName* unit, const QVSessionInfo* session,
                     OwnUserPermission* permission) {
  *permission = {};
  const Account* const own = ownAccount(unit, session);
  permission->role = own == nullptr ? 0 : own->role;
  // An administrator may change what a viewer may only read.
  const std::int32_t authority = permission->role == 1 || permission->role == 2 ? 2 : 1;
  std::fill(std::begin(permission->operation_auth), std::end(permission->operation_auth),
            authority);
  std::fill(std::begin(permission->original_operation_auth),
            std::end(permission->original_operation_auth), authority);
  return 0;
}

/// The banner, with a session and without.
int getBanner(const UnitName* unit, AccountBanner* banner) {
  *banner = partOf<AccountBanner>(unit);
  return 0;
}

int getBannerInSession(const UnitName* unit, const QVSessionInfo*, AccountBanner* banner) {
  return getBanner(unit, banner);
}

int setBanner(const UnitName* unit, const QVSessionInfo*, const AccountBanner* banner) {
  partOf<AccountBanner>(unit) = *banner;
  return 0;
}

}  // namespace

SIMULATE(3, QV_LoginQVAccount, login)
SIMULATE(3, QV_LoginQVAccountAlertCheck, loginForAlertCheck)
SIMULATE(3, QV_LogoutQVAccount, logout)
SIMULATE(3, QV_LogoutQVAccountAlertCheck, logout)
SIMULATE(3, QV_ForcedLogoutQVAccount, forceLogout)
SIMULATE(3, QV_DeleteAccount, deleteAccount)
SIMULATE(3, QV_CreateAccount, createAccount)
SIMULATE(3, QV_ChangeAccount, changeAccount)
SIMULATE(3, QV_ChangeOwnUserPassword, changeOwnPassword)
SIMULATE(3, QV_GetAccountOption)
SIMULATE(3, QV_SetAccountOption)
SIMULATE(3, QV_GetQVAccountRoleInformation, getRoles)
SIMULATE(3, QV_GetAccountInformation, getAccounts)
SIMULATE(3, QV_GetOwnUserPermission, getOwnPermission)
SIMULATE(2, QV_GetAccountBanner, getBanner)
SIMULATE(3, QV_GetAccountBannerAuth, getBannerInSession)
SIMULATE(3, QV_SetAccountBannerAuth, setBanner)
