// The condition of a unit.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using UnitCondition = RegisteredUnit;

/// The first and the last byte of an array.
Members ends(std::size_t offset, const std::string& array, std::size_t length) {
  return {int8At(offset, kept(array + "[0]")),
          int8At(offset + length - 1, kept(array + '[' + std::to_string(length - 1) + ']'))};
}

TEST_F(UnitCondition, Records) {
  const Members slot =
      Members{int32At(0, "valid_index"), uint8At(4, "card_state"), uint8At(5, "card_type")} +
      ends(6, "connector_state", 8);
  const Members part =
      Members{int32At(0, "valid_index")} + ends(4, "dimm", 4) + ends(8, "ps", 2) +
      ends(10, "fan", 3) + ends(13, "connector", 8) + Members{uint8At(21, "nnc_type")} +
      at({{24, "ext_slot[0]."}, {72, "ext_slot[3]."}}, slot) + Members{uint8At(88, "nnc_base")};
  const Members cache = int32sAt(0, {"option", "condition"});
  expectFromUnit(
      "QV_GetUnitCondition", 1840,
      Members{textAt(0, 9, "micro"), textAt(9, 11, "micro_pair"), int32At(20, "max_slot")} +
          at({{24, "cache[0]."}, {48, "cache[3]."}, {56, "cache2[0]."}, {80, "cache2[3]."}},
             cache) +
          ends(88, "ps", 122) + ends(210, "fan", 244) + ends(454, "ac", 2) + ends(456, "batt", 4) +
          ends(460, "batt_bk", 2) + ends(462, "if_board[0]", 2) + ends(464, "if_board[1]", 2) +
          ends(466, "optionBoard_2port", 2) + ends(468, "ctl0_port", 8) +
          ends(476, "ctl1_port", 8) + ends(484, "ctl0_port_type", 8) +
          ends(492, "ctl1_port_type", 8) +
          Members{bytesAt(500, 2, "connector[0][0]"), bytesAt(514, 2, "connector[0][7]"),
                  bytesAt(516, 2, "connector[1][0]"), bytesAt(530, 2, "connector[1][7]"),
                  int8At(532, "device_type"), int8At(533, "device_type_QVK_sub_code"),
                  textAt(534, 7, "ctl0_flush"), textAt(541, 7, "ctl1_flush"),
                  textAt(548, 40, "ctl0_ip"), textAt(588, 40, "ctl1_ip"),
                  textAt(628, 40, "ctl0_subnet"), textAt(668, 40, "ctl1_subnet"),
                  textAt(708, 40, "ctl0_gateway"), textAt(748, 40, "ctl1_gateway"),
                  textAt(788, 40, "ctl0_ip_ipv6"), textAt(828, 40, "ctl1_ip_ipv6")} +
          Members{int32At(868, "ctl0_subnet_prefix"), int32At(872, "ctl1_subnet_prefix"),
                  textAt(876, 40, "ctl0_gateway_ipv6"), textAt(916, 40, "ctl1_gateway_ipv6"),
                  uint8At(956, "controller_condition")} +
          ends(957, "enclosure", 122) + ends(1079, "loop", 8) +
          Members{textAt(1087, 9, "serial"), textAt(1096, 12, "serial_id"),
                  int32At(1108, "add_info_index"), int32At(1112, "unit_count")} +
          ends(1116, "unit_type", 61) + ends(1177, "unit_type_sub_code", 61) +
          ends(1238, "unit_kind", 61) + ends(1299, "nnc", 4) +
          at({{1304, "nnc_parts[0]."}, {1580, "nnc_parts[3]."}}, part) +
          ends(1672, "function_revision", 128) + Members{int32At(1800, "ctl_num")} +
          ends(1804, "add_batt", 2) +
          int32sAt(1808, {"sa_unit_exchange_req[0]", "sa_unit_exchange_req[1]",
                          "sa_repair_inst_req[0]"}) +
          Members{int32At(1824, "sa_repair_inst_req[2]"), textAt(1828, 12, "device_type_name")},
      {9});

  const jobject request = create("ArrayConditionRequest");
  expectRead("QV_GetArrayCondition", {unit_, request}, request, 1, 552,
             {int32At(0, "login_request"), textAt(4, 257, "user_id"), textAt(261, 257, "passwd"),
              bytesAt(518, 32, "session.session_id")});
  expectBuilt("QV_GetArrayCondition", {unit_, request}, 100,
              int32sAt(0, {"login_kind", "valid_index", "login_result", "operation_auth[0]"}) +
                  int32sAt(44, {"operation_auth[8]", "alert_valid", "alert[0]", "alert[1]",
                                "alert_sa", "lu_count", "all_lu_capa_h", "all_lu_capa_l",
                                "unused_drive_count", "unused_drive_capa_h", "unused_drive_capa_l",
                                "drive_count", "all_drive_capa_h", "all_drive_capa_l"}));
}

TEST_F(UnitCondition, ArraysHaveTheirFullLength) {
  const jobject condition = information("QV_GetUnitCondition", 0);
  expectFields(condition,
               {{"cache", "CacheStatus[4]"},
                {"cache2", "CacheStatus[4]"},
                {"nnc_parts", "NNCPartsStatus[4]"},
                {"nnc_parts[2].ext_slot", "NNCExtensionSlotStatus[4]"},
                {"ctl0_ip", "192.0.2.10"},
                // The unsigned type of the registration does not fit into the signed one.
                {"device_type", "-55"}});
  for (const auto& [field, length] :
       {std::pair{"ps", 122}, std::pair{"fan", 244}, std::pair{"enclosure", 122},
        std::pair{"unit_type", 61}, std::pair{"unit_kind", 61}, std::pair{"if_board[1]", 2},
        std::pair{"function_revision", 128}, std::pair{"sa_repair_inst_req", 3},
        std::pair{"nnc", 4}}) {
    EXPECT_EQ(lengthOf(condition, field), length) << field;
  }
}

TEST_F(UnitCondition, SummaryForAUser) {
  const jobject request = create(
      "ArrayConditionRequest", {{"login_request", "1"}, {"user_id", "admin"}, {"passwd", "wrong"}});
  EXPECT_EQ(get(call("QV_GetArrayCondition", {unit_, request}).result, "login_result"), "20102");
  set(request, "passwd", "quorvel");
  expectFields(call("QV_GetArrayCondition", {unit_, request}).result,
               {{"login_result", "0"}, {"drive_count", "19"}});
}

}  // namespace
}  // namespace quorvelj::testing
