// The audit log in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using AuditLog = RegisteredUnit;

TEST_F(AuditLog, Records) {
  const std::vector<Member> settings{
      int32At(0, "option"),
      int32At(4, "set_valid"),
      int32At(8, "auditlog_server.serverall_used"),
      int32At(12, "auditlog_server.server[0].server_used"),
      textAt(16, 40, "auditlog_server.server[0].ip_address"),
      int32At(56, "auditlog_server.server[1].server_used"),
      textAt(60, 40, "auditlog_server.server[1].ip_address"),
      int32At(100, "auditlog_internallog.internallog_used"),
  };
  expectBuilt("QV_GetQVAuditLogInformation", {unit_, session_}, 104, settings);
  EXPECT_EQ(
      get(call("QV_GetQVAuditLogInformation", {unit_, session_}).result, "auditlog_server.server"),
      "QVAuditLogSyslogServer[2]");
  const jobject information = create("QVAuditLogInformation");
  expectRead("QV_SetQVAuditLogInformation", {unit_, session_, information}, information, 2, 104,
             settings);
  const jobject request = create("AuditLogInitRequest");
  expectRead("QV_InitQVAuditLog", {unit_, session_, request}, request, 2, 4,
             {int32At(0, "set_valid")});
  expectPassed("QV_QVAuditLogExport", "usp");
  expectPassed("QV_GetQVAuditLogInformation", "us");
}

TEST_F(AuditLog, ServersMoreOrFewerThanTheRecordHas) {
  const jobject one = create("QVAuditLogInformation");
  set(one, "auditlog_server.server[0].ip_address", "192.0.2.1");
  set(one, "auditlog_internallog.internallog_used", "7");
  EXPECT_EQ(call("QV_SetQVAuditLogInformation", {unit_, session_, one}).failure, "");
  EXPECT_STREQ(lastInput("QV_SetQVAuditLogInformation", 2).data() + 16, "192.0.2.1");
  EXPECT_EQ(lastInput("QV_SetQVAuditLogInformation", 2)[100], 7);

  // The third does not reach the log's switch behind the second.
  const jobject three = create("QVAuditLogInformation");
  for (const char* const server : {"[0]", "[1]", "[2]"}) {
    set(three, std::string("auditlog_server.server") + server + ".server_used", "-1");
    set(three, std::string("auditlog_server.server") + server + ".ip_address", "x");
  }
  setNull(three, "auditlog_internallog");
  quorvelSimForceResult("QV_SetQVAuditLogInformation", 0, 1);
  EXPECT_EQ(call("QV_SetQVAuditLogInformation", {unit_, session_, three}).failure, "");
  EXPECT_EQ(lastInput("QV_SetQVAuditLogInformation", 2)[56], -1);
}

TEST_F(AuditLog, ExportAndInitialisation) {
  const std::string path = temporary("audit-log");
  const jobject information = create("QVAuditLogInformation");
  set(information, "auditlog_server.serverall_used", "0");
  set(information, "auditlog_server.server[1].ip_address", std::string(50, '1'));
  set(information, "auditlog_server.server[0].ip_address", "");
  set(information, "auditlog_internallog.internallog_used", "1");
  EXPECT_EQ(call("QV_SetQVAuditLogInformation", {unit_, session_, information}).failure, "");
  const jobject kept = call("QV_GetQVAuditLogInformation", {unit_, session_}).result;
  EXPECT_EQ(get(kept, "auditlog_server.server[1].ip_address"), std::string(39, '1'));

  EXPECT_EQ(call("QV_QVAuditLogExport", {unit_, session_, text(path)}).failure, "");
  EXPECT_EQ(contentOf(path), "admin: settings changed\n");
  EXPECT_EQ(call("QV_InitQVAuditLog", {unit_, session_, create("AuditLogInitRequest")}).failure,
            "");
  EXPECT_EQ(call("QV_QVAuditLogExport", {unit_, session_, text(path)}).failure, "");
  EXPECT_EQ(contentOf(path), "admin: log initialised\n");
  EXPECT_EQ(call("QV_QVAuditLogExport", {unit_, session_, text("/no/such/place")}).failure,
            "DiskArrayException 20801");
}

}  // namespace
}  // namespace quorvelj::testing
