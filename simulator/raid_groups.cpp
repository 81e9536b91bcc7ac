// RAID groups on the mounted drives of a unit.
#include <numeric>

#include "simulator/simulate.h"
#include "simulator/storage.h"

namespace quorvelsim {

namespace {

/// How many drives of a parity group hold data; 0 where the level has no group of so many drives.
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

bool same(const CreateRgDrive& left, const CreateRgDrive& right) {
  return left.unit_no == right.unit_no && left.hdu_no == right.hdu_no;
}

bool contains(const std::vector<CreateRgDrive>& drives, const CreateRgDrive& drive) {
  return std::any_of(drives.begin(), drives.end(),
                     [&](const CreateRgDrive& other) { return same(other, drive); });
}

}  // namespace

Blocks Group::driveBlocks() const { return kMounted[drives.front().unit_no].blocks; }

Blocks Group::total() const {
  return static_cast<Blocks>(dataDrives(level, parityDrives)) * static_cast<Blocks>(parityGroups) *
         driveBlocks();
}

Blocks Group::rest() const {
  return std::accumulate(areas.begin(), areas.end(), Blocks{0}, [](Blocks sum, const Area& area) {
    return sum + (area.lun == kNone ? area.blocks : 0);
  });
}

Blocks Group::largestRest() const {
  return std::accumulate(areas.begin(), areas.end(), Blocks{0}, [](Blocks most, const Area& area) {
    return area.lun == kNone ? std::max(most, area.blocks) : most;
  });
}

std::int32_t Group::luCount() const {
  return static_cast<std::int32_t>(std::count_if(
      areas.begin(), areas.end(), [](const Area& area) { return area.lun != kNone; }));
}

bool Group::take(std::int32_t lun, Blocks blocks) {
  const auto found = std::find_if(areas.begin(), areas.end(), [&](const Area& area) {
    return area.lun == kNone && area.blocks >= blocks;
  });
  if (found == areas.end()) {
    return false;
  }
  const Blocks left = found->blocks - blocks;
  *found = {lun, blocks};
  if (left > 0) {
    areas.insert(found + 1, Area{kNone, left});
  }
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

bool Storage::isUsed(const CreateRgDrive& drive) const {
  return std::any_of(groups.begin(), groups.end(),
                     [&](const auto& entry) { return contains(entry.second.drives, drive); });
}

namespace {

/// The codes of `AreaInfo::areakind`.
enum AreaKind : std::int32_t { kUsedArea = 1, kFreeArea = 2 };

/// `CreateRaidGroup::create_mode`: the unit chooses the drives, otherwise the caller did.
constexpr std::int32_t kUnitChooses = 0;

/// The first free drives of the first enclosure that has enough of them, or none.
std::vector<CreateRgDrive> freeDrives(const Storage& storage, std::size_t count) {
  for (std::int32_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    std::vector<CreateRgDrive> drives;
    for (std::int32_t slot = 0; slot < kMounted[enclosure].drives; ++slot) {
      const CreateRgDrive drive{enclosure, slot};
      if (!storage.isUsed(drive) && drives.size() < count) {
        drives.push_back(drive);
      }
    }
    if (drives.size() == count) {
      return drives;
    }
  }
  return {};
}

/// The drives that the caller chose, or none where they cannot form a group.
std::vector<CreateRgDrive> chosenDrives(const Storage& storage, const CreateRaidGroup& request,
                                        std::size_t count) {
  std::vector<CreateRgDrive> drives;
  for (std::size_t index = 0; index < count; ++index) {
    const CreateRgDrive& drive = request.rgdrv[index];
    if (!isMounted(drive.unit_no, drive.hdu_no) || drive.unit_no != request.rgdrv[0].unit_no ||
        storage.isUsed(drive) || contains(drives, drive)) {
      return {};
    }
    drives.push_back(drive);
  }
  return drives;
}

/// Makes the requested group without adding it to the unit.
int plan(const Storage& storage, const CreateRaidGroup& request, Group& group) {
  group.level = request.level;
  group.parityDrives = request.parity_hdu_count;
  group.parityGroups = request.parity_count;
  const std::int64_t count = std::int64_t{group.parityDrives} * group.parityGroups;
  if (dataDrives(group.level, group.parityDrives) <= 0 || count <= 0 || count > kSlots) {
    return kNoCapacity;
  }
  const auto drives = static_cast<std::size_t>(count);
  const bool free = request.create_mode == kUnitChooses;
  group.drives = free ? freeDrives(storage, drives) : chosenDrives(storage, request, drives);
  if (group.drives.empty()) {
    return free ? kNoCapacity : kInUse;
  }
  group.areas = {{kNone, group.total()}};
  return 0;
}

RgDetail describe(std::int32_t number, const Group& group) {
  RgDetail detail{};
  detail.valid_index = 1;
  detail.rgnum = number;
  detail.level = group.level;
  detail.start_unit_no = group.drives.front().unit_no;
  detail.start_hdu_no = group.drives.front().hdu_no;
  detail.parity_hdu_count = group.parityDrives;
  detail.parity_count = group.parityGroups;
  detail.minimum_capa = singleWord(group.driveBlocks());
  detail.total_capa_h = highWord(group.total());
  detail.total_capa_l = lowWord(group.total());
  detail.rest_capa_h = highWord(group.rest());
  detail.rest_capa_l = lowWord(group.rest());
  detail.lu_count = group.luCount();
  return detail;
}

int getRaidGroups(const UnitName* unit, RaidGroup (*groups)[90]) {
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
    next->minimum_capa = singleWord(group.driveBlocks());
    next->rest_h = highWord(group.rest());
    next->rest = lowWord(group.rest());
    next->lumaxcapa = singleWord(group.largestRest());
    ++next;
  }
  return 0;
}

int deleteRaidGroup(const UnitName* unit, const QVSessionInfo*, std::int32_t number) {
  auto& groups = storageOf(unit).groups;
  const auto found = groups.find(number);
  if (found == groups.end()) {
    return kUnknownNumber;
  }
  if (found->second.luCount() > 0) {
    return kInUse;
  }
  groups.erase(found);
  return 0;
}

int createRaidGroup(const UnitName* unit, const QVSessionInfo*, const CreateRaidGroup* request) {
  Storage& storage = storageOf(unit);
  if (request->rgnum < 0 || request->rgnum >= kRaidGroups) {
    return kUnknownNumber;
  }
  if (storage.groups.contains(request->rgnum)) {
    return kNumberTaken;
  }
  Group group;
  const int result = plan(storage, *request, group);
  if (result == 0) {
    storage.groups[request->rgnum] = group;
  }
  return result;
}

int getCreationCapacity(const UnitName* unit, const QVSessionInfo*, const CreateRaidGroup* request,
                        RgDetail* detail) {
  Group group;
  const int result = plan(storageOf(unit), *request, group);
  if (result == 0) {
    *detail = describe(request->rgnum, group);
  }
  return result;
}

int getRaidGroupInformation(const UnitName* unit, const QVSessionInfo*,
                            RaidGroupInformation* information) {
  clear(information);
  for (const auto& [number, group] : storageOf(unit).groups) {
    information->rg[information->rg_count++] = describe(number, group);
    for (std::size_t index = 0; index < group.drives.size(); ++index) {
      const bool last = index + 1 == group.drives.size();
      const CreateRgDrive next = last ? CreateRgDrive{kNone, kNone} : group.drives[index + 1];
      information->rgdrv[group.drives[index].unit_no][group.drives[index].hdu_no] = {
          1, next.unit_no, next.hdu_no, static_cast<std::int32_t>(index) / group.parityDrives};
    }
  }
  return 0;
}

int getAreas(const UnitName* unit, const QVSessionInfo*, std::int32_t number,
             RGAreaInformation* information) {
  const auto& groups = storageOf(unit).groups;
  const auto found = groups.find(number);
  if (found == groups.end()) {
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
    information->area[information->area_count++] = {area.lun == kNone ? kFreeArea : kUsedArea,
                                                    area.lun, before, highWord(area.blocks),
                                                    lowWord(area.blocks)};
    before = area.lun == kNone ? before : area.lun;
    // A group of 8,192 LUs may have more free areas than there is room for.
    if (static_cast<std::size_t>(information->area_count) == std::size(information->area)) {
      break;
    }
  }
  return 0;
}

}  // namespace
}  // namespace quorvelsim

using namespace quorvelsim;

SIMULATE(2, QV_GetRaidGroups, getRaidGroups)
SIMULATE(2, QV_RaidGroupAdd)
SIMULATE(2, QV_RaidGroupExpand)
SIMULATE(3, QV_RaidGroupDelete, deleteRaidGroup)
SIMULATE(2, QV_RaidGroupAllDelete)
SIMULATE(3, QV_CreateRaidGroup, createRaidGroup)
SIMULATE(3, QV_GetRaidGroupInformation, getRaidGroupInformation)
SIMULATE(4, QV_GetRGAreaInformation, getAreas)
SIMULATE(4, QV_GetRaidGroupCreationCapacity, getCreationCapacity)
