// Remote paths, consistency groups and what else remote pairs need.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using RemotePaths = RegisteredUnit;

const Members kGroup = int32sAt(0, {"ctg_valid", "ctg_copytype", "ctg_no"}) +
                       Members{textAt(12, 32, "ctg_name"), int32At(44, "pair_status_detail0"),
                               int32At(48, "pair_status_detail1")};

const Members kPath = int32sAt(0, {"valid_index", "path_status", "self_ctl_no", "self_port_no",
                                   "other_ctl_no", "other_port_no"}) +
                      Members{textAt(24, 16, "remote_ip_addr"), int32At(40, "remote_port_num"),
                              int32At(44, "secret_valid"), textAt(48, 33, "secret")};

TEST_F(RemotePaths, GroupsAndDevices) {
  expectFromUnit("QV_GetCTGInformation", 26624,
                 at({{0, "gmss_info[0]."},
                     {13260, "gmss_info[255]."},
                     {13312, "flfle_info[0]."},
                     {26572, "flfle_info[255]."}},
                    kGroup));
  expectRequest("QV_ChangeReplicationCTG", "CTGInfo", 52, kGroup);
  const Members device{int32At(0, "valid"), textAt(4, 5, "equipment_id"), textAt(9, 9, "serial")};
  expectFromUnit("QV_GetRemoteDeviceInformation", 20, device);
  expectRequest("QV_SetRemoteDeviceInformation", "RemoteDeviceInformation", 20, device);
  const Members devices{int32At(0, "dev[0].set_valid"), textAt(4, 9, "dev[0].serial"),
                        int32At(112, "dev[7].set_valid"), textAt(116, 9, "dev[7].serial")};
  expectFromUnit("QV_GetRemoteDeviceInformationEx", 128, devices);
  expectRequest("QV_SetRemoteDeviceInformationEx", "RemoteDeviceInformationEx", 128, devices);
}

TEST_F(RemotePaths, Paths) {
  expectRequest("QV_DelRemotePath", "RemotePathDeletion", 140,
                {int32At(0, "delete_count"), textAt(4, 17, "serial[0].remote_serial"),
                 textAt(123, 17, "serial[7].remote_serial")});
  expectRequest("QV_ReconstructRemotePath", "RemotePathRebuild", 24,
                {textAt(0, 17, "remote_serial"), int32At(20, "path")});
  const Members array =
      Members{int32At(0, "valid"), int32At(4, "mode"), int32At(8, "other_detect_id"),
              textAt(12, 9, "other_serial_no"), textAt(21, 5, "other_sequence_no")} +
      at({{28, "path[0]."}, {112, "path[1]."}}, kPath) +
      int32sAt(196, {"timeout_valid", "timeout", "port_type", "line_band_valid", "line_band"});
  expectRequest("QV_SetRvrfSrcPath", "RvrfSrcArrayUnit", 216, array);
  expectFromUnit("QV_GetRvrfSrcPath", 1760,
                 Members{int32At(0, "rvrfsrc_option"), int32At(4, "self_detect_id"),
                         textAt(8, 9, "self_serial_no"), textAt(17, 5, "self_sequence_no"),
                         int32At(24, "line_band_default"), int32At(28, "port_num_default")} +
                     at({{32, "arrayunit[0]."}, {1544, "arrayunit[7]."}}, array));
  expectPassed("QV_DelRvrfSrcPath", "us");
}

TEST_F(RemotePaths, CommandDevices) {
  const Members command = int32sAt(0, {"cmd_valid", "set_valid", "cmd_lu", "rm_security"});
  const Members device = int32sAt(0, {"mrcf_lite", "mode", "valid[0]", "valid[1]", "lu[0]", "lu[1]",
                                      "security[0]", "security[1]"}) +
                         Members{textAt(32, 5, "sequence_no"), int32At(40, "cmd_count")} +
                         at({{44, "cmddev[0]."}, {2076, "cmddev[127]."}}, command);
  expectFromUnit("QV_GetCommandDevice", 2092, device);
  expectRequest("QV_SetCommandDevice", "CommandDevice", 2092, device);
}

TEST_F(RemotePaths, Couplings) {
  const Members coupling =
      int32sAt(0, {"primary_stat", "second_stat", "second_stat_detail", "primary_lu", "second_lu",
                   "primary_switch_stat", "second_switch_stat", "mirror_no", "capacity_h",
                   "capacity_l", "synchronized_rate", "split_time.year"}) +
      Members{int32At(64, "split_time.second"), textAt(68, 32, "add_message"),
              int32At(100, "ctg_valid"),        int32At(104, "ctg_no"),
              textAt(108, 32, "ctg_name"),      textAt(140, 32, "pair_name"),
              int32At(172, "copy_speed")};
  expectFromUnit("QV_GetCouplingInfo", 1441800,
                 int32sAt(0, {"mrcf_lite", "coupling_num"}) +
                     at({{8, "coupling[0]."}, {1441624, "coupling[8191]."}}, coupling));
}

TEST_F(RemotePaths, SynchronisationOfPorts) {
  const Members ports{int8At(0, "port_val[0].board_type"), int8At(1, "port_val[0].rate"),
                      int8At(6, "port_val[3].board_type"), int8At(7, "port_val[3].rate")};
  expectBuilt("QV_GetSyncControl", {unit_, number(1)}, 8, ports);
  const jobject control = create("SyncControl");
  expectRead("QV_SetSyncControl", {unit_, number(1), control, number(9)}, control, 2, 8, ports);
  EXPECT_EQ(lastInt("QV_SetSyncControl", 1), 1);
  EXPECT_EQ(lastInt("QV_SetSyncControl", 3), 9);

  // The low byte of each int is stored, and comes back with its sign.
  set(control, "port_val[0].board_type", "511");
  EXPECT_EQ(call("QV_SetSyncControl", {unit_, number(1), control, number(0)}).failure, "");
  const char* const path = "port_val[0].board_type";
  EXPECT_EQ(get(call("QV_GetSyncControl", {unit_, number(1)}).result, path), "-1");
  EXPECT_EQ(get(call("QV_GetSyncControl", {unit_, number(0)}).result, path), "0");
}

TEST_F(RemotePaths, PathsComeAndGo) {
  const jobject array = create("RvrfSrcArrayUnit", {{"other_serial_no", "85000202"},
                                                    {"other_sequence_no", "0001"},
                                                    {"path[1].remote_ip_addr", "192.0.2.200"},
                                                    {"path[1].secret", ""},
                                                    {"path[1].valid_index", "1"}});
  EXPECT_EQ(run("QV_SetRvrfSrcPath", array), "");
  expectFields(information("QV_GetRvrfSrcPath"), {{"arrayunit[0].other_serial_no", "85000202"},
                                                  {"arrayunit[0].path[1].valid_index", "1"}});
  // Nine serial numbers: the record has room for eight.
  const jobject deletion = create("RemotePathDeletion", {{"delete_count", "1"}});
  for (int index = 0; index < 9; ++index) {
    set(deletion, "serial[" + std::to_string(index) + "].remote_serial", "85000202");
  }
  EXPECT_EQ(run("QV_DelRemotePath", deletion), "");
  EXPECT_EQ(run("QV_DelRemotePath", deletion), "DiskArrayException 20711");
}

}  // namespace
}  // namespace quorvelj::testing
