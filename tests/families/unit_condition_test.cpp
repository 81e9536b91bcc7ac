// The condition of a unit.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using UnitCondition = RegisteredUnit;

TEST_F(UnitCondition, Records) {
  const Members part =
      "0:int32 valid_index; 4:int8 dimm[0]; 7:int8 dimm[3] ps[0] ps[1] fan[0]; 12:int8 fan[2] "
      "connector[0]; 20:int8 connector[7]; 21:uint8 nnc_type" +
      at("24:ext_slot[0] 72:ext_slot[3]",
         "0:int32 valid_index; 4:uint8 card_state card_type; 6:int8 connector_state[0]; 13:int8 "
         "connector_state[7]") +
      "88:uint8 nnc_base";
  const Members cache = "0:int32 option condition";
  expectFromUnit(
      "QV_GetUnitCondition", 1840,
      "0:text9 micro; 9:text11 micro_pair; 20:int32 max_slot" +
          at("24:cache[0] 48:cache[3] 56:cache2[0] 80:cache2[3]", cache) +
          "88:int8 ps[0]; 209:int8 ps[121] fan[0]; 453:int8 fan[243] ac[0] ac[1] batt[0]; 459:int8 "
          "batt[3] batt_bk[0] batt_bk[1] if_board[0][0] if_board[0][1] if_board[1][0] "
          "if_board[1][1] optionBoard_2port[0] optionBoard_2port[1] ctl0_port[0]; 475:int8 "
          "ctl0_port[7] ctl1_port[0]; 483:int8 ctl1_port[7] ctl0_port_type[0]; 491:int8 "
          "ctl0_port_type[7] ctl1_port_type[0]; 499:int8 ctl1_port_type[7]; 500:bytes2 "
          "connector[0][0]; 514:bytes2 connector[0][7] connector[1][0]; 530:bytes2 "
          "connector[1][7]; 532:int8 device_type device_type_QVK_sub_code; 534:text7 ctl0_flush "
          "ctl1_flush; 548:text40 ctl0_ip ctl1_ip ctl0_subnet ctl1_subnet ctl0_gateway "
          "ctl1_gateway ctl0_ip_ipv6 ctl1_ip_ipv6; 868:int32 ctl0_subnet_prefix "
          "ctl1_subnet_prefix; 876:text40 ctl0_gateway_ipv6 ctl1_gateway_ipv6; 956:uint8 "
          "controller_condition; 957:int8 enclosure[0]; 1078:int8 enclosure[121] loop[0]; "
          "1086:int8 loop[7]; 1087:text9 serial; 1096:text12 serial_id; 1108:int32 add_info_index "
          "unit_count; 1116:int8 unit_type[0]; 1176:int8 unit_type[60] unit_type_sub_code[0]; "
          "1237:int8 unit_type_sub_code[60] unit_kind[0]; 1298:int8 unit_kind[60] nnc[0]; "
          "1302:int8 nnc[3]" +
          at("1304:nnc_parts[0] 1580:nnc_parts[3]", part) +
          "1672:int8 function_revision[0]; 1799:int8 function_revision[127]; 1800:int32 ctl_num; "
          "1804:int8 add_batt[0] add_batt[1]; 1808:int32 sa_unit_exchange_req[0] "
          "sa_unit_exchange_req[1] sa_repair_inst_req[0]; 1824:int32 sa_repair_inst_req[2]; "
          "1828:text12 device_type_name",
      {9});

  const jobject request = create("ArrayConditionRequest");
  expectRequest("QV_GetArrayCondition", request, 552,
                "0:int32 login_request; 4:text257 user_id passwd; 518:bytes32 session.session_id");
  expectBuilt("QV_GetArrayCondition", {unit_, request}, 100,
              "0:int32 login_kind valid_index login_result operation_auth[0]; 44:int32 "
              "operation_auth[8] alert_valid alert[0] alert[1] alert_sa lu_count all_lu_capa_h "
              "all_lu_capa_l unused_drive_count unused_drive_capa_h unused_drive_capa_l "
              "drive_count all_drive_capa_h all_drive_capa_l");
}

// The device type is 201 in the registration, as an unsigned byte.
TEST_F(UnitCondition, OfARegisteredUnit) {
  expectFields(information("QV_GetUnitCondition", 0), "ctl0_ip=192.0.2.10; device_type=-55");
}

TEST_F(UnitCondition, SummaryForAUser) {
  const jobject request =
      create("ArrayConditionRequest", "login_request=1; user_id=admin; passwd=wrong");
  EXPECT_EQ(get(call("QV_GetArrayCondition", {unit_, request}).result, "login_result"), "20102");
  set(request, "passwd", "quorvel");
  expectFields(call("QV_GetArrayCondition", {unit_, request}).result,
               "login_result=0; drive_count=19");
}

}  // namespace
}  // namespace quorvelj::testing
