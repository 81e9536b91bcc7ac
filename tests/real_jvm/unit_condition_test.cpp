// The condition of a unit in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

class UnitCondition : public RegisteredUnit {};

TEST_F(UnitCondition, Records) {
  expectBuilt("QV_GetUnitCondition", {unit_, session_, number(9)}, 1840,
              {
                  textAt(0, 9, "micro"),
                  textAt(9, 11, "micro_pair"),
                  int32At(20, "max_slot"),
                  int32At(24, "cache[0].option"),
                  int32At(28, "cache[0].condition"),
                  int32At(48, "cache[3].option"),
                  int32At(52, "cache[3].condition"),
                  int32At(56, "cache2[0].option"),
                  int32At(60, "cache2[0].condition"),
                  int32At(80, "cache2[3].option"),
                  int32At(84, "cache2[3].condition"),
                  int8At(88, "ps[0]"),
                  int8At(209, "ps[121]"),
                  int8At(210, "fan[0]"),
                  int8At(453, "fan[243]"),
                  int8At(454, "ac[0]"),
                  int8At(455, "ac[1]"),
                  int8At(456, "batt[0]"),
                  int8At(459, "batt[3]"),
                  int8At(460, "batt_bk[0]"),
                  int8At(461, "batt_bk[1]"),
                  int8At(462, "if_board[0][0]"),
                  int8At(463, "if_board[0][1]"),
                  int8At(464, "if_board[1][0]"),
                  int8At(465, "if_board[1][1]"),
                  int8At(466, "optionBoard_2port[0]"),
                  int8At(467, "optionBoard_2port[1]"),
                  int8At(468, "ctl0_port[0]"),
                  int8At(475, "ctl0_port[7]"),
                  int8At(476, "ctl1_port[0]"),
                  int8At(483, "ctl1_port[7]"),
                  int8At(484, "ctl0_port_type[0]"),
                  int8At(491, "ctl0_port_type[7]"),
                  int8At(492, "ctl1_port_type[0]"),
                  int8At(499, "ctl1_port_type[7]"),
                  bytesAt(500, 2, "connector[0][0]"),
                  bytesAt(514, 2, "connector[0][7]"),
                  bytesAt(516, 2, "connector[1][0]"),
                  bytesAt(530, 2, "connector[1][7]"),
                  int8At(532, "device_type"),
                  int8At(533, "device_type_QVK_sub_code"),
                  textAt(534, 7, "ctl0_flush"),
                  textAt(541, 7, "ctl1_flush"),
                  textAt(548, 40, "ctl0_ip"),
                  textAt(588, 40, "ctl1_ip"),
                  textAt(628, 40, "ctl0_subnet"),
                  textAt(668, 40, "ctl1_subnet"),
                  textAt(708, 40, "ctl0_gateway"),
                  textAt(748, 40, "ctl1_gateway"),
                  textAt(788, 40, "ctl0_ip_ipv6"),
                  textAt(828, 40, "ctl1_ip_ipv6"),
                  int32At(868, "ctl0_subnet_prefix"),
                  int32At(872, "ctl1_subnet_prefix"),
                  textAt(876, 40, "ctl0_gateway_ipv6"),
                  textAt(916, 40, "ctl1_gateway_ipv6"),
                  uint8At(956, "controller_condition"),
                  int8At(957, "enclosure[0]"),
                  int8At(1078, "enclosure[121]"),
                  int8At(1079, "loop[0]"),
                  int8At(1086, "loop[7]"),
                  textAt(1087, 9, "serial"),
                  textAt(1096, 12, "serial_id"),
                  int32At(1108, "add_info_index"),
                  int32At(1112, "unit_count"),
                  int8At(1116, "unit_type[0]"),
                  int8At(1176, "unit_type[60]"),
                  int8At(1177, "unit_type_sub_code[0]"),
                  int8At(1237, "unit_type_sub_code[60]"),
                  int8At(1238, "unit_kind[0]"),
                  int8At(1298, "unit_kind[60]"),
                  int8At(1299, "nnc[0]"),
                  int8At(1302, "nnc[3]"),
                  int32At(1304, "nnc_parts[0].valid_index"),
                  int8At(1308, "nnc_parts[0].dimm[0]"),
                  int8At(1311, "nnc_parts[0].dimm[3]"),
                  int8At(1312, "nnc_parts[0].ps[0]"),
                  int8At(1313, "nnc_parts[0].ps[1]"),
                  int8At(1314, "nnc_parts[0].fan[0]"),
                  int8At(1316, "nnc_parts[0].fan[2]"),
                  int8At(1317, "nnc_parts[0].connector[0]"),
                  int8At(1324, "nnc_parts[0].connector[7]"),
                  uint8At(1325, "nnc_parts[0].nnc_type"),
                  int32At(1328, "nnc_parts[0].ext_slot[0].valid_index"),
                  uint8At(1332, "nnc_parts[0].ext_slot[0].card_state"),
                  uint8At(1333, "nnc_parts[0].ext_slot[0].card_type"),
                  int8At(1334, "nnc_parts[0].ext_slot[0].connector_state[0]"),
                  int8At(1341, "nnc_parts[0].ext_slot[0].connector_state[7]"),
                  int32At(1376, "nnc_parts[0].ext_slot[3].valid_index"),
                  int8At(1389, "nnc_parts[0].ext_slot[3].connector_state[7]"),
                  uint8At(1392, "nnc_parts[0].nnc_base"),
                  int32At(1580, "nnc_parts[3].valid_index"),
                  uint8At(1601, "nnc_parts[3].nnc_type"),
                  uint8At(1657, "nnc_parts[3].ext_slot[3].card_type"),
                  int8At(1665, "nnc_parts[3].ext_slot[3].connector_state[7]"),
                  uint8At(1668, "nnc_parts[3].nnc_base"),
                  int8At(1672, "function_revision[0]"),
                  int8At(1799, "function_revision[127]"),
                  int32At(1800, "ctl_num"),
                  int8At(1804, "add_batt[0]"),
                  int8At(1805, "add_batt[1]"),
                  int32At(1808, "sa_unit_exchange_req[0]"),
                  int32At(1812, "sa_unit_exchange_req[1]"),
                  int32At(1816, "sa_repair_inst_req[0]"),
                  int32At(1824, "sa_repair_inst_req[2]"),
                  textAt(1828, 12, "device_type_name"),
              });
  EXPECT_EQ(lastInt("QV_GetUnitCondition", 2), 9);

  const jobject request = create("ArrayConditionRequest");
  expectRead("QV_GetArrayCondition", {unit_, request}, request, 1, 552,
             {int32At(0, "login_request"), textAt(4, 257, "user_id"), textAt(261, 257, "passwd"),
              bytesAt(518, 32, "session.session_id")});
  expectBuilt("QV_GetArrayCondition", {unit_, request}, 100,
              int32sAt(0, {"login_kind", "valid_index", "login_result"}) +
                  Members{int32At(12, "operation_auth[0]"), int32At(44, "operation_auth[8]")} +
                  int32sAt(48, {"alert_valid", "alert[0]", "alert[1]", "alert_sa", "lu_count",
                                "all_lu_capa_h", "all_lu_capa_l", "unused_drive_count",
                                "unused_drive_capa_h", "unused_drive_capa_l", "drive_count",
                                "all_drive_capa_h", "all_drive_capa_l"}));
}

TEST_F(UnitCondition, ArraysHaveTheirFullLength) {
  const jobject condition = call("QV_GetUnitCondition", {unit_, session_, number(0)}).result;
  EXPECT_EQ(get(condition, "unit_count"), "2");
  EXPECT_EQ(get(condition, "cache"), "CacheStatus[4]");
  EXPECT_EQ(get(condition, "cache2"), "CacheStatus[4]");
  EXPECT_EQ(get(condition, "nnc_parts"), "NNCPartsStatus[4]");
  EXPECT_EQ(get(condition, "nnc_parts[2].ext_slot"), "NNCExtensionSlotStatus[4]");
  for (const auto& [field, length] :
       {std::pair{"ps", 122}, std::pair{"fan", 244}, std::pair{"enclosure", 122},
        std::pair{"unit_type", 61}, std::pair{"unit_kind", 61}, std::pair{"if_board[1]", 2},
        std::pair{"function_revision", 128}, std::pair{"sa_repair_inst_req", 3},
        std::pair{"nnc", 4}}) {
    EXPECT_EQ(lengthOf(condition, field), length) << field;
  }
  EXPECT_EQ(get(condition, "ctl0_ip"), "192.0.2.10");
  // The unsigned type of the registration does not fit into the signed one here.
  EXPECT_EQ(get(condition, "device_type"), "-55");
}

TEST_F(UnitCondition, SummaryForAUserOrASession) {
  const jobject request = create("ArrayConditionRequest");
  set(request, "login_request", "1");
  set(request, "user_id", "admin");
  set(request, "passwd", "wrong");
  EXPECT_EQ(get(call("QV_GetArrayCondition", {unit_, request}).result, "login_result"), "20102");
  set(request, "passwd", "quorvel");
  jobject condition = call("QV_GetArrayCondition", {unit_, request}).result;
  EXPECT_EQ(get(condition, "login_result"), "0");
  EXPECT_EQ(get(condition, "drive_count"), "19");
  // 12.5 TB in two words.
  EXPECT_EQ(get(condition, "all_drive_capa_h"), "2910");
  EXPECT_EQ(get(condition, "all_drive_capa_l"), "1645168640");

  set(request, "login_request", "0");
  EXPECT_EQ(get(call("QV_GetArrayCondition", {unit_, request}).result, "login_result"), "20102");
  for (int index = 0; index < 32; ++index) {
    const std::string path = "session_id[" + std::to_string(index) + ']';
    set(request, "session." + path, get(session_, path));
  }
  EXPECT_EQ(get(call("QV_GetArrayCondition", {unit_, request}).result, "login_result"), "0");
}

}  // namespace
}  // namespace quorvelj::testing
