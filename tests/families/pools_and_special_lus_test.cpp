// Pools, virtual volumes and special LUs.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using PoolsAndSpecialLus = RegisteredUnit;

const Members kPool =
    "0:int32 pool_no pool_status allcapa_h allcapa_l usedcapa_h usedcapa_l used_rate threshold "
    "lu_count lu[0]; 288:int32 lu[63]";
const Members kVolume = "0:int32 lun capacity_specify capacity_h capacity_l";
const Members kUnited =
    "0:int32 unite_info status capacity child_lu_count child_lun[0]; 2060:int32 child_lun[511]";
const Members kUnited2 =
    "0:int32 unite_info status capacity capacity_h capacity_l child_lu_count next_lun";
const Members kManagement =
    "0:int32 mode dmlu_count" + at("8:dmlu[0] 20:dmlu[1]", "0:int32 dmlu_valid set_valid dmlu_lu");
const Members kGuard =
    "0:int32 lu_valid capacity capacity_h capacity_l access_level_valid access_level_status "
    "access_level svol_disable access_inhibit_mode access_attr changeable_attr retention_term";

TEST_F(PoolsAndSpecialLus, BuiltRecords) {
  expectFromUnit("QV_GetPoolInformation", 19288,
                 "0:int32 option ctl[0].pool_enable_count" + at("8:ctl[0].pool[0]", kPool) +
                     "300:int32 ctl[1].pool_enable_count" + at("304:ctl[1].pool[0]", kPool) +
                     "596:int32 sys.pool_enable_count" +
                     at("600:sys.pool[0] 18996:sys.pool[63]", kPool));
  expectFromUnit("QV_GetVVOLInformation", 131076,
                 "0:int32 vvol_count" + at("4:lu[0] 131060:lu[8191]", kVolume));
  expectBuilt("QV_IntegrationLUInfo", {unit_}, 1056772,
              "0:int32 integration_lu" + at("4:unite_info[0] 1054708:unite_info[511]", kUnited));
  expectFromUnit("QV_IntegrationLUInfo2", 262152,
                 "0:int32 integration_lu parent_count parent_lu[0]; 32772:int32 parent_lu[8191]" +
                     at("32776:unite_info[0] 262124:unite_info[8191]", kUnited2));
  expectGetAndSet("DMLU", "DMLUInformation", 32, kManagement);
  expectGetAndSet("TurboLU", "TurboLu", 44, "");
  expectFromUnit("QV_GetLuGuardInformation", 393224,
                 "0:int32 option expirationlock" + at("8:lu[0] 393176:lu[8191]", kGuard));
}

TEST_F(PoolsAndSpecialLus, ReadRecords) {
  expectRequest("QV_ChangePoolInformation", "PoolChangeRequest", 16,
                "0:int32 ctl_no pool_no poolinfo_chg_index threshold");
  expectRequest("QV_CreateVVOLEx", "VvolDetailInformation", 16, kVolume);
  expectRequest("QV_SetLuAccessLevel", "LuAccessLevelRequest", 12,
                "0:int32 lu access_level retention_term");
  // Arrays longer than the record's.
  const jobject list = create("PoolLUListRequest", "lu[64]=7");
  expectRequest("QV_PoolLUAddList", list, 260, "0:int32 lu_count lu[0]; 256:int32 lu[63]", {-1, 2});
  const jobject integration = create("IntegrationRequest", "child_lu[127]=7");
  expectRequest(
      "QV_SetIntegrationLU", integration, 524,
      "0:int32 operation parent_lun child_lun child_count child_lu[0]; 520:int32 child_lu[126]");
}

TEST_F(PoolsAndSpecialLus, Arguments) {
  expectPassed(
      "QV_PoolLUAdd usiii; QV_PoolLUAllDelete usii; QV_CreateVVOL usiii; QV_DeleteVVOL usii; "
      "QV_IntegrationLUInfo u; QV_SetSvolDisableMode usii; QV_ExtendRetentionTerm usii; "
      "QV_SetExpirationLock usi");
}

TEST_F(PoolsAndSpecialLus, WhatIsSetIsReadBack) {
  createGroup(0);
  for (const int lun : {0, 1, 8190}) {
    createLu(lun, 0, 0, INT32_MIN);
  }
  update("QV_PoolLUAdd", 2, 63, 0);
  EXPECT_EQ(run("QV_PoolLUAdd", 2, 64, 1), "DiskArrayException 20501");
  expectFields(information("QV_GetPoolInformation"),
               "ctl[1].pool=PoolDetailInfo[1]; sys.pool=PoolDetailInfo[64]; "
               "sys.pool_enable_count=1; sys.pool[63].allcapa_l=-2147483648");

  update("QV_CreateVVOLEx",
         create("VvolDetailInformation", "lun=8191; capacity_h=2; capacity_l=-1"));
  expectFields(
      information("QV_GetVVOLInformation"),
      "vvol_count=1; lu=VvolDetailInformation[8192]; lu[0].capacity_h=2; lu[0].capacity_l=-1");

  const jobject integration =
      create("IntegrationRequest", "parent_lun=1; child_count=1; child_lu#=127; child_lu[0]=8190");
  update("QV_SetIntegrationLU", integration);
  expectFields(call("QV_IntegrationLUInfo", {unit_}).result,
               "unite_info=UniteLU[512]; unite_info[1].child_lun[0]=8190");
  expectFields(information("QV_IntegrationLUInfo2"),
               "unite_info=UniteLU2[8192]; unite_info[1].next_lun=8190");

  update("QV_SetDMLU", create("DMLUInformation", "dmlu[1].dmlu_lu=4095"));
  EXPECT_EQ(get(information("QV_GetDMLU"), "dmlu[1].dmlu_lu"), "4095");
  update("QV_SetExpirationLock", 1);
  expectFields(information("QV_GetLuGuardInformation"), "expirationlock=1; lu=LuGuard[8192]");
}

}  // namespace
}  // namespace quorvelj::testing
