// RAID groups on the drives of a simulated unit.
#include <numeric>

#include "simulator/storage.h"

namespace quorvelsim {

namespace {

/// Drives' worth of data in a parity group, 0 where the level has no such group.
std::int32_t dataDrives(std::int32_t level, std::int32_t drives) {
  switch (level) {
    case 0:
      return drives;
    case 1:
    case 10:
      return drives % 2 == 0 ? drives / 2 : 0;
    case 5:
      return std::max(drives - 1, 0);
    case 6:
      return std::max(drives - 2, 0);
    default:
      return 0;
  }
}

}  // namespace

Blocks Group::total() const {
  return static_cast<Blocks>(dataDrives(level, parityDrives)) * static_cast<Blocks>(parityGroups) *
         kDriveBlocks;
}

Blocks Group::rest() const {
  return std::accumulate(areas.begin(), areas.end(), Blocks{0}, [](Blocks sum, const Area& area) {
    return sum + (area.lun == kNone ? area.blocks : 0);
  });
}

Blocks Group::largestRest() const {
  Blocks largest = 0;
  for (const Area& area : areas) {
    if (area.lun == kNone) {
      largest = std::max(largest, area.blocks);
    }
  }
  return largest;
}

std::int32_t Group::luCount() const {
  std::vector<std::int32_t> luns;
  for (const Area& area : areas) {
    if (area.lun != kNone && std::find(luns.begin(), luns.end(), area.lun) == luns.end()) {
      luns.push_back(area.lun);
    }
  }
  return static_cast<std::int32_t>(luns.size());
}

std::int32_t Group::luBefore(std::int32_t lun) const {
  std::int32_t before = kNone;
  for (const Area& area : areas) {
    if (area.lun == lun) {
      break;
    }
    if (area.lun != kNone) {
      before = area.lun;
    }
  }
  return before;
}

bool Group::take(std::int32_t lun, Blocks blocks, const std::vector<std::int32_t>& behind) {
  std::vector<Area> after;
  Blocks missing = blocks;
  std::int32_t before = kNone;
  for (const Area& area : areas) {
    const bool wanted =
        area.lun == kNone &&
        (behind.empty() ? area.blocks >= missing
                        : std::find(behind.begin(), behind.end(), before) != behind.end());
    const Blocks taken = wanted ? std::min(missing, area.blocks) : 0;
    if (taken > 0) {
      after.push_back({lun, taken});
      missing -= taken;
    }
    if (area.blocks > taken) {
      after.push_back({area.lun, area.blocks - taken});
    }
    if (area.lun != kNone) {
      before = area.lun;
    }
  }
  if (missing > 0) {
    return false;
  }
  areas = after;
  return true;
}

void Group::release(std::int32_t lun) {
  std::vector<Area> after;
  for (const Area& area : areas) {
    const Area now{area.lun == lun ? kNone : area.lun, area.blocks};
    if (!after.empty() && after.back().lun == kNone && now.lun == kNone) {
      after.back().blocks += now.blocks;
    } else {
      after.push_back(now);
    }
  }
  areas = after;
}

void Group::addFree(Blocks blocks) {
  areas.push_back({kNone, blocks});
  release(kNone);
}

namespace {

/// The codes of `AreaInfo::areakind`.
enum AreaKind : std::int32_t { kUsedArea = 1, kFreeArea = 2 };

/// `CreateRaidGroup::create_mode`: the unit chooses the drives, or the caller did.
constexpr std::int32_t kUnitChooses = 0;

bool exists(const CreateRgDrive& drive) {
  return drive.unit_no >= 0 && drive.unit_no < kEnclosures && drive.hdu_no >= 0 &&
         drive.hdu_no < kSlots;
}

bool same(const CreateRgDrive& left, const CreateRgDrive& right) {
  return left.unit_no == right.unit_no && left.hdu_no == right.hdu_no;
}

bool contains(const std::vector<CreateRgDrive>& drives, const CreateRgDrive& drive) {
  return std::any_of(drives.begin(), drives.end(),
                     [&](const CreateRgDrive& other) { return same(other, drive); });
}

std::vector<CreateRgDrive> freeDrives(const Storage& storage) {
  std::vector<CreateRgDrive> drives;
  for (std::int32_t enclosure = 0; enclosure < kEnclosures; ++enclosure) {
    for (std::int32_t slot = 0; slot < kSlots; ++slot) {
      const CreateRgDrive drive{enclosure, slot};
      if (std::none_of(storage.groups.begin(), storage.groups.end(),
                       [&](const auto& entry) { return contains(entry.second.drives, drive); })) {
        drives.push_back(drive);
      }
    }
  }
  return drives;
}

bool isDriveCount(std::int32_t count) { return count > 0 && count <= kEnclosures * kSlots; }

/// Adds parity groups of drives to a group. `chosen` are the drives to take, none for any.
int addParityGroups(const Storage& storage, Group& group, std::int32_t parityGroups,
                    const CreateRgDrive* chosen = nullptr) {
  if (!isDriveCount(group.parityDrives) || !isDriveCount(parityGroups) ||
      dataDrives(group.level, group.parityDrives) == 0) {
    return kNoCapacity;
  }
  const std::size_t count =
      static_cast<std::size_t>(group.parityDrives) * static_cast<std::size_t>(parityGroups);
  std::vector<CreateRgDrive> drives = freeDrives(storage);
  if (count > drives.size()) {
    return kNoCapacity;
  }
  if (chosen != nullptr) {
    std::vector<CreateRgDrive> taken;
    for (std::size_t index = 0; index < count; ++index) {
      if (!exists(chosen[index]) || contains(taken, chosen[index]) ||
          !contains(drives, chosen[index])) {
        return kInUse;
      }
      taken.push_back(chosen[index]);
    }
    drives = taken;
  }
  const Blocks before = group.total();
  group.drives.insert(group.drives.end(), drives.begin(),
                      drives.begin() + static_cast<std::ptrdiff_t>(count));
  group.parityGroups += parityGroups;
  group.addFree(group.total() - before);
  return 0;
}

RgDetail describeInDetail(std::int32_t number, const Group& group) {
  RgDetail detail{};
  detail.valid_index = 1;
  detail.rgnum = number;
  detail.level = group.level;
  detail.start_unit_no = group.drives.front().unit_no;
  detail.start_hdu_no = group.drives.front().hdu_no;
  detail.parity_hdu_count = group.parityDrives;
  detail.parity_count = group.parityGroups;
  detail.minimum_capa = singleWord(kDriveBlocks);
  detail.total_capa_h = highWord(group.total());
  detail.total_capa_l = lowWord(group.total());
  detail.rest_capa_h = highWord(group.rest());
  detail.rest_capa_l = lowWord(group.rest());
  detail.lu_count = group.luCount();
  return detail;
}

int getRaidGroups(const UnitName* unit, RaidGroup (*groups)[kRaidGroups]) {
  clear(groups);
  for (RaidGroup& group : *groups) {
    group.rgnum = kNone;
  }
  RaidGroup* next = *groups;
  for (const auto& [number, group] : storageOf(unit).groups) {
    next->rgnum = number;
    next->level = group.level;
    next->port = group.drives.front().unit_no;
    next->row = group.drives.front().hdu_no;
    next->width = group.parityDrives;
    next->depth = group.parityGroups;
    next->minimum_capa = singleWord(kDriveBlocks);
    next->rest_h = highWord(group.rest());
    next->rest = lowWord(group.rest());
    next->lumaxcapa = singleWord(group.largestRest());
    ++next;
  }
  return 0;
}

int createGroup(const UnitName* unit, std::int32_t number, Group group, std::int32_t parityGroups,
                const CreateRgDrive* chosen = nullptr) {
  Storage& storage = storageOf(unit);
  if (number < 0 || number >= kRaidGroups) {
    return kUnknownNumber;
  }
  if (storage.groups.contains(number)) {
    return kNumberTaken;
  }
  const int result = addParityGroups(storage, group, parityGroups, chosen);
  if (result == 0) {
    storage.groups[number] = group;
  }
  return result;
}

int addRaidGroup(const UnitName* unit, const RaidGroup* request) {
  Group group;
  group.level = request->level;
  group.parityDrives = request->width;
  return createGroup(unit, request->rgnum, group, request->depth);
}

/// A group grows by parity groups, to the depth that is asked for.
int expandRaidGroup(const UnitName* unit, const RaidGroup* request) {
  Storage& storage = storageOf(unit);
  const auto found = storage.groups.find(request->rgnum);
  if (found == storage.groups.end()) {
    return kUnknownNumber;
  }
  Group& group = found->second;
  return request->depth <= group.parityGroups || !isDriveCount(request->depth)
             ? kNoCapacity
             : addParityGroups(storage, group, request->depth - group.parityGroups);
}

int deleteRaidGroup(const UnitName* unit, const QVSessionInfo*, std::int32_t number) {
  Storage& storage = storageOf(unit);
  const auto found = storage.groups.find(number);
  if (found == storage.groups.end()) {
    return kUnknownNumber;
  }
  if (found->second.luCount() > 0) {
    return kInUse;
  }
  storage.groups.erase(found);
  return 0;
}

int deleteAllRaidGroups(const UnitName* unit, const QVSessionInfo*) {
  Storage& storage = storageOf(unit);
  if (!storage.lus.empty()) {
    return kInUse;
  }
  storage.groups.clear();
  return 0;
}

Group requested(const CreateRaidGroup& request) {
  Group group;
  group.level = request.level;
  group.parityDrives = request.parity_hdu_count;
  return group;
}

const CreateRgDrive* chosenIn(const CreateRaidGroup& request) {
  return request.create_mode == kUnitChooses ? nullptr : request.rgdrv;
}

int createRaidGroup(const UnitName* unit, const QVSessionInfo*, const CreateRaidGroup* request) {
  return createGroup(unit, request->rgnum, requested(*request), request->parity_count,
                     chosenIn(*request));
}

int getCreationCapacity(const UnitName* unit, const QVSessionInfo*, const CreateRaidGroup* request,
                        RgDetail* detail) {
  Group group = requested(*request);
  const int result =
      addParityGroups(storageOf(unit), group, request->parity_count, chosenIn(*request));
  if (result == 0) {
    *detail = describeInDetail(request->rgnum, group);
  }
  return result;
}

int getRaidGroupInformation(const UnitName* unit, const QVSessionInfo*,
                            RaidGroupInformation* information) {
  clear(information);
  for (const auto& [number, group] : storageOf(unit).groups) {
    information->rg[information->rg_count++] = describeInDetail(number, group);
    for (std::size_t index = 0; index < group.drives.size(); ++index) {
      const CreateRgDrive& drive = group.drives[index];
      const bool last = index + 1 == group.drives.size();
      information->rgdrv[drive.unit_no][drive.hdu_no] = {
          1, last ? kNone : group.drives[index + 1].unit_no,
          last ? kNone : group.drives[index + 1].hdu_no,
          static_cast<std::int32_t>(index) / group.parityDrives};
    }
  }
  return 0;
}

int getAreas(const UnitName* unit, const QVSessionInfo*, std::int32_t number,
             RGAreaInformation* information) {
  const Storage& storage = storageOf(unit);
  const auto found = storage.groups.find(number);
  if (found == storage.groups.end()) {
    return kUnknownNumber;
  }
  const Group& group = found->second;
  clear(information);
  information->rgnum = number;
  information->lumaxcapa = singleWord(group.largestRest());
  information->lumaxcapa_h = highWord(group.largestRest());
  information->lumaxcapa_l = lowWord(group.largestRest());
  std::int32_t before = kNone;
  for (const Area& area : group.areas) {
    if (static_cast<std::size_t>(information->area_count) == std::size(information->area)) {
      break;
    }
    information->area[information->area_count++] = {area.lun == kNone ? kFreeArea : kUsedArea,
                                                    area.lun, before, highWord(area.blocks),
                                                    lowWord(area.blocks)};
    if (area.lun != kNone) {
      before = area.lun;
    }
  }
  return 0;
}

}  // namespace
}  // namespace quorvelsim

using namespace quorvelsim;

SIMULATE(2, QV_GetRaidGroups, getRaidGroups)
SIMULATE(2, QV_RaidGroupAdd, addRaidGroup)
SIMULATE(2, QV_RaidGroupExpand, expandRaidGroup)
SIMULATE(3, QV_RaidGroupDelete, deleteRaidGroup)
SIMULATE(2, QV_RaidGroupAllDelete, deleteAllRaidGroups)
SIMULATE(3, QV_CreateRaidGroup, createRaidGroup)
SIMULATE(3, QV_GetRaidGroupInformation, getRaidGroupInformation)
SIMULATE(4, QV_GetRGAreaInformation, getAreas)
SIMULATE(4, QV_GetRaidGroupCreationCapacity, getCreationCapacity)
