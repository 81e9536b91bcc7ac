// Moving logical units inside an array, and whole arrays.
#include <algorithm>
#include <cstring>
#include <iterator>
#include <set>

#include "arraylib/replication.h"
#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

enum MigrationState : std::int32_t { kIdle, kReserved = 1, kMigrating = 2, kMigrated = 3 };

constexpr std::int32_t kWhole = 100;
/// Percent that are copied between two readings at the slowest pace; each step faster adds as many.
constexpr std::int32_t kProgress = 25;
constexpr std::int32_t kFastestPace = 3;
constexpr std::int32_t kNoOwner = -1;

/// Where a copy of this pace is at the next reading.
std::int32_t advanced(std::int32_t percent, std::int32_t pace) {
  return std::min(kWhole, percent + kProgress * (1 + std::clamp(pace, 0, kFastestPace)));
}

struct Migration {
  std::set<std::int32_t> reserved;
  std::vector<LuMigrationPairInfo> pairs;
  AutoMigrationInformation automatic{};

  auto find(const LuMigrationRequestPairInfo& requested) {
    return std::find_if(pairs.begin(), pairs.end(), [&](const LuMigrationPairInfo& pair) {
      return pair.pvol_lun == requested.pvol_lun && pair.svol_lun == requested.svol_lun;
    });
  }
};

Migration& migrationOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<Migration>(); }

// Reserving

int reserve(const UnitName* unit, const QVSessionInfo*, const LuMigrationReserve* given) {
  std::set<std::int32_t> reserved = migrationOf(unit).reserved;
  for (std::size_t lun = 0; lun < std::size(given->reserve_lu); ++lun) {
    if (given->reserve_lu[lun] != std::byte{0}) {
      reserved.insert(static_cast<std::int32_t>(lun));
    }
  }
  if (reserved.size() > std::extent_v<decltype(LuMigrationInformation::reserve_lu)>) {
    return kTooManyPairs;
  }
  migrationOf(unit).reserved = reserved;
  return 0;
}

int takeBack(const UnitName* unit, const QVSessionInfo*, const LuMigrationReserve* given) {
  Migration& migration = migrationOf(unit);
  for (const LuMigrationPairInfo& pair : migration.pairs) {
    if (given->reserve_lu[pair.svol_lun] != std::byte{0}) {
      return kLuInUse;
    }
  }
  std::erase_if(migration.reserved,
                [&](std::int32_t lun) { return given->reserve_lu[lun] != std::byte{0}; });
  return 0;
}

// Migrating

/// Does `work` to each pair that is requested, up to the first that is refused.
template <class Work>
int each(const LuMigrationRequest* request, Work work) {
  const auto room = static_cast<std::int32_t>(std::size(request->lu));
  for (std::int32_t index = 0; index < std::min(request->request_pair_count, room); ++index) {
    const int result = work(request->lu[index]);
    if (result != 0) {
      return result;
    }
  }
  return 0;
}

int start(const UnitName* unit, const QVSessionInfo*, const LuMigrationRequest* request) {
  Migration& migration = migrationOf(unit);
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

int changePace(const UnitName* unit, const QVSessionInfo*, const LuMigrationRequest* request) {
  Migration& migration = migrationOf(unit);
  return each(request, [&](const LuMigrationRequestPairInfo& requested) -> int {
    const auto pair = migration.find(requested);
    if (pair == migration.pairs.end()) {
      return kUnknownMigration;
    }
    pair->copying_pace = requested.copying_pace;
    return 0;
  });
}

/// Ends migrations that are in `state`.
template <MigrationState state>
int end(const UnitName* unit, const QVSessionInfo*, const LuMigrationRequest* request) {
  Migration& migration = migrationOf(unit);
  return each(request, [&](const LuMigrationRequestPairInfo& requested) -> int {
    const auto pair = migration.find(requested);
    if (pair == migration.pairs.end()) {
      return kUnknownMigration;
    }
    if (pair->migration_state != state) {
      return kWrongPairState;
    }
    migration.pairs.erase(pair);
    return 0;
  });
}

/// Leaves the migrations in the list, without an owner.
int splitFreeOwner(const UnitName* unit, const QVSessionInfo*, const LuMigrationRequest* request) {
  Migration& migration = migrationOf(unit);
  return each(request, [&](const LuMigrationRequestPairInfo& requested) -> int {
    const auto pair = migration.find(requested);
    if (pair == migration.pairs.end()) {
      return kUnknownMigration;
    }
    pair->owner_id = kNoOwner;
    return 0;
  });
}

int getState(const UnitName* unit, const QVSessionInfo*, LuMigrationState* state) {
  const Migration& migration = migrationOf(unit);
  *state = {};
  for (const std::int32_t lun : migration.reserved) {
    state->lun[lun] = kReserved;
  }
  for (const LuMigrationPairInfo& pair : migration.pairs) {
    for (const std::int32_t lun : {pair.pvol_lun, pair.svol_lun}) {
      if (lun >= 0 && lun < static_cast<std::int32_t>(std::size(state->lun))) {
        state->lun[lun] = pair.migration_state;
      }
    }
  }
  return 0;
}

int getInformation(const UnitName* unit, const QVSessionInfo*, LuMigrationInformation* info) {
  Migration& migration = migrationOf(unit);
  std::memset(info, 0, sizeof *info);
  for (const std::int32_t lun : migration.reserved) {
    info->reserve_lu[info->reserve_lu_count++] = {lun, kReserved};
  }
  for (LuMigrationPairInfo& pair : migration.pairs) {
    info->pair_lu[info->pair_lu_count++] = pair;
    pair.percent = advanced(pair.percent, pair.copying_pace);
    pair.migration_state = pair.percent == kWhole ? kMigrated : kMigrating;
  }
  return 0;
}

// Migrating the whole array

int startAutomatic(const UnitName* unit, const QVSessionInfo*, const AutoMigrationPace* pace) {
  AutoMigrationInformation& automatic = migrationOf(unit).automatic;
  if (automatic.state != kIdle) {
    return kWrongPairState;
  }
  automatic.state = kMigrating;
  automatic.copy_speed = pace->copy_speed;
  automatic.usable_status = 1;
  return 0;
}

int changeAutomaticPace(const UnitName* unit, const QVSessionInfo*, const AutoMigrationPace* pace) {
  AutoMigrationInformation& automatic = migrationOf(unit).automatic;
  if (automatic.state != kMigrating) {
    return kWrongPairState;
  }
  automatic.copy_speed = pace->copy_speed;
  return 0;
}

int deleteAutomaticData(const UnitName* unit, const QVSessionInfo*) {
  AutoMigrationInformation& automatic = migrationOf(unit).automatic;
  if (automatic.state != kMigrated) {
    return kWrongPairState;
  }
  automatic.delete_percent = kWhole;
  automatic.state = kIdle;
  return 0;
}

int resetUsableStatus(const UnitName* unit, const QVSessionInfo*) {
  migrationOf(unit).automatic.usable_status = 0;
  return 0;
}

int getAutomatic(const UnitName* unit, const QVSessionInfo*, AutoMigrationInformation* info) {
  AutoMigrationInformation& automatic = migrationOf(unit).automatic;
  *info = automatic;
  if (automatic.state == kMigrating) {
    automatic.copy_percent = advanced(automatic.copy_percent, automatic.copy_speed);
    automatic.state = automatic.copy_percent == kWhole ? kMigrated : kMigrating;
  }
  return 0;
}

}  // namespace

SIMULATE(3, QV_AddLuMigrationReserveLU, reserve)
SIMULATE(3, QV_DeleteLuMigrationReserveLU, takeBack)
SIMULATE(3, QV_StartLuMigration, start)
SIMULATE(3, QV_CancelLuMigration, end<kMigrating>)
SIMULATE(3, QV_SplitLuMigration, end<kMigrated>)
SIMULATE(3, QV_SplitLuMigrationFreeOwner, splitFreeOwner)
SIMULATE(3, QV_ChangeCopyPace, changePace)
SIMULATE(3, QV_GetLuMigrationState, getState)
SIMULATE(3, QV_GetLuMigrationInformation, getInformation)
SIMULATE(3, QV_GetAutoMigrationInformation, getAutomatic)
SIMULATE(3, QV_StartAutoMigration, startAutomatic)
SIMULATE(3, QV_ChangeAutoMigrationCopyPace, changeAutomaticPace)
SIMULATE(3, QV_ChangeAutoMigrationAccessPath)
SIMULATE(2, QV_DeleteAutoMigrationData, deleteAutomaticData)
SIMULATE(2, QV_ResetAutoMigrationUsableStatus, resetUsableStatus)
SIMULATE(2, QV_RebootAutoMigrationUnit)
SIMULATE(2, QV_ShutdownAutoMigrationUnit)
