// The condition of a unit's parts, and the summary of an array.
#include "arraylib/status.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(CacheStatus, option, condition);
QUORVELJ_CLASS(NNCExtensionSlotStatus, valid_index, card_state, card_type, connector_state);
QUORVELJ_CLASS(NNCPartsStatus, valid_index, dimm, ps, fan, connector, nnc_type, ext_slot, nnc_base);
QUORVELJ_CLASS(UnitCondition, micro, micro_pair, max_slot, cache, cache2, ps, fan, ac, batt,
               batt_bk, if_board, optionBoard_2port, ctl0_port, ctl1_port, ctl0_port_type,
               ctl1_port_type, connector, device_type, device_type_QVK_sub_code, ctl0_flush,
               ctl1_flush, ctl0_ip, ctl1_ip, ctl0_subnet, ctl1_subnet, ctl0_gateway, ctl1_gateway,
               ctl0_ip_ipv6, ctl1_ip_ipv6, ctl0_subnet_prefix, ctl1_subnet_prefix,
               ctl0_gateway_ipv6, ctl1_gateway_ipv6, controller_condition, enclosure, loop, serial,
               serial_id, add_info_index, unit_count, unit_type, unit_type_sub_code, unit_kind, nnc,
               nnc_parts, function_revision, ctl_num, add_batt, sa_unit_exchange_req,
               sa_repair_inst_req, device_type_name);
QUORVELJ_CLASS(ArrayConditionRequest, login_request, user_id, passwd, session);
QUORVELJ_CLASS(ArrayCondition, login_kind, valid_index, login_result, operation_auth, alert_valid,
               alert, alert_sa, lu_count, all_lu_capa_h, all_lu_capa_l, unused_drive_count,
               unused_drive_capa_h, unused_drive_capa_l, drive_count, all_drive_capa_h,
               all_drive_capa_l);

NATIVE_METHOD(jobject, GetUnitCondition, jstring unit, jobject session, jint option) {
  return query(env, QV_GetUnitCondition, unit, session, option);
}

NATIVE_METHOD(jobject, GetArrayCondition, jstring unit, jobject request) {
  return query(env, QV_GetArrayCondition, unit, request);
}
