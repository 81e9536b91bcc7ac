// Pools, virtual volumes and special LUs in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using PoolsAndSpecialLus = RegisteredUnit;

const std::vector<const char*> kPool{"pool_no",    "pool_status", "allcapa_h", "allcapa_l",
                                     "usedcapa_h", "usedcapa_l",  "used_rate", "threshold",
                                     "lu_count",   "lu[0]"};
const std::vector<const char*> kVolume{"lun", "capacity_specify", "capacity_h", "capacity_l"};
const std::vector<const char*> kUnited{"unite_info", "status", "capacity", "child_lu_count",
                                       "child_lun[0]"};
const std::vector<const char*> kUnited2{"unite_info", "status",         "capacity", "capacity_h",
                                        "capacity_l", "child_lu_count", "next_lun"};
const std::vector<const char*> kManagement{"dmlu_valid", "set_valid", "dmlu_lu"};
const std::vector<const char*> kGuard{"lu_valid",     "capacity",           "capacity_h",
                                      "capacity_l",   "access_level_valid", "access_level_status",
                                      "access_level", "svol_disable",       "access_inhibit_mode",
                                      "access_attr",  "changeable_attr",    "retention_term"};

/// A pool from its first member to its 64th LU.
std::vector<Member> pool(const std::string& path, std::size_t offset) {
  return at(offset, path, int32sAt(0, kPool)) + at(offset + 288, path, int32sAt(0, {"lu[63]"}));
}

TEST_F(PoolsAndSpecialLus, BuiltRecords) {
  expectBuilt("QV_GetPoolInformation", {unit_, session_}, 19288,
              int32sAt(0, {"option"}) + int32sAt(4, {"ctl[0].pool_enable_count"}) +
                  pool("ctl[0].pool[0].", 8) + int32sAt(300, {"ctl[1].pool_enable_count"}) +
                  pool("ctl[1].pool[0].", 304) + int32sAt(596, {"sys.pool_enable_count"}) +
                  pool("sys.pool[0].", 600) + pool("sys.pool[63].", 18996));
  expectBuilt("QV_GetVVOLInformation", {unit_, session_}, 131076,
              int32sAt(0, {"vvol_count"}) + at(4, "lu[0].", int32sAt(0, kVolume)) +
                  at(131060, "lu[8191].", int32sAt(0, kVolume)));
  expectBuilt("QV_IntegrationLUInfo", {unit_}, 1056772,
              int32sAt(0, {"integration_lu"}) + at(4, "unite_info[0].", int32sAt(0, kUnited)) +
                  at(2064, "unite_info[0].", int32sAt(0, {"child_lun[511]"})) +
                  at(1054708, "unite_info[511].", int32sAt(0, kUnited)) +
                  at(1056768, "unite_info[511].", int32sAt(0, {"child_lun[511]"})));
  expectBuilt("QV_IntegrationLUInfo2", {unit_, session_}, 262152,
              int32sAt(0, {"integration_lu", "parent_count", "parent_lu[0]"}) +
                  int32sAt(32772, {"parent_lu[8191]"}) +
                  at(32776, "unite_info[0].", int32sAt(0, kUnited2)) +
                  at(262124, "unite_info[8191].", int32sAt(0, kUnited2)));
  expectBuilt("QV_GetDMLU", {unit_, session_}, 32,
              int32sAt(0, {"mode", "dmlu_count"}) + at(8, "dmlu[0].", int32sAt(0, kManagement)) +
                  at(20, "dmlu[1].", int32sAt(0, kManagement)));
  expectBuilt("QV_GetLuGuardInformation", {unit_, session_}, 393224,
              int32sAt(0, {"option", "expirationlock"}) + at(8, "lu[0].", int32sAt(0, kGuard)) +
                  at(393176, "lu[8191].", int32sAt(0, kGuard)));
}

TEST_F(PoolsAndSpecialLus, ReadRecords) {
  const jobject poolChange = create("PoolChangeRequest");
  expectRead("QV_ChangePoolInformation", {unit_, session_, poolChange}, poolChange, 2, 16,
             int32sAt(0, {"ctl_no", "pool_no", "poolinfo_chg_index", "threshold"}));
  const jobject list = create("PoolLUListRequest");
  set(list, "lu[64]", "7");
  expectRead("QV_PoolLUAddList", {unit_, session_, number(0), number(1), list}, list, 4, 260,
             int32sAt(0, {"lu_count", "lu[0]"}) + int32sAt(256, {"lu[63]"}));
  const jobject volume = create("VvolDetailInformation");
  expectRead("QV_CreateVVOLEx", {unit_, session_, volume}, volume, 2, 16, int32sAt(0, kVolume));
  const jobject integration = create("IntegrationRequest");
  set(integration, "child_lu[127]", "7");
  expectRead("QV_SetIntegrationLU", {unit_, session_, integration}, integration, 2, 524,
             int32sAt(0, {"operation", "parent_lun", "child_lun", "child_count", "child_lu[0]"}) +
                 int32sAt(520, {"child_lu[126]"}));
  const jobject management = create("DMLUInformation");
  expectRead("QV_SetDMLU", {unit_, session_, management}, management, 2, 32,
             int32sAt(0, {"mode", "dmlu_count"}) + at(8, "dmlu[0].", int32sAt(0, kManagement)) +
                 at(20, "dmlu[1].", int32sAt(0, kManagement)));
  const jobject level = create("LuAccessLevelRequest");
  expectRead("QV_SetLuAccessLevel", {unit_, session_, level}, level, 2, 12,
             int32sAt(0, {"lu", "access_level", "retention_term"}));

  setLength(list, "lu", 63);
  setLength(integration, "child_lu", 126);
  quorvelSimForceResult("QV_PoolLUAddList", 0, 1);
  quorvelSimForceResult("QV_SetIntegrationLU", 0, 1);
  EXPECT_TRUE(call("QV_PoolLUAddList", {unit_, session_, number(0), number(1), list})
                  .failure.starts_with("ArrayIndexOutOfBoundsException"));
  EXPECT_TRUE(call("QV_SetIntegrationLU", {unit_, session_, integration})
                  .failure.starts_with("ArrayIndexOutOfBoundsException"));
}

TEST_F(PoolsAndSpecialLus, Arguments) {
  expectPassed("QV_GetPoolInformation", "us");
  expectPassed("QV_PoolLUAdd", "usiii");
  expectPassed("QV_PoolLUAllDelete", "usii");
  expectPassed("QV_CreateVVOL", "usiii");
  expectPassed("QV_DeleteVVOL", "usii");
  expectPassed("QV_GetVVOLInformation", "us");
  expectPassed("QV_IntegrationLUInfo", "u");
  expectPassed("QV_IntegrationLUInfo2", "us");
  expectPassed("QV_GetDMLU", "us");
  expectPassed("QV_GetLuGuardInformation", "us");
  expectPassed("QV_SetSvolDisableMode", "usii");
  expectPassed("QV_ExtendRetentionTerm", "usii");
  expectPassed("QV_SetExpirationLock", "usi");
}

TEST_F(PoolsAndSpecialLus, Pools) {
  createGroup(0);
  for (const int lun : {1, 2, 3}) {
    createLu(lun, 0, 0, INT32_MIN);
  }
  EXPECT_EQ(call("QV_PoolLUAdd", {unit_, session_, number(2), number(63), number(1)}).failure, "");
  EXPECT_EQ(call("QV_PoolLUAdd", {unit_, session_, number(2), number(64), number(2)}).failure,
            "DiskArrayException 20501");
  const jobject list = create("PoolLUListRequest");
  setLength(list, "lu", 64);
  set(list, {{"lu_count", "2"}, {"lu[0]", "2"}, {"lu[1]", "1"}});
  const auto addList = [&] {
    return call("QV_PoolLUAddList", {unit_, session_, number(2), number(63), list}).failure;
  };
  EXPECT_EQ(addList(), "DiskArrayException 20504");
  set(list, "lu[1]", "3");
  EXPECT_EQ(addList(), "");
  const jobject info = call("QV_GetPoolInformation", {unit_, session_}).result;
  EXPECT_EQ(get(info, "ctl[1].pool"), "PoolDetailInfo[1]");
  EXPECT_EQ(get(info, "sys.pool_enable_count"), "1");
  EXPECT_EQ(get(info, "sys.pool[63].allcapa_h"), "1");
  EXPECT_EQ(get(info, "sys.pool[63].allcapa_l"), "-2147483648");
  EXPECT_EQ(get(info, "sys.pool[63].lu").substr(0, 12), "[1, 2, 3, 0,");
  EXPECT_EQ(call("QV_LogicalUnitDeleteAll", {unit_}).failure, "DiskArrayException 20504");
  EXPECT_EQ(call("QV_PoolLUAllDelete", {unit_, session_, number(2), number(63)}).failure, "");
  EXPECT_EQ(call("QV_LogicalUnitDeleteAll", {unit_}).failure, "");
}

TEST_F(PoolsAndSpecialLus, VirtualVolumes) {
  const jobject volume = create("VvolDetailInformation");
  set(volume, {{"lun", "8191"}, {"capacity_h", "2"}, {"capacity_l", "-1"}});
  EXPECT_EQ(call("QV_CreateVVOLEx", {unit_, session_, volume}).failure, "");
  EXPECT_EQ(call("QV_CreateVVOL", {unit_, session_, number(8191), number(0), number(1)}).failure,
            "DiskArrayException 20502");
  const jobject volumes = call("QV_GetVVOLInformation", {unit_, session_}).result;
  EXPECT_EQ(get(volumes, "vvol_count"), "1");
  EXPECT_EQ(get(volumes, "lu"), "VvolDetailInformation[8192]");
  EXPECT_EQ(get(volumes, "lu[0].capacity_h"), "2");
  EXPECT_EQ(get(volumes, "lu[0].capacity_l"), "-1");
  EXPECT_EQ(call("QV_DeleteVVOL", {unit_, session_, number(8191), number(0)}).failure, "");
}

TEST_F(PoolsAndSpecialLus, IntegratedLus) {
  createGroup(0);
  for (const int lun : {0, 1, 8191}) {
    createLu(lun, 0, 0, INT32_MIN);
  }
  const jobject request = create("IntegrationRequest");
  setLength(request, "child_lu", 127);
  set(request, {{"child_count", "2"}, {"child_lu[0]", "8191"}, {"child_lu[1]", "8191"}});
  EXPECT_EQ(call("QV_SetIntegrationLU", {unit_, session_, request}).failure,
            "DiskArrayException 20504");
  set(request, "child_lu[1]", "1");
  EXPECT_EQ(call("QV_SetIntegrationLU", {unit_, session_, request}).failure, "");
  const jobject info = call("QV_IntegrationLUInfo", {unit_}).result;
  EXPECT_EQ(get(info, "unite_info"), "UniteLU[512]");
  EXPECT_EQ(get(info, "unite_info[0].child_lu_count"), "2");
  EXPECT_EQ(get(info, "unite_info[0].child_lun[0]"), "8191");
  EXPECT_EQ(get(info, "unite_info[1].unite_info"), "2");
  const jobject info2 = call("QV_IntegrationLUInfo2", {unit_, session_}).result;
  EXPECT_EQ(get(info2, "unite_info"), "UniteLU2[8192]");
  EXPECT_EQ(get(info2, "unite_info[0].capacity_h"), "1");
  EXPECT_EQ(get(info2, "unite_info[0].next_lun"), "8191");
  EXPECT_EQ(get(info2, "unite_info[8191].next_lun"), "1");
  EXPECT_EQ(get(info2, "unite_info[1].next_lun"), "-1");
}

TEST_F(PoolsAndSpecialLus, ManagementAndGuard) {
  const jobject management = create("DMLUInformation");
  set(management, "dmlu[1].dmlu_lu", "4095");
  EXPECT_EQ(call("QV_SetDMLU", {unit_, session_, management}).failure, "");
  EXPECT_EQ(get(call("QV_GetDMLU", {unit_, session_}).result, "dmlu[1].dmlu_lu"), "4095");

  createGroup(0);
  createLu(9, 0, 1, 0);
  const jobject level = create("LuAccessLevelRequest");
  set(level, {{"lu", "9"}, {"access_level", "1"}, {"retention_term", "30"}});
  EXPECT_EQ(call("QV_SetLuAccessLevel", {unit_, session_, level}).failure, "");
  set(level, "access_level", "0");
  EXPECT_EQ(call("QV_SetLuAccessLevel", {unit_, session_, level}).failure,
            "DiskArrayException 20504");
  const std::vector<jobject> shorter{unit_, session_, number(9), number(29)};
  EXPECT_EQ(call("QV_ExtendRetentionTerm", shorter).failure, "DiskArrayException 20504");
  EXPECT_EQ(call("QV_ExtendRetentionTerm", {unit_, session_, number(9), number(31)}).failure, "");
  EXPECT_EQ(call("QV_SetSvolDisableMode", {unit_, session_, number(9), number(1)}).failure, "");
  EXPECT_EQ(call("QV_SetExpirationLock", {unit_, session_, number(1)}).failure, "");
  const jobject guards = call("QV_GetLuGuardInformation", {unit_, session_}).result;
  EXPECT_EQ(get(guards, "expirationlock"), "1");
  EXPECT_EQ(get(guards, "lu"), "LuGuard[8192]");
  EXPECT_EQ(get(guards, "lu[9].capacity_h"), "1");
  EXPECT_EQ(get(guards, "lu[9].access_level"), "1");
  EXPECT_EQ(get(guards, "lu[9].svol_disable"), "1");
  EXPECT_EQ(get(guards, "lu[9].retention_term"), "31");
  EXPECT_EQ(get(guards, "lu[8].lu_valid"), "0");
}

}  // namespace
}  // namespace quorvelj::testing
