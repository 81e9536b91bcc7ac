// Remote paths, consistency groups and what else remote pairs need.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using RemotePaths = RegisteredUnit;

const Members kGroup =
    "0:int32 ctg_valid ctg_copytype ctg_no; 12:text32 ctg_name; 44:int32 pair_status_detail0 "
    "pair_status_detail1";

const Members kPath =
    "0:int32 valid_index path_status self_ctl_no self_port_no other_ctl_no other_port_no; "
    "24:text16 remote_ip_addr; 40:int32 remote_port_num secret_valid; 48:text33 secret";

TEST_F(RemotePaths, GroupsAndDevices) {
  expectFromUnit(
      "QV_GetCTGInformation", 26624,
      at("0:gmss_info[0] 13260:gmss_info[255] 13312:flfle_info[0] 26572:flfle_info[255]", kGroup));
  expectRequest("QV_ChangeReplicationCTG", "CTGInfo", 52, kGroup);
  expectGetAndSet("RemoteDeviceInformation", "RemoteDeviceInformation", 20,
                  "0:int32 valid; 4:text5 equipment_id; 9:text9 serial");
  expectGetAndSet("RemoteDeviceInformationEx", "RemoteDeviceInformationEx", 128,
                  "0:int32 dev[0].set_valid; 4:text9 dev[0].serial; 112:int32 dev[7].set_valid; "
                  "116:text9 dev[7].serial");
}

TEST_F(RemotePaths, Paths) {
  expectRequest(
      "QV_DelRemotePath", "RemotePathDeletion", 140,
      "0:int32 delete_count; 4:text17 serial[0].remote_serial; 123:text17 serial[7].remote_serial");
  expectRequest("QV_ReconstructRemotePath", "RemotePathRebuild", 24,
                "0:text17 remote_serial; 20:int32 path");
  const Members array =
      "0:int32 valid mode other_detect_id; 12:text9 other_serial_no; 21:text5 other_sequence_no" +
      at("28:path[0] 112:path[1]", kPath) +
      "196:int32 timeout_valid timeout port_type line_band_valid line_band";
  expectRequest("QV_SetRvrfSrcPath", "RvrfSrcArrayUnit", 216, array);
  expectFromUnit("QV_GetRvrfSrcPath", 1760,
                 "0:int32 rvrfsrc_option self_detect_id; 8:text9 self_serial_no; 17:text5 "
                 "self_sequence_no; 24:int32 line_band_default port_num_default" +
                     at("32:arrayunit[0] 1544:arrayunit[7]", array));
  expectPassed("QV_DelRvrfSrcPath us");
}

TEST_F(RemotePaths, CommandDevices) {
  expectGetAndSet(
      "CommandDevice", "CommandDevice", 2092,
      "0:int32 mrcf_lite mode valid[0] valid[1] lu[0] lu[1] security[0] security[1]; 32:text5 "
      "sequence_no; 40:int32 cmd_count" +
          at("44:cmddev[0] 2076:cmddev[127]", "0:int32 cmd_valid set_valid cmd_lu rm_security"));
}

TEST_F(RemotePaths, Couplings) {
  const Members coupling =
      "0:int32 primary_stat second_stat second_stat_detail primary_lu second_lu "
      "primary_switch_stat second_switch_stat mirror_no capacity_h capacity_l synchronized_rate "
      "split_time.year; 64:int32 split_time.second; 68:text32 add_message; 100:int32 ctg_valid "
      "ctg_no; 108:text32 ctg_name pair_name; 172:int32 copy_speed";
  expectFromUnit(
      "QV_GetCouplingInfo", 1441800,
      "0:int32 mrcf_lite coupling_num" + at("8:coupling[0] 1441624:coupling[8191]", coupling));
}

TEST_F(RemotePaths, SynchronisationOfPorts) {
  const Members ports =
      "0:int8 port_val[0].board_type port_val[0].rate; 6:int8 port_val[3].board_type "
      "port_val[3].rate";
  expectBuilt("QV_GetSyncControl", {unit_, number(1)}, 8, ports);
  expectRequest("QV_SetSyncControl", "SyncControl", 8, ports, {1, 9});
}

TEST_F(RemotePaths, PathsComeAndGo) {
  const jobject array =
      create("RvrfSrcArrayUnit",
             "other_serial_no=85000202; other_sequence_no=0001; "
             "path[1].remote_ip_addr=192.0.2.200; path[1].secret=; path[1].valid_index=1");
  update("QV_SetRvrfSrcPath", array);
  expectFields(information("QV_GetRvrfSrcPath"),
               "arrayunit[0].other_serial_no=85000202; arrayunit[0].path[1].valid_index=1");
  // Nine serial numbers: the record has room for eight.
  const jobject deletion = create("RemotePathDeletion", "delete_count=1");
  for (int index = 0; index < 9; ++index) {
    set(deletion, "serial[" + std::to_string(index) + "].remote_serial", "85000202");
  }
  update("QV_DelRemotePath", deletion);
  EXPECT_EQ(run("QV_DelRemotePath", deletion), "DiskArrayException 20711");
}

}  // namespace
}  // namespace quorvelj::testing
