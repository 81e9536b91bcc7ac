// Pools, virtual volumes, integrated LUs and the LU guard of a simulated unit.
//
// Of the ints that the library alone knows, the simulator takes those of a pool for the controller
// (2 for the pools of the whole array), the pool and the LU, those of a virtual volume for its LU
// number and the two words of its capacity, and those of the guard for the LU and the value.
#include <iterator>

#include "simulator/storage.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kOwnPools = 1;
constexpr std::int32_t kMostSharedPools = 64;
constexpr std::size_t kMostPoolLus = 64;

bool isPool(const PoolKey& key) {
  return key.first >= 0 && key.first <= kSharedPools && key.second >= 0 &&
         key.second < (key.first == kSharedPools ? kMostSharedPools : kOwnPools);
}

PoolDetailInfo describePool(const Storage& storage, const PoolKey& key) {
  PoolDetailInfo info{};
  info.pool_no = key.second;
  const auto found = storage.pools.find(key);
  if (found == storage.pools.end()) {
    return info;
  }
  Blocks all = 0;
  for (const std::int32_t lun : found->second.luns) {
    all += storage.lus.at(lun).blocks;
    info.lu[info.lu_count++] = lun;
  }
  info.pool_status = 1;
  info.allcapa_h = highWord(all);
  info.allcapa_l = lowWord(all);
  info.threshold = found->second.threshold;
  return info;
}

template <std::size_t N>
void describePools(const Storage& storage, std::int32_t controller, std::int32_t& enabled,
                   PoolDetailInfo (&pools)[N]) {
  for (std::size_t number = 0; number < N; ++number) {
    pools[number] = describePool(storage, {controller, static_cast<std::int32_t>(number)});
    enabled += pools[number].pool_status;
  }
}

int getPools(const UnitName* unit, const QVSessionInfo*, PoolInfo* info) {
  const Storage& storage = storageOf(unit);
  clear(info);
  for (std::int32_t controller = 0; controller < kSharedPools; ++controller) {
    PoolCtlInfo& own = info->ctl[controller];
    describePools(storage, controller, own.pool_enable_count, own.pool);
  }
  describePools(storage, kSharedPools, info->sys.pool_enable_count, info->sys.pool);
  return 0;
}

int changePool(const UnitName* unit, const QVSessionInfo*, const PoolChangeRequest* request) {
  auto& pools = storageOf(unit).pools;
  const auto found = pools.find({request->ctl_no, request->pool_no});
  if (found == pools.end()) {
    return kUnknownNumber;
  }
  found->second.threshold = request->threshold;
  return 0;
}

int addToPool(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t number, std::int32_t lun) {
  Storage& storage = storageOf(unit);
  if (!isPool({controller, number}) || !storage.hasLu(lun)) {
    return kUnknownNumber;
  }
  if (storage.isUsed(lun)) {
    return kInUse;
  }
  const auto found = storage.pools.find({controller, number});
  if (found != storage.pools.end() && found->second.luns.size() == kMostPoolLus) {
    return kNoCapacity;
  }
  storage.pools[{controller, number}].luns.push_back(lun);
  return 0;
}

int addListToPool(const UnitName* unit, const QVSessionInfo* session, std::int32_t controller,
                  std::int32_t number, const PoolLUListRequest* list) {
  Storage& storage = storageOf(unit);
  const auto before = storage.pools;
  const auto count = std::clamp(list->lu_count, 0, static_cast<std::int32_t>(kMostPoolLus));
  for (std::int32_t index = 0; index < count; ++index) {
    const int result = addToPool(unit, session, controller, number, list->lu[index]);
    if (result != 0) {
      storage.pools = before;
      return result;
    }
  }
  return 0;
}

int clearPool(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t number) {
  return storageOf(unit).pools.erase({controller, number}) == 0 ? kUnknownNumber : 0;
}

int createVolume(const UnitName* unit, const QVSessionInfo*, std::int32_t lun, std::int32_t high,
                 std::int32_t low) {
  Storage& storage = storageOf(unit);
  if (lun < 0 || lun >= kLogicalUnits) {
    return kUnknownNumber;
  }
  if (!storage.isNumberFree(lun)) {
    return kNumberTaken;
  }
  storage.volumes[lun] = blocksOf(high, low);
  return 0;
}

int createVolumeEx(const UnitName* unit, const QVSessionInfo* session,
                   const VvolDetailInformation* volume) {
  return createVolume(unit, session, volume->lun, volume->capacity_h, volume->capacity_l);
}

/// The second int is a mode.
int deleteVolume(const UnitName* unit, const QVSessionInfo*, std::int32_t lun, std::int32_t) {
  return storageOf(unit).volumes.erase(lun) == 0 ? kUnknownNumber : 0;
}

int getVolumes(const UnitName* unit, const QVSessionInfo*, VvolInformation* information) {
  clear(information);
  for (const auto& [lun, blocks] : storageOf(unit).volumes) {
    information->lu[information->vvol_count++] = {lun, 1, highWord(blocks), lowWord(blocks)};
  }
  return 0;
}

/// The codes of `unite_info`, and of `IntegrationRequest::operation`.
enum Part : std::int32_t { kAlone = 0, kParent = 1, kChild = 2 };
enum Operation : std::int32_t { kIntegrate = 0, kSeparate = 1 };

/// The capacity of an LU with its children.
Blocks unitedBlocks(const Storage& storage, std::int32_t lun) {
  Blocks blocks = storage.lus.at(lun).blocks;
  const auto found = storage.children.find(lun);
  if (found != storage.children.end()) {
    for (const std::int32_t child : found->second) {
      blocks += storage.lus.at(child).blocks;
    }
  }
  return blocks;
}

int getIntegrated(const UnitName* unit, IntegrationLUInfo* info) {
  const Storage& storage = storageOf(unit);
  clear(info);
  info->integration_lu = static_cast<std::int32_t>(storage.children.size());
  constexpr std::int32_t kListed = 512;
  for (const auto& [parent, children] : storage.children) {
    for (const std::int32_t child : children) {
      if (child < kListed) {
        info->unite_info[child].unite_info = kChild;
      }
    }
    if (parent < kListed) {
      UniteLU& united = info->unite_info[parent];
      united.unite_info = kParent;
      united.capacity = singleWord(unitedBlocks(storage, parent));
      united.child_lu_count = static_cast<std::int32_t>(children.size());
      std::copy(children.begin(), children.end(), united.child_lun);
    }
  }
  return 0;
}

int getIntegrated2(const UnitName* unit, const QVSessionInfo*, IntegrationLUInfo2* info) {
  const Storage& storage = storageOf(unit);
  clear(info);
  for (UniteLU2& united : info->unite_info) {
    united.next_lun = kNone;
  }
  for (const auto& [parent, children] : storage.children) {
    info->parent_lu[info->parent_count++] = parent;
    const Blocks blocks = unitedBlocks(storage, parent);
    UniteLU2* united = &info->unite_info[parent];
    *united = {kParent,
               0,
               singleWord(blocks),
               highWord(blocks),
               lowWord(blocks),
               static_cast<std::int32_t>(children.size()),
               kNone};
    for (const std::int32_t child : children) {
      united->next_lun = child;
      united = &info->unite_info[child];
      united->unite_info = kChild;
    }
  }
  info->integration_lu = info->parent_count;
  return 0;
}

int setIntegrated(const UnitName* unit, const QVSessionInfo*, const IntegrationRequest* request) {
  Storage& storage = storageOf(unit);
  if (request->operation == kSeparate) {
    return storage.children.erase(request->parent_lun) == 0 ? kUnknownNumber : 0;
  }
  const auto count =
      std::clamp(request->child_count, 0, static_cast<std::int32_t>(std::size(request->child_lu)));
  std::vector<std::int32_t> parts{request->parent_lun};
  for (std::int32_t index = 0; index < count; ++index) {
    const std::int32_t child = request->child_lu[index];
    if (std::find(parts.begin(), parts.end(), child) != parts.end()) {
      return kInUse;
    }
    parts.push_back(child);
  }
  for (const std::int32_t lun : parts) {
    if (!storage.hasLu(lun)) {
      return kUnknownNumber;
    }
    if (storage.isUsed(lun)) {
      return kInUse;
    }
  }
  storage.children[request->parent_lun] = {parts.begin() + 1, parts.end()};
  return 0;
}

int getGuards(const UnitName* unit, const QVSessionInfo*, LuGuardInformation* information) {
  const Storage& storage = storageOf(unit);
  clear(information);
  information->expirationlock = storage.expirationLock;
  for (const auto& [lun, lu] : storage.lus) {
    LuGuard& guard = information->lu[lun];
    guard = lu.guard;
    guard.lu_valid = 1;
    guard.capacity = singleWord(lu.blocks);
    guard.capacity_h = highWord(lu.blocks);
    guard.capacity_l = lowWord(lu.blocks);
    guard.access_level_valid = 1;
  }
  return 0;
}

int setAccessLevel(const UnitName* unit, const QVSessionInfo*,
                   const LuAccessLevelRequest* request) {
  return changeLu(unit, request->lu, [&](const Storage&, StoredLu& lu) -> int {
    if (lu.guard.retention_term > 0 && request->access_level != lu.guard.access_level) {
      return kInUse;
    }
    lu.guard.access_level = request->access_level;
    lu.guard.retention_term = request->retention_term;
    return 0;
  });
}

int setSvolDisable(const UnitName* unit, const QVSessionInfo*, std::int32_t lun,
                   std::int32_t mode) {
  return changeLu(unit, lun, [&](const Storage&, StoredLu& lu) {
    lu.guard.svol_disable = mode;
    return 0;
  });
}

/// A term only ever grows.
int extendRetention(const UnitName* unit, const QVSessionInfo*, std::int32_t lun,
                    std::int32_t term) {
  return changeLu(unit, lun, [&](const Storage&, StoredLu& lu) -> int {
    if (term <= lu.guard.retention_term) {
      return kInUse;
    }
    lu.guard.retention_term = term;
    return 0;
  });
}

int setExpirationLock(const UnitName* unit, const QVSessionInfo*, std::int32_t lock) {
  storageOf(unit).expirationLock = lock;
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetPoolInformation, getPools)
SIMULATE(3, QV_ChangePoolInformation, changePool)
SIMULATE(5, QV_PoolLUAdd, addToPool)
SIMULATE(5, QV_PoolLUAddList, addListToPool)
SIMULATE(4, QV_PoolLUAllDelete, clearPool)
SIMULATE(5, QV_CreateVVOL, createVolume)
SIMULATE(3, QV_CreateVVOLEx, createVolumeEx)
SIMULATE(4, QV_DeleteVVOL, deleteVolume)
SIMULATE(3, QV_GetVVOLInformation, getVolumes)
SIMULATE(2, QV_IntegrationLUInfo, getIntegrated)
SIMULATE(3, QV_IntegrationLUInfo2, getIntegrated2)
SIMULATE(3, QV_SetIntegrationLU, setIntegrated)
SIMULATE(3, QV_GetDMLU)
SIMULATE(3, QV_SetDMLU)
SIMULATE(3, QV_GetLuGuardInformation, getGuards)
SIMULATE(3, QV_SetLuAccessLevel, setAccessLevel)
SIMULATE(4, QV_SetSvolDisableMode, setSvolDisable)
SIMULATE(4, QV_ExtendRetentionTerm, extendRetention)
SIMULATE(3, QV_SetExpirationLock, setExpirationLock)
