// Host groups, the mapping of LUs to them and its guard, and what can be chosen for them.
#include "arraylib/hosts.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(HGInfo, valid, hgname);
QUORVELJ_CLASS(HGName, hgname);
QUORVELJ_CLASS(HGPortInfo, security, hg);
QUORVELJ_CLASS(HGCtlInfo, port);
QUORVELJ_CLASS(HGList, lun_manage, ctl);
QUORVELJ_CLASS(DeleteHGPortList, hg);
QUORVELJ_CLASS(DeleteHGCtlList, port);
QUORVELJ_CLASS(DeleteHGList, ctl);
QUORVELJ_CLASS(InitHGPortList, hg);
QUORVELJ_CLASS(InitHGCtlList, port);
QUORVELJ_CLASS(InitHGList, ctl);

QUORVELJ_CLASS(LuMappingHGInfo, lu);
QUORVELJ_CLASS(LuMappingPortInfo, security, hg_tg_max_count, hg);
QUORVELJ_CLASS(LuMappingCtlInfo, port);
QUORVELJ_CLASS(LuMapping, HostGroupValid, ctrl_flag, mapping_mode, ctl);
QUORVELJ_CLASS(LuMappingPortList, option, mapping_mode, port);
QUORVELJ_CLASS(ControllerRequest, requestCTL);
QUORVELJ_CLASS(LuMappingPortAssignInfo, lu_assign);
QUORVELJ_CLASS(MappingGuardList, lumap_guard);

QUORVELJ_OPAQUE_CLASS(HGOptionValidIndex);
QUORVELJ_CLASS(HGOptionInfo, option, option2, option3, platform_id, alternate_path_id, failover_id,
               special_mode_id, middleware_id);
QUORVELJ_CLASS(HGOptionPortInfo, hg);
QUORVELJ_CLASS(HGOptionCtlInfo, port);
QUORVELJ_CLASS(HGOption, support_index, valid_index, HostGroupValid, ctl);
QUORVELJ_OPAQUE_CLASS(PortOptionValidIndex);
QUORVELJ_CLASS(PortOptionCtlInfo, lip_mode, port_common_opt);
QUORVELJ_CLASS(PortOption, support_index, valid_index, ctl);

QUORVELJ_OPAQUE_CLASS(PlatformInfo);
QUORVELJ_CLASS(SpecialmodeInfo, specialmode_id, hgoptinfo);
QUORVELJ_CLASS(HGParameterList, platform_count, platinfo, special_mode_count, specialinfo);
QUORVELJ_OPAQUE_CLASS(MiddlewareInfo);
QUORVELJ_CLASS(PlatformInfo2, platform_id, middleware_count, middlewareinfo);
QUORVELJ_CLASS(HGParameterList2, platform_count, platinfo);
QUORVELJ_OPAQUE_CLASS(PlatFormID);
QUORVELJ_OPAQUE_CLASS(AlternatePathID);
QUORVELJ_OPAQUE_CLASS(FailOverID);
QUORVELJ_OPAQUE_CLASS(SpecialModeID);
QUORVELJ_CLASS(MiddlewareID, middleware_id, middleware_name, middleware_name_str);
QUORVELJ_CLASS(HGParameterID, plat_id_count, platform, altpath_id_count, alternatepath,
               fail_id_count, failover, special_id_count, specialmode, middleware);

QUORVELJ_OPAQUE_CLASS(WWNPortInfo);
QUORVELJ_CLASS(WWNCtlInfo, port);
QUORVELJ_CLASS(WWNInformation, lun_security_opt, ctl);
QUORVELJ_OPAQUE_CLASS(WWNHGPortInfo);
QUORVELJ_CLASS(WWNHGCtlInfo, port);
QUORVELJ_CLASS(WWNHGInformation, lun_manage, ctl);

QUORVELJ_OPAQUE_CLASS(TargetLunList);
QUORVELJ_CLASS(TargetConfig, single, multi, mapping);
QUORVELJ_CLASS(TargetId, ctrl_flag, target_id_mode, target_config);
QUORVELJ_OPAQUE_CLASS(WZTargetConfig);
QUORVELJ_CLASS(WZTargetId, ctrl_flag, target_id_mode, target_config);

NATIVE_METHOD(jobject, GetHGList, jstring unit, jobject session) {
  return query(env, QV_GetHGList, unit, session);
}

NATIVE_METHOD(void, CreateHG, jstring unit, jobject session, jint controller, jint port, jint group,
              jobject hostGroup) {
  update(env, QV_CreateHG, unit, session, controller, port, group, hostGroup);
}

NATIVE_METHOD(void, ChangeHG, jstring unit, jobject session, jint controller, jint port, jint group,
              jobject hostGroup) {
  update(env, QV_ChangeHG, unit, session, controller, port, group, hostGroup);
}

NATIVE_METHOD(void, DeleteHGList, jstring unit, jobject session, jobject list) {
  update(env, QV_DeleteHGList, unit, session, list);
}

NATIVE_METHOD(void, InitHGList, jstring unit, jobject session, jobject list) {
  update(env, QV_InitHGList, unit, session, list);
}

NATIVE_METHOD(void, DeleteHGPortList, jstring unit, jobject session, jint controller, jint port,
              jobject list) {
  update(env, QV_DeleteHGPortList, unit, session, controller, port, list);
}

NATIVE_METHOD(void, InitHGPortList, jstring unit, jobject session, jint controller, jint port,
              jobject list) {
  update(env, QV_InitHGPortList, unit, session, controller, port, list);
}

NATIVE_METHOD(jobject, GetLuMappingListAll, jstring unit, jobject session) {
  return query(env, QV_GetLuMappingListAll, unit, session);
}

DEPARTS(GetLuMappingListAllLite, "the compact form has every field of the full one",
        .function = "QV_GetLuMappingListAll");
NATIVE_METHOD(jobject, GetLuMappingListAllLite, jstring unit, jobject session) {
  return query(env, QV_GetLuMappingListAll, unit, session);
}

NATIVE_METHOD(void, SetLuMappingListAll, jstring unit, jobject session, jobject mapping) {
  update(env, QV_SetLuMappingListAll, unit, session, mapping);
}

NATIVE_METHOD(void, SetLuMappingList, jstring unit, jobject session, jint controller, jint port,
              jint group, jobject mapping) {
  update(env, QV_SetLuMappingList, unit, session, controller, port, group, mapping);
}

NATIVE_METHOD(jobject, GetLuMappingPortList, jstring unit, jobject session, jint controller,
              jint port) {
  return query(env, QV_GetLuMappingPortList, unit, session, controller, port);
}

NATIVE_METHOD(void, SetLuMappingPortList, jstring unit, jobject session, jint controller, jint port,
              jobject mapping) {
  update(env, QV_SetLuMappingPortList, unit, session, controller, port, mapping);
}

NATIVE_METHOD(jobject, GetLuMappingPortAssignInfo, jstring unit, jobject session, jobject request) {
  return query(env, QV_GetLuMappingPortAssignInfo, unit, session, request);
}

NATIVE_METHOD(void, ChangeMappingMode, jstring unit, jobject session, jint mode) {
  update(env, QV_ChangeMappingMode, unit, session, mode);
}

NATIVE_METHOD(jobject, GetMappingGuardList, jstring unit, jobject session) {
  return query(env, QV_GetMappingGuardList, unit, session);
}

NATIVE_METHOD(void, SetMappingGuardList, jstring unit, jobject session, jobject guard) {
  update(env, QV_SetMappingGuardList, unit, session, guard);
}

NATIVE_METHOD(jobject, GetHGOptionAll, jstring unit, jobject session) {
  return query(env, QV_GetHGOptionAll, unit, session);
}

NATIVE_METHOD(void, SetHGOptionAll, jstring unit, jobject session, jobject options) {
  update(env, QV_SetHGOptionAll, unit, session, options);
}

NATIVE_METHOD(jobject, GetHGOption, jstring unit, jobject session, jint controller, jint port,
              jint group) {
  return query(env, QV_GetHGOption, unit, session, controller, port, group);
}

NATIVE_METHOD(void, SetHGOption, jstring unit, jobject session, jint controller, jint port,
              jint group, jobject option) {
  update(env, QV_SetHGOption, unit, session, controller, port, group, option);
}

NATIVE_METHOD(jobject, GetPortOption, jstring unit, jobject session) {
  return query(env, QV_GetPortOption, unit, session);
}

NATIVE_METHOD(void, SetPortOption, jstring unit, jobject session, jobject options) {
  update(env, QV_SetPortOption, unit, session, options);
}

NATIVE_METHOD(jobject, GetHGParameterList, jstring unit, jobject session) {
  return query(env, QV_GetHGParameterList, unit, session);
}

NATIVE_METHOD(jobject, GetHGParameterList2, jstring unit, jobject session) {
  return query(env, QV_GetHGParameterList2, unit, session);
}

NATIVE_METHOD(jobject, GetHGParameterID, jstring unit, jobject session, jint controller) {
  return query(env, QV_GetHGParameterID, unit, session, controller);
}

NATIVE_METHOD(jobject, GetWWNInformation, jstring unit) {
  return query(env, QV_GetWWNInformation, unit);
}

NATIVE_METHOD(void, SetWWNInformation, jstring unit, jobject information) {
  update(env, QV_SetWWNInformation, unit, information);
}

NATIVE_METHOD(jobject, GetWWNHGInformation, jstring unit, jobject session) {
  return query(env, QV_GetWWNHGInformation, unit, session);
}

NATIVE_METHOD(void, SetWWNHGInformation, jstring unit, jobject session, jobject information) {
  update(env, QV_SetWWNHGInformation, unit, session, information);
}

NATIVE_METHOD(jobjectArray, GetTargetId, jstring unit, jint controller) {
  return query(env, QV_GetTargetId, unit, controller);
}

NATIVE_METHOD(void, SetTargetId, jstring unit, jint controller, jobject id) {
  update(env, QV_SetTargetId, unit, controller, id);
}

NATIVE_METHOD(jobjectArray, TargetIdImport, jstring unit, jstring file) {
  return query(env, QV_TargetIdImport, unit, file);
}

NATIVE_METHOD(jobjectArray, WZTargetIdImport, jstring unit, jstring first, jstring second) {
  return query(env, QV_WZTargetIdImport, unit, first, second);
}

namespace {

/// An array of an `Integer` and the object of a host group's mapping.
jobjectArray newModeAndMapping(Env env, std::int32_t mode, const LuMappingHGInfo* mapping) {
  const jobjectArray pair = newObjectArrayByName(env, "java/lang/Object", 2);
  if (pair == nullptr) {
    return nullptr;
  }
  const jobject number = newInteger(env, mode);
  if (number == nullptr || storeArrayElement(env, pair, 0, number) != kOk) {
    return nullptr;
  }
  const jobject built = build(env, ClassOf<LuMappingHGInfo>::kMap, mapping);
  if (built == nullptr || storeArrayElement(env, pair, 1, built) != kOk) {
    return nullptr;
  }
  return pair;
}

}  // namespace

DEPARTS(GetLuMappingList, "the library fills an int and a record, and both are returned");
NATIVE_METHOD(jobjectArray, GetLuMappingList, jstring unit, jobject session, jint controller,
              jint port, jint group) {
  LibraryCall library(env, QV_GetLuMappingList, unit, session, controller, port, group);
  if (!library.begin()) {
    return nullptr;
  }
  auto* const mapping = library.output<1>();
  if (mapping == nullptr) {
    return nullptr;
  }
  std::int32_t mode = 0;
  const int result = library.call(&mode, mapping);
  const jobjectArray pair = result == 0 ? newModeAndMapping(env, mode, mapping) : nullptr;
  releaseRecord(mapping);
  if (pair == nullptr) {
    throwArrayException(env, result != 0 ? result : kFailed);
    return nullptr;
  }
  flushOutput();
  return pair;
}
