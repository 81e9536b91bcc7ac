// Fibre ports and LAN settings.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using FibreAndLan = RegisteredUnit;

const Members kLan =
    "0:uint8 dhcp; 1:text16 ip_address subnet gateway; 49:text18 ether; 67:uint8 lan_connect; "
    "68:int32 mainte_ip_change_mode mainte_ip_change_mode_new negotiation";
const Members kLanDetail =
    "0:int32 dhcp; 4:text16 ip_address subnet gateway; 52:text18 ether; 70:uint8 duplex_type "
    "link_speed";
const Members kLanEx = at("0:ctl[0] 72:ctl[1]", kLanDetail);
const Members kPortNumbers =
    at("0:ctl[0] 16:ctl[1]", "0:int32 valid_index normal_port port_num ssl_port_num") +
    "32:int32 logout_instruction mode";
// The ints behind the 18 bytes of the address and behind the texts of 40 are aligned.
const Members kUserDetail =
    "0:int32 support_index valid_index setting_result dhcp; 16:text18 eather_address; 34:text40 "
    "current_ipaddress current_subnet current_gateway current_ipaddress_ipv6 link_ipv6; 236:int32 "
    "current_subnet_prefix; 240:text40 current_gateway_ipv6; 280:int32 current_linkspeed_duplex; "
    "284:text40 set_ipaddress set_subnet set_gateway";
const Members kUserLan =
    at("0:ctl[0] 496:ctl[1]", kUserDetail) +
    "992:int32 mainte_ip_change_mode last_set_mode logout_instruction ipv6_used set_ipversion";
const Members kMainteDetail =
    "0:int32 valid_index; 4:text40 ip_address subnet gateway_ipv4 ip_address_ipv6; 164:int32 "
    "subnet_prefix; 168:text40 gateway_ipv6; 208:int32 connect_status";
const Members kMainteAddress =
    "0:int32 set_ipversion; 4:text40 ip_addr; 44:int32 logout_instruction";
const Members kNncDetail =
    "0:int32 valid_index; 4:text40 ip_address subnet; 84:int32 mtu negotiation set_status";
const Members kNnc =
    "0:int8 nnclaninfo_valid[0]; 3:int8 nnclaninfo_valid[3]; 4:int32 set_valid" +
    at("8:nnclaninfo[0] 296:nnclaninfo[3] 392:set_nnclaninfo[0] 680:set_nnclaninfo[3]", kNncDetail);

const Members kFibrePort =
    "0:text17 node_name port_name; 34:text7 n_port_id get_address; 48:int32 frame_size if_board "
    "support_speed set_speed refer_speed connect_valid connector[0].topology_ref "
    "connector[1].topology_ref";
const Members kSfc = "0:text5 biu sequence oper_firmware post_firmware endec fc_ph";
const Members kPermission =
    "0:text17 node_name port_name; 34:text7 n_port_id; 41:bytes256 lun_security_bitmap";
const Members kSecurity = "0:int32 access_guard all_lun_security permission_count security_chk_lv" +
                          at("16:permission[0] 37735:permission[127]", kPermission);
const Members kFibre =
    "0:int32 lun_security port_valid topology[0]; 36:int32 topology[7] topology_ref[0]; 68:int32 "
    "topology_ref[7]" +
    at("72:port[0] 632:port[7]", kFibrePort) + at("712:sfc[0] 922:sfc[7]", kSfc) +
    at("992:security[0] 267216:security[7]", kSecurity) + "305248:text8 product_number";

TEST_F(FibreAndLan, ResultRecords) {
  expectFromUnit("QV_GetLANInformation", 80, kLan, {1});
  expectBuilt("QV_GetLANInformationEx", {unit_}, 144, kLanEx);
  expectFromUnit("QV_GetLANPortNumber", 40, kPortNumbers);
  expectGetAndSet("QVUserLANInformation", "QVUserLANInformation", 1012, kUserLan);
  expectFromUnit("QV_GetMainteLanInfo", 1320,
                 at("0:ctl[0] 212:ctl[1] 424:nnc[0] 1060:nnc[3]", kMainteDetail));
  expectFromUnit(
      "QV_GetMainteLanAvailableList", 552,
      "0:int32 available_count" +
          at("4:available_address[0] 196:available_address[4]", kMainteAddress) +
          "244:int32 rule_ipv4_minaddr rule_ipv4_maxaddr rule_ipv4_addition_value "
          "rule_ipv4_base_value available_host_ctl[0].host_address "
          "available_host_ctl[1].host_address available_host_nnc[0].host_address; 280:int32 "
          "available_host_nnc[3].host_address available_count_ipv6" +
          at("288:available_address_ipv6[0] 480:available_address_ipv6[4]", kMainteAddress) +
          "528:int32 rule_ipv6_minaddr rule_ipv6_maxaddr rule_ipv6_addition_value "
          "rule_ipv6_base_value");
  expectGetAndSet("NNCLANInformation", "NNCLANInformation", 776, kNnc);
  expectFromUnit("QV_GetFibreInformation", 610512, at("0:[0] 305256:[1]", kFibre));
  expectFields(information("QV_GetFibreInformation"),
               "=FibreInformation[2]; [1].security[7].permission=FibreInformationPermission[128]");

  // The file stands before the session in Java and behind it in the library.
  const std::vector<jobject> loading{unit_, text("lan.txt"), session_};
  expectBuilt("QV_LoadQVUserLANInformation", loading, 1012, kUserLan);
  expectRead("QV_LoadQVUserLANInformation", loading, session_, 1, 32, "0:bytes32 session_id");
  EXPECT_EQ(lastText("QV_LoadQVUserLANInformation", 2), "lan.txt");
}

TEST_F(FibreAndLan, RequestRecords) {
  expectRequest("QV_SetLANInformation", "LANInformation", 80, kLan, {1, 7});
  expectRequest("QV_SetLANInformationEx", "LANInformationEx", 144, kLanEx);
  expectRequest("QV_SetLANPortNumber", "LANPortNumber", 40, kPortNumbers, {-1});
  expectRequest("QV_LANExport", "LANFile", 264, "0:text256 filename");
  expectRequest("QV_LANImport", "LANFile", 264, "0:text256 filename");
  expectRequest("QV_SetMainteIPAddress", "MainteIPAddress", 48, kMainteAddress);
  // A record of its own for each controller.
  const jobject first = create("FibreInformation");
  const jobject second = create("FibreInformation");
  expectRead("QV_SetFibreInformation", {unit_, session_, first, second}, first, 2, 305256, kFibre);
  expectRead("QV_SetFibreInformation", {unit_, session_, first, second}, second, 3, 305256, kFibre);
}

TEST_F(FibreAndLan, WhatIsSetIsReadBack) {
  const jobject lan = information("QV_GetLANInformation", 1);
  EXPECT_EQ(get(lan, "ip_address"), "192.0.2.11");
  set(lan, "ip_address=198.51.100.100; dhcp=1");
  update("QV_SetLANInformation", 1, 0, lan);
  expectFields(call("QV_GetLANInformationEx", {unit_}).result,
               "ctl[0].ip_address=192.0.2.10; ctl[1].ip_address=198.51.100.100; ctl[1].dhcp=1");

  const jobject controllers = information("QV_GetFibreInformation");
  set(controllers, "[1].port[7].set_speed", "16");
  const auto array = static_cast<jobjectArray>(controllers);
  update("QV_SetFibreInformation", javaEnv()->GetObjectArrayElement(array, 0),
         javaEnv()->GetObjectArrayElement(array, 1));
  expectFields(information("QV_GetFibreInformation"),
               "[0].port[7].set_speed=8; [1].port[7].set_speed=16");
}

TEST_F(FibreAndLan, ImportedPermissions) {
  const char* const method = "QV_FibreInfoPermissionImport";
  // 128 records of 297 bytes.
  expectBuilt(method, {unit_, text("hosts.txt"), number(7)}, 38016,
              at("0:[0] 37719:[127]", kPermission));
  EXPECT_EQ(lastText(method, 1), "hosts.txt");
  EXPECT_EQ(lastInt(method, 2), 7);
  const jobject permissions = call(method, {unit_, text("hosts.txt"), number(7)}).result;
  expectFields(permissions, "=FibreInformationPermission[128]; [1].node_name=1000000000000001");
}

}  // namespace
}  // namespace quorvelj::testing
