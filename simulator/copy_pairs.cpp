// Copy pairs inside an array and their consistency groups. Remote pairs have no behaviour.
#include <initializer_list>
#include <map>
#include <vector>

#include "arraylib/replication.h"
#include "simulator/simulate.h"
#include "simulator/storage.h"

using namespace quorvelsim;

namespace {

/// Also the copy type of a consistency group.
enum Kind : std::int32_t { kGemlyn, kSnapShot };
enum Status : std::int32_t { kCopying = 1, kPaired, kSplit, kRestoring };

/// How an operation names its target, by `set_division`.
constexpr std::int32_t kByGroup = 1;
/// Percent that are copied between two readings of the pairs.
constexpr std::int32_t kProgress = 50;
constexpr std::int32_t kWhole = 100;

struct Pair {
  Kind kind{};
  std::string name;
  std::int32_t primary = 0;
  std::int32_t secondary = 0;
  std::int32_t mirrorNo = 0;
  std::int32_t pool = 0;
  std::int32_t group = kNone;
  Status status = kCopying;
  std::int32_t synchronizedRate = 0;
  std::int32_t copySpeed = 0;
  std::string message;
  DateTime created{};
  DateTime split{};

  void advance() {
    if (status == kCopying || status == kRestoring) {
      synchronizedRate = std::min(synchronizedRate + kProgress, kWhole);
      status = synchronizedRate == kWhole ? kPaired : status;
    }
  }
};

struct CopyPairs {
  std::vector<Pair> pairs;
  std::map<std::int32_t, std::string> groupNames;
  std::int32_t minutes = 0;

  /// Returns a new time at every call.
  DateTime now() {
    ++minutes;
    return {2024, 1, 1 + minutes / 1440 % 28, minutes / 60 % 24, minutes % 60, 0};
  }
};

/// An operation names a pair by its name, or by its LUs where it gives no name.
bool isNamed(const Pair& pair, const SpecifyPairInfo& named) {
  const std::string name = textOf(named.pair_name);
  return name.empty() ? pair.primary == named.pvol_lun && pair.secondary == named.pair_lun
                      : pair.name == name;
}

/// Puts a pair into the consistency group that is given, if any.
int joinGroup(CopyPairs& all, Pair& pair, const PairTarget& target) {
  const SpecifyCTGInfo& given = target.ctg_info;
  if (target.ctg_valid == 0 || given.ctg_set_flag == 0) {
    return 0;
  }
  if (given.ctg_no < 0 || given.ctg_no >= kConsistencyGroups) {
    return kUnknownGroup;
  }
  pair.group = given.ctg_no;
  all.groupNames[given.ctg_no] = textOf(given.ctg_name);
  return 0;
}

int add(CopyPairs& all, const PairTarget& target, Pair pair) {
  pair.name = textOf(target.pair_info.pair_name);
  pair.primary = target.pair_info.pvol_lun;
  pair.secondary = target.pair_info.pair_lun;
  bool taken[kMirrors]{};
  for (const Pair& other : all.pairs) {
    if (other.secondary == pair.secondary || (!pair.name.empty() && other.name == pair.name)) {
      return kPairExists;
    }
    if (other.primary == pair.primary) {
      taken[other.mirrorNo] = true;
    }
  }
  pair.mirrorNo = static_cast<std::int32_t>(std::find(taken, taken + kMirrors, false) - taken);
  if (all.pairs.size() == kPairs || pair.mirrorNo == kMirrors) {
    return kTooManyPairs;
  }
  const int result = joinGroup(all, pair, target);
  if (result == 0) {
    pair.created = all.now();
    all.pairs.push_back(pair);
  }
  return result;
}

/// The pairs that an operation names. All of them must be in one of the states `from`.
int choose(CopyPairs& all, Kind kind, const PairTarget& target, std::initializer_list<Status> from,
           std::vector<Pair*>& chosen) {
  for (Pair& pair : all.pairs) {
    const bool isTarget = target.set_division == kByGroup
                              ? pair.group != kNone && pair.group == target.ctg_info.ctg_no
                              : isNamed(pair, target.pair_info);
    if (pair.kind == kind && isTarget) {
      if (std::find(from.begin(), from.end(), pair.status) == from.end()) {
        return kWrongPairState;
      }
      chosen.push_back(&pair);
    }
  }
  return chosen.empty() ? kUnknownPair : 0;
}

int createGemlyn(const UnitName* unit, const QVSessionInfo*, const CreateGemlynPair* request) {
  Pair pair;
  pair.kind = kGemlyn;
  pair.copySpeed = request->copy_speed;
  return add(partOf<CopyPairs>(unit), request->target, pair);
}

/// A snapshot has nothing to copy.
int createSnapShot(const UnitName* unit, const QVSessionInfo*, const CreateSnapShotPair* request) {
  Pair pair;
  pair.kind = kSnapShot;
  pair.copySpeed = request->copy_speed;
  pair.pool = request->local_pool_no;
  pair.status = kPaired;
  pair.synchronizedRate = kWhole;
  return add(partOf<CopyPairs>(unit), request->target, pair);
}

template <Kind kind, class Spec>
int split(const UnitName* unit, const QVSessionInfo*, const Spec* request) {
  auto& all = partOf<CopyPairs>(unit);
  std::vector<Pair*> chosen;
  const int result = choose(all, kind, request->target, {kCopying, kPaired}, chosen);
  const DateTime now = all.now();
  for (Pair* const pair : chosen) {
    if (result == 0) {
      pair->status = kSplit;
      pair->split = now;
      pair->message = textOf(request->add_message);
    }
  }
  return result;
}

/// Copies between the LUs of split pairs again, from `rate` percent on.
int copyAgain(const UnitName* unit, Kind kind, const PairOperation& request, Status status,
              std::int32_t rate) {
  std::vector<Pair*> chosen;
  const int result = choose(partOf<CopyPairs>(unit), kind, request.target, {kSplit}, chosen);
  for (Pair* const pair : chosen) {
    if (result == 0) {
      pair->status = status;
      pair->synchronizedRate = rate;
    }
  }
  return result;
}

template <Kind kind>
int resync(const UnitName* unit, const QVSessionInfo*, const PairOperation* request) {
  return copyAgain(unit, kind, *request, kCopying, kProgress);
}

template <Kind kind>
int restore(const UnitName* unit, const QVSessionInfo*, const PairOperation* request) {
  return copyAgain(unit, kind, *request, kRestoring, 0);
}

template <Kind kind>
int dissolve(const UnitName* unit, const QVSessionInfo*, const PairOperation* request) {
  auto& all = partOf<CopyPairs>(unit);
  std::vector<Pair*> chosen;
  const int result =
      choose(all, kind, request->target, {kCopying, kPaired, kSplit, kRestoring}, chosen);
  std::for_each(chosen.rbegin(), chosen.rend(), [&](const Pair* pair) {
    all.pairs.erase(all.pairs.begin() + (pair - all.pairs.data()));
  });
  return result;
}

// Information

/// Fills what all forms have of a pair.
template <class Record>
void fillCommon(Record& record, const CopyPairs& all, const Pair& pair) {
  record.mirror_no = pair.mirrorNo;
  record.synchronized_rate = pair.synchronizedRate;
  record.split_time = pair.split;
  setText(record.add_message, pair.message);
  setText(record.pair_name, pair.name);
  record.copy_speed = pair.copySpeed;
  if (pair.group != kNone) {
    record.ctg_valid = 1;
    record.ctg_no = pair.group;
    setText(record.ctg_name, all.groupNames.at(pair.group));
  }
}

int getPairs(const UnitName* unit, const QVSessionInfo*, PairInfo* info) {
  auto& all = partOf<CopyPairs>(unit);
  const Storage& storage = storageOf(unit);
  clear(info);
  for (const auto& [number, luns] : storage.pools) {
    const Blocks blocks = storage.blocksOfPool(number);
    info->sys.pool[info->sys.pool_enable_count++] = {number, highWord(blocks), lowWord(blocks)};
  }
  std::map<std::int32_t, PairLUInfo*> places;
  for (Pair& pair : all.pairs) {
    PairLUInfo& lu = *places.emplace(pair.primary, &info->lu[places.size()]).first->second;
    const Blocks blocks = storage.blocksOfLu(pair.primary);
    lu.lun = pair.primary;
    lu.capacity = singleWord(blocks);
    lu.capacity_h = highWord(blocks);
    lu.capacity_l = lowWord(blocks);
    MirrorLUInfo& mirror = lu.m_info[lu.mirror_count++];
    fillCommon(mirror, all, pair);
    mirror.lun = pair.secondary;
    mirror.pool_no = pair.pool;
    mirror.pair_status = pair.status;
    mirror.changed_rate = kWhole - pair.synchronizedRate;
    mirror.time = {pair.created.year, pair.created.month,  pair.created.day,
                   pair.created.hour, pair.created.minute, pair.created.second};
    pair.advance();
    ++info->pair_count;
  }
  return 0;
}

int getSimplePairs(const UnitName* unit, const QVSessionInfo*, PairInfoSimple* info) {
  clear(info);
  for (const Pair& pair : partOf<CopyPairs>(unit).pairs) {
    info->pair[info->pair_count++] = {pair.primary, pair.secondary};
  }
  return 0;
}

int getCouplings(const UnitName* unit, const QVSessionInfo*, CouplingInfo* info) {
  const auto& all = partOf<CopyPairs>(unit);
  clear(info);
  for (const Pair& pair : all.pairs) {
    CouplingLU& coupling = info->coupling[info->coupling_num++];
    fillCommon(coupling, all, pair);
    coupling.primary_stat = pair.status;
    coupling.second_stat = pair.status;
    coupling.primary_lu = pair.primary;
    coupling.second_lu = pair.secondary;
    coupling.capacity_h = highWord(storageOf(unit).blocksOfLu(pair.primary));
    coupling.capacity_l = lowWord(storageOf(unit).blocksOfLu(pair.primary));
  }
  return 0;
}

/// A consistency group exists as long as it has a pair.
int getGroups(const UnitName* unit, const QVSessionInfo*, CTGInformation* info) {
  const auto& all = partOf<CopyPairs>(unit);
  clear(info);
  for (const Pair& pair : all.pairs) {
    if (pair.group != kNone) {
      CTGInfo& group = info->gmss_info[pair.group];
      group.ctg_valid = 1;
      group.ctg_copytype = pair.kind;
      group.ctg_no = pair.group;
      setText(group.ctg_name, all.groupNames.at(pair.group));
      group.pair_status_detail0 = pair.status;
    }
  }
  return 0;
}

}  // namespace

SIMULATE(3, QV_CreateGemlynPair, createGemlyn)
SIMULATE(3, QV_SplitGemlynPair, split<kGemlyn>)
SIMULATE(3, QV_SimpleGemlynPair, dissolve<kGemlyn>)
SIMULATE(3, QV_ResyncGemlynPair, resync<kGemlyn>)
SIMULATE(3, QV_RestoreGemlynPair, restore<kGemlyn>)
SIMULATE(3, QV_CreateSnapShotPair, createSnapShot)
SIMULATE(3, QV_SplitSnapShotPair, split<kSnapShot>)
SIMULATE(3, QV_SimpleSnapShotPair, dissolve<kSnapShot>)
SIMULATE(3, QV_ResyncSnapShotPair, resync<kSnapShot>)
SIMULATE(3, QV_RestoreSnapShotPair, restore<kSnapShot>)
SIMULATE(3, QV_CreateFarlinkPair)
SIMULATE(3, QV_SplitFarlinkPair)
SIMULATE(3, QV_SimpleFarlinkPair)
SIMULATE(3, QV_ResyncFarlinkPair)
SIMULATE(3, QV_SwapFarlinkPair)
SIMULATE(3, QV_CreateLonglinkPair)
SIMULATE(3, QV_SplitLonglinkPair)
SIMULATE(3, QV_SimpleLonglinkPair)
SIMULATE(3, QV_ResyncLonglinkPair)
SIMULATE(3, QV_SwapLonglinkPair)
SIMULATE(3, QV_ChangeReplicationPair)
SIMULATE(3, QV_GetPairInformation, getPairs)
SIMULATE(3, QV_GetPairInformationSimple, getSimplePairs)
SIMULATE(3, QV_GetFarlinkPairInformation)
SIMULATE(3, QV_GetFarlinkAsyncPairInformation)
SIMULATE(3, QV_GetFarlinkAsyncOption)
SIMULATE(3, QV_SetFarlinkAsyncOption)
SIMULATE(2, QV_GetZencopyInformation)
SIMULATE(2, QV_SplitZencopyPair)
SIMULATE(3, QV_GetCouplingInfo, getCouplings)
SIMULATE(3, QV_GetCTGInformation, getGroups)
SIMULATE(3, QV_ChangeReplicationCTG)
