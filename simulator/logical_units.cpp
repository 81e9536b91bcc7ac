// Logical units (LUs) in the RAID groups of a simulated unit, and the work on them.
//
// Of the ints that the library alone knows, the simulator takes the first for the number of the LU,
// that of the controller where it says so; the second is a number of MiB, a staging or a mode.
#include <numeric>
#include <optional>

#include "simulator/storage.h"

namespace quorvelsim {

namespace {

constexpr std::int32_t kStep = 25;
constexpr std::int32_t kDone = 100;
constexpr Blocks kBlocksInMiB = 2048;
/// The minutes that the simulator announces for each step.
constexpr std::int32_t kMinutesAStep = 5;

}  // namespace

void Jobs::enter(std::int32_t lun) {
  remove(lun);
  percent_[lun] = 0;
  queue_.push_back(lun);
}

void Jobs::remove(std::int32_t lun) {
  percent_.erase(lun);
  std::erase(queue_, lun);
}

void Jobs::advance(std::int32_t lun) {
  const auto found = percent_.find(lun);
  if (found == percent_.end()) {
    return;
  }
  found->second = std::min(found->second + kStep, kDone);
  if (found->second == kDone) {
    std::erase(queue_, lun);
  }
}

void Jobs::advanceFirst() {
  if (!queue_.empty()) {
    advance(queue_.front());
  }
}

void Jobs::advanceAll() {
  for (const std::int32_t lun : std::vector<std::int32_t>(queue_)) {
    advance(lun);
  }
}

void Jobs::finish(std::int32_t lun) {
  percent_[lun] = kDone;
  std::erase(queue_, lun);
}

std::int32_t Jobs::percent(std::int32_t lun) const {
  const auto found = percent_.find(lun);
  return found == percent_.end() ? 0 : found->second;
}

std::int32_t Jobs::totalPercent() const {
  const std::int32_t sum =
      std::accumulate(percent_.begin(), percent_.end(), 0,
                      [](std::int32_t before, const auto& entry) { return before + entry.second; });
  return percent_.empty() ? 0 : sum / static_cast<std::int32_t>(percent_.size());
}

Jobs::Status Jobs::status(std::int32_t lun) const {
  if (!entered(lun)) {
    return kNothing;
  }
  if (percent(lun) == kDone) {
    return kFinished;
  }
  return waitingNumber(lun) == 0 ? kRunning : kWaiting;
}

std::int32_t Jobs::waitingNumber(std::int32_t lun) const {
  const auto found = std::find(queue_.begin(), queue_.end(), lun);
  return found == queue_.end() ? 0 : static_cast<std::int32_t>(found - queue_.begin());
}

std::int32_t Jobs::questionsLeft() const {
  std::int32_t most = 0;
  for (const std::int32_t lun : queue_) {
    most = std::max(most, (kDone - percent(lun) + kStep - 1) / kStep);
  }
  return most;
}

bool Storage::isNumberFree(std::int32_t lun) const {
  return lun >= 0 && lun < kLogicalUnits && !lus.contains(lun) && !volumes.contains(lun);
}

bool Storage::isUsed(std::int32_t lun) const {
  const auto has = [lun](const std::vector<std::int32_t>& luns) {
    return std::find(luns.begin(), luns.end(), lun) != luns.end();
  };
  return children.contains(lun) ||
         std::any_of(children.begin(), children.end(),
                     [&](const auto& entry) { return has(entry.second); }) ||
         std::any_of(pools.begin(), pools.end(),
                     [&](const auto& entry) { return has(entry.second.luns); });
}

int Storage::addLu(const LogicalUnit& record, Blocks blocks,
                   const std::vector<std::int32_t>& behind) {
  const auto group = groups.find(record.rgNumber);
  if (group == groups.end() || record.luNumber < 0 || record.luNumber >= kLogicalUnits) {
    return kUnknownNumber;
  }
  if (!isNumberFree(record.luNumber)) {
    return kNumberTaken;
  }
  if (blocks == 0 || !group->second.take(record.luNumber, blocks, behind)) {
    return kNoCapacity;
  }
  lus[record.luNumber] = {record, {}, blocks};
  return 0;
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
  for (Jobs* const jobs : {&formats, &quickFormats, &corrections}) {
    jobs->remove(lun);
  }
  return 0;
}

namespace {

/// The codes of `LogicalUnit::status`.
enum LuStatus : std::int32_t { kNormal = 0, kUnformatted = 1, kInvalidated = 2 };

LogicalUnit describeLu(const Storage& storage, std::int32_t lun) {
  const StoredLu& lu = storage.lus.at(lun);
  const Group& group = storage.groups.at(lu.record.rgNumber);
  LogicalUnit record = lu.record;
  record.luNumber = lun;
  record.raid_level = group.level;
  record.capacity = singleWord(lu.blocks);
  record.capacity_h = highWord(lu.blocks);
  record.capacity_l = lowWord(lu.blocks);
  record.befor_lun = group.luBefore(lun);
  record.lu_valid = 1;
  if (record.status == kUnformatted &&
      (storage.formats.percent(lun) == kDone || storage.quickFormats.percent(lun) == kDone)) {
    record.status = kNormal;
  }
  record.qf_status = storage.quickFormats.status(lun);
  record.correction_status = storage.corrections.status(lun);
  std::int32_t last = kNone;
  for (const Area& area : group.areas) {
    last = area.lun == kNone ? last : area.lun;
  }
  record.rg_last_lu = last == lun ? 1 : 0;
  return record;
}

int getLogicalUnits(const UnitName* unit, const QVSessionInfo*,
                    LogicalUnit (*list)[kLogicalUnits]) {
  const Storage& storage = storageOf(unit);
  clear(list);
  for (const auto& [lun, lu] : storage.lus) {
    (*list)[lun] = describeLu(storage, lun);
  }
  return 0;
}

int getLogicalUnit(const UnitName* unit, const QVSessionInfo*, std::int32_t lun,
                   LogicalUnit* record) {
  return changeLu(unit, lun, [&](const Storage& storage, const StoredLu&) {
    *record = describeLu(storage, lun);
    return 0;
  });
}

int getLastLogicalUnit(const UnitName* unit, std::int32_t* lun) {
  const auto& lus = storageOf(unit).lus;
  *lun = lus.empty() ? kNone : lus.rbegin()->first;
  return 0;
}

int createLogicalUnit(const UnitName* unit, const QVSessionInfo*,
                      const LogicalUnitCreationRequest* request) {
  LogicalUnit record{};
  record.luNumber = request->luNumber;
  record.rgNumber = request->rgNumber;
  record.cachepart_no = request->cachepart_no;
  record.pair_cachepart_valid = request->pair_cachepart_valid;
  record.pair_cachepart_no = request->pair_cachepart_no;
  record.current_cachepart_no = request->cachepart_no;
  record.stripe = request->stripe;
  record.lu_use_type = request->lu_use_type;
  record.hostblock = request->hostblock;
  record.status = kUnformatted;
  const std::int32_t count = std::clamp(request->befor_lun_count, 0, 128);
  return storageOf(unit).addLu(record, blocksOf(request->lu_capacity_h, request->lu_capacity_l),
                               {request->befor_lun, request->befor_lun + count});
}

int addLogicalUnit(const UnitName* unit, const QVSessionInfo*, const LogicalUnit* record) {
  LogicalUnit added = *record;
  added.status = kUnformatted;
  return storageOf(unit).addLu(added, blocksOf(record->capacity_h, record->capacity_l));
}

int deleteLastLogicalUnit(const UnitName* unit) {
  std::int32_t last = kNone;
  getLastLogicalUnit(unit, &last);
  return storageOf(unit).deleteLu(last);
}

int deleteAllLogicalUnits(const UnitName* unit) {
  Storage& storage = storageOf(unit);
  if (std::any_of(storage.lus.begin(), storage.lus.end(),
                  [&](const auto& entry) { return storage.isUsed(entry.first); })) {
    return kInUse;
  }
  while (!storage.lus.empty()) {
    storage.deleteLu(storage.lus.begin()->first);
  }
  return 0;
}

int deleteLogicalUnit(const UnitName* unit, const QVSessionInfo*, std::int32_t lun) {
  return storageOf(unit).deleteLu(lun);
}

int expandLogicalUnit(const UnitName* unit, std::int32_t lun, std::int32_t mebibytes) {
  return changeLu(unit, lun, [&](Storage& storage, StoredLu& lu) -> int {
    const Blocks more = static_cast<Blocks>(std::max(mebibytes, 0)) * kBlocksInMiB;
    if (more == 0 || !storage.groups.at(lu.record.rgNumber).take(lun, more)) {
      return kNoCapacity;
    }
    lu.blocks += more;
    return 0;
  });
}

int changeStaging(const UnitName* unit, const QVSessionInfo*, std::int32_t lun,
                  std::int32_t staging) {
  return changeLu(unit, lun, [&](Storage&, StoredLu& lu) {
    lu.record.staging = staging;
    return 0;
  });
}

/// The LU goes over to the other controller.
int changeController(const UnitName* unit, const QVSessionInfo*, std::int32_t lun) {
  return changeLu(unit, lun, [&](Storage&, StoredLu& lu) {
    lu.record.currentCTL = lu.record.currentCTL == 0 ? 1 : 0;
    return 0;
  });
}

int invalidate(const UnitName* unit, std::int32_t lun) {
  return changeLu(unit, lun, [](Storage&, StoredLu& lu) {
    lu.record.status = kInvalidated;
    return 0;
  });
}

int restore(const UnitName* unit, std::int32_t lun) {
  return changeLu(unit, lun, [](Storage&, StoredLu& lu) {
    lu.record.status = kNormal;
    return 0;
  });
}

/// The LU is given up for one of another number and of so many MiB in the same group.
int reallocate(const UnitName* unit, const LogicalUnitReallocationRequest* request) {
  Storage& storage = storageOf(unit);
  const auto found = storage.lus.find(request->lun);
  if (found == storage.lus.end()) {
    return kUnknownNumber;
  }
  LogicalUnit record = found->second.record;
  record.luNumber = request->newlun;
  Storage changed = storage;
  int result = changed.deleteLu(request->lun);
  if (result == 0) {
    result =
        changed.addLu(record, static_cast<Blocks>(std::max(request->lusize, 0)) * kBlocksInMiB);
  }
  if (result == 0) {
    storage = changed;
  }
  return result;
}

int startFormat(const UnitName* unit, std::int32_t lun, std::int32_t) {
  return changeLu(unit, lun, [&](Storage& storage, StoredLu&) {
    storage.formats.enter(lun);
    return 0;
  });
}

int getFormatPercent(const UnitName* unit, std::int32_t lun, std::int32_t* percent) {
  return changeLu(unit, lun, [&](Storage& storage, StoredLu&) {
    storage.formats.advance(lun);
    *percent = storage.formats.percent(lun);
    return 0;
  });
}

/// Ints are the controller and the LU, which is formatted when the call returns.
int formatAtOnce(const UnitName* unit, std::int32_t, std::int32_t lun, std::int32_t* percent) {
  return changeLu(unit, lun, [&](Storage& storage, StoredLu&) {
    storage.formats.finish(lun);
    *percent = storage.formats.percent(lun);
    return 0;
  });
}

/// Full formats run side by side.
std::int32_t sideBySide(const Jobs& jobs, std::int32_t lun) {
  const Jobs::Status status = jobs.status(lun);
  return status == Jobs::kWaiting ? Jobs::kRunning : status;
}

int getLuFormatStatusList(const UnitName* unit, LuFormatStatusList* list) {
  Jobs& formats = storageOf(unit).formats;
  formats.advanceAll();
  clear(list);
  for (std::int32_t lun = 0; lun < 2048; ++lun) {
    list->lu[lun].status = sideBySide(formats, lun);
    list->lu[lun].percent = formats.percent(lun);
  }
  return 0;
}

/// Enters the LUs that have a byte other than 0; those that do not exist are passed over.
template <std::size_t N>
int enterAll(const Storage& storage, Jobs& jobs, const std::byte (&lus)[N]) {
  for (std::size_t index = 0; index < N; ++index) {
    const auto lun = static_cast<std::int32_t>(index);
    if (lus[index] != std::byte{0} && storage.hasLu(lun)) {
      jobs.enter(lun);
    }
  }
  return 0;
}

int enterFormats(const UnitName* unit, const FormatEntryList* list) {
  Storage& storage = storageOf(unit);
  return enterAll(storage, storage.formats, list->lu);
}

int getFormatStatusList(const UnitName* unit, FormatStatusList* list) {
  Jobs& formats = storageOf(unit).formats;
  formats.advanceAll();
  clear(list);
  list->mode = formats.idle() ? 0 : 1;
  list->totalpercent = formats.totalPercent();
  list->resttime = formats.questionsLeft() * kMinutesAStep;
  for (std::int32_t lun = 0; lun < 2048; ++lun) {
    list->lu[lun].entry = formats.entered(lun) ? 1 : 0;
    list->lu[lun].status = sideBySide(formats, lun);
    list->lu[lun].percent = formats.percent(lun);
  }
  return 0;
}

// The option as it was set, which the list of quick formats repeats.
int getQuickFormatOption(const UnitName* unit, const QVSessionInfo*, QuickFormatOption* option) {
  *option = findUnit(textOf(*unit))->part<QuickFormatOption>();
  return 0;
}

int setQuickFormatOption(const UnitName* unit, const QVSessionInfo*,
                         const QuickFormatOption* option) {
  findUnit(textOf(*unit))->part<QuickFormatOption>() = *option;
  return 0;
}

int enterQuickFormats(const UnitName* unit, const QVSessionInfo*,
                      const QuickFormatEntryList* list) {
  Storage& storage = storageOf(unit);
  return enterAll(storage, storage.quickFormats, list->lu);
}

/// Quick formats run one after another.
int getQuickFormatStatusList(const UnitName* unit, const QVSessionInfo* session,
                             QuickFormatStatusList* list) {
  Jobs& formats = storageOf(unit).quickFormats;
  formats.advanceFirst();
  clear(list);
  QuickFormatOption option{};
  getQuickFormatOption(unit, session, &option);
  list->priority_mode = option.priority_mode;
  list->format_mode = option.format_mode;
  for (std::int32_t lun = 0; lun < kLogicalUnits; ++lun) {
    list->lu[lun] = {formats.entered(lun) ? 1 : 0, formats.status(lun), formats.percent(lun),
                     formats.waitingNumber(lun)};
  }
  return 0;
}

int enterCorrections(const UnitName* unit, const QVSessionInfo*,
                     const ParityCorrectionRequest* request) {
  Storage& storage = storageOf(unit);
  const std::int32_t count = std::clamp(request->lu_count, 0, kLogicalUnits);
  if (!std::all_of(request->lu, request->lu + count,
                   [&](std::int32_t lun) { return storage.hasLu(lun); })) {
    return kUnknownNumber;
  }
  std::for_each(request->lu, request->lu + count,
                [&](std::int32_t lun) { storage.corrections.enter(lun); });
  return 0;
}

int getCorrectionStatusList(const UnitName* unit, const QVSessionInfo*,
                            ParityCorrectionStatusList* list) {
  Jobs& corrections = storageOf(unit).corrections;
  corrections.advanceFirst();
  clear(list);
  for (std::int32_t lun = 0; lun < kLogicalUnits; ++lun) {
    list->lu[lun] = {corrections.status(lun), corrections.percent(lun),
                     corrections.waitingNumber(lun)};
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
  return changeLu(unit, info->lu_num, [&](Storage&, StoredLu& lu) {
    lu.record.defaultCTL = info->d_ctl;
    lu.record.currentCTL = info->c_ctl;
    lu.record.current_cachepart_no = info->cache_num;
    return 0;
  });
}

}  // namespace
}  // namespace quorvelsim

using namespace quorvelsim;

SIMULATE(3, QV_GetLogicalUnit, getLogicalUnits)
SIMULATE(4, QV_GetLogicalUnit1, getLogicalUnit)
SIMULATE(2, QV_GetLastLogicalUnit, getLastLogicalUnit)
SIMULATE(3, QV_CreateLogicalUnit, createLogicalUnit)
SIMULATE(3, QV_LogicalUnitAdd, addLogicalUnit)
SIMULATE(1, QV_LogicalUnitDelete, deleteLastLogicalUnit)
SIMULATE(1, QV_LogicalUnitDeleteAll, deleteAllLogicalUnits)
SIMULATE(3, QV_LogicalUnitDeleteByLUN, deleteLogicalUnit)
SIMULATE(3, QV_LogicalUnitExpand, expandLogicalUnit)
SIMULATE(4, QV_LogicalUnitChangeStaging, changeStaging)
SIMULATE(3, QV_LogicalUnitChangeCtl, changeController)
SIMULATE(2, QV_LogicalUnitInvalid, invalidate)
SIMULATE(2, QV_LogicalUnitRestore, restore)
SIMULATE(2, QV_LogicalUnitRealloc, reallocate)
SIMULATE(3, QV_LogicalUnitFormat, startFormat)
SIMULATE(3, QV_LogicalUnitFormatStatus, getFormatPercent)
SIMULATE(4, QV_LogicalUnitFormatImmediateCTL, formatAtOnce)
SIMULATE(2, QV_LogicalUnitFormatStatusList, getLuFormatStatusList)
SIMULATE(2, QV_EntryFormatList, enterFormats)
SIMULATE(2, QV_GetFormatStatusList, getFormatStatusList)
SIMULATE(3, QV_GetQuickFormatOption, getQuickFormatOption)
SIMULATE(3, QV_SetQuickFormatOption, setQuickFormatOption)
SIMULATE(3, QV_EntryQuickFormatList, enterQuickFormats)
SIMULATE(3, QV_GetQuickFormatStatusList, getQuickFormatStatusList)
SIMULATE(3, QV_EntryParityCorrectionList, enterCorrections)
SIMULATE(3, QV_GetParityCorrectionStatusList, getCorrectionStatusList)
SIMULATE(3, QV_GetLuOwnership, getLuOwnership)
SIMULATE(3, QV_SetLuOwnership, setLuOwnership)
