// The condition of a unit, its drives and its parts.
#include "arraylib/status.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>

#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr char kMicroprogram[] = "0957/A";
constexpr std::int8_t kNormal = 1;
constexpr std::size_t kControllers = 2;
constexpr std::size_t kEnclosures = 60;
constexpr std::size_t kSlots = 30;
constexpr std::int32_t kRaidGroups = 200;

/// The drives of one enclosure, in its first slots.
struct Enclosure {
  std::size_t drives;
  const char* product;
  const char* kind;
  const char* capacity;
  std::int64_t bytes;
  std::int32_t type;
  std::int32_t rotation;
};

constexpr Enclosure kMounted[] = {
    {15, "TD-300S10", "SAS", "300GB", 300'000'000'000, 1, 10000},
    {4, "TD-2000N7", "SATA", "2.0TB", 2'000'000'000'000, 2, 7200},
};
constexpr std::size_t kMountedEnclosures = std::size(kMounted);

/// What a unit keeps of its drives.
struct DriveSettings {
  DiskDriveRestoration restoration{.mode = 1,
                                   .restoration = 1,
                                   .dynamic_sparing = 1,
                                   .interval = 5,
                                   .unit_size = 64,
                                   .sparemode = 0,
                                   .no_copyback_allunit = 0};
  LocateLEDInformation leds{.valid_index = 1, .ctu = 0, .unit = {}};
  std::map<std::int32_t, SpinDownUpRGInfo> powerSaving;
  /// The modes that drives were given, by enclosure and slot.
  std::int32_t modes[kEnclosures][kSlots] = {};
};

DriveSettings& settingsOf(const UnitName* unit) {
  return findUnit(textOf(*unit))->part<DriveSettings>();
}

bool isMounted(std::size_t enclosure, std::size_t slot) {
  return enclosure < kMountedEnclosures && slot < kMounted[enclosure].drives;
}

/// Numbers of a caller; a negative one is far outside.
bool isMounted(std::int32_t enclosure, std::int32_t slot) {
  return isMounted(static_cast<std::size_t>(enclosure), static_cast<std::size_t>(slot));
}

std::string serialOf(char kind, std::size_t first, std::size_t second) {
  std::string serial(1, kind);
  serial += std::to_string(first);
  serial += '-';
  serial += std::to_string(second);
  return serial;
}

DiskDriveInformation informationOf(std::size_t enclosure, std::size_t slot) {
  DiskDriveInformation drive{};
  if (isMounted(enclosure, slot)) {
    const Enclosure& kind = kMounted[enclosure];
    setText(drive.vendor, "TESSALY");
    setText(drive.product, kind.product);
    setText(drive.revision, "A101");
    drive.lastLBA =
        static_cast<std::int32_t>(std::min<std::int64_t>(kind.bytes / 512 - 1, 0x7FFFFFFF));
    setText(drive.drive_capacity, kind.capacity);
    setText(drive.serial, serialOf('D', enclosure, slot));
    drive.drive_type = kind.type;
    drive.drive_rotation = kind.rotation;
    setText(drive.drive_type_name, kind.kind);
  }
  return drive;
}

DiskDrive statusOf(const DriveSettings& settings, std::size_t enclosure, std::size_t slot) {
  DiskDrive drive{};
  drive.port_no = static_cast<std::int32_t>(slot);
  drive.row_no = static_cast<std::int32_t>(enclosure);
  if (isMounted(enclosure, slot)) {
    drive.mount = 1;
    drive.attribute = 1;
    drive.drv_state = settings.modes[enclosure][slot];
  }
  return drive;
}

// Unit condition

int getUnitCondition(const UnitName* unit, const QVSessionInfo*, std::int32_t,
                     UnitCondition* condition) {
  const QVUnitParam& param = findUnit(textOf(*unit))->param;
  *condition = {};
  setText(condition->micro, kMicroprogram);
  setText(condition->micro_pair, kMicroprogram);
  condition->max_slot = kControllers;
  for (std::size_t index = 0; index < kControllers; ++index) {
    condition->cache[index] = {1, kNormal};
    condition->ac[index] = kNormal;
    condition->batt[index] = kNormal;
    std::fill(std::begin(condition->if_board[index]), std::end(condition->if_board[index]),
              kNormal);
  }
  std::fill_n(condition->ps, 2 * kMountedEnclosures, kNormal);
  std::fill_n(condition->fan, 2 * kMountedEnclosures, kNormal);
  std::fill_n(condition->enclosure, 2 * kMountedEnclosures, kNormal);
  std::fill_n(condition->loop, kControllers, kNormal);
  std::fill_n(condition->ctl0_port, 4, kNormal);
  std::fill_n(condition->ctl1_port, 4, kNormal);
  condition->device_type = static_cast<std::int8_t>(param.device_type);
  setText(condition->ctl0_ip, textOf(param.ctl0));
  setText(condition->ctl1_ip, textOf(param.ctl1));
  condition->controller_condition = kNormal;
  setText(condition->serial, textOf(param.serial));
  condition->unit_count = kMountedEnclosures;
  condition->ctl_num = kControllers;
  setText(condition->device_type_name, "TA" + std::to_string(param.device_type));
  return 0;
}

/// Who asks is let in by a session, or by user and password.
bool isAdmitted(const Unit& unit, const ArrayConditionRequest& request) {
  if (request.login_request == 0) {
    return unit.sessions.contains(identifierOf(request.session));
  }
  const auto found = unit.accounts.find(textOf(request.user_id));
  return found != unit.accounts.end() && found->second.account_enable != 0 &&
         textOf(found->second.passwd) == textOf(request.passwd);
}

int getArrayCondition(const UnitName* unit, const ArrayConditionRequest* request,
                      ArrayCondition* condition) {
  *condition = {};
  condition->login_kind = request->login_request;
  if (!isAdmitted(*findUnit(textOf(*unit)), *request)) {
    condition->login_result = kLoginRefused;
    return 0;
  }
  condition->valid_index = 1;
  std::fill(std::begin(condition->operation_auth), std::end(condition->operation_auth), 1);
  condition->alert_valid = 1;
  std::int64_t bytes = 0;
  for (const Enclosure& enclosure : kMounted) {
    condition->drive_count += static_cast<std::int32_t>(enclosure.drives);
    bytes += static_cast<std::int64_t>(enclosure.drives) * enclosure.bytes;
  }
  condition->all_drive_capa_h = static_cast<std::int32_t>(bytes >> 32);
  condition->all_drive_capa_l = static_cast<std::int32_t>(bytes & 0xFFFFFFFF);
  condition->unused_drive_count = condition->drive_count;
  condition->unused_drive_capa_h = condition->all_drive_capa_h;
  condition->unused_drive_capa_l = condition->all_drive_capa_l;
  return 0;
}

// Drives

/// The two ints that select a drive are its enclosure and its slot.
int getDrive(const UnitName*, const QVSessionInfo*, std::int32_t enclosure, std::int32_t slot,
             DiskDriveInformation* drive) {
  if (!isMounted(enclosure, slot)) {
    return kNothingFound;
  }
  *drive = informationOf(static_cast<std::size_t>(enclosure), static_cast<std::size_t>(slot));
  return 0;
}

int getFlatDrives(const UnitName*, const QVSessionInfo*, DiskDriveInformation (*drives)[450]) {
  for (std::size_t index = 0; index < std::size(*drives); ++index) {
    (*drives)[index] = informationOf(index / kSlots, index % kSlots);
  }
  return 0;
}

int getAllDrives(const UnitName*, const QVSessionInfo*, DiskDriveInformationAll* all) {
  *all = {};
  for (std::size_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    DiskDriveUnitInfo& unit = all->unit[enclosure];
    unit.drive_mount_count = static_cast<std::int32_t>(kMounted[enclosure].drives);
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
      unit.drives[slot] = informationOf(enclosure, slot);
    }
  }
  return 0;
}

int getAllStatuses(const UnitName* unit, const QVSessionInfo*, DiskDriveStatusAll* all) {
  *all = {};
  for (std::size_t enclosure = 0; enclosure < kEnclosures; ++enclosure) {
    DiskDriveStatusUnit& status = all->unit[enclosure];
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
      status.drives[slot] = statusOf(settingsOf(unit), enclosure, slot);
      status.drive_mount_count += status.drives[slot].mount;
    }
  }
  return 0;
}

int getFlatStatuses(const UnitName* unit, const QVSessionInfo*, DiskDrive (*drives)[450]) {
  for (std::size_t index = 0; index < std::size(*drives); ++index) {
    (*drives)[index] = statusOf(settingsOf(unit), index / kSlots, index % kSlots);
  }
  return 0;
}

/// No drive is being reconstructed.
int getReconstruction(const UnitName*, const QVSessionInfo*, std::int32_t enclosure,
                      std::int32_t slot, DriveReconstructInformation* information) {
  *information = {1, 0, 0, slot, enclosure};
  return 0;
}

int getRestoration(const UnitName* unit, const QVSessionInfo*, DiskDriveRestoration* restoration) {
  *restoration = settingsOf(unit).restoration;
  return 0;
}

int setRestoration(const UnitName* unit, const QVSessionInfo*,
                   const DiskDriveRestoration* restoration) {
  settingsOf(unit).restoration = *restoration;
  return 0;
}

int setDriveMode(const UnitName* unit, const QVSessionInfo*, std::int32_t enclosure,
                 std::int32_t slot, std::int32_t mode) {
  if (!isMounted(enclosure, slot)) {
    return kNothingFound;
  }
  settingsOf(unit).modes[enclosure][slot] = mode;
  return 0;
}

int getPowerSaving(const UnitName* unit, const QVSessionInfo*, SpinDownUpInformation* information) {
  *information = {};
  information->option = 1;
  for (const auto& [number, group] : settingsOf(unit).powerSaving) {
    information->rg[information->rg_count++] = group;
  }
  return 0;
}

/// Whether a group exists is not looked at.
int spin(const UnitName* unit, std::int32_t raidGroup, bool down) {
  if (raidGroup < 0 || raidGroup >= kRaidGroups) {
    return kNothingFound;
  }
  SpinDownUpRGInfo& group = settingsOf(unit).powerSaving[raidGroup];
  group.rgnum = raidGroup;
  group.rg_power_saving = down ? 1 : 0;
  group.rg_power_saving_status = down ? 1 : 0;
  group.spin_down_count += down ? 1 : 0;
  return 0;
}

int spinDown(const UnitName* unit, const QVSessionInfo*, std::int32_t raidGroup) {
  return spin(unit, raidGroup, true);
}

int spinUp(const UnitName* unit, const QVSessionInfo*, std::int32_t raidGroup) {
  return spin(unit, raidGroup, false);
}

// Parts

VendorInfo part(const char* product, const std::string& serial, const char* type) {
  VendorInfo info{};
  info.support_index = 0x1F;
  info.valid_index = 0x1F;
  setText(info.vendor, "TESSALY");
  setText(info.product, product);
  setText(info.revision, "01");
  setText(info.serial, serial);
  setText(info.type_name, type);
  return info;
}

int getParts(const UnitName* unit, const QVSessionInfo*, PartsList* parts) {
  *parts = {};
  parts->support_index = 1;
  parts->valid_index = 1;
  setText(parts->array_serial, textOf(findUnit(textOf(*unit))->param.serial));
  for (std::size_t index = 0; index < kControllers; ++index) {
    parts->controller[index] = part("TC-CTL", serialOf('C', index, 0), "controller");
  }
  for (std::size_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    parts->unit[enclosure] = part("TE-30", serialOf('U', enclosure, 0), "enclosure");
    for (std::size_t index = 0; index < kControllers; ++index) {
      parts->enc[enclosure][index] = part("TE-ENC", serialOf('E', enclosure, index), "enc");
    }
    const Enclosure& kind = kMounted[enclosure];
    for (std::size_t slot = 0; slot < kind.drives; ++slot) {
      parts->drive[enclosure][slot] = part(kind.product, serialOf('D', enclosure, slot), kind.kind);
    }
  }
  return 0;
}

/// Writes what is in the parts list, a line each.
int exportParts(const UnitName* unit, const QVSessionInfo* session, const FilePath* path) {
  std::ofstream file(textOf(*path));
  if (!file) {
    return kInvalidName;
  }
  auto parts = std::make_unique<PartsList>();
  getParts(unit, session, parts.get());
  const auto* const first = reinterpret_cast<const VendorInfo*>(&parts->drive);
  const auto* const last = reinterpret_cast<const VendorInfo*>(parts.get() + 1);
  for (const VendorInfo* info = first; info != last; ++info) {
    if (info->valid_index != 0) {
      file << textOf(info->type_name) << ',' << textOf(info->product) << ',' << textOf(info->serial)
           << '\n';
    }
  }
  return 0;
}

ENCStatus enclosureController() {
  ENCStatus status{};
  status.status = kNormal;
  status.enc_rev.valid_index = 1;
  setText(status.enc_rev.rev_main, "0113");
  setText(status.enc_rev.rev_boot, "01");
  return status;
}

int getEnclosureControllers(const UnitName*, const QVSessionInfo*, ENCStatusList* list) {
  *list = {};
  list->download_rev.bas_rev = enclosureController().enc_rev;
  list->replacetime_min = 2;
  list->replacetime_max = 10;
  for (std::size_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    std::fill(std::begin(list->unit[enclosure].enc), std::end(list->unit[enclosure].enc),
              enclosureController());
  }
  return 0;
}

int getLeds(const UnitName* unit, const QVSessionInfo*, LocateLEDInformation* leds) {
  *leds = settingsOf(unit).leds;
  return 0;
}

int setLeds(const UnitName* unit, const QVSessionInfo*, const LocateLEDInformation* leds) {
  settingsOf(unit).leds = *leds;
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
SIMULATE(5, QV_DriveReconstructInformation, getReconstruction)
SIMULATE(3, QV_GetDiskDriveRestoration, getRestoration)
SIMULATE(3, QV_SetDiskDriveRestoration, setRestoration)
SIMULATE(3, QV_GetSATADriveInformation)
SIMULATE(3, QV_SetSATADriveInformation)
SIMULATE(3, QV_GetSATADriveRestoration)
SIMULATE(3, QV_SetSATADriveRestoration)
SIMULATE(3, QV_GetDriveResponseDiag)
SIMULATE(3, QV_SetDriveResponseDiag)
SIMULATE(5, QV_SetDriveMode, setDriveMode)
SIMULATE(3, QV_GetSpinDownUpInformation, getPowerSaving)
SIMULATE(3, QV_SpinDownDriveByRG, spinDown)
SIMULATE(3, QV_SpinUpDriveByRG, spinUp)
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
SIMULATE(3, QV_GetLocateLEDInformation, getLeds)
SIMULATE(3, QV_SetLocateLEDInformation, setLeds)
