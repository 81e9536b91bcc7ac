// Fibre ports and LAN settings in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

using FibreAndLan = RegisteredUnit;

const Members kLan{uint8At(0, "dhcp"),
                   textAt(1, 16, "ip_address"),
                   textAt(17, 16, "subnet"),
                   textAt(33, 16, "gateway"),
                   textAt(49, 18, "ether"),
                   uint8At(67, "lan_connect"),
                   int32At(68, "mainte_ip_change_mode"),
                   int32At(72, "mainte_ip_change_mode_new"),
                   int32At(76, "negotiation")};
const Members kLanDetail{int32At(0, "dhcp"),       textAt(4, 16, "ip_address"),
                         textAt(20, 16, "subnet"), textAt(36, 16, "gateway"),
                         textAt(52, 18, "ether"),  uint8At(70, "duplex_type"),
                         uint8At(71, "link_speed")};
const Members kLanEx = at(0, "ctl[0].", kLanDetail) + at(72, "ctl[1].", kLanDetail);
const Members kPortNumbers =
    int32sAt(0, {"ctl[0].valid_index", "ctl[0].normal_port", "ctl[0].port_num",
                 "ctl[0].ssl_port_num", "ctl[1].valid_index", "ctl[1].normal_port",
                 "ctl[1].port_num", "ctl[1].ssl_port_num", "logout_instruction", "mode"});
// The ints behind the 18 bytes of the address and behind the texts of 40 are aligned.
const Members kUserDetail =
    int32sAt(0, {"support_index", "valid_index", "setting_result", "dhcp"}) +
    Members{textAt(16, 18, "eather_address"),
            textAt(34, 40, "current_ipaddress"),
            textAt(74, 40, "current_subnet"),
            textAt(114, 40, "current_gateway"),
            textAt(154, 40, "current_ipaddress_ipv6"),
            textAt(194, 40, "link_ipv6"),
            int32At(236, "current_subnet_prefix"),
            textAt(240, 40, "current_gateway_ipv6"),
            int32At(280, "current_linkspeed_duplex"),
            textAt(284, 40, "set_ipaddress"),
            textAt(324, 40, "set_subnet"),
            textAt(364, 40, "set_gateway")};
const Members kUserLan = at(0, "ctl[0].", kUserDetail) + at(496, "ctl[1].", kUserDetail) +
                         int32sAt(992, {"mainte_ip_change_mode", "last_set_mode",
                                        "logout_instruction", "ipv6_used", "set_ipversion"});
const Members kMainteDetail{int32At(0, "valid_index"),          textAt(4, 40, "ip_address"),
                            textAt(44, 40, "subnet"),           textAt(84, 40, "gateway_ipv4"),
                            textAt(124, 40, "ip_address_ipv6"), int32At(164, "subnet_prefix"),
                            textAt(168, 40, "gateway_ipv6"),    int32At(208, "connect_status")};
const Members kMainteAddress{int32At(0, "set_ipversion"), textAt(4, 40, "ip_addr"),
                             int32At(44, "logout_instruction")};
const Members kNncDetail{int32At(0, "valid_index"),  textAt(4, 40, "ip_address"),
                         textAt(44, 40, "subnet"),   int32At(84, "mtu"),
                         int32At(88, "negotiation"), int32At(92, "set_status")};
const Members kNnc = Members{int8At(0, "nnclaninfo_valid[0]"), int8At(3, "nnclaninfo_valid[3]"),
                             int32At(4, "set_valid")} +
                     at(8, "nnclaninfo[0].", kNncDetail) + at(296, "nnclaninfo[3].", kNncDetail) +
                     at(392, "set_nnclaninfo[0].", kNncDetail) +
                     at(680, "set_nnclaninfo[3].", kNncDetail);

const Members kFibrePort =
    Members{textAt(0, 17, "node_name"), textAt(17, 17, "port_name"), textAt(34, 7, "n_port_id"),
            textAt(41, 7, "get_address")} +
    int32sAt(48, {"frame_size", "if_board", "support_speed", "set_speed", "refer_speed",
                  "connect_valid", "connector[0].topology_ref", "connector[1].topology_ref"});
const Members kSfc{textAt(0, 5, "biu"),
                   textAt(5, 5, "sequence"),
                   textAt(10, 5, "oper_firmware"),
                   textAt(15, 5, "post_firmware"),
                   textAt(20, 5, "endec"),
                   textAt(25, 5, "fc_ph")};
const Members kPermission{textAt(0, 17, "node_name"), textAt(17, 17, "port_name"),
                          textAt(34, 7, "n_port_id"), bytesAt(41, 256, "lun_security_bitmap")};
const Members kSecurity =
    int32sAt(0, {"access_guard", "all_lun_security", "permission_count", "security_chk_lv"}) +
    at(16, "permission[0].", kPermission) + at(37735, "permission[127].", kPermission);
const Members kFibre = Members{int32At(0, "lun_security"),     int32At(4, "port_valid"),
                               int32At(8, "topology[0]"),      int32At(36, "topology[7]"),
                               int32At(40, "topology_ref[0]"), int32At(68, "topology_ref[7]")} +
                       at(72, "port[0].", kFibrePort) + at(632, "port[7].", kFibrePort) +
                       at(712, "sfc[0].", kSfc) + at(922, "sfc[7].", kSfc) +
                       at(952, "security[0].", kSecurity) + at(267176, "security[7].", kSecurity) +
                       Members{textAt(305248, 8, "product_number")};

TEST_F(FibreAndLan, ResultRecords) {
  const std::vector<jobject> arguments{unit_, session_};
  expectBuilt("QV_GetLANInformation", {unit_, session_, number(1)}, 80, kLan);
  EXPECT_EQ(lastInt("QV_GetLANInformation", 2), 1);
  expectBuilt("QV_GetLANInformationEx", {unit_}, 144, kLanEx);
  expectBuilt("QV_GetLANPortNumber", arguments, 40, kPortNumbers);
  expectBuilt("QV_GetQVUserLANInformation", arguments, 1012, kUserLan);
  expectBuilt("QV_LoadQVUserLANInformation", {unit_, text("file"), session_}, 1012, kUserLan);
  expectBuilt("QV_GetMainteLanInfo", arguments, 1320,
              at(0, "ctl[0].", kMainteDetail) + at(212, "ctl[1].", kMainteDetail) +
                  at(424, "nnc[0].", kMainteDetail) + at(1060, "nnc[3].", kMainteDetail));
  expectBuilt(
      "QV_GetMainteLanAvailableList", arguments, 552,
      Members{int32At(0, "available_count")} + at(4, "available_address[0].", kMainteAddress) +
          at(196, "available_address[4].", kMainteAddress) +
          int32sAt(244,
                   {"rule_ipv4_minaddr", "rule_ipv4_maxaddr", "rule_ipv4_addition_value",
                    "rule_ipv4_base_value", "available_host_ctl[0].host_address",
                    "available_host_ctl[1].host_address", "available_host_nnc[0].host_address"}) +
          int32sAt(280, {"available_host_nnc[3].host_address", "available_count_ipv6"}) +
          at(288, "available_address_ipv6[0].", kMainteAddress) +
          at(480, "available_address_ipv6[4].", kMainteAddress) +
          int32sAt(528, {"rule_ipv6_minaddr", "rule_ipv6_maxaddr", "rule_ipv6_addition_value",
                         "rule_ipv6_base_value"}));
  expectBuilt("QV_GetNNCLANInformation", arguments, 776, kNnc);
  expectBuilt("QV_GetFibreInformation", arguments, 610512,
              at(0, "[0].", kFibre) + at(305256, "[1].", kFibre));
}

TEST_F(FibreAndLan, RequestRecords) {
  const jobject lan = create("LANInformation");
  expectRead("QV_SetLANInformation", {unit_, session_, number(1), number(7), lan}, lan, 4, 80,
             kLan);
  EXPECT_EQ(lastInt("QV_SetLANInformation", 2), 1);
  EXPECT_EQ(lastInt("QV_SetLANInformation", 3), 7);
  const jobject both = create("LANInformationEx");
  expectRead("QV_SetLANInformationEx", {unit_, both}, both, 1, 144, kLanEx);
  const jobject numbers = create("LANPortNumber");
  expectRead("QV_SetLANPortNumber", {unit_, session_, number(-1), numbers}, numbers, 3, 40,
             kPortNumbers);
  EXPECT_EQ(lastInt("QV_SetLANPortNumber", 2), -1);
  const auto inSession = [&](const char* method, const char* className, std::size_t size,
                             const Members& members) {
    const jobject object = create(className);
    expectRead(method, {unit_, session_, object}, object, 2, size, members);
  };
  inSession("QV_SetQVUserLANInformation", "QVUserLANInformation", 1012, kUserLan);
  inSession("QV_LANExport", "LANFile", 264, {textAt(0, 256, "filename")});
  inSession("QV_LANImport", "LANFile", 264, {textAt(0, 256, "filename")});
  inSession("QV_SetMainteIPAddress", "MainteIPAddress", 48, kMainteAddress);
  inSession("QV_SetNNCLANInformation", "NNCLANInformation", 776, kNnc);
  // A record of its own for each controller.
  const jobject first = create("FibreInformation");
  const jobject second = create("FibreInformation");
  expectRead("QV_SetFibreInformation", {unit_, session_, first, second}, first, 2, 305256, kFibre);
  expectRead("QV_SetFibreInformation", {unit_, session_, first, second}, second, 3, 305256, kFibre);
}

TEST_F(FibreAndLan, TheLoadedFileStandsBehindTheSession) {
  expectRead("QV_LoadQVUserLANInformation", {unit_, text("lan.txt"), session_}, session_, 1, 32,
             {bytesAt(0, 32, "session_id")});
  EXPECT_EQ(lastText("QV_LoadQVUserLANInformation", 2), "lan.txt");
  EXPECT_EQ(call("QV_LoadQVUserLANInformation", {unit_, nullptr, session_}).failure,
            "DiskArrayException 258");
}

TEST_F(FibreAndLan, Addresses) {
  const jobject lan = call("QV_GetLANInformation", {unit_, session_, number(1)}).result;
  EXPECT_EQ(get(lan, "ip_address"), "192.0.2.11");
  set(lan, "ip_address", "198.51.100.100");
  set(lan, "dhcp", "1");
  const std::vector<jobject> request{unit_, session_, number(1), number(0), lan};
  EXPECT_EQ(call("QV_SetLANInformation", request).failure, "");
  const jobject both = call("QV_GetLANInformationEx", {unit_}).result;
  EXPECT_EQ(get(both, "ctl[0].ip_address"), "192.0.2.10");
  EXPECT_EQ(get(both, "ctl[1].ip_address"), "198.51.100.100");
  EXPECT_EQ(get(both, "ctl[1].dhcp"), "1");
  EXPECT_EQ(call("QV_GetLANInformation", {unit_, session_, number(2)}).failure,
            "DiskArrayException 20004");

  const jobject address = create("MainteIPAddress");
  set(address, "ip_addr", "192.168.1.16");
  EXPECT_EQ(call("QV_SetMainteIPAddress", {unit_, session_, address}).failure, "");
  EXPECT_EQ(get(call("QV_GetMainteLanInfo", {unit_, session_}).result, "nnc[3].ip_address"),
            "192.168.1.21");
  EXPECT_EQ(get(call("QV_GetMainteLanAvailableList", {unit_, session_}).result,
                "available_address[3].ip_addr"),
            "192.168.1.16");
}

TEST_F(FibreAndLan, UserLanIsExportedAndImported) {
  const auto userLan = [&] { return call("QV_GetQVUserLANInformation", {unit_, session_}).result; };
  const jobject file = create("LANFile");
  set(file, "filename", "before.txt");
  EXPECT_EQ(call("QV_LANImport", {unit_, session_, file}).failure, "DiskArrayException 20004");
  EXPECT_EQ(call("QV_LANExport", {unit_, session_, file}).failure, "");
  const jobject changed = userLan();
  for (const std::string controller : {"ctl[0].", "ctl[1]."}) {
    set(changed, controller + "set_ipaddress", "198.51.100.9");
  }
  EXPECT_EQ(call("QV_SetQVUserLANInformation", {unit_, session_, changed}).failure, "");
  EXPECT_EQ(get(userLan(), "ctl[1].current_ipaddress"), "198.51.100.9");
  const jobject loaded =
      call("QV_LoadQVUserLANInformation", {unit_, text("before.txt"), session_}).result;
  EXPECT_EQ(get(loaded, "ctl[1].current_ipaddress"), "192.0.2.11");
  EXPECT_EQ(call("QV_LANImport", {unit_, session_, file}).failure, "");
  EXPECT_EQ(get(userLan(), "ctl[1].current_ipaddress"), "192.0.2.11");
}

TEST_F(FibreAndLan, FibrePorts) {
  const jobject controllers = call("QV_GetFibreInformation", {unit_, session_}).result;
  EXPECT_EQ(get(controllers, ""), "FibreInformation[2]");
  EXPECT_EQ(get(controllers, "[1].security[7].permission"), "FibreInformationPermission[128]");
  EXPECT_EQ(get(controllers, "[1].port[3].port_name"), "5000000000000013");
  set(controllers, "[1].port[7].set_speed", "16");
  const auto array = static_cast<jobjectArray>(controllers);
  EXPECT_EQ(
      call("QV_SetFibreInformation", {unit_, session_, realJvm()->GetObjectArrayElement(array, 0),
                                      realJvm()->GetObjectArrayElement(array, 1)})
          .failure,
      "");
  const jobject kept = call("QV_GetFibreInformation", {unit_, session_}).result;
  EXPECT_EQ(get(kept, "[0].port[7].set_speed"), "0");
  EXPECT_EQ(get(kept, "[1].port[7].set_speed"), "16");
}

TEST_F(FibreAndLan, ImportedPermissions) {
  const char* const method = "QV_FibreInfoPermissionImport";
  // 128 records of 297 bytes.
  expectBuilt(method, {unit_, text("hosts.txt"), number(7)}, 38016,
              at(0, "[0].", kPermission) + at(37719, "[127].", kPermission));
  EXPECT_EQ(lastText(method, 1), "hosts.txt");
  EXPECT_EQ(lastInt(method, 2), 7);
  const jobject permissions = call(method, {unit_, text("hosts.txt"), number(7)}).result;
  EXPECT_EQ(get(permissions, ""), "FibreInformationPermission[128]");
  EXPECT_EQ(get(permissions, "[1].node_name"), "1000000000000001");
  EXPECT_EQ(call(method, {unit_, text("hosts.txt"), number(8)}).failure,
            "DiskArrayException 20004");
  // A missing unit name is left to the library.
  EXPECT_EQ(call(method, {nullptr, text("hosts.txt"), number(7)}).failure,
            "DiskArrayException 20001");
  EXPECT_EQ(call(method, {unit_, nullptr, number(7)}).failure, "DiskArrayException 20004");
}

}  // namespace
}  // namespace quorvelj::testing
