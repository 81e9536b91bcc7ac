// Pools, virtual volumes, integrated LUs and the LU guard.
//
// Where the library alone knows what an int means, the simulator takes those of a pool for the
// controller (2 for the pools of the whole array), the pool and the LU. The pools of single
// controllers stay empty.
#include "simulator/simulate.h"
#include "simulator/storage.h"

using namespace quorvelsim;

Blocks Storage::blocksOfPool(std::int32_t pool) const {
  Blocks blocks = 0;
  for (const std::int32_t lun : pools.at(pool)) {
    blocks += blocksOfLu(lun);
  }
  return blocks;
}

namespace {

constexpr std::int32_t kWholeArray = 2;
constexpr std::int32_t kThreshold = 70;

int getPools(const UnitName* unit, const QVSessionInfo*, PoolInfo* info) {
  const Storage& storage = storageOf(unit);
  clear(info);
  for (std::int32_t number = 0; number < kPools; ++number) {
    info->sys.pool[number].pool_no = number;
  }
  for (const auto& [number, luns] : storage.pools) {
    PoolDetailInfo& pool = info->sys.pool[number];
    pool.pool_status = 1;
    pool.allcapa_h = highWord(storage.blocksOfPool(number));
    pool.allcapa_l = lowWord(storage.blocksOfPool(number));
    pool.threshold = kThreshold;
    pool.lu_count = static_cast<std::int32_t>(luns.size());
    std::copy(luns.begin(), luns.end(), pool.lu);
    ++info->sys.pool_enable_count;
  }
  return 0;
}

int addToPool(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t number, std::int32_t lun) {
  Storage& storage = storageOf(unit);
  if (controller != kWholeArray || number < 0 || number >= kPools || !storage.hasLu(lun)) {
    return kUnknownNumber;
  }
  if (storage.isUsed(lun)) {
    return kInUse;
  }
  const auto found = storage.pools.find(number);
  if (found != storage.pools.end() && found->second.size() == kPoolLus) {
    return kNoCapacity;
  }
  storage.pools[number].push_back(lun);
  return 0;
}

int clearPool(const UnitName* unit, const QVSessionInfo*, std::int32_t controller,
              std::int32_t number) {
  const bool cleared = controller == kWholeArray && storageOf(unit).pools.erase(number) > 0;
  return cleared ? 0 : int{kUnknownNumber};
}

int createVolume(const UnitName* unit, const QVSessionInfo*, const VvolDetailInformation* volume) {
  Storage& storage = storageOf(unit);
  if (volume->lun < 0 || volume->lun >= kLogicalUnits) {
    return kUnknownNumber;
  }
  if (!storage.isNumberFree(volume->lun)) {
    return kNumberTaken;
  }
  storage.volumes[volume->lun] = blocksOf(volume->capacity_h, volume->capacity_l);
  return 0;
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
enum Role : std::int32_t { kParent = 1, kChild = 2 };
enum Operation : std::int32_t { kIntegrate = 0, kSeparate = 1 };

/// The capacity of an integrated LU: its own and that of its children.
Blocks unitedBlocks(const Storage& storage, std::int32_t parent) {
  Blocks blocks = storage.blocksOfLu(parent);
  for (const std::int32_t child : storage.children.at(parent)) {
    blocks += storage.blocksOfLu(child);
  }
  return blocks;
}

/// The short form lists the LUs below 512.
int getIntegrated(const UnitName* unit, IntegrationLUInfo* info) {
  const Storage& storage = storageOf(unit);
  clear(info);
  const auto listed = static_cast<std::int32_t>(std::size(info->unite_info));
  for (const auto& [parent, children] : storage.children) {
    ++info->integration_lu;
    for (const std::int32_t child : children) {
      if (child < listed) {
        info->unite_info[child].unite_info = kChild;
      }
    }
    if (parent < listed) {
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
  std::vector<std::int32_t> united{request->parent_lun};
  united.insert(united.end(), request->child_lu, request->child_lu + count);
  for (auto lun = united.begin(); lun != united.end(); ++lun) {
    if (!storage.hasLu(*lun)) {
      return kUnknownNumber;
    }
    if (storage.isUsed(*lun) || std::find(united.begin(), lun, *lun) != lun) {
      return kInUse;
    }
  }
  storage.children[request->parent_lun] = {united.begin() + 1, united.end()};
  return 0;
}

int getGuards(const UnitName* unit, const QVSessionInfo*, LuGuardInformation* information) {
  const Storage& storage = storageOf(unit);
  clear(information);
  information->expirationlock = storage.expirationLock;
  for (const auto& [lun, lu] : storage.lus) {
    LuGuard& guard = information->lu[lun];
    guard.lu_valid = 1;
    guard.capacity = singleWord(lu.blocks);
    guard.capacity_h = highWord(lu.blocks);
    guard.capacity_l = lowWord(lu.blocks);
    guard.access_level_valid = 1;
  }
  return 0;
}

int setExpirationLock(const UnitName* unit, const QVSessionInfo*, std::int32_t lock) {
  storageOf(unit).expirationLock = lock;
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetPoolInformation, getPools)
SIMULATE(3, QV_ChangePoolInformation)
SIMULATE(5, QV_PoolLUAdd, addToPool)
SIMULATE(5, QV_PoolLUAddList)
SIMULATE(4, QV_PoolLUAllDelete, clearPool)
SIMULATE(5, QV_CreateVVOL)
SIMULATE(3, QV_CreateVVOLEx, createVolume)
SIMULATE(4, QV_DeleteVVOL, deleteVolume)
SIMULATE(3, QV_GetVVOLInformation, getVolumes)
SIMULATE(2, QV_IntegrationLUInfo, getIntegrated)
SIMULATE(3, QV_IntegrationLUInfo2, getIntegrated2)
SIMULATE(3, QV_SetIntegrationLU, setIntegrated)
SIMULATE(3, QV_GetDMLU)
SIMULATE(3, QV_SetDMLU)
SIMULATE(3, QV_GetLuGuardInformation, getGuards)
SIMULATE(3, QV_SetLuAccessLevel)
SIMULATE(4, QV_SetSvolDisableMode)
SIMULATE(4, QV_ExtendRetentionTerm)
SIMULATE(3, QV_SetExpirationLock, setExpirationLock)
SIMULATE(3, QV_GetTurboLU)
SIMULATE(3, QV_SetTurboLU)
