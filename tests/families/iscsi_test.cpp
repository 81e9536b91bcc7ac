// iSCSI ports with their targets, initiators and users.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using Iscsi = RegisteredUnit;

const Members kPort =
    "0:int32 port_valid set_valid; 8:text40 ip_address subnet gateway; 128:int32 port_num; "
    "132:text20 ether; 152:int32 keep_alive_timer mtu set_status host_count";
const Members kTarget =
    "0:int32 target_valid; 4:text33 target_name; 37:text227 iscsi_name; 264:int32 authmethod "
    "algorithm auth; 276:text257 user_name; 533:text35 secret";
const Members kInitiator =
    "0:int32 initiator_valid ctrl_flag; 8:text33 initiator_name; 41:text224 iscsi_name; "
    "265:bytes32 target_bitmap";
const Members kLogin = "0:int32 initiator_valid; 4:text224 iscsi_name";
const Members kUser =
    "0:int32 user_valid ctrl_flag; 8:text257 user_name; 265:text33 secret; 298:bytes32 "
    "target_bitmap";
const Members kServer =
    "0:int32 port_valid set_valid isns_use; 12:text40 ip_address; 52:int32 port_num";
const Members kPing =
    "0:int32 port_valid request_valid; 8:text40 ip_address; 48:int32 status execute_count "
    "success_count schedule_count";
const Members kPath =
    "0:int32 path_valid; 4:text9 other_serial_no; 13:text33 path[0].secret path[1].secret";

const Members kTargetPort = "0:int32 port_valid security target_max_count target_count" +
                            at("16:target[0] 144288:target[254]", kTarget);
const Members kInitiatorPort = "0:int32 port_valid security initiator_max_count initiator_count" +
                               at("16:initiator[0] 76516:initiator[255]", kInitiator);
const Members kLoginPort = "0:int32 port_valid initiator_max_count initiator_count" +
                           at("12:initiator[0] 58152:initiator[255]", kLogin);
const Members kUserPort = "0:int32 port_valid security user_max_count user_count" +
                          at("16:user[0] 169668:user[511]", kUser);

// The first and the last port of each controller.
const Members kPorts =
    at("0:ctl[0].port[0] 1176:ctl[0].port[7] 1344:ctl[1].port[0] 2520:ctl[1].port[7]", kPort);
const Members kTargetPorts =
    at("4:ctl[0].port[0] 1013996:ctl[0].port[7] 1158852:ctl[1].port[0] 2172844:ctl[1].port[7]",
       kTargetPort);
const Members kInitiatorPorts =
    at("4:ctl[0].port[0] 537716:ctl[0].port[7] 614532:ctl[1].port[0] 1152244:ctl[1].port[7]",
       kInitiatorPort);
const Members kLoginPorts =
    at("0:ctl[0].port[0] 408660:ctl[0].port[7] 467040:ctl[1].port[0] 875700:ctl[1].port[7]",
       kLoginPort);
const Members kUserPorts =
    at("4:ctl[0].port[0] 1190004:ctl[0].port[7] 1360004:ctl[1].port[0] 2550004:ctl[1].port[7]",
       kUserPort);
const Members kServers =
    at("0:ctl[0].port[0] 392:ctl[0].port[7] 448:ctl[1].port[0] 840:ctl[1].port[7]", kServer);
const Members kPings =
    at("0:ctl[0].port[0] 448:ctl[0].port[7] 512:ctl[1].port[0] 960:ctl[1].port[7]", kPing);

TEST_F(Iscsi, ResultRecords) {
  expectGetAndSet("iSCSIPortInformation", "QViSCSIPortInformation", 2688, kPorts);
  expectFromUnit("QV_GetiSCSITargetInformationAll", 2317700, "0:int32 option" + kTargetPorts);
  expectFromUnit("QV_GetiSCSIInitiatorInformationAll", 1229060, "0:int32 option" + kInitiatorPorts);
  expectFromUnit("QV_GetiSCSILoginInitiatorInformationAll", 934080, kLoginPorts);
  expectFromUnit("QV_GetiSCSICHAPUserInformationAll", 2720004, "0:int32 option" + kUserPorts);
  expectGetAndSet("iSNSInformation", "QViSNSInformation", 896, kServers);
  expectFromUnit("QV_GetiSCSIPingStatus", 1024, kPings);
  expectFromUnit("QV_GetiSCSIRemotePath", 640, at("0:arrayunit[0] 560:arrayunit[7]", kPath));
  expectFromUnit("QV_GetiSCSIInitiatorInformation", 76820,
                 "0:int32 option" + at("4:port", kInitiatorPort), {-1, 6});
  expectFromUnit("QV_GetiSCSICHAPUserInformation", 170004,
                 "0:int32 option" + at("4:port", kUserPort), {1, 6});
}

TEST_F(Iscsi, RequestRecords) {
  expectRequest("QV_CreateiSCSITarget", "QViSCSITargetInfo", 568, kTarget, {1, 7, 254});
  expectRequest("QV_ChangeiSCSITarget", "QViSCSITargetInfo", 568, kTarget, {-1, 2, 3});
  expectRequest("QV_DeleteiSCSITarget", "DeleteTargetList", 1020,
                "0:int32 target[0]; 1016:int32 target[254]", {1, 2});
  expectRequest("QV_SetiSCSIInitiatortInformation", "QViSCSIInitiatorPortInfo", 76816,
                kInitiatorPort, {1, 2});
  expectRequest("QV_SetiSCSICHAPUserInformation", "QViSCSICHAPUserPortInfo", 170000, kUserPort,
                {1, 2});
  expectRequest("QV_RequestiSCSIPing", "QViSCSIPing", 1024, kPings);
  expectRequest("QV_SetiSCSIRemotePath", "QViSCSIRemotePath", 80, kPath);
  expectRequest("QV_DeliSCSIRemotePath", "QViSCSIRemotePath", 80, kPath);

  expectPassed("QV_InitiSCSITarget usii; QV_ChangeiSCSITargetSecurity usiii");
  // The path stands before the session in Java and behind it in the library.
  expectRead("QV_iSCSICHAPUserImport", {unit_, text("users"), session_}, session_, 1, 32,
             "0:bytes32 session_id");
  EXPECT_EQ(lastText("QV_iSCSICHAPUserImport", 2), "users");
}

TEST_F(Iscsi, WhatIsSetIsReadBack) {
  // The texts are as long as their members.
  const std::string name(32, 'n');
  const std::string user(256, 'u');
  const jobject target = create(
      "QViSCSITargetInfo",
      {{"target_name", name}, {"iscsi_name", "iqn.test"}, {"user_name", user}, {"secret", ""}});
  update("QV_CreateiSCSITarget", 1, 1, 254, target);
  EXPECT_EQ(run("QV_CreateiSCSITarget", 1, 1, 254, target), "DiskArrayException 20311");
  expectFields(information("QV_GetiSCSITargetInformationAll"),
               "ctl[0].port[7].target[254].target_name=; ctl[1].port[1].target_count=2; "
               "ctl[1].port[1].target[254].target_name=" +
                   name + "; ctl[1].port[1].target[254].user_name=" + user);

  const jobject port = create("QViSCSIInitiatorPortInfo");
  // An element that is null leaves its bytes as they were.
  for (int place = 0; place < 256; ++place) {
    set(port, "initiator[" + std::to_string(place) + "].initiator_valid", place == 3 ? "1" : "0");
  }
  set(port,
      "initiator[3].initiator_name=; initiator[3].iscsi_name=host; "
      "initiator[3].target_bitmap[31]=-128");
  update("QV_SetiSCSIInitiatortInformation", 0, 1, port);
  expectFields(information("QV_GetiSCSIInitiatorInformation", 0, 1),
               "port.initiator_count=1; port.initiator[3].target_bitmap[31]=-128");
}

}  // namespace
}  // namespace quorvelj::testing
