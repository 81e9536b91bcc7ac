// The audit log.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using AuditLog = RegisteredUnit;

TEST_F(AuditLog, Records) {
  expectGetAndSet("QVAuditLogInformation", "QVAuditLogInformation", 104,
                  "0:int32 option set_valid auditlog_server.serverall_used" +
                      at("12:auditlog_server.server[0] 56:auditlog_server.server[1]",
                         "0:int32 server_used; 4:text40 ip_address") +
                      "100:int32 auditlog_internallog.internallog_used");
  expectRequest("QV_InitQVAuditLog", "AuditLogInitRequest", 4, "0:int32 set_valid");
  expectPassed("QV_QVAuditLogExport usp");
}

TEST_F(AuditLog, ServersMoreOrFewerThanTheRecordHas) {
  const char* const method = "QV_SetQVAuditLogInformation";
  const jobject one = create(
      "QVAuditLogInformation",
      "auditlog_server.server[0].ip_address=192.0.2.1; auditlog_internallog.internallog_used=7");
  update(method, one);
  EXPECT_STREQ(lastInput(method, 2).c_str() + 16, "192.0.2.1");
  EXPECT_EQ(lastInput(method, 2)[100], 7);

  // A third server leaves the log's switch alone, which lies behind the second.
  const jobject three = create("QVAuditLogInformation");
  for (const std::string server : {"[0]", "[1]", "[2]"}) {
    set(three, {{"auditlog_server.server" + server + ".server_used", "-1"},
                {"auditlog_server.server" + server + ".ip_address", "x"}});
  }
  setNull(three, "auditlog_internallog");
  quorvelSimForceResult(method, 0, 1);
  update(method, three);
  EXPECT_EQ(lastInput(method, 2)[56], -1);
}

TEST_F(AuditLog, Export) {
  const std::string path = temporary("audit-log");
  update("QV_InitQVAuditLog", create("AuditLogInitRequest"));
  update("QV_QVAuditLogExport", path);
  EXPECT_EQ(contentOf(path), "admin: log initialised\n");
  EXPECT_EQ(run("QV_QVAuditLogExport", "/no/such/place"), "DiskArrayException 20801");
}

}  // namespace
}  // namespace quorvelj::testing
