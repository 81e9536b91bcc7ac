// Counters that grow from snapshot to snapshot, files of them, and statistics.
#include "arraylib/performance.h"

#include <fstream>
#include <sstream>

#include "simulator/simulate.h"
#include "simulator/storage.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kMostFiles = 2880;
constexpr std::int32_t kFirstYear = 110;  // since 1900

struct Performance {
  /// The intervals so far. Nothing counts while the statistics are off.
  std::int32_t intervals = 0;
  std::int32_t statistics = 1;
  Threshold threshold{20, 20, 50, 50, 50, 50, 20, 20, 20, 20, 20, 20, 100, 100};
};

template <class Record>
void markInUse(Record& record) {
  record.valid = 1;
  record.support = 1;
}

/// The commands to an LU in one interval, which go through its current controller. A few LUs are
/// far busier than the others.
std::int32_t loadOf(const LogicalUnit& lu, std::int32_t controller) {
  const std::int32_t lun = lu.luNumber;
  return lu.currentCTL == controller ? 40 + lun * 7 % 24 * (lun % 5 == 3 ? 60 : 3) : 0;
}

void count(CommandAll_Info& info, std::int32_t commands) {
  markInUse(info);
  info.read_count = commands * 3;
  info.write_count = commands;
  info.read_cache = commands * 2;
  info.write_cache = commands;
  info.read_size = commands * 24;
  info.write_size = commands * 8;
}

void count(LuEx_CommandInfo& info, std::int32_t commands) {
  markInUse(info);
  info.command_count = commands;
  info.command_total_time_l = commands * 12;
  info.command_max_time_l = commands == 0 ? 0 : 900;
  info.delay_command_count_upto300 = commands / 100;
}

void count(LuEx_Info& info, std::int32_t commands) {
  markInUse(info);
  count(info.read_hit, commands * 2);
  count(info.write_hit, commands);
  count(info.read_miss, commands);
  count(info.write_miss, 0);
  count(info.read_job, commands);
  count(info.write_job, commands);
  info.total_tag_count = commands * 2;
  info.total_tag_set_count = commands;
}

/// Each interval is a minute, from midnight of a fixed day on.
QVTime timeOf(std::int32_t intervals) {
  QVTime time{};
  time.tm_min = intervals % 60;
  time.tm_hour = intervals / 60 % 24;
  time.tm_mday = 1 + intervals / 1440 % 28;
  time.tm_year = kFirstYear;
  return time;
}

void countCache(PerformanceAll& all, std::int32_t commands) {
  all.all_cache_size = kCacheSize;
  all.used_cache_size = commands % kCacheSize;
  all.used_cache_size_l = all.used_cache_size;
  markInUse(all.cachePartition[0]);
  all.cachePartition[0].partition_valid = 1;
  all.cachePartition[0].partition_cache_size = all.all_cache_size;
  all.cachePartition[0].used_cache_size = all.used_cache_size;
  markInUse(all.cachebus);
  all.cachebus.cachebus_used_time = commands / 2;
}

/// Spreads the commands to an LU over the drives of its RAID group.
void countDrives(PerformanceAll& all, const Group& group, std::int32_t commands) {
  for (const CreateRgDrive& place : group.drives) {
    DriveAll_Info& drive = all.drive[place.unit_no][place.hdu_no];
    drive.total_tag_count_l += commands;
    count(drive.drive_info,
          drive.total_tag_count_l / static_cast<std::int32_t>(group.drives.size()));
  }
}

void countAll(const Storage& storage, PerformanceAll& all, std::int32_t controller,
              std::int32_t intervals) {
  clear(&all);
  markInUse(all);
  for (std::int32_t enclosure = 0; enclosure < kMountedEnclosures; ++enclosure) {
    for (std::int32_t slot = 0; slot < kMounted[enclosure].drives; ++slot) {
      markInUse(all.drive[enclosure][slot]);
    }
  }
  std::int32_t commands = 0;
  for (const auto& [number, group] : storage.groups) {
    std::int32_t ofGroup = 0;
    for (const auto& [lun, lu] : storage.lus) {
      if (lu.record.rgNumber == number) {
        const std::int32_t load = loadOf(lu.record, controller) * intervals;
        count(all.lu[lun], load);
        count(all.lu_ex[lun], load);
        countDrives(all, group, load);
        ofGroup += load;
      }
    }
    count(all.rg[number], ofGroup);
    commands += ofGroup;
  }
  for (auto& port : all.port) {
    count(port, commands / kPorts);
  }
  for (std::int32_t path = 0; path < kBackendPaths; ++path) {
    count(all.backend[path], commands / kBackendPaths);
  }
  countCache(all, commands);
  for (ProcessorAll_Info* const processor : {&all.processor, &all.processor_core[0]}) {
    markInUse(*processor);
    processor->all_opr_time_l = commands / 3;
    processor->monitoring_time_l = intervals * 60;
  }
  all.update_count = intervals;
  all.mtime = timeOf(intervals);
}

/// The short form has the LUs below 4,096.
void countCommands(const Storage& storage, StatisticalCommand& commands, std::int32_t controller,
                   std::int32_t intervals) {
  clear(&commands);
  for (const auto& [lun, lu] : storage.lus) {
    if (lun < static_cast<std::int32_t>(std::size(commands.lu))) {
      const std::int32_t load = loadOf(lu.record, controller) * intervals;
      commands.lu[lun] = {load * 3, load, load * 2, load};
    }
  }
  commands.mtime = timeOf(intervals);
}

/// Takes a new snapshot of both controllers. A record for which there was no memory is null.
template <class Record>
int takeSnapshot(const UnitName* unit,
                 void (*fill)(const Storage&, Record&, std::int32_t, std::int32_t),
                 Record* controller0, Record* controller1) {
  auto& performance = partOf<Performance>(unit);
  performance.intervals += performance.statistics != 0 ? 1 : 0;
  std::int32_t controller = 0;
  for (Record* const record : {controller0, controller1}) {
    if (record != nullptr) {
      fill(storageOf(unit), *record, controller, performance.intervals);
    }
    ++controller;
  }
  return 0;
}

int getPerformance(const UnitName* unit, const QVSessionInfo*, StatisticalCommand* controller0,
                   StatisticalCommand* controller1) {
  return takeSnapshot(unit, countCommands, controller0, controller1);
}

int getPerformanceAll(const UnitName* unit, const QVSessionInfo*, std::int32_t,
                      PerformanceAll* controller0, PerformanceAll* controller1) {
  return takeSnapshot(unit, countAll, controller0, controller1);
}

int writeFile(const std::string& path, const std::string& text,
              std::ios::openmode mode = std::ios::out) {
  std::ofstream file(path, mode);
  file << text;
  return file.flush() ? 0 : int{kFileFailed};
}

/// The increase of a counter between two snapshots. The counter may have wrapped around.
std::uint32_t between(std::int32_t before, std::int32_t after) {
  return static_cast<std::uint32_t>(after) - static_cast<std::uint32_t>(before);
}

/// Writes a line for each of the selected LUs that was busy.
void writeDifferences(std::ostream& lines, std::int32_t controller,
                      const StatisticalCommand& before, const StatisticalCommand& after,
                      const LuSelection* selected) {
  for (std::size_t lun = 0; lun < std::size(before.lu); ++lun) {
    const std::uint32_t reads = between(before.lu[lun].read_count, after.lu[lun].read_count);
    const std::uint32_t writes = between(before.lu[lun].write_count, after.lu[lun].write_count);
    if ((reads != 0 || writes != 0) && (selected == nullptr || (*selected)[lun] != std::byte{})) {
      lines << controller << ',' << lun << ',' << reads << ',' << writes << '\n';
    }
  }
}

int outputLus(const UnitName*, const QVSessionInfo*, const FilePath* path,
              const StatisticalCommand* preinfo0, const StatisticalCommand* afterinfo0,
              const StatisticalCommand* preinfo1, const StatisticalCommand* afterinfo1,
              const LuSelection* lu, std::int32_t, std::int32_t) {
  std::ostringstream lines;
  lines << "controller,lu,reads,writes\n";
  writeDifferences(lines, 0, *preinfo0, *afterinfo0, lu);
  writeDifferences(lines, 1, *preinfo1, *afterinfo1, lu);
  return writeFile(textOf(*path), lines.str());
}

int output(const UnitName* unit, const QVSessionInfo* session, const FilePath* path,
           const StatisticalCommand* preinfo0, const StatisticalCommand* afterinfo0,
           const StatisticalCommand* preinfo1, const StatisticalCommand* afterinfo1) {
  return outputLus(unit, session, path, preinfo0, afterinfo0, preinfo1, afterinfo1, nullptr, 0, 0);
}

int outputGraph(const UnitName*, const QVSessionInfo*, const PerformanceAll* preinfo0,
                const PerformanceAll* afterinfo0, const PerformanceAll* preinfo1,
                const PerformanceAll* afterinfo1, PerformanceCollectGraphInfo* graph,
                PerformanceCollectGraph* second) {
  clear(graph);
  graph->graphinfo.mtime[0] = preinfo0->mtime;
  graph->graphinfo.mtime[1] = afterinfo0->mtime;
  clear(second);
  second->mtime[0] = preinfo1->mtime;
  second->mtime[1] = afterinfo1->mtime;
  return 0;
}

// A collection is a text file: a line "unit <name> <serial> <firmware> <interval>", then a line
// "data <year> <month> <day> <hour> <minute> <second>" for every graph.

int initializeData(const QVSessionInfo* session, const FilePath* path, std::int32_t interval,
                   std::int32_t) {
  for (const auto& [name, unit] : state().units) {
    if (unit.sessions.contains(identifierOf(*session))) {
      std::ostringstream line;
      line << "unit " << name << ' ' << textOf(unit.param.serial) << ' ' << unit.firmware << ' '
           << interval << '\n';
      return writeFile(textOf(*path), line.str());
    }
  }
  return kUnknownSession;
}

int outputData(const FilePath* path, const PerformanceCollectGraphInfo* graph) {
  const QVTime& time = graph->graphinfo.mtime[1];
  std::ostringstream line;
  line << "data " << std::int64_t{time.tm_year} + 1900 << ' ' << std::int64_t{time.tm_mon} + 1
       << ' ' << time.tm_mday << ' ' << time.tm_hour << ' ' << time.tm_min << ' ' << time.tm_sec
       << '\n';
  return writeFile(textOf(*path), line.str(), std::ios::app);
}

int inputCollection(const FilePath* path, PerformanceMngInfo* information) {
  std::ifstream file(textOf(*path));
  std::string kind;
  std::string unit;
  std::string serial;
  std::string firmware;
  clear(information);
  if (!(file >> kind >> unit >> serial >> firmware >> information->intervaltime) ||
      kind != "unit") {
    return kFileFailed;
  }
  setText(information->dampver, "10.00");
  setText(information->unitname, unit);
  setText(information->microver, firmware);
  setText(information->serialno, serial);
  information->portMaxCount = kPorts;
  information->rgMaxCount = kRaidGroups;
  information->luMaxCount = kLogicalUnits;
  information->cacheMaxCount = 1;
  information->processorMaxCount = 1;
  information->hdd_hdu_count = kSlots;
  information->hdd_unit_count = kEnclosures;
  information->backendMaxCount = kBackendPaths;
  setText(information->structver, "1");
  PerformanceTime& last = information->totime;
  for (bool first = true; file >> kind >> last.year >> last.month >> last.day >> last.hour >>
                          last.minute >> last.second;
       first = false) {
    information->fromtime = first ? last : information->fromtime;
  }
  return 0;
}

int getMostFiles(std::int32_t* files) {
  *files = kMostFiles;
  return 0;
}

int getStatistics(const UnitName* unit, const QVSessionInfo*, std::int32_t* enabled) {
  *enabled = partOf<Performance>(unit).statistics;
  return 0;
}

int setStatistics(const UnitName* unit, const QVSessionInfo*, std::int32_t enabled) {
  partOf<Performance>(unit).statistics = enabled;
  return 0;
}

int getThreshold(const UnitName* unit, const QVSessionInfo*, Threshold* threshold) {
  *threshold = partOf<Performance>(unit).threshold;
  return 0;
}

int setThreshold(const UnitName* unit, const QVSessionInfo*, const Threshold* threshold) {
  partOf<Performance>(unit).threshold = *threshold;
  return 0;
}

int getStatisticalInformation(const UnitName* unit, const QVSessionInfo*, std::int32_t,
                              StatisticalInformation* information) {
  clear(information);
  const std::int32_t intervals = partOf<Performance>(unit).intervals;
  for (StatisticalController& controller : information->controller) {
    controller.power_on = 1;
    controller.total_time = intervals * 60;
    controller.on_time = intervals * 60;
  }
  return 0;
}

}  // namespace

SIMULATE(4, QV_GetPerformance, getPerformance)
SIMULATE(5, QV_GetPerformanceAll, getPerformanceAll)
SIMULATE(7, QV_PerformanceOutput, output)
SIMULATE(10, QV_PerformanceOutputLU, outputLus)
SIMULATE(7, QV_PerformanceOutputAll)
SIMULATE(8, QV_PerformanceOutputAllEx)
SIMULATE(4, QV_PerformanceOutputSkip)
SIMULATE(2, QV_PerformanceOutputCSV)
SIMULATE(3, QV_GetPerformanceCSVNum)
SIMULATE(8, QV_PerformanceOutputGraphInfo, outputGraph)
SIMULATE(4, QV_PerformanceDataInitialize, initializeData)
SIMULATE(2, QV_PerformanceDataOutput, outputData)
SIMULATE(2, QV_PerformanceInputMngFile, inputCollection)
SIMULATE(1, QV_GetPfmFileMaxCount, getMostFiles)
SIMULATE(3, QV_GetPfmStatisCfg, getStatistics)
SIMULATE(3, QV_SetPfmStatisCfg, setStatistics)
SIMULATE(3, QV_GetThreshold, getThreshold)
SIMULATE(3, QV_SetThreshold, setThreshold)
SIMULATE(4, QV_GetStatisticalInformation, getStatisticalInformation)
