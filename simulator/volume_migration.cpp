// Moving logical units inside an array. Moving a whole array has no behaviour.
#include <set>
#include <vector>

#include "arraylib/replication.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

enum MigrationState : std::int32_t { kReserved = 1, kMigrating = 2, kMigrated = 3 };

constexpr std::int32_t kWhole = 100;

struct Migration {
  std::set<std::int32_t> reserved;
  std::vector<LuMigrationPairInfo> pairs;
};

int reserve(const UnitName* unit, const QVSessionInfo*, const LuMigrationReserve* given) {
  std::set<std::int32_t> reserved = partOf<Migration>(unit).reserved;
  for (std::int32_t lun = 0; lun < kLogicalUnits; ++lun) {
    if (given->reserve_lu[lun] != std::byte{0}) {
      reserved.insert(lun);
    }
  }
  if (reserved.size() > kMigrations) {
    return kTooManyPairs;
  }
  partOf<Migration>(unit).reserved = reserved;
  return 0;
}

int release(const UnitName* unit, const QVSessionInfo*, const LuMigrationReserve* given) {
  auto& migration = partOf<Migration>(unit);
  for (const LuMigrationPairInfo& pair : migration.pairs) {
    if (given->reserve_lu[pair.svol_lun] != std::byte{0}) {
      return kLuInUse;
    }
  }
  std::erase_if(migration.reserved,
                [&](std::int32_t lun) { return given->reserve_lu[lun] != std::byte{0}; });
  return 0;
}

/// Does `work` to each pair that is requested, up to the first that is refused.
template <class Work>
int each(const LuMigrationRequest* request, Work work) {
  int result = 0;
  for (std::int32_t index = 0;
       index < std::min(request->request_pair_count, kMigrations) && result == 0; ++index) {
    result = work(request->lu[index]);
  }
  return result;
}

int start(const UnitName* unit, const QVSessionInfo*, const LuMigrationRequest* request) {
  auto& migration = partOf<Migration>(unit);
  return each(request, [&](const LuMigrationRequestPairInfo& requested) -> int {
    if (!migration.reserved.contains(requested.svol_lun)) {
      return kNotReserved;
    }
    for (const LuMigrationPairInfo& pair : migration.pairs) {
      if (pair.svol_lun == requested.svol_lun || pair.pvol_lun == requested.pvol_lun) {
        return kLuInUse;
      }
    }
    LuMigrationPairInfo pair{};
    pair.pvol_lun = requested.pvol_lun;
    pair.svol_lun = requested.svol_lun;
    pair.copying_pace = requested.copying_pace;
    pair.owner_id = request->owner_id;
    pair.migration_state = kMigrating;
    migration.pairs.push_back(pair);
    return 0;
  });
}

/// Ends migrations that are in `state`.
template <MigrationState state>
int end(const UnitName* unit, const QVSessionInfo*, const LuMigrationRequest* request) {
  std::vector<LuMigrationPairInfo>& pairs = partOf<Migration>(unit).pairs;
  return each(request, [&](const LuMigrationRequestPairInfo& requested) -> int {
    for (auto pair = pairs.begin(); pair != pairs.end(); ++pair) {
      if (pair->pvol_lun == requested.pvol_lun && pair->svol_lun == requested.svol_lun) {
        if (pair->migration_state != state) {
          return kWrongPairState;
        }
        pairs.erase(pair);
        return 0;
      }
    }
    return kUnknownMigration;
  });
}

int getState(const UnitName* unit, const QVSessionInfo*, LuMigrationState* state) {
  const auto& migration = partOf<Migration>(unit);
  clear(state);
  for (const std::int32_t lun : migration.reserved) {
    state->lun[lun] = kReserved;
  }
  for (const LuMigrationPairInfo& pair : migration.pairs) {
    for (const std::int32_t lun : {pair.pvol_lun, pair.svol_lun}) {
      if (lun >= 0 && lun < kLogicalUnits) {
        state->lun[lun] = pair.migration_state;
      }
    }
  }
  return 0;
}

/// Each question copies a quarter more.
int getInformation(const UnitName* unit, const QVSessionInfo*, LuMigrationInformation* info) {
  auto& migration = partOf<Migration>(unit);
  clear(info);
  for (const std::int32_t lun : migration.reserved) {
    info->reserve_lu[info->reserve_lu_count++] = {lun, kReserved};
  }
  for (LuMigrationPairInfo& pair : migration.pairs) {
    info->pair_lu[info->pair_lu_count++] = pair;
    pair.percent = std::min(pair.percent + 25, kWhole);
    pair.migration_state = pair.percent == kWhole ? kMigrated : kMigrating;
  }
  return 0;
}

}  // namespace

SIMULATE(3, QV_AddLuMigrationReserveLU, reserve)
SIMULATE(3, QV_DeleteLuMigrationReserveLU, release)
SIMULATE(3, QV_StartLuMigration, start)
SIMULATE(3, QV_CancelLuMigration, end<kMigrating>)
SIMULATE(3, QV_SplitLuMigration, end<kMigrated>)
SIMULATE(3, QV_SplitLuMigrationFreeOwner)
SIMULATE(3, QV_ChangeCopyPace)
SIMULATE(3, QV_GetLuMigrationState, getState)
SIMULATE(3, QV_GetLuMigrationInformation, getInformation)
SIMULATE(3, QV_GetAutoMigrationInformation)
SIMULATE(3, QV_StartAutoMigration)
SIMULATE(3, QV_ChangeAutoMigrationCopyPace)
SIMULATE(3, QV_ChangeAutoMigrationAccessPath)
SIMULATE(2, QV_DeleteAutoMigrationData)
SIMULATE(2, QV_ResetAutoMigrationUsableStatus)
SIMULATE(2, QV_RebootAutoMigrationUnit)
SIMULATE(2, QV_ShutdownAutoMigrationUnit)
