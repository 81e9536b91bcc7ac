// Copy pairs and their consistency groups.
#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <set>

#include "arraylib/replication.h"
#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

/// Also the copy type of a consistency group.
enum Kind : std::int32_t { kGemlyn, kSnapShot, kFarlink, kLonglink };
enum Status : std::int32_t { kCopying = 1, kPaired, kSplit, kRestoring };

/// How an operation names its target, by `set_division`.
constexpr std::int32_t kByGroup = 1;
/// Percent of a copy that are done between two readings of the pairs.
constexpr std::int32_t kProgress = 50;
constexpr std::int32_t kWhole = 100;
constexpr std::int32_t kLuBlocks = 0x200000;
constexpr std::int32_t kGroups = 256;
constexpr std::int32_t kNoGroup = -1;

struct Pair {
  Kind kind{};
  std::string name;
  std::int32_t primary = 0;
  std::int32_t secondary = 0;
  std::int32_t mirrorNo = 0;
  std::int32_t pool = 0;
  std::string remoteSerial;
  std::int32_t group = kNoGroup;
  Status status = kCopying;
  std::int32_t synchronizedRate = 0;
  bool splitWhenPaired = false;
  bool swapped = false;
  std::int32_t resyncs = 0;
  std::int32_t copySpeed = 0;
  std::int32_t fence = 0;
  std::string message;
  DateTime created{};
  DateTime split{};

  [[nodiscard]] bool isLocal() const { return kind == kGemlyn || kind == kSnapShot; }
  [[nodiscard]] std::int32_t changedRate() const { return kWhole - synchronizedRate; }

  /// Copies on, between two readings.
  void advance() {
    if (status != kCopying && status != kRestoring) {
      return;
    }
    synchronizedRate = std::min(synchronizedRate + kProgress, kWhole);
    if (synchronizedRate == kWhole) {
      status = splitWhenPaired ? kSplit : kPaired;
      splitWhenPaired = false;
    }
  }
  void finishCopy() {
    synchronizedRate = kWhole - kProgress;
    advance();
  }
};

struct CopyPairs {
  std::vector<Pair> pairs;
  /// Names of groups by number, of pairs inside the array and of remote ones.
  std::map<std::int32_t, std::string> localGroups;
  std::map<std::int32_t, std::string> remoteGroups;
  std::int32_t minutes = 0;
  std::vector<ZencopyLuInfo> zencopy{zencopyPair(100, "0A01"), zencopyPair(101, "0A02")};

  std::map<std::int32_t, std::string>& groupsOf(bool local) {
    return local ? localGroups : remoteGroups;
  }
  /// A time of its own for every event.
  DateTime now() {
    ++minutes;
    return {2024, 1, 1 + minutes / 1440 % 28, minutes / 60 % 24, minutes % 60, 0};
  }

 private:
  static ZencopyLuInfo zencopyPair(std::int32_t lun, const char* device) {
    ZencopyLuInfo pair{};
    pair.lun = lun;
    pair.pair_status = kPaired;
    setText(pair.remote_type, "ZENCOPY");
    setText(pair.remote_serial, "0000000000054321");
    setText(pair.remote_ldev, device);
    return pair;
  }
};

CopyPairs& pairsOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<CopyPairs>(); }

/// The target names a pair by its name, or by its logical units where it gives no name.
bool isNamed(const Pair& pair, const SpecifyPairInfo& named) {
  const std::string name = textOf(named.pair_name);
  return name.empty() ? pair.primary == named.pvol_lun && pair.secondary == named.pair_lun
                      : pair.name == name;
}

/// Puts a pair into the group that is given, if any.
int joinGroup(CopyPairs& all, Pair& pair, std::int32_t valid, const SpecifyCTGInfo& given) {
  if (valid == 0 || given.ctg_set_flag == 0) {
    return 0;
  }
  if (given.ctg_no < 0 || given.ctg_no >= kGroups) {
    return kUnknownGroup;
  }
  pair.group = given.ctg_no;
  std::string& name = all.groupsOf(pair.isLocal())[given.ctg_no];
  const std::string newName = textOf(given.ctg_name);
  name = newName.empty() ? name : newName;
  return 0;
}

int add(const UnitName* unit, const PairTarget& target, Pair pair) {
  CopyPairs& all = pairsOf(unit);
  pair.name = textOf(target.pair_info.pair_name);
  pair.primary = target.pair_info.pvol_lun;
  pair.secondary = target.pair_info.pair_lun;
  std::set<std::int32_t> mirrors;
  std::size_t sameKind = 0;
  for (const Pair& other : all.pairs) {
    const bool sameName = !pair.name.empty() && other.name == pair.name;
    const bool sameSecondary = pair.isLocal()
                                   ? other.isLocal() && other.secondary == pair.secondary
                                   : other.kind == pair.kind && other.primary == pair.primary;
    if (sameName || sameSecondary) {
      return kPairExists;
    }
    if (other.isLocal() == pair.isLocal() && (pair.isLocal() || other.kind == pair.kind)) {
      ++sameKind;
      if (other.primary == pair.primary) {
        mirrors.insert(other.mirrorNo);
      }
    }
  }
  const std::size_t room = pair.isLocal() ? std::extent_v<decltype(PairInfo::lu)>
                                          : std::extent_v<decltype(FarlinkPairInformation::lu)>;
  if (sameKind == room || mirrors.size() == std::extent_v<decltype(PairLUInfo::m_info)>) {
    return kTooManyPairs;
  }
  while (mirrors.contains(pair.mirrorNo)) {
    ++pair.mirrorNo;
  }
  const int result = joinGroup(all, pair, target.ctg_valid, target.ctg_info);
  if (result == 0) {
    pair.created = all.now();
    all.pairs.push_back(pair);
  }
  return result;
}

/// Does `change` to every pair that an operation is on, if all of them are in a state to do it in.
template <class Change>
int operate(const UnitName* unit, Kind kind, const PairTarget& target,
            std::initializer_list<Status> from, Change change) {
  CopyPairs& all = pairsOf(unit);
  std::vector<Pair*> chosen;
  for (Pair& pair : all.pairs) {
    const bool isTarget = target.set_division == kByGroup
                              ? pair.group != kNoGroup && pair.group == target.ctg_info.ctg_no
                              : isNamed(pair, target.pair_info);
    if (pair.kind == kind && isTarget) {
      chosen.push_back(&pair);
    }
  }
  if (chosen.empty()) {
    return kUnknownPair;
  }
  for (const Pair* const pair : chosen) {
    if (std::find(from.begin(), from.end(), pair->status) == from.end()) {
      return kWrongPairState;
    }
  }
  for (Pair* const pair : chosen) {
    change(*pair);
  }
  return 0;
}

template <Kind kind, class Spec>
int create(const UnitName* unit, const QVSessionInfo*, const Spec* spec) {
  Pair pair;
  pair.kind = kind;
  pair.copySpeed = spec->copy_speed;
  // A snapshot copies nothing to begin with.
  bool copies = kind != kSnapShot;
  if constexpr (requires { spec->no_copy; }) {
    copies = spec->no_copy == 0;
  }
  if constexpr (requires { spec->auto_split; }) {
    pair.splitWhenPaired = spec->auto_split != 0;
  }
  if constexpr (requires { spec->local_pool_no; }) {
    pair.pool = spec->local_pool_no;
  }
  if constexpr (requires { spec->remote_serial; }) {
    pair.remoteSerial = textOf(spec->remote_serial);
  }
  if constexpr (requires { spec->fence_lv; }) {
    pair.fence = spec->fence_lv;
  }
  if (!copies) {
    pair.finishCopy();
  }
  return add(unit, spec->target, pair);
}

template <Kind kind, class Spec>
int split(const UnitName* unit, const QVSessionInfo*, const Spec* spec) {
  const DateTime now = pairsOf(unit).now();
  return operate(unit, kind, spec->target, {kCopying, kPaired}, [&](Pair& pair) {
    pair.status = kSplit;
    pair.split = now;
    if constexpr (requires { spec->add_message; }) {
      pair.message = textOf(spec->add_message);
    }
  });
}

template <Kind kind, class Spec>
int resync(const UnitName* unit, const QVSessionInfo*, const Spec* spec) {
  return operate(unit, kind, spec->target, {kSplit}, [](Pair& pair) {
    pair.status = kCopying;
    pair.synchronizedRate = kProgress;
    ++pair.resyncs;
  });
}

template <Kind kind>
int restore(const UnitName* unit, const QVSessionInfo*, const PairOperation* spec) {
  return operate(unit, kind, spec->target, {kSplit}, [](Pair& pair) {
    pair.status = kRestoring;
    pair.synchronizedRate = 0;
  });
}

template <Kind kind>
int swapSides(const UnitName* unit, const QVSessionInfo*, const RemotePairOperation* spec) {
  return operate(unit, kind, spec->target, {kSplit}, [](Pair& pair) {
    pair.swapped = !pair.swapped;
    pair.finishCopy();
    pair.status = kPaired;
  });
}

template <Kind kind, class Spec>
int simple(const UnitName* unit, const QVSessionInfo*, const Spec* spec) {
  std::vector<Pair>& pairs = pairsOf(unit).pairs;
  std::vector<const Pair*> dissolved;
  const int result = operate(unit, kind, spec->target, {kCopying, kPaired, kSplit, kRestoring},
                             [&](const Pair& pair) { dissolved.push_back(&pair); });
  std::vector<Pair> left;
  for (const Pair& pair : pairs) {
    if (std::find(dissolved.begin(), dissolved.end(), &pair) == dissolved.end()) {
      left.push_back(pair);
    }
  }
  pairs.swap(left);
  return result;
}

int changePair(const UnitName* unit, const QVSessionInfo*, const PairChange* change) {
  CopyPairs& all = pairsOf(unit);
  const auto found = std::find_if(all.pairs.begin(), all.pairs.end(), [&](const Pair& pair) {
    return isNamed(pair, change->pair_info);
  });
  if (found == all.pairs.end()) {
    return kUnknownPair;
  }
  const std::string newName = textOf(change->new_pair_name);
  const bool taken = std::any_of(all.pairs.begin(), all.pairs.end(), [&](const Pair& pair) {
    return &pair != &*found && pair.name == newName;
  });
  if (!newName.empty() && taken) {
    return kPairExists;
  }
  const int result = joinGroup(all, *found, change->ctg_valid, change->ctg_info);
  if (result != 0) {
    return result;
  }
  found->name = newName.empty() ? found->name : newName;
  found->copySpeed = change->copy_speed;
  return 0;
}

// Information

/// What all forms tell of a pair's group.
template <class Record>
void setGroup(Record& record, CopyPairs& all, const Pair& pair) {
  record.ctg_valid = pair.group == kNoGroup ? 0 : 1;
  record.ctg_no = pair.group == kNoGroup ? 0 : pair.group;
  setText(record.ctg_name, all.groupsOf(pair.isLocal())[pair.group]);
}

void fillMirror(MirrorLUInfo& mirror, CopyPairs& all, const Pair& pair) {
  mirror.mirror_no = pair.mirrorNo;
  mirror.lun = pair.secondary;
  mirror.pool_no = pair.pool;
  mirror.pair_status = pair.status;
  mirror.changed_rate = pair.changedRate();
  mirror.synchronized_rate = pair.synchronizedRate;
  std::memcpy(&mirror.time, &pair.created, sizeof mirror.time);
  mirror.split_time = pair.split;
  setText(mirror.add_message, pair.message);
  setGroup(mirror, all, pair);
  setText(mirror.pair_name, pair.name);
  mirror.copy_speed = pair.copySpeed;
}

int getPairs(const UnitName* unit, const QVSessionInfo*, PairInfo* info) {
  CopyPairs& all = pairsOf(unit);
  // Too large for a temporary of its own.
  std::memset(info, 0, sizeof *info);
  std::map<std::int32_t, PairLUInfo*> places;
  std::set<std::int32_t> pools;
  for (Pair& pair : all.pairs) {
    if (!pair.isLocal()) {
      continue;
    }
    const auto [place, added] = places.emplace(pair.primary, &info->lu[places.size()]);
    PairLUInfo& lu = *place->second;
    lu.lun = pair.primary;
    lu.capacity = kLuBlocks;
    lu.capacity_l = kLuBlocks;
    fillMirror(lu.m_info[lu.mirror_count++], all, pair);
    pair.advance();
    ++info->pair_count;
    if (pair.kind == kSnapShot && pools.size() < std::size(info->sys.pool)) {
      pools.insert(pair.pool);
    }
  }
  for (const std::int32_t pool : pools) {
    info->sys.pool[info->sys.pool_enable_count++] = {pool, 0, kLuBlocks};
  }
  return 0;
}

int getSimplePairs(const UnitName* unit, const QVSessionInfo*, PairInfoSimple* info) {
  std::memset(info, 0, sizeof *info);
  for (const Pair& pair : pairsOf(unit).pairs) {
    if (pair.isLocal()) {
      info->pair[info->pair_count++] = {pair.primary, pair.secondary};
    }
  }
  return 0;
}

int getFarlinkPairs(const UnitName* unit, const QVSessionInfo*, FarlinkPairInformation* info) {
  CopyPairs& all = pairsOf(unit);
  std::memset(info, 0, sizeof *info);
  for (Pair& pair : all.pairs) {
    if (pair.kind != kFarlink) {
      continue;
    }
    FarlinkLuInfo& lu = info->lu[info->pair_count++];
    lu.lun = pair.primary;
    lu.pair_status = pair.status;
    lu.pair_attr = pair.swapped ? 1 : 0;
    lu.changed_rate = pair.changedRate();
    setText(lu.remote_serial, pair.remoteSerial);
    lu.remote_lu = pair.secondary;
    lu.capacity_l = kLuBlocks;
    setGroup(lu, all, pair);
    setText(lu.pair_name, pair.name);
    lu.copy_speed = pair.copySpeed;
    lu.fence_level = pair.fence;
    pair.advance();
  }
  return 0;
}

int getLonglinkPairs(const UnitName* unit, const QVSessionInfo*,
                     FarlinkAsyncPairInformation* info) {
  CopyPairs& all = pairsOf(unit);
  std::memset(info, 0, sizeof *info);
  for (Pair& pair : all.pairs) {
    if (pair.kind != kLonglink) {
      continue;
    }
    FarlinkAsyncLuInfo& lu = info->lu[info->pair_count++];
    lu.lun = pair.primary;
    lu.pair_status = pair.status;
    lu.pair_attr = pair.swapped ? 1 : 0;
    lu.ctg_num = pair.group;
    setText(lu.ctg_name, all.remoteGroups[pair.group]);
    setText(lu.pair_name, pair.name);
    lu.lu_capacity = kLuBlocks;
    lu.lu_capacity_l = kLuBlocks;
    lu.remote_lu = pair.secondary;
    setText(lu.remote_serial, pair.remoteSerial);
    lu.synchronized_rate = pair.synchronizedRate;
    lu.difference_rate = pair.changedRate();
    lu.synchronized_time = pair.created;
    lu.pool_no = pair.pool;
    lu.copy_speed = pair.copySpeed;
    lu.pvol_resync_count = pair.resyncs;
    if (pair.group >= 0 && pair.group < static_cast<std::int32_t>(std::size(info->ctg))) {
      info->ctg[pair.group].ctl[0].ctg_valid = 1;
    }
    pair.advance();
  }
  return 0;
}

int getZencopyPairs(const UnitName* unit, ZencopyInformation* info) {
  std::memset(info, 0, sizeof *info);
  for (const ZencopyLuInfo& pair : pairsOf(unit).zencopy) {
    info->lu[info->pair_count++] = pair;
  }
  return 0;
}

int splitZencopy(const UnitName* unit, std::int32_t lun) {
  for (ZencopyLuInfo& pair : pairsOf(unit).zencopy) {
    if (pair.lun == lun) {
      pair.pair_status = kSplit;
      return 0;
    }
  }
  return kUnknownPair;
}

int getCouplings(const UnitName* unit, const QVSessionInfo*, CouplingInfo* info) {
  CopyPairs& all = pairsOf(unit);
  std::memset(info, 0, sizeof *info);
  for (const Pair& pair : all.pairs) {
    if (!pair.isLocal()) {
      continue;
    }
    CouplingLU& coupling = info->coupling[info->coupling_num++];
    coupling.primary_stat = pair.status;
    coupling.second_stat = pair.status;
    coupling.primary_lu = pair.primary;
    coupling.second_lu = pair.secondary;
    coupling.mirror_no = pair.mirrorNo;
    coupling.capacity_l = kLuBlocks;
    coupling.synchronized_rate = pair.synchronizedRate;
    coupling.split_time = pair.split;
    setText(coupling.add_message, pair.message);
    setGroup(coupling, all, pair);
    setText(coupling.pair_name, pair.name);
    coupling.copy_speed = pair.copySpeed;
  }
  return 0;
}

// Consistency groups: those that have a pair.

int getGroups(const UnitName* unit, const QVSessionInfo*, CTGInformation* info) {
  CopyPairs& all = pairsOf(unit);
  std::memset(info, 0, sizeof *info);
  for (const Pair& pair : all.pairs) {
    if (pair.group == kNoGroup) {
      continue;
    }
    CTGInfo& group = (pair.isLocal() ? info->gmss_info : info->flfle_info)[pair.group];
    setGroup(group, all, pair);
    group.ctg_copytype = pair.kind;
    group.pair_status_detail0 = pair.status;
  }
  return 0;
}

int changeGroup(const UnitName* unit, const QVSessionInfo*, const CTGInfo* change) {
  CopyPairs& all = pairsOf(unit);
  for (const Pair& pair : all.pairs) {
    if (pair.kind == change->ctg_copytype && pair.group != kNoGroup &&
        pair.group == change->ctg_no) {
      all.groupsOf(pair.isLocal())[pair.group] = textOf(change->ctg_name);
      return 0;
    }
  }
  return kUnknownGroup;
}

}  // namespace

SIMULATE(3, QV_CreateGemlynPair, create<kGemlyn>)
SIMULATE(3, QV_SplitGemlynPair, split<kGemlyn>)
SIMULATE(3, QV_SimpleGemlynPair, simple<kGemlyn>)
SIMULATE(3, QV_ResyncGemlynPair, resync<kGemlyn>)
SIMULATE(3, QV_RestoreGemlynPair, restore<kGemlyn>)
SIMULATE(3, QV_CreateSnapShotPair, create<kSnapShot>)
SIMULATE(3, QV_SplitSnapShotPair, split<kSnapShot>)
SIMULATE(3, QV_SimpleSnapShotPair, simple<kSnapShot>)
SIMULATE(3, QV_ResyncSnapShotPair, resync<kSnapShot>)
SIMULATE(3, QV_RestoreSnapShotPair, restore<kSnapShot>)
SIMULATE(3, QV_CreateFarlinkPair, create<kFarlink>)
SIMULATE(3, QV_SplitFarlinkPair, split<kFarlink>)
SIMULATE(3, QV_SimpleFarlinkPair, simple<kFarlink>)
SIMULATE(3, QV_ResyncFarlinkPair, resync<kFarlink>)
SIMULATE(3, QV_SwapFarlinkPair, swapSides<kFarlink>)
SIMULATE(3, QV_CreateLonglinkPair, create<kLonglink>)
SIMULATE(3, QV_SplitLonglinkPair, split<kLonglink>)
SIMULATE(3, QV_SimpleLonglinkPair, simple<kLonglink>)
SIMULATE(3, QV_ResyncLonglinkPair, resync<kLonglink>)
SIMULATE(3, QV_SwapLonglinkPair, swapSides<kLonglink>)
SIMULATE(3, QV_ChangeReplicationPair, changePair)
SIMULATE(3, QV_GetPairInformation, getPairs)
SIMULATE(3, QV_GetPairInformationSimple, getSimplePairs)
SIMULATE(3, QV_GetFarlinkPairInformation, getFarlinkPairs)
SIMULATE(3, QV_GetFarlinkAsyncPairInformation, getLonglinkPairs)
SIMULATE(3, QV_GetFarlinkAsyncOption)
SIMULATE(3, QV_SetFarlinkAsyncOption)
SIMULATE(2, QV_GetZencopyInformation, getZencopyPairs)
SIMULATE(2, QV_SplitZencopyPair, splitZencopy)
SIMULATE(3, QV_GetCouplingInfo, getCouplings)
SIMULATE(3, QV_GetCTGInformation, getGroups)
SIMULATE(3, QV_ChangeReplicationCTG, changeGroup)
