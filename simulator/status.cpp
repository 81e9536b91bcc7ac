// The condition of a unit, its drives and its parts.
#include "arraylib/status.h"

#include <fstream>
#include <memory>

#include "arraylib/hosts.h"
#include "simulator/simulate.h"
#include "simulator/storage.h"

using namespace quorvelsim;

namespace {

constexpr std::int8_t kNormal = 1;
constexpr char kVendor[] = "TESSALY";

std::string serialOf(char kind, std::int32_t first, std::int32_t second) {
  std::string serial(1, kind);
  serial += std::to_string(first);
  serial += '-';
  serial += std::to_string(second);
  return serial;
}

// Unit condition

int getUnitCondition(const UnitName* name, const QVSessionInfo* session, std::int32_t,
                     UnitCondition* condition) {
  const Unit& unit = unitOf(name);
  clear(condition);
  setText(condition->micro, unit.firmware);
  setText(condition->micro_pair, unit.firmware);
  condition->max_slot = kControllers;
  for (std::int32_t index = 0; index < kControllers; ++index) {
    condition->cache[index] = {1, kNormal};
    condition->ac[index] = kNormal;
    condition->batt[index] = kNormal;
    std::fill(std::begin(condition->if_board[index]), std::end(condition->if_board[index]),
              kNormal);
  }
  std::fill_n(condition->ps, 2 * kMountedEnclosures, kNormal);
  std::fill_n(condition->fan, 2 * kMountedEnclosures, kNormal);
  std::fill_n(condition->enclosure, 2 * kMountedEnclosures, kNormal);
  std::fill_n(condition->loop, kBackendPaths, kNormal);
  std::fill_n(condition->ctl0_port, kPorts, kNormal);
  std::fill_n(condition->ctl1_port, kPorts, kNormal);
  condition->device_type = static_cast<std::int8_t>(unit.param.device_type);
  LANInformation lan{};
  QV_GetLANInformation(name, session, 0, &lan);
  setText(condition->ctl0_ip, textOf(lan.ip_address));
  setText(condition->ctl0_subnet, textOf(lan.subnet));
  setText(condition->ctl0_gateway, textOf(lan.gateway));
  QV_GetLANInformation(name, session, 1, &lan);
  setText(condition->ctl1_ip, textOf(lan.ip_address));
  setText(condition->ctl1_subnet, textOf(lan.subnet));
  setText(condition->ctl1_gateway, textOf(lan.gateway));
  condition->controller_condition = kNormal;
  setText(condition->serial, textOf(unit.param.serial));
  condition->unit_count = kMountedEnclosures;
  condition->ctl_num = kControllers;
  setText(condition->device_type_name, "TA" + std::to_string(unit.param.device_type));
  return 0;
}

/// A summary is given in a session, or to a user with a password.
bool isAdmitted(const Unit& unit, const ArrayConditionRequest& request) {
  if (request.login_request == 0) {
    return unit.sessions.contains(identifierOf(request.session));
  }
  const auto found = unit.accounts.find(textOf(request.user_id));
  return found != unit.accounts.end() && found->second.account_enable != 0 &&
         textOf(found->second.passwd) == textOf(request.passwd);
}

int getArrayCondition(const UnitName* name, const ArrayConditionRequest* request,
                      ArrayCondition* condition) {
  const Unit& unit = unitOf(name);
  clear(condition);
  condition->login_kind = request->login_request;
  if (!isAdmitted(unit, *request)) {
    condition->login_result = kLoginRefused;
    return 0;
  }
  condition->valid_index = 1;
  std::fill(std::begin(condition->operation_auth), std::end(condition->operation_auth), 1);
  condition->alert_valid = 1;
  std::fill(std::begin(condition->alert), std::end(condition->alert), unit.param.alert);
  const Storage& storage = storageOf(name);
  condition->lu_count = static_cast<std::int32_t>(storage.lus.size());
  Blocks ofLus = 0;
  for (const auto& [lun, lu] : storage.lus) {
    ofLus += lu.blocks;
  }
  Blocks ofDrives = 0;
  Blocks unused = 0;
  for (std::int32_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    for (std::int32_t slot = 0; slot < kMounted[enclosure].drives; ++slot) {
      ++condition->drive_count;
      ofDrives += kMounted[enclosure].blocks;
      if (!storage.isUsed({enclosure, slot})) {
        ++condition->unused_drive_count;
        unused += kMounted[enclosure].blocks;
      }
    }
  }
  condition->all_lu_capa_h = highWord(ofLus);
  condition->all_lu_capa_l = lowWord(ofLus);
  condition->unused_drive_capa_h = highWord(unused);
  condition->unused_drive_capa_l = lowWord(unused);
  condition->all_drive_capa_h = highWord(ofDrives);
  condition->all_drive_capa_l = lowWord(ofDrives);
  return 0;
}

// Drives

DiskDriveInformation informationOf(std::int32_t enclosure, std::int32_t slot) {
  DiskDriveInformation drive{};
  if (isMounted(enclosure, slot)) {
    const Enclosure& kind = kMounted[enclosure];
    setText(drive.vendor, kVendor);
    setText(drive.product, kind.product);
    setText(drive.revision, "A101");
    drive.lastLBA = singleWord(kind.blocks - 1);
    setText(drive.drive_capacity, kind.capacity);
    setText(drive.serial, serialOf('D', enclosure, slot));
    drive.drive_type = kind.type;
    drive.drive_rotation = kind.rotation;
    setText(drive.drive_type_name, kind.kind);
  }
  return drive;
}

DiskDrive statusOf(std::int32_t enclosure, std::int32_t slot) {
  const std::int32_t mounted = isMounted(enclosure, slot) ? 1 : 0;
  return {slot, enclosure, mounted, mounted, 0, 0, 0, 0};
}

/// The first int is the enclosure, the second the slot.
int getDrive(const UnitName*, const QVSessionInfo*, std::int32_t enclosure, std::int32_t slot,
             DiskDriveInformation* drive) {
  *drive = informationOf(enclosure, slot);
  return isMounted(enclosure, slot) ? 0 : int{kNothingFound};
}

/// Lists the slots of one enclosure behind those of the other, as far as there is room.
template <class Drive, std::size_t N>
void fillFlat(Drive (&drives)[N], Drive (*describe)(std::int32_t, std::int32_t)) {
  std::int32_t index = 0;
  for (Drive& drive : drives) {
    drive = describe(index / kSlots, index % kSlots);
    ++index;
  }
}

/// Fills the slots of each enclosure.
template <class All, class Drive>
void fillByEnclosure(All& all, Drive (*describe)(std::int32_t, std::int32_t)) {
  for (std::int32_t enclosure = 0; enclosure < kEnclosures; ++enclosure) {
    for (std::int32_t slot = 0; slot < kSlots; ++slot) {
      all.unit[enclosure].drives[slot] = describe(enclosure, slot);
    }
    all.unit[enclosure].drive_mount_count =
        enclosure < kMountedEnclosures ? kMounted[enclosure].drives : 0;
  }
}

int getFlatDrives(const UnitName*, const QVSessionInfo*, DiskDriveInformation (*drives)[450]) {
  fillFlat(*drives, informationOf);
  return 0;
}

int getFlatStatuses(const UnitName*, const QVSessionInfo*, DiskDrive (*drives)[450]) {
  fillFlat(*drives, statusOf);
  return 0;
}

int getAllDrives(const UnitName*, const QVSessionInfo*, DiskDriveInformationAll* all) {
  fillByEnclosure(*all, informationOf);
  return 0;
}

int getAllStatuses(const UnitName*, const QVSessionInfo*, DiskDriveStatusAll* all) {
  fillByEnclosure(*all, statusOf);
  return 0;
}

// Parts

VendorInfo part(const char* product, const std::string& serial, const char* type) {
  VendorInfo info{};
  info.support_index = 0x1F;
  info.valid_index = 0x1F;
  setText(info.vendor, kVendor);
  setText(info.product, product);
  setText(info.revision, "01");
  setText(info.serial, serial);
  setText(info.type_name, type);
  return info;
}

int getParts(const UnitName* unit, const QVSessionInfo*, PartsList* parts) {
  clear(parts);
  parts->support_index = 1;
  parts->valid_index = 1;
  setText(parts->array_serial, textOf(unitOf(unit).param.serial));
  for (std::int32_t index = 0; index < kControllers; ++index) {
    parts->controller[index] = part("TC-CTL", serialOf('C', index, 0), "controller");
  }
  for (std::int32_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    parts->unit[enclosure] = part("TE-30", serialOf('U', enclosure, 0), "enclosure");
    for (std::int32_t index = 0; index < kControllers; ++index) {
      parts->enc[enclosure][index] = part("TE-ENC", serialOf('E', enclosure, index), "enc");
    }
    const Enclosure& kind = kMounted[enclosure];
    for (std::int32_t slot = 0; slot < kind.drives; ++slot) {
      parts->drive[enclosure][slot] = part(kind.product, serialOf('D', enclosure, slot), kind.kind);
    }
  }
  return 0;
}

/// Writes a line for each part of the list.
int exportParts(const UnitName* unit, const QVSessionInfo* session, const FilePath* path) {
  std::ofstream file(textOf(*path));
  const auto parts = std::make_unique<PartsList>();
  getParts(unit, session, parts.get());
  const auto* const first = reinterpret_cast<const VendorInfo*>(&parts->drive);
  const auto* const last = reinterpret_cast<const VendorInfo*>(parts.get() + 1);
  for (const VendorInfo* info = first; info != last; ++info) {
    if (info->valid_index != 0) {
      file << textOf(info->type_name) << ',' << textOf(info->product) << ',' << textOf(info->serial)
           << '\n';
    }
  }
  return file.flush() ? 0 : int{kFileFailed};
}

int getEnclosureControllers(const UnitName* unit, const QVSessionInfo*, ENCStatusList* list) {
  clear(list);
  ENCStatus status{};
  status.status = kNormal;
  status.enc_rev.valid_index = 1;
  setText(status.enc_rev.rev_main, unitOf(unit).enclosureFirmware);
  for (std::int32_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    std::fill_n(list->unit[enclosure].enc, kControllers, status);
  }
  return 0;
}

}  // namespace

SIMULATE(4, QV_GetUnitCondition, getUnitCondition)
SIMULATE(3, QV_GetArrayCondition, getArrayCondition)

SIMULATE(5, QV_GetDriveInformation, getDrive)
SIMULATE(3, QV_GetDriveInformationAll, getFlatDrives)
SIMULATE(3, QV_GetDiskDriveInformationAll, getAllDrives)
SIMULATE(3, QV_GetDiskDriveStatusAll, getAllStatuses)
SIMULATE(3, QV_GetDriveStatus, getFlatStatuses)
SIMULATE(5, QV_DriveReconstructInformation)
SIMULATE(3, QV_GetDiskDriveRestoration)
SIMULATE(3, QV_SetDiskDriveRestoration)
SIMULATE(3, QV_GetSATADriveInformation)
SIMULATE(3, QV_SetSATADriveInformation)
SIMULATE(3, QV_GetSATADriveRestoration)
SIMULATE(3, QV_SetSATADriveRestoration)
SIMULATE(3, QV_GetDriveResponseDiag)
SIMULATE(3, QV_SetDriveResponseDiag)
SIMULATE(5, QV_SetDriveMode)
SIMULATE(3, QV_GetSpinDownUpInformation)
SIMULATE(3, QV_SpinDownDriveByRG)
SIMULATE(3, QV_SpinUpDriveByRG)
SIMULATE(3, QV_GetIntegrationPinInfo)
SIMULATE(3, QV_GetPinInfo2)
SIMULATE(2, QV_FlushPinInfo)
SIMULATE(3, QV_GetPinInfo)
SIMULATE(3, QV_GetPinInfoGetTime)

SIMULATE(3, QV_GetPartsList, getParts)
SIMULATE(3, QV_PartsListExport, exportParts)
SIMULATE(3, QV_GetObstPartsInformation)
SIMULATE(3, QV_GetENCStatusList, getEnclosureControllers)
SIMULATE(3, QV_GetBatteryConfig)
SIMULATE(3, QV_SetBatteryConfig)
SIMULATE(3, QV_GetLocateLEDInformation)
SIMULATE(3, QV_SetLocateLEDInformation)
