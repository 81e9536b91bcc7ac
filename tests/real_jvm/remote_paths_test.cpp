// Remote paths, consistency groups and what else remote pairs need, in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

class RemotePaths : public RegisteredUnit {
 protected:
  /// Members under an element: its path goes before theirs, its place is added.
  static Members in(const std::string& path, std::size_t offset, Members members) {
    for (Member& member : members) {
      member.path.insert(0, path + '.');
      member.offset += offset;
    }
    return members;
  }
};

const Members kGroup{int32At(0, "ctg_valid"),
                     int32At(4, "ctg_copytype"),
                     int32At(8, "ctg_no"),
                     textAt(12, 32, "ctg_name"),
                     int32At(44, "pair_status_detail0"),
                     int32At(48, "pair_status_detail1")};

const Members kPath{int32At(0, "valid_index"),        int32At(4, "path_status"),
                    int32At(8, "self_ctl_no"),        int32At(12, "self_port_no"),
                    int32At(16, "other_ctl_no"),      int32At(20, "other_port_no"),
                    textAt(24, 16, "remote_ip_addr"), int32At(40, "remote_port_num"),
                    int32At(44, "secret_valid"),      textAt(48, 33, "secret")};

TEST_F(RemotePaths, Groups) {
  expectBuilt("QV_GetCTGInformation", {unit_, session_}, 26624,
              in("gmss_info[0]", 0, kGroup) + in("gmss_info[255]", 13260, kGroup) +
                  in("flfle_info[0]", 13312, kGroup) + in("flfle_info[255]", 26572, kGroup));
  expectRequest("QV_ChangeReplicationCTG", "CTGInfo", 52, kGroup);
}

TEST_F(RemotePaths, Devices) {
  const Members device{int32At(0, "valid"), textAt(4, 5, "equipment_id"), textAt(9, 9, "serial")};
  expectBuilt("QV_GetRemoteDeviceInformation", {unit_, session_}, 20, device);
  expectRequest("QV_SetRemoteDeviceInformation", "RemoteDeviceInformation", 20, device);
  const Members devices{int32At(0, "dev[0].set_valid"), textAt(4, 9, "dev[0].serial"),
                        int32At(112, "dev[7].set_valid"), textAt(116, 9, "dev[7].serial")};
  expectBuilt("QV_GetRemoteDeviceInformationEx", {unit_, session_}, 128, devices);
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
      in("path[0]", 28, kPath) + in("path[1]", 112, kPath) +
      int32sAt(196, {"timeout_valid", "timeout", "port_type", "line_band_valid", "line_band"});
  expectRequest("QV_SetRvrfSrcPath", "RvrfSrcArrayUnit", 216, array);
  expectBuilt("QV_GetRvrfSrcPath", {unit_, session_}, 1760,
              Members{int32At(0, "rvrfsrc_option"), int32At(4, "self_detect_id"),
                      textAt(8, 9, "self_serial_no"), textAt(17, 5, "self_sequence_no"),
                      int32At(24, "line_band_default"), int32At(28, "port_num_default")} +
                  in("arrayunit[0]", 32, array) + in("arrayunit[7]", 1544, array));
}

TEST_F(RemotePaths, CommandDevices) {
  const Members device = int32sAt(0, {"mrcf_lite", "mode", "valid[0]", "valid[1]", "lu[0]", "lu[1]",
                                      "security[0]", "security[1]"}) +
                         Members{textAt(32, 5, "sequence_no"), int32At(40, "cmd_count")} +
                         int32sAt(44, {"cmddev[0].cmd_valid", "cmddev[0].set_valid",
                                       "cmddev[0].cmd_lu", "cmddev[0].rm_security"}) +
                         int32sAt(2076, {"cmddev[127].cmd_valid", "cmddev[127].set_valid",
                                         "cmddev[127].cmd_lu", "cmddev[127].rm_security"});
  expectBuilt("QV_GetCommandDevice", {unit_, session_}, 2092, device);
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
  expectBuilt("QV_GetCouplingInfo", {unit_, session_}, 1441800,
              int32sAt(0, {"mrcf_lite", "coupling_num"}) + in("coupling[0]", 8, coupling) +
                  in("coupling[8191]", 1441624, coupling));
}

TEST_F(RemotePaths, SynchronisationOfPorts) {
  const Members ports{int8At(0, "port_val[0].board_type"), int8At(1, "port_val[0].rate"),
                      int8At(6, "port_val[3].board_type"), int8At(7, "port_val[3].rate")};
  expectBuilt("QV_GetSyncControl", {unit_, number(1)}, 8, ports);
  const jobject control = create("SyncControl");
  expectRead("QV_SetSyncControl", {unit_, number(1), control, number(9)}, control, 2, 8, ports);
  int given[2] = {};
  quorvelSimLastInput("QV_SetSyncControl", 1, &given[0], sizeof(int));
  quorvelSimLastInput("QV_SetSyncControl", 3, &given[1], sizeof(int));
  EXPECT_EQ(given[0], 1);
  EXPECT_EQ(given[1], 9);

  // The low byte of each int is stored, and comes back with its sign.
  set(control, "port_val[0].board_type", "511");
  EXPECT_EQ(call("QV_SetSyncControl", {unit_, number(1), control, number(0)}).failure, "");
  const jobject kept = call("QV_GetSyncControl", {unit_, number(1)}).result;
  EXPECT_EQ(get(kept, "port_val[0].board_type"), "-1");
  EXPECT_EQ(get(call("QV_GetSyncControl", {unit_, number(0)}).result, "port_val[0].board_type"),
            "0");
}

TEST_F(RemotePaths, GroupsOfPairs) {
  const auto target = [](const char* className, const char* primary, const char* secondary) {
    const jobject spec = create(className);
    set(spec, "ctg_valid", "1");
    set(spec, "ctg_info.ctg_set_flag", "1");
    set(spec, "ctg_info.ctg_no", "255");
    set(spec, "ctg_info.ctg_name", "databases");
    set(spec, "pair_info.pair_name", "");
    set(spec, "pair_info.pvol_lun", primary);
    set(spec, "pair_info.pair_lun", secondary);
    return spec;
  };
  EXPECT_EQ(run("QV_CreateGemlynPair", target("CreateGemlynPair", "1", "11")), "");
  EXPECT_EQ(run("QV_CreateGemlynPair", target("CreateGemlynPair", "2", "12")), "");
  const jobject split = target("SplitGemlynPair", "0", "0");
  set(split, "set_division", "1");
  set(split, "add_message", "both");
  EXPECT_EQ(run("QV_SplitGemlynPair", split), "");
  const jobject couplings = information("QV_GetCouplingInfo");
  EXPECT_EQ(get(couplings, "coupling_num"), "2");
  EXPECT_EQ(get(couplings, "coupling[1].second_lu"), "12");
  EXPECT_EQ(get(couplings, "coupling[1].primary_stat"), "3");
  EXPECT_EQ(get(couplings, "coupling[1].add_message"), "both");

  const jobject change = create("CTGInfo");
  set(change, "ctg_no", "255");
  set(change, "ctg_name", "renamed");
  EXPECT_EQ(run("QV_ChangeReplicationCTG", change), "");
  const jobject groups = information("QV_GetCTGInformation");
  EXPECT_EQ(get(groups, "gmss_info"), "CTGInfo[256]");
  EXPECT_EQ(get(groups, "flfle_info"), "CTGInfo[256]");
  EXPECT_EQ(get(groups, "gmss_info[255].ctg_name"), "renamed");
  EXPECT_EQ(get(groups, "gmss_info[255].ctg_valid"), "1");
  EXPECT_EQ(get(groups, "flfle_info[255].ctg_valid"), "0");
  set(change, "ctg_no", "3");
  EXPECT_EQ(run("QV_ChangeReplicationCTG", change), "DiskArrayException 20705");
}

TEST_F(RemotePaths, PathsComeAndGo) {
  const jobject array = create("RvrfSrcArrayUnit");
  set(array, "other_serial_no", "85000202");
  set(array, "other_sequence_no", "0001");
  set(array, "path[1].remote_ip_addr", "192.0.2.200/long");
  set(array, "path[1].secret", std::string(33, 's'));
  set(array, "path[1].valid_index", "1");
  EXPECT_EQ(run("QV_SetRvrfSrcPath", array), "");
  unsigned char record[216] = {};
  quorvelSimLastInput("QV_SetRvrfSrcPath", 2, record, sizeof record);
  EXPECT_STREQ(reinterpret_cast<char*>(record) + 136, "192.0.2.200/lon");
  EXPECT_EQ(std::string(reinterpret_cast<char*>(record) + 160), std::string(32, 's'));
  jobject paths = information("QV_GetRvrfSrcPath");
  EXPECT_EQ(get(paths, "self_serial_no"), "85000101");
  EXPECT_EQ(get(paths, "arrayunit[0].other_serial_no"), "85000202");
  EXPECT_EQ(get(paths, "arrayunit[0].path[1].path_status"), "1");

  const jobject rebuild = create("RemotePathRebuild");
  set(rebuild, "remote_serial", "85000202");
  EXPECT_EQ(run("QV_ReconstructRemotePath", rebuild), "");
  EXPECT_EQ(get(information("QV_GetRvrfSrcPath"), "arrayunit[0].path[0].path_status"), "1");
  // Nine serial numbers: the record has room for eight.
  const jobject deletion = create("RemotePathDeletion");
  set(deletion, "delete_count", "1");
  for (int index = 0; index < 9; ++index) {
    set(deletion, "serial[" + std::to_string(index) + "].remote_serial", "85000202");
  }
  EXPECT_EQ(run("QV_DelRemotePath", deletion), "");
  EXPECT_EQ(run("QV_DelRemotePath", deletion), "DiskArrayException 20711");
  EXPECT_EQ(run("QV_SetRvrfSrcPath", array), "");
  EXPECT_EQ(run("QV_DelRvrfSrcPath"), "");
  EXPECT_EQ(get(information("QV_GetRvrfSrcPath"), "arrayunit[0].other_serial_no"), "");
}

}  // namespace
}  // namespace quorvelj::testing
