// iSCSI ports with their targets, initiators and users.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using Iscsi = RegisteredUnit;

const Members kPort = int32sAt(0, "port_valid set_valid") +
                      textsAt(8, 40, "ip_address subnet gateway") +
                      Members{int32At(128, "port_num"), textAt(132, 20, "ether")} +
                      int32sAt(152, "keep_alive_timer mtu set_status host_count");
const Members kTarget = Members{int32At(0, "target_valid"), textAt(4, 33, "target_name"),
                                textAt(37, 227, "iscsi_name")} +
                        int32sAt(264, "authmethod algorithm auth") +
                        Members{textAt(276, 257, "user_name"), textAt(533, 35, "secret")};
const Members kInitiator = int32sAt(0, "initiator_valid ctrl_flag") +
                           Members{textAt(8, 33, "initiator_name"), textAt(41, 224, "iscsi_name"),
                                   bytesAt(265, 32, "target_bitmap")};
const Members kLogin{int32At(0, "initiator_valid"), textAt(4, 224, "iscsi_name")};
const Members kUser = int32sAt(0, "user_valid ctrl_flag") +
                      Members{textAt(8, 257, "user_name"), textAt(265, 33, "secret"),
                              bytesAt(298, 32, "target_bitmap")};
const Members kServer = int32sAt(0, "port_valid set_valid isns_use") +
                        Members{textAt(12, 40, "ip_address"), int32At(52, "port_num")};
const Members kPing = int32sAt(0, "port_valid request_valid") +
                      Members{textAt(8, 40, "ip_address")} +
                      int32sAt(48, "status execute_count success_count schedule_count");
const Members kPath{int32At(0, "path_valid"), textAt(4, 9, "other_serial_no"),
                    textAt(13, 33, "path[0].secret"), textAt(46, 33, "path[1].secret")};

const Members kTargetPort = int32sAt(0, "port_valid security target_max_count target_count") +
                            at({{16, "target[0]."}, {144288, "target[254]."}}, kTarget);
const Members kInitiatorPort =
    int32sAt(0, "port_valid security initiator_max_count initiator_count") +
    at({{16, "initiator[0]."}, {76516, "initiator[255]."}}, kInitiator);
const Members kLoginPort = int32sAt(0, "port_valid initiator_max_count initiator_count") +
                           at({{12, "initiator[0]."}, {58152, "initiator[255]."}}, kLogin);
const Members kUserPort = int32sAt(0, "port_valid security user_max_count user_count") +
                          at({{16, "user[0]."}, {169668, "user[511]."}}, kUser);

/// The first and the last port of each controller.
Members ports(const Members& port, std::size_t first, std::size_t portBytes,
              std::size_t controllerBytes) {
  const Members both = at({{0, "port[0]."}, {7 * portBytes, "port[7]."}}, port);
  return at({{first, "ctl[0]."}, {first + controllerBytes, "ctl[1]."}}, both);
}

TEST_F(Iscsi, ResultRecords) {
  const Members option{int32At(0, "option")};
  expectFromUnit("QV_GetiSCSIPortInformation", 2688, ports(kPort, 0, 168, 1344));
  expectFromUnit("QV_GetiSCSITargetInformationAll", 2317700,
                 option + ports(kTargetPort, 4, 144856, 1158848));
  expectFromUnit("QV_GetiSCSIInitiatorInformationAll", 1229060,
                 option + ports(kInitiatorPort, 4, 76816, 614528));
  expectFromUnit("QV_GetiSCSILoginInitiatorInformationAll", 934080,
                 ports(kLoginPort, 0, 58380, 467040));
  expectFromUnit("QV_GetiSCSICHAPUserInformationAll", 2720004,
                 option + ports(kUserPort, 4, 170000, 1360000));
  expectFromUnit("QV_GetiSNSInformation", 896, ports(kServer, 0, 56, 448));
  expectFromUnit("QV_GetiSCSIPingStatus", 1024, ports(kPing, 0, 64, 512));
  expectFromUnit("QV_GetiSCSIRemotePath", 640,
                 at({{0, "arrayunit[0]."}, {560, "arrayunit[7]."}}, kPath));
  expectFromUnit("QV_GetiSCSIInitiatorInformation", 76820, option + at(4, "port.", kInitiatorPort),
                 {-1, 6});
  expectFromUnit("QV_GetiSCSICHAPUserInformation", 170004, option + at(4, "port.", kUserPort),
                 {1, 6});
  expectFields(information("QV_GetiSCSITargetInformationAll"),
               {{"ctl", "QViSCSITargetCTLInfo[2]"},
                {"ctl[0].port", "QViSCSITargetPortInfo[8]"},
                {"ctl[0].port[7].target", "QViSCSITargetInfo[255]"}});
  EXPECT_EQ(get(information("QV_GetiSCSICHAPUserInformationAll"), "ctl[1].port[7].user"),
            "QViSCSICHAPUserInfo[512]");
}

TEST_F(Iscsi, RequestRecords) {
  expectRequest("QV_SetiSCSIPortInformation", "QViSCSIPortInformation", 2688,
                ports(kPort, 0, 168, 1344));
  expectRequest("QV_CreateiSCSITarget", "QViSCSITargetInfo", 568, kTarget, {1, 7, 254});
  expectRequest("QV_ChangeiSCSITarget", "QViSCSITargetInfo", 568, kTarget, {-1, 2, 3});
  expectRequest("QV_DeleteiSCSITarget", "DeleteTargetList", 1020,
                {int32At(0, "target[0]"), int32At(1016, "target[254]")}, {1, 2});
  expectRequest("QV_SetiSCSIInitiatortInformation", "QViSCSIInitiatorPortInfo", 76816,
                kInitiatorPort, {1, 2});
  expectRequest("QV_SetiSCSICHAPUserInformation", "QViSCSICHAPUserPortInfo", 170000, kUserPort,
                {1, 2});
  expectRequest("QV_SetiSNSInformation", "QViSNSInformation", 896, ports(kServer, 0, 56, 448));
  expectRequest("QV_RequestiSCSIPing", "QViSCSIPing", 1024, ports(kPing, 0, 64, 512));
  expectRequest("QV_SetiSCSIRemotePath", "QViSCSIRemotePath", 80, kPath);
  expectRequest("QV_DeliSCSIRemotePath", "QViSCSIRemotePath", 80, kPath);

  expectPassed("QV_InitiSCSITarget", "usii");
  expectPassed("QV_ChangeiSCSITargetSecurity", "usiii");
  // The path stands before the session in Java and behind it in the library.
  expectRead("QV_iSCSICHAPUserImport", {unit_, text("users"), session_}, session_, 1, 32,
             {bytesAt(0, 32, "session_id")});
  EXPECT_EQ(lastText("QV_iSCSICHAPUserImport", 2), "users");
}

TEST_F(Iscsi, WhatIsSetIsReadBack) {
  // The texts are as long as their members.
  const std::string name(32, 'n');
  const std::string user(256, 'u');
  const jobject target = create(
      "QViSCSITargetInfo",
      {{"target_name", name}, {"iscsi_name", "iqn.test"}, {"user_name", user}, {"secret", ""}});
  EXPECT_EQ(run("QV_CreateiSCSITarget", 1, 1, 254, target), "");
  EXPECT_EQ(run("QV_CreateiSCSITarget", 1, 1, 254, target), "DiskArrayException 20311");
  expectFields(information("QV_GetiSCSITargetInformationAll"),
               {{"ctl[0].port[7].target[254].target_name", ""},
                {"ctl[1].port[1].target_count", "2"},
                {"ctl[1].port[1].target[254].target_name", name},
                {"ctl[1].port[1].target[254].user_name", user}});

  const jobject port = create("QViSCSIInitiatorPortInfo");
  // An element that is null leaves its bytes as they were.
  for (int place = 0; place < 256; ++place) {
    set(port, "initiator[" + std::to_string(place) + "].initiator_valid", place == 3 ? "1" : "0");
  }
  set(port, {{"initiator[3].initiator_name", ""},
             {"initiator[3].iscsi_name", "host"},
             {"initiator[3].target_bitmap[31]", "-128"}});
  EXPECT_EQ(run("QV_SetiSCSIInitiatortInformation", 0, 1, port), "");
  expectFields(information("QV_GetiSCSIInitiatorInformation", 0, 1),
               {{"port.initiator_count", "1"}, {"port.initiator[3].target_bitmap[31]", "-128"}});
}

}  // namespace
}  // namespace quorvelj::testing
