// Audit logs: their settings, and an entry for every change of them.
#include <fstream>

#include "arraylib/accounts.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

struct AuditLog {
  AuditLog() { settings.auditlog_internallog.internallog_used = 1; }

  QVAuditLogInformation settings{};
  std::vector<std::string> entries;
};

/// Notes what the session's user did, unless the array keeps no log of its own.
void note(const UnitName* unit, const QVSessionInfo* session, const std::string& deed) {
  auto& log = partOf<AuditLog>(unit);
  if (log.settings.auditlog_internallog.internallog_used != 0) {
    log.entries.push_back(unitOf(unit).sessions[identifierOf(*session)] + ": " + deed);
  }
}

int getSettings(const UnitName* unit, const QVSessionInfo*, QVAuditLogInformation* information) {
  *information = partOf<AuditLog>(unit).settings;
  return 0;
}

int setSettings(const UnitName* unit, const QVSessionInfo* session,
                const QVAuditLogInformation* information) {
  partOf<AuditLog>(unit).settings = *information;
  note(unit, session, "settings changed");
  return 0;
}

int exportLog(const UnitName* unit, const QVSessionInfo* session, const FilePath* path) {
  std::ofstream file(textOf(*path), std::ios::binary);
  for (const std::string& entry : partOf<AuditLog>(unit).entries) {
    file << entry << '\n';
  }
  if (!file.flush()) {
    return kFileFailed;
  }
  note(unit, session, "log exported");
  return 0;
}

int initialise(const UnitName* unit, const QVSessionInfo* session, const AuditLogInitRequest*) {
  partOf<AuditLog>(unit).entries.clear();
  note(unit, session, "log initialised");
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetQVAuditLogInformation, getSettings)
SIMULATE(3, QV_SetQVAuditLogInformation, setSettings)
SIMULATE(3, QV_QVAuditLogExport, exportLog)
SIMULATE(3, QV_InitQVAuditLog, initialise)
