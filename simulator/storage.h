#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <map>
#include <utility>
#include <vector>

#include "arraylib/storage.h"
#include "simulator/simulator.h"

// What the simulator keeps of a unit's RAID groups, and of the logical units (LUs) in them.
//
// A capacity is in blocks of 512 bytes; where a single word holds one, the largest that fits.
namespace quorvelsim {

using Blocks = std::uint64_t;

inline constexpr std::int32_t kNone = -1;
inline constexpr std::int32_t kRaidGroups = 90;
inline constexpr std::int32_t kLogicalUnits = 8192;

/// The drives of a unit: all alike, and all of them there.
inline constexpr std::int32_t kEnclosures = 8;
inline constexpr std::int32_t kSlots = 15;
inline constexpr Blocks kDriveBlocks = 1'953'525'168;

inline std::int32_t highWord(Blocks blocks) { return static_cast<std::int32_t>(blocks >> 32); }
inline std::int32_t lowWord(Blocks blocks) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(blocks));
}
inline std::int32_t singleWord(Blocks blocks) {
  return static_cast<std::int32_t>(
      std::min<Blocks>(blocks, std::numeric_limits<std::int32_t>::max()));
}
inline Blocks blocksOf(std::int32_t high, std::int32_t low) {
  return Blocks{static_cast<std::uint32_t>(high)} << 32 | static_cast<std::uint32_t>(low);
}

/// A stretch of a RAID group; free where it has no LU.
struct Area {
  std::int32_t lun = kNone;
  Blocks blocks = 0;
};

struct Group {
  std::int32_t level = 0;
  std::int32_t parityDrives = 0;  // drives in a parity group
  std::int32_t parityGroups = 0;
  std::vector<CreateRgDrive> drives;
  std::vector<Area> areas;

  [[nodiscard]] Blocks total() const;
  [[nodiscard]] Blocks rest() const;
  [[nodiscard]] Blocks largestRest() const;
  [[nodiscard]] std::int32_t luCount() const;
  /// The LU before the first area of another, or none.
  [[nodiscard]] std::int32_t luBefore(std::int32_t lun) const;
  /// Gives an LU free capacity: the first area that is large enough, or of those behind the LUs of
  /// a list as much as it takes. False, and nothing changed, where there is not as much.
  bool take(std::int32_t lun, Blocks blocks, const std::vector<std::int32_t>& behind = {});
  void release(std::int32_t lun);
  void addFree(Blocks blocks);
};

struct StoredLu {
  LogicalUnit record{};
  LuGuard guard{};
  Blocks blocks = 0;
};

/// Work on LUs that gets on with each question after it.
class Jobs {
 public:
  enum Status : std::int32_t { kNothing, kWaiting, kRunning, kFinished };

  void enter(std::int32_t lun);
  void remove(std::int32_t lun);
  /// Gets on with one LU, with the first that waits, or with all.
  void advance(std::int32_t lun);
  void advanceFirst();
  void advanceAll();
  void finish(std::int32_t lun);

  [[nodiscard]] bool entered(std::int32_t lun) const { return percent_.contains(lun); }
  [[nodiscard]] bool idle() const { return queue_.empty(); }
  [[nodiscard]] std::int32_t percent(std::int32_t lun) const;
  /// The percentage of all that were entered.
  [[nodiscard]] std::int32_t totalPercent() const;
  [[nodiscard]] Status status(std::int32_t lun) const;
  /// How many are before an LU, 0 for what runs.
  [[nodiscard]] std::int32_t waitingNumber(std::int32_t lun) const;
  /// How many questions it takes until all are finished.
  [[nodiscard]] std::int32_t questionsLeft() const;

 private:
  std::map<std::int32_t, std::int32_t> percent_;
  std::vector<std::int32_t> queue_;
};

struct Pool {
  std::int32_t threshold = 70;
  std::vector<std::int32_t> luns;
};

/// The controller, or `kSharedPools`, and the number of a pool.
using PoolKey = std::pair<std::int32_t, std::int32_t>;
inline constexpr std::int32_t kSharedPools = 2;

struct Storage {
  std::map<std::int32_t, Group> groups;
  std::map<std::int32_t, StoredLu> lus;
  Jobs formats;
  Jobs quickFormats;
  Jobs corrections;
  std::map<PoolKey, Pool> pools;
  std::map<std::int32_t, Blocks> volumes;
  /// The children of each integrated LU.
  std::map<std::int32_t, std::vector<std::int32_t>> children;
  std::int32_t expirationLock = 0;

  [[nodiscard]] bool hasLu(std::int32_t lun) const { return lus.contains(lun); }
  [[nodiscard]] bool isNumberFree(std::int32_t lun) const;
  /// Whether a pool or an integrated LU needs an LU.
  [[nodiscard]] bool isUsed(std::int32_t lun) const;
  int addLu(const LogicalUnit& record, Blocks blocks, const std::vector<std::int32_t>& behind = {});
  int deleteLu(std::int32_t lun);
};

inline Storage& storageOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<Storage>(); }

/// Zeroes an output in place: records may be too large for the stack.
template <class Record>
void clear(Record* record) {
  std::memset(record, 0, sizeof *record);
}

/// Runs a change of an LU that must exist.
template <class Change>
int changeLu(const UnitName* unit, std::int32_t lun, Change change) {
  Storage& storage = storageOf(unit);
  const auto found = storage.lus.find(lun);
  return found == storage.lus.end() ? kUnknownNumber : change(storage, found->second);
}

}  // namespace quorvelsim
