// Alerts of the units, mail settings, and the configurations of SNMP agents.
#include "arraylib/alerts.h"

#include <fstream>
#include <iterator>

#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

/// The result of a test mail without a mail server.
constexpr std::int32_t kNoMailServer = 1;

/// How often this host checks, in seconds.
struct AlertInterval {
  std::int32_t seconds = 60;
};

// A unit has the alert with which it was registered.

int checkAlert(const UnitName* unit, const QVSessionInfo*, std::int32_t, std::int32_t* alert) {
  *alert = static_cast<std::uint8_t>(unitOf(unit).param.alert);
  return 0;
}

int checkAlertEx(const UnitName* unit, const QVSessionInfo* session, std::int32_t option,
                 AlertCheckEx* alert) {
  *alert = {.valid_index = 1, .alert = 0, .alert_sa = 0};
  return checkAlert(unit, session, option, &alert->alert);
}

int getInterval(std::int32_t* seconds) {
  *seconds = state().host.part<AlertInterval>().seconds;
  return 0;
}

int setInterval(std::int32_t seconds) {
  state().host.part<AlertInterval>().seconds = seconds;
  return 0;
}

int getEmailAlert(const UnitName* unit, const QVSessionInfo*, EmailAlertInformation* information) {
  *information = partOf<EmailAlertInformation>(unit);
  return 0;
}

int setEmailAlert(const UnitName* unit, const QVSessionInfo*, const EmailAlertInfo* info) {
  partOf<EmailAlertInformation>(unit).mail = *info;
  return 0;
}

int changeEmailAlertMode(const UnitName* unit, const QVSessionInfo*, std::int32_t mode) {
  partOf<EmailAlertInformation>(unit).send_mode = mode;
  return 0;
}

int testEmailAlert(const UnitName* unit, const QVSessionInfo*, const EmailAlertTest* test) {
  auto& alert = partOf<EmailAlertInformation>(unit);
  if (!isController(test->ctl)) {
    return kNothingFound;
  }
  alert.ctl_flag[test->ctl] = 1;
  alert.exec_flag = 1;
  alert.exec_result = textOf(alert.mail.smtp).empty() ? kNoMailServer : 0;
  return 0;
}

// In files, the first holds the text of a configuration and the second its name.

int loadFiles(const FilePath* textPath, const FilePath* namePath, SnmpConfigInformation& config) {
  std::ifstream text(textOf(*textPath), std::ios::binary);
  std::ifstream name(textOf(*namePath), std::ios::binary);
  if (!text || !name) {
    return kFileFailed;
  }
  using Characters = std::istreambuf_iterator<char>;
  config = {};
  config.set_valid = 1;
  setText(config.conf, std::string(Characters(text), Characters()));
  setText(config.name, std::string(Characters(name), Characters()));
  return 0;
}

int saveFiles(const FilePath* textPath, const FilePath* namePath,
              const SnmpConfigInformation& config) {
  std::ofstream text(textOf(*textPath), std::ios::binary);
  std::ofstream name(textOf(*namePath), std::ios::binary);
  text << textOf(config.conf);
  name << textOf(config.name);
  return text.flush() && name.flush() ? 0 : kFileFailed;
}

int loadSnmp(const FilePath* pathA, const FilePath* pathB, SnmpConfigInformation* config) {
  return loadFiles(pathA, pathB, *config);
}

int saveSnmp(const FilePath* pathA, const FilePath* pathB, const SnmpConfigInformation* config) {
  return saveFiles(pathA, pathB, *config);
}

int setSnmp(const UnitName* unit, const QVSessionInfo*, const SnmpConfigInformation* config) {
  partOf<SnmpConfigInformation>(unit) = *config;
  return 0;
}

int setSnmpFromFiles(const UnitName* unit, const QVSessionInfo*, const FilePath* first,
                     const FilePath* second) {
  return loadFiles(first, second, partOf<SnmpConfigInformation>(unit));
}

int outputSnmp(const UnitName* unit, const QVSessionInfo*, const FilePath* first,
               const FilePath* second) {
  return saveFiles(first, second, partOf<SnmpConfigInformation>(unit));
}

}  // namespace

SIMULATE(1, QV_GetEmailInfo)
SIMULATE(1, QV_SetEmailInfo)
SIMULATE(4, QV_AlertCheck, checkAlert)
SIMULATE(4, QV_AlertCheckEx, checkAlertEx)
SIMULATE(1, QV_GetAlertInterval, getInterval)
SIMULATE(1, QV_SetAlertInterval, setInterval)
SIMULATE(1, QV_GetAlertCheckUser)
SIMULATE(1, QV_SetAlertCheckUser)
SIMULATE(3, QV_GetEmailAlertInformation, getEmailAlert)
SIMULATE(3, QV_SetEmailAlertInfo, setEmailAlert)
SIMULATE(2, QV_ClearEmailAlertInfo)
SIMULATE(3, QV_ChangeEmailAlertMode, changeEmailAlertMode)
SIMULATE(3, QV_TestEmailAlert, testEmailAlert)
SIMULATE(3, QV_LoadSnmpConfig, loadSnmp)
SIMULATE(3, QV_SaveSnmpConfig, saveSnmp)
SIMULATE(3, QV_SetSnmpConfigonMemory, setSnmp)
SIMULATE(4, QV_SetSnmpConfig, setSnmpFromFiles)
SIMULATE(4, QV_SnmpConfigOutput, outputSnmp)
