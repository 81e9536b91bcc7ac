// Fibre ports with their permitted hosts, and the LANs of the array.
#include "arraylib/hosts.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(LANInformation, dhcp, ip_address, subnet, gateway, ether, lan_connect,
               mainte_ip_change_mode, mainte_ip_change_mode_new, negotiation);
QUORVELJ_CLASS(LanDetail, dhcp, ip_address, subnet, gateway, ether, duplex_type, link_speed);
QUORVELJ_CLASS(LANInformationEx, ctl);
QUORVELJ_CLASS(LANPortNumberCtl, valid_index, normal_port, port_num, ssl_port_num);
QUORVELJ_CLASS(LANPortNumber, ctl, logout_instruction, mode);
QUORVELJ_CLASS(QVUserLANDetail, support_index, valid_index, setting_result, dhcp, eather_address,
               current_ipaddress, current_subnet, current_gateway, current_ipaddress_ipv6,
               link_ipv6, current_subnet_prefix, current_gateway_ipv6, current_linkspeed_duplex,
               set_ipaddress, set_subnet, set_gateway);
QUORVELJ_CLASS(QVUserLANInformation, ctl, mainte_ip_change_mode, last_set_mode, logout_instruction,
               ipv6_used, set_ipversion);
QUORVELJ_CLASS(LANFile, filename);
QUORVELJ_CLASS(MainteLanInfoDetail, valid_index, ip_address, subnet, gateway_ipv4, ip_address_ipv6,
               subnet_prefix, gateway_ipv6, connect_status);
QUORVELJ_CLASS(MainteLanInfo, ctl, nnc);
QUORVELJ_CLASS(MainteIPAddress, set_ipversion, ip_addr, logout_instruction);
QUORVELJ_CLASS(MainteHostAddress, host_address);
QUORVELJ_CLASS(MainteLanAvailableList, available_count, available_address, rule_ipv4_minaddr,
               rule_ipv4_maxaddr, rule_ipv4_addition_value, rule_ipv4_base_value,
               available_host_ctl, available_host_nnc, available_count_ipv6, available_address_ipv6,
               rule_ipv6_minaddr, rule_ipv6_maxaddr, rule_ipv6_addition_value,
               rule_ipv6_base_value);
QUORVELJ_CLASS(NNCLANInformationDetail, valid_index, ip_address, subnet, mtu, negotiation,
               set_status);
QUORVELJ_CLASS(NNCLANInformation, nnclaninfo_valid, set_valid, nnclaninfo, set_nnclaninfo);
QUORVELJ_CLASS(FibreInformationConnector, topology_ref);
QUORVELJ_CLASS(FibreInformationPort, node_name, port_name, n_port_id, get_address, frame_size,
               if_board, support_speed, set_speed, refer_speed, connect_valid, connector);
QUORVELJ_CLASS(FibreInformationSfc, biu, sequence, oper_firmware, post_firmware, endec, fc_ph);
QUORVELJ_CLASS(FibreInformationPermission, node_name, port_name, n_port_id, lun_security_bitmap);
QUORVELJ_CLASS(FibreInformationSecurity, access_guard, all_lun_security, permission_count,
               security_chk_lv, permission);
QUORVELJ_CLASS(FibreInformation, lun_security, port_valid, topology, topology_ref, port, sfc,
               security, product_number);

NATIVE_METHOD(jobject, GetLANInformation, jstring unit, jobject session, jint controller) {
  return query(env, QV_GetLANInformation, unit, session, controller);
}

NATIVE_METHOD(void, SetLANInformation, jstring unit, jobject session, jint controller, jint port,
              jobject information) {
  update(env, QV_SetLANInformation, unit, session, controller, port, information);
}

NATIVE_METHOD(jobject, GetLANInformationEx, jstring unit) {
  return query(env, QV_GetLANInformationEx, unit);
}

NATIVE_METHOD(void, SetLANInformationEx, jstring unit, jobject information) {
  update(env, QV_SetLANInformationEx, unit, information);
}

NATIVE_METHOD(jobject, GetLANPortNumber, jstring unit, jobject session) {
  return query(env, QV_GetLANPortNumber, unit, session);
}

NATIVE_METHOD(void, SetLANPortNumber, jstring unit, jobject session, jint controller,
              jobject numbers) {
  update(env, QV_SetLANPortNumber, unit, session, controller, numbers);
}

NATIVE_METHOD(jobject, GetQVUserLANInformation, jstring unit, jobject session) {
  return query(env, QV_GetQVUserLANInformation, unit, session);
}

NATIVE_METHOD(void, SetQVUserLANInformation, jstring unit, jobject session, jobject information) {
  update(env, QV_SetQVUserLANInformation, unit, session, information);
}

NATIVE_METHOD(jobject, LoadQVUserLANInformation, jstring unit, jstring path, jobject session) {
  return query(env, QV_LoadQVUserLANInformation, unit, session, path);
}

NATIVE_METHOD(void, LANExport, jstring unit, jobject session, jobject file) {
  update(env, QV_LANExport, unit, session, file);
}

NATIVE_METHOD(void, LANImport, jstring unit, jobject session, jobject file) {
  update(env, QV_LANImport, unit, session, file);
}

NATIVE_METHOD(jobject, GetMainteLanInfo, jstring unit, jobject session) {
  return query(env, QV_GetMainteLanInfo, unit, session);
}

NATIVE_METHOD(void, SetMainteIPAddress, jstring unit, jobject session, jobject address) {
  update(env, QV_SetMainteIPAddress, unit, session, address);
}

NATIVE_METHOD(jobject, GetMainteLanAvailableList, jstring unit, jobject session) {
  return query(env, QV_GetMainteLanAvailableList, unit, session);
}

NATIVE_METHOD(jobject, GetNNCLANInformation, jstring unit, jobject session) {
  return query(env, QV_GetNNCLANInformation, unit, session);
}

NATIVE_METHOD(void, SetNNCLANInformation, jstring unit, jobject session, jobject information) {
  update(env, QV_SetNNCLANInformation, unit, session, information);
}

NATIVE_METHOD(jobjectArray, GetFibreInformation, jstring unit, jobject session) {
  return query(env, QV_GetFibreInformation, unit, session);
}

NATIVE_METHOD(void, SetFibreInformation, jstring unit, jobject session, jobject first,
              jobject second) {
  update(env, QV_SetFibreInformation, unit, session, first, second);
}

DEPARTS(FibreInfoPermissionImport, "flushes nothing itself, and takes a null text for an empty one",
        .acceptsNullText = true);
NATIVE_METHOD(jobjectArray, FibreInfoPermissionImport, jstring unit, jstring path, jint port) {
  UnitName unitName;
  FilePath filePath;
  copyOptionalText(env, unit, unitName);
  copyOptionalText(env, path, filePath);
  const OwnRecord<PermittedHosts> hosts;
  if (!hosts) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  const int result = QV_FibreInfoPermissionImport(&unitName, &filePath, port, hosts.get());
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  const jobjectArray built =
      buildArray(env, ClassOf<FibreInformationPermission>::kMap, hosts.get(),
                 static_cast<jsize>(std::size(*hosts)), sizeof(FibreInformationPermission));
  if (built == nullptr) {
    throwArrayException(env, kFailed);
  }
  return built;
}
