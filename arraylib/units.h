#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"

// Registered units: the list that the library keeps on this host.

/// A registered unit.
struct QVUnitParam {
  char unit_name[65];
  char group_name[17];
  std::int8_t connect_type;
  std::int8_t qv_type;
  std::uint8_t device_type;
  std::int8_t unit_conf;
  std::int8_t alert;
  char ctl0[256];
  char ctl1[256];
  char serial[9];
  std::int32_t ssl_used;
};
QUORVEL_RECORD(QVUnitParam, 612);
QUORVEL_OFFSET(QVUnitParam, connect_type, 82);
QUORVEL_OFFSET(QVUnitParam, ctl0, 87);
QUORVEL_OFFSET(QVUnitParam, ctl1, 343);
QUORVEL_OFFSET(QVUnitParam, serial, 599);
QUORVEL_OFFSET(QVUnitParam, ssl_used, 608);

/// Where and how to look for a unit.
struct DiscoverUnitRequest {
  std::uint8_t connect_type;
  char ip_dev[256];
  std::int32_t communication_mode;
};
QUORVEL_RECORD(DiscoverUnitRequest, 264);
QUORVEL_OFFSET(DiscoverUnitRequest, communication_mode, 260);

/// A unit that was found.
struct DiscoverUnit {
  std::uint8_t connect_type;
  char ip_dev[256];
  std::uint8_t qv_type;
  std::uint8_t device_type;
  std::uint8_t unit_conf;
  std::uint8_t ctlno;
  char serial[11];
  std::int32_t communication_port;
};
QUORVEL_RECORD(DiscoverUnit, 276);
QUORVEL_OFFSET(DiscoverUnit, serial, 261);
QUORVEL_OFFSET(DiscoverUnit, communication_port, 272);

/// A request to attach additional units.
struct AdditionalUnitRequest {
  std::int32_t mode;
};
QUORVEL_RECORD(AdditionalUnitRequest, 4);

/// The additional units of a registered one.
struct AdditionalUnitInformation {
  std::int32_t inquiry_time;
  std::int32_t polling_time;
  std::int32_t time_out;
  std::int32_t add_unit_num;
  std::int32_t connect_unit_num;
  std::int32_t unit_type;
  std::int32_t unit_status;
  std::int32_t unit_status_subcode;
};
QUORVEL_RECORD(AdditionalUnitInformation, 32);

QUORVEL_API int QV_UnitAdd(const QVUnitParam* param);
QUORVEL_API int QV_UnitAddByIP(const QVUnitParam* param);
QUORVEL_API int QV_UnitChange(const LongUnitName* unit, const QVUnitParam* param);
QUORVEL_API int QV_UnitChangeByIP(const LongUnitName* unit, const QVUnitParam* param);
QUORVEL_API int QV_UnitDelete(const UnitName* unit);
QUORVEL_API int QV_GetUnitParam(const UnitName* unit, QVUnitParam* param);
QUORVEL_API int QV_GetUnitCount(std::int32_t* count);
/// Fills `count` records from `table` on.
QUORVEL_API int QV_GetUnitParamTable(std::int32_t count, QVUnitParam* table);
QUORVEL_API int QV_DiscoverUnitInformation(const DiscoverUnitRequest* request, DiscoverUnit* found);
QUORVEL_API int QV_DiscoverUnitInformationEx(const DiscoverUnitRequest* request,
                                             DiscoverUnit* found);
QUORVEL_API int QV_AddAdditionalUnit(const UnitName* unit, const QVSessionInfo* session,
                                     const AdditionalUnitRequest* request);
QUORVEL_API int QV_GetAdditionalUnitInformation(const UnitName* unit, const QVSessionInfo* session,
                                                AdditionalUnitInformation* information);
