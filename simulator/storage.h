#pragma once

#include <map>
#include <vector>

#include "arraylib/storage.h"
#include "simulator/codes.h"
#include "simulator/state.h"

// The RAID groups of a unit, the logical units (LUs) in them, and what is made of those.
namespace quorvelsim {

/// A contiguous part of a RAID group: an LU, or free.
struct Area {
  std::int32_t lun = kNone;
  Blocks blocks = 0;
};

/// A RAID group on drives of one enclosure.
struct Group {
  std::int32_t level = 0;
  std::int32_t parityDrives = 0;  // the drives of each parity group
  std::int32_t parityGroups = 0;
  std::vector<CreateRgDrive> drives;
  std::vector<Area> areas;

  [[nodiscard]] Blocks driveBlocks() const;
  [[nodiscard]] Blocks total() const;
  [[nodiscard]] Blocks rest() const;
  [[nodiscard]] Blocks largestRest() const;
  [[nodiscard]] std::int32_t luCount() const;
  /// Gives an LU the first free area that is large enough. False where there is none.
  bool take(std::int32_t lun, Blocks blocks);
  void release(std::int32_t lun);
};

struct StoredLu {
  LogicalUnit record{};
  Blocks blocks = 0;
};

/// Formats of LUs. They run one after another, and each question takes the first a step further.
class Formats {
 public:
  static constexpr std::int32_t kDone = 100;
  enum Status : std::int32_t { kNothing, kWaiting, kRunning, kFinished };

  void enter(std::int32_t lun);
  void remove(std::int32_t lun);
  void advance();

  [[nodiscard]] std::int32_t percent(std::int32_t lun) const;
  /// How many formats run before that of an LU.
  [[nodiscard]] std::int32_t waitingNumber(std::int32_t lun) const;
  [[nodiscard]] Status status(std::int32_t lun) const;

 private:
  std::map<std::int32_t, std::int32_t> percent_;
  std::vector<std::int32_t> queue_;
};

struct Storage {
  std::map<std::int32_t, Group> groups;
  std::map<std::int32_t, StoredLu> lus;
  Formats formats;
  Formats quickFormats;
  /// The LUs of each pool.
  std::map<std::int32_t, std::vector<std::int32_t>> pools;
  /// The virtual volumes and their capacities.
  std::map<std::int32_t, Blocks> volumes;
  /// The children of each integrated LU.
  std::map<std::int32_t, std::vector<std::int32_t>> children;
  std::int32_t expirationLock = 0;

  /// Whether a drive belongs to a RAID group.
  [[nodiscard]] bool isUsed(const CreateRgDrive& drive) const;
  [[nodiscard]] bool hasLu(std::int32_t lun) const { return lus.contains(lun); }
  [[nodiscard]] bool isNumberFree(std::int32_t lun) const;
  /// Whether a pool or an integrated LU contains an LU.
  [[nodiscard]] bool isUsed(std::int32_t lun) const;
  /// The capacity of an LU, 0 where it does not exist.
  [[nodiscard]] Blocks blocksOfLu(std::int32_t lun) const;
  [[nodiscard]] Blocks blocksOfPool(std::int32_t pool) const;
  int deleteLu(std::int32_t lun);
};

inline Storage& storageOf(const UnitName* unit) { return partOf<Storage>(unit); }

}  // namespace quorvelsim
