// Logical units (LUs) in the RAID groups of a unit, and their formats.
//
// Where the library alone knows what an int means, the simulator takes the first for the number of
// the LU and the second for a staging.
#include "simulator/simulate.h"
#include "simulator/storage.h"

namespace quorvelsim {

void Formats::enter(std::int32_t lun) {
  remove(lun);
  percent_[lun] = 0;
  queue_.push_back(lun);
}

void Formats::remove(std::int32_t lun) {
  percent_.erase(lun);
  std::erase(queue_, lun);
}

void Formats::advance() {
  constexpr std::int32_t kStep = 25;
  if (!queue_.empty()) {
    std::int32_t& percent = percent_[queue_.front()];
    percent += kStep;
    if (percent == kDone) {
      queue_.erase(queue_.begin());
    }
  }
}

std::int32_t Formats::percent(std::int32_t lun) const {
  const auto found = percent_.find(lun);
  return found == percent_.end() ? 0 : found->second;
}

std::int32_t Formats::waitingNumber(std::int32_t lun) const {
  const auto found = std::find(queue_.begin(), queue_.end(), lun);
  return found == queue_.end() ? 0 : static_cast<std::int32_t>(found - queue_.begin());
}

Formats::Status Formats::status(std::int32_t lun) const {
  if (!percent_.contains(lun)) {
    return kNothing;
  }
  if (percent(lun) == kDone) {
    return kFinished;
  }
  return waitingNumber(lun) == 0 ? kRunning : kWaiting;
}

bool Storage::isNumberFree(std::int32_t lun) const {
  return lun >= 0 && lun < kLogicalUnits && !lus.contains(lun) && !volumes.contains(lun);
}

bool Storage::isUsed(std::int32_t lun) const {
  const auto contains = [lun](const auto& entry) {
    return std::find(entry.second.begin(), entry.second.end(), lun) != entry.second.end();
  };
  return children.contains(lun) || std::any_of(children.begin(), children.end(), contains) ||
         std::any_of(pools.begin(), pools.end(), contains);
}

Blocks Storage::blocksOfLu(std::int32_t lun) const {
  const auto found = lus.find(lun);
  return found == lus.end() ? 0 : found->second.blocks;
}

int Storage::deleteLu(std::int32_t lun) {
  const auto found = lus.find(lun);
  if (found == lus.end()) {
    return kUnknownNumber;
  }
  if (isUsed(lun)) {
    return kInUse;
  }
  groups.at(found->second.record.rgNumber).release(lun);
  lus.erase(found);
  formats.remove(lun);
  quickFormats.remove(lun);
  return 0;
}

namespace {

/// The codes of `LogicalUnit::status`.
enum LuStatus : std::int32_t { kNormal = 0, kUnformatted = 1 };

LogicalUnit describe(const Storage& storage, std::int32_t lun, const StoredLu& lu) {
  const Group& group = storage.groups.at(lu.record.rgNumber);
  LogicalUnit record = lu.record;
  record.raid_level = group.level;
  record.capacity = singleWord(lu.blocks);
  record.capacity_h = highWord(lu.blocks);
  record.capacity_l = lowWord(lu.blocks);
  record.befor_lun = kNone;
  std::int32_t last = kNone;
  for (const Area& area : group.areas) {
    record.befor_lun = area.lun == lun ? last : record.befor_lun;
    last = area.lun == kNone ? last : area.lun;
  }
  record.rg_last_lu = last == lun ? 1 : 0;
  record.lu_valid = 1;
  const bool formatted = storage.formats.percent(lun) == Formats::kDone ||
                         storage.quickFormats.percent(lun) == Formats::kDone;
  record.status = formatted ? kNormal : kUnformatted;
  record.qf_status = storage.quickFormats.status(lun);
  return record;
}

int getLogicalUnits(const UnitName* unit, const QVSessionInfo*,
                    LogicalUnit (*list)[kLogicalUnits]) {
  const Storage& storage = storageOf(unit);
  clear(list);
  for (const auto& [lun, lu] : storage.lus) {
    (*list)[lun] = describe(storage, lun, lu);
  }
  return 0;
}

/// Does `work` on an LU that must exist.
template <class Work>
int onLu(const UnitName* unit, std::int32_t lun, Work work) {
  Storage& storage = storageOf(unit);
  const auto found = storage.lus.find(lun);
  if (found == storage.lus.end()) {
    return kUnknownNumber;
  }
  work(storage, found->second);
  return 0;
}

int getLogicalUnit(const UnitName* unit, const QVSessionInfo*, std::int32_t lun,
                   LogicalUnit* record) {
  return onLu(unit, lun, [&](const Storage& storage, const StoredLu& lu) {
    *record = describe(storage, lun, lu);
  });
}

int getLastLogicalUnit(const UnitName* unit, std::int32_t* lun) {
  const auto& lus = storageOf(unit).lus;
  *lun = lus.empty() ? kNone : lus.rbegin()->first;
  return 0;
}

int createLogicalUnit(const UnitName* unit, const QVSessionInfo*,
                      const LogicalUnitCreationRequest* request) {
  Storage& storage = storageOf(unit);
  const std::int32_t lun = request->luNumber;
  const auto group = storage.groups.find(request->rgNumber);
  if (group == storage.groups.end() || lun < 0 || lun >= kLogicalUnits) {
    return kUnknownNumber;
  }
  if (!storage.isNumberFree(lun)) {
    return kNumberTaken;
  }
  const Blocks blocks = blocksOf(request->lu_capacity_h, request->lu_capacity_l);
  if (blocks == 0 || !group->second.take(lun, blocks)) {
    return kNoCapacity;
  }
  LogicalUnit record{};
  record.luNumber = lun;
  record.rgNumber = request->rgNumber;
  record.cachepart_no = request->cachepart_no;
  record.pair_cachepart_valid = request->pair_cachepart_valid;
  record.pair_cachepart_no = request->pair_cachepart_no;
  record.current_cachepart_no = request->cachepart_no;
  record.stripe = request->stripe;
  record.lu_use_type = request->lu_use_type;
  record.hostblock = request->hostblock;
  storage.lus[lun] = {record, blocks};
  return 0;
}

int deleteLogicalUnit(const UnitName* unit, const QVSessionInfo*, std::int32_t lun) {
  return storageOf(unit).deleteLu(lun);
}

int changeStaging(const UnitName* unit, const QVSessionInfo*, std::int32_t lun,
                  std::int32_t staging) {
  return onLu(unit, lun, [&](Storage&, StoredLu& lu) { lu.record.staging = staging; });
}

/// Hands an LU over to the other controller.
int changeController(const UnitName* unit, const QVSessionInfo*, std::int32_t lun) {
  return onLu(unit, lun, [](Storage&, StoredLu& lu) {
    lu.record.currentCTL = lu.record.currentCTL == 0 ? 1 : 0;
  });
}

int startFormat(const UnitName* unit, std::int32_t lun, std::int32_t) {
  return onLu(unit, lun, [&](Storage& storage, StoredLu&) { storage.formats.enter(lun); });
}

int getFormatPercent(const UnitName* unit, std::int32_t lun, std::int32_t* percent) {
  return onLu(unit, lun, [&](Storage& storage, StoredLu&) {
    storage.formats.advance();
    *percent = storage.formats.percent(lun);
  });
}

/// Enters the existing LUs whose byte is not 0.
int enterQuickFormats(const UnitName* unit, const QVSessionInfo*,
                      const QuickFormatEntryList* list) {
  Storage& storage = storageOf(unit);
  for (const auto& [lun, lu] : storage.lus) {
    if (list->lu[lun] != std::byte{0}) {
      storage.quickFormats.enter(lun);
    }
  }
  return 0;
}

int getQuickFormatStatusList(const UnitName* unit, const QVSessionInfo* session,
                             QuickFormatStatusList* list) {
  Formats& formats = storageOf(unit).quickFormats;
  formats.advance();
  clear(list);
  QuickFormatOption option{};
  QV_GetQuickFormatOption(unit, session, &option);
  list->priority_mode = option.priority_mode;
  list->format_mode = option.format_mode;
  for (std::int32_t lun = 0; lun < kLogicalUnits; ++lun) {
    const Formats::Status status = formats.status(lun);
    list->lu[lun] = {status == Formats::kNothing ? 0 : 1, status, formats.percent(lun),
                     formats.waitingNumber(lun)};
  }
  return 0;
}

int getLuOwnership(const UnitName* unit, const QVSessionInfo*, LuOwnership* ownership) {
  clear(ownership);
  for (const auto& [lun, lu] : storageOf(unit).lus) {
    const LogicalUnit& record = lu.record;
    ownership->lu[ownership->count++] = {lun,
                                         record.rgNumber,
                                         record.lu_use_type,
                                         record.defaultCTL,
                                         record.currentCTL,
                                         record.current_cachepart_no,
                                         0};
  }
  return 0;
}

int setLuOwnership(const UnitName* unit, const QVSessionInfo*, const LuOwnershipInfo* info) {
  return onLu(unit, info->lu_num, [&](Storage&, StoredLu& lu) {
    lu.record.defaultCTL = info->d_ctl;
    lu.record.currentCTL = info->c_ctl;
    lu.record.current_cachepart_no = info->cache_num;
  });
}

}  // namespace
}  // namespace quorvelsim

using namespace quorvelsim;

SIMULATE(3, QV_GetLogicalUnit, getLogicalUnits)
SIMULATE(4, QV_GetLogicalUnit1, getLogicalUnit)
SIMULATE(2, QV_GetLastLogicalUnit, getLastLogicalUnit)
SIMULATE(3, QV_CreateLogicalUnit, createLogicalUnit)
SIMULATE(3, QV_LogicalUnitAdd)
SIMULATE(1, QV_LogicalUnitDelete)
SIMULATE(1, QV_LogicalUnitDeleteAll)
SIMULATE(3, QV_LogicalUnitDeleteByLUN, deleteLogicalUnit)
SIMULATE(3, QV_LogicalUnitExpand)
SIMULATE(4, QV_LogicalUnitChangeStaging, changeStaging)
SIMULATE(3, QV_LogicalUnitChangeCtl, changeController)
SIMULATE(2, QV_LogicalUnitInvalid)
SIMULATE(2, QV_LogicalUnitRestore)
SIMULATE(2, QV_LogicalUnitRealloc)
SIMULATE(3, QV_LogicalUnitFormat, startFormat)
SIMULATE(3, QV_LogicalUnitFormatStatus, getFormatPercent)
SIMULATE(4, QV_LogicalUnitFormatImmediateCTL)
SIMULATE(2, QV_LogicalUnitFormatStatusList)
SIMULATE(2, QV_EntryFormatList)
SIMULATE(2, QV_GetFormatStatusList)
SIMULATE(3, QV_GetQuickFormatOption)
SIMULATE(3, QV_SetQuickFormatOption)
SIMULATE(3, QV_EntryQuickFormatList, enterQuickFormats)
SIMULATE(3, QV_GetQuickFormatStatusList, getQuickFormatStatusList)
SIMULATE(3, QV_EntryParityCorrectionList)
SIMULATE(3, QV_GetParityCorrectionStatusList)
SIMULATE(3, QV_GetLuOwnership, getLuOwnership)
SIMULATE(3, QV_SetLuOwnership, setLuOwnership)
