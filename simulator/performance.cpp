// Counters that grow from snapshot to snapshot, files of them, and statistics.
#include "arraylib/performance.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>

#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kLogicalUnits = 24;
constexpr std::int32_t kRaidGroups = 4;
constexpr std::int32_t kPortsInUse = 4;
constexpr std::int32_t kDriveRows = 2;
constexpr std::int32_t kDrivesPerRow = 15;
constexpr std::int32_t kMostFiles = 2880;
constexpr std::int32_t kFirstYear = 110;  // since 1900

struct Performance {
  /// Intervals that were counted: nothing counts while the statistics are off.
  std::int32_t intervals = 0;
  std::int32_t statistics = 1;
  Threshold threshold{20, 20, 50, 50, 50, 50, 20, 20, 20, 20, 20, 20, 100, 100};
};

Performance& performanceOf(const UnitName* unit) {
  return findUnit(textOf(*unit))->part<Performance>();
}

/// Records are filled in place: a temporary would not fit on every stack.
template <class Record>
void clear(Record* record) {
  std::memset(record, 0, sizeof *record);
}

template <class Record>
void markInUse(Record& record) {
  record.valid = 1;
  record.support = 1;
}

/// Commands of an LU in one interval: a few LUs are far busier than the others. An LU belongs to
/// the controller of its parity.
std::int32_t loadOf(std::int32_t lun, std::int32_t controller) {
  return lun % 2 != controller ? 0 : 40 + lun * 7 % 24 * (lun % 5 == 3 ? 60 : 3);
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

/// A minute for an interval, from the morning of a fixed day on.
QVTime timeOf(std::int32_t intervals) {
  QVTime time{};
  time.tm_min = intervals % 60;
  time.tm_hour = intervals / 60 % 24;
  time.tm_mday = 1 + intervals / 1440 % 28;
  time.tm_year = kFirstYear;
  return time;
}

void countCaches(PerformanceAll& all, std::int32_t commands) {
  all.all_cache_size = 4096;
  all.used_cache_size = commands % 4096;
  // Used bytes pass 32 bits: the high word is 1 where the low one is small.
  all.used_cache_size_h = 1;
  all.used_cache_size_l = all.used_cache_size;
  for (auto& partition : all.cachePartition) {
    markInUse(partition);
  }
  all.cachePartition[0].partition_valid = 1;
  all.cachePartition[0].partition_cache_size = all.all_cache_size;
  all.cachePartition[0].used_cache_size = all.used_cache_size;
  markInUse(all.cachebus);
  all.cachebus.cachebus_used_time = commands / 2;
}

void countDrives(PerformanceAll& all, std::int32_t commands) {
  for (auto& row : all.drive) {
    for (DriveAll_Info& drive : row) {
      drive.support = 1;
    }
  }
  for (std::int32_t row = 0; row < kDriveRows; ++row) {
    for (std::int32_t column = 0; column < kDrivesPerRow; ++column) {
      DriveAll_Info& drive = all.drive[row][column];
      markInUse(drive);
      count(drive.drive_info, commands / (kDriveRows * kDrivesPerRow));
      drive.tag_count[0] = column;
      drive.total_tag_count_l = commands;
    }
  }
}

void countAll(PerformanceAll& all, std::int32_t controller, std::int32_t intervals) {
  clear(&all);
  markInUse(all);
  std::int32_t commands = 0;
  for (std::int32_t lun = 0; lun < kLogicalUnits; ++lun) {
    const std::int32_t load = loadOf(lun, controller) * intervals;
    count(all.lu[lun], load);
    count(all.lu_ex[lun], load);
    commands += load;
  }
  for (std::int32_t port = 0; port < kPortsInUse; ++port) {
    count(all.port[port], commands / kPortsInUse);
    count(all.backend[port], commands / kPortsInUse);
  }
  for (std::int32_t group = 0; group < kRaidGroups; ++group) {
    count(all.rg[group], commands / kRaidGroups);
  }
  countCaches(all, commands);
  countDrives(all, commands);
  for (ProcessorAll_Info* const processor : {&all.processor, &all.processor_core[0]}) {
    markInUse(*processor);
    processor->all_opr_time_l = commands / 3;
    processor->monitoring_time_l = intervals * 60;
  }
  all.update_count = intervals;
  all.mtime = timeOf(intervals);
}

void countCommands(StatisticalCommand& commands, std::int32_t controller, std::int32_t intervals) {
  clear(&commands);
  for (std::int32_t lun = 0; lun < kLogicalUnits; ++lun) {
    const std::int32_t load = loadOf(lun, controller) * intervals;
    commands.lu[lun] = {load * 3, load, load * 2, load};
  }
  commands.mtime = timeOf(intervals);
}

/// A new snapshot of both controllers. Records for which there was no memory are left out.
template <class Record>
int takeSnapshot(const UnitName* unit, void (*fill)(Record&, std::int32_t, std::int32_t),
                 Record* controller0, Record* controller1) {
  Performance& performance = performanceOf(unit);
  performance.intervals += performance.statistics != 0 ? 1 : 0;
  std::int32_t controller = 0;
  for (Record* const record : {controller0, controller1}) {
    if (record != nullptr) {
      fill(*record, controller, performance.intervals);
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
  file << text << std::flush;
  return file ? 0 : kFileFailed;
}

/// What was counted between two snapshots; counters may have passed their largest value.
std::uint32_t between(std::int32_t before, std::int32_t after) {
  return static_cast<std::uint32_t>(after) - static_cast<std::uint32_t>(before);
}

/// A line for each LU that was busy on a controller and that `selected` accepts.
template <class Record, class Selected>
std::string differences(std::int32_t controller, const Record& before, const Record& after,
                        Selected selected) {
  std::ostringstream lines;
  for (std::size_t lun = 0; lun < std::size(before.lu); ++lun) {
    const std::uint32_t reads = between(before.lu[lun].read_count, after.lu[lun].read_count);
    const std::uint32_t writes = between(before.lu[lun].write_count, after.lu[lun].write_count);
    if ((reads != 0 || writes != 0) && selected(lun)) {
      lines << controller << ',' << lun << ',' << reads << ',' << writes << '\n';
    }
  }
  return lines.str();
}

constexpr char kHeading[] = "controller,lu,reads,writes\n";

template <class Record, class Selected>
int writeDifferences(const std::string& path, const Record* preinfo0, const Record* afterinfo0,
                     const Record* preinfo1, const Record* afterinfo1, Selected selected) {
  return writeFile(path, kHeading + differences(0, *preinfo0, *afterinfo0, selected) +
                             differences(1, *preinfo1, *afterinfo1, selected));
}

int outputCommands(const UnitName*, const QVSessionInfo*, const FilePath* path,
                   const StatisticalCommand* preinfo0, const StatisticalCommand* afterinfo0,
                   const StatisticalCommand* preinfo1, const StatisticalCommand* afterinfo1) {
  return writeDifferences(textOf(*path), preinfo0, afterinfo0, preinfo1, afterinfo1,
                          [](std::size_t) { return true; });
}

int outputCommandsOfLus(const UnitName*, const QVSessionInfo*, const FilePath* path,
                        const StatisticalCommand* preinfo0, const StatisticalCommand* afterinfo0,
                        const StatisticalCommand* preinfo1, const StatisticalCommand* afterinfo1,
                        const LuSelection* lu, std::int32_t, std::int32_t) {
  return writeDifferences(textOf(*path), preinfo0, afterinfo0, preinfo1, afterinfo1,
                          [&](std::size_t lun) { return (*lu)[lun] != std::byte{}; });
}

int outputAll(const UnitName*, const PerformanceOutputFile* file,
              const PerformanceOutputAllRequest* request, const PerformanceAll* preinfo0,
              const PerformanceAll* afterinfo0, const PerformanceAll* preinfo1,
              const PerformanceAll* afterinfo1) {
  return writeDifferences(textOf(file->filename), preinfo0, afterinfo0, preinfo1, afterinfo1,
                          [&](std::size_t lun) {
                            return lun < std::size(request->lu) && request->lu[lun] != std::byte{};
                          });
}

int outputAllEx(const UnitName*, const QVSessionInfo*, const PerformanceOutputFile* file,
                const PerformanceOutputAllExRequest* request, const PerformanceAll* preinfo0,
                const PerformanceAll* afterinfo0, const PerformanceAll* preinfo1,
                const PerformanceAll* afterinfo1) {
  const auto selectedOf = [&](int controller) {
    return [selection = &request->specifyinfo[controller]](std::size_t lun) {
      return selection->lu[lun] != std::byte{};
    };
  };
  return writeFile(textOf(file->filename),
                   kHeading + differences(0, *preinfo0, *afterinfo0, selectedOf(0)) +
                       differences(1, *preinfo1, *afterinfo1, selectedOf(1)));
}

int outputSkip(const UnitName*, const FilePath* path, const QVTime* time, std::int32_t) {
  std::ostringstream line;
  line << "skipped," << time->tm_hour << ',' << time->tm_min << ',' << time->tm_sec << '\n';
  return writeFile(textOf(*path), line.str(), std::ios::app);
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

// A collection is a text file: a line "unit <name> <serial> <interval>", then a line "data <year>
// <month> <day> <hour> <minute> <second>" for every graph.

constexpr char kUnitLine[] = "unit";
constexpr char kDataLine[] = "data";

struct Collection {
  std::string unit;
  std::string serial;
  std::int32_t interval = 0;
  std::vector<PerformanceTime> data;
};

bool readCollection(const std::string& path, Collection& collection) {
  std::ifstream file(path);
  std::string kind;
  if (!(file >> kind >> collection.unit >> collection.serial >> collection.interval) ||
      kind != kUnitLine) {
    return false;
  }
  PerformanceTime time{};
  while (file >> kind >> time.year >> time.month >> time.day >> time.hour >> time.minute >>
         time.second) {
    collection.data.push_back(time);
  }
  return true;
}

int initializeData(const QVSessionInfo* session, const FilePath* path, std::int32_t interval,
                   std::int32_t) {
  for (const auto& [name, unit] : state().units) {
    if (unit.sessions.contains(identifierOf(*session))) {
      std::ostringstream line;
      line << kUnitLine << ' ' << name << ' ' << textOf(unit.param.serial) << ' ' << interval
           << '\n';
      return writeFile(textOf(*path), line.str());
    }
  }
  return kUnknownSession;
}

int outputData(const FilePath* path, const PerformanceCollectGraphInfo* graph) {
  Collection collection;
  if (!readCollection(textOf(*path), collection)) {
    return kFileFailed;
  }
  const QVTime& time = graph->graphinfo.mtime[1];
  std::ostringstream line;
  line << kDataLine << ' ' << std::int64_t{time.tm_year} + 1900 << ' '
       << std::int64_t{time.tm_mon} + 1 << ' ' << time.tm_mday << ' ' << time.tm_hour << ' '
       << time.tm_min << ' ' << time.tm_sec << '\n';
  return writeFile(textOf(*path), line.str(), std::ios::app);
}

int inputCollection(const FilePath* path, PerformanceMngInfo* information) {
  Collection collection;
  if (!readCollection(textOf(*path), collection)) {
    return kFileFailed;
  }
  clear(information);
  setText(information->dampver, "10.00");
  setText(information->unitname, collection.unit);
  setText(information->microver, "0885/A");
  setText(information->serialno, collection.serial);
  information->portMaxCount = kPortsInUse;
  information->rgMaxCount = kRaidGroups;
  information->luMaxCount = kLogicalUnits;
  information->cacheMaxCount = 1;
  information->processorMaxCount = 1;
  information->hdd_hdu_count = kDrivesPerRow;
  information->hdd_unit_count = kDriveRows;
  information->intervaltime = collection.interval;
  setText(information->structver, "1");
  if (!collection.data.empty()) {
    information->fromtime = collection.data.front();
    information->totime = collection.data.back();
  }
  return 0;
}

/// The data of a collection from one number to another, counted from 1.
int dataOf(const FilePath* path, const PerformanceOutputCSVRequest* request,
           std::vector<PerformanceTime>& data) {
  Collection collection;
  if (!readCollection(textOf(*path), collection)) {
    return kFileFailed;
  }
  std::int32_t number = 0;
  std::copy_if(collection.data.begin(), collection.data.end(), std::back_inserter(data),
               [&](const PerformanceTime&) {
                 ++number;
                 return number >= request->fromDataNum && number <= request->toDataNum;
               });
  return 0;
}

std::string csvFile(const PerformanceOutputCSVRequest& request, std::size_t number) {
  return textOf(request.dirname) + "/performance" + std::to_string(number) + ".csv";
}

/// One file for each interval.
int outputCsv(const FilePath* path, const PerformanceOutputCSVRequest* request) {
  std::vector<PerformanceTime> data;
  int result = dataOf(path, request, data);
  for (std::size_t index = 0; index < data.size() && result == 0; ++index) {
    std::ostringstream line;
    line << "hour,minute\n" << data[index].hour << ',' << data[index].minute << '\n';
    result = writeFile(csvFile(*request, index + 1), line.str());
  }
  return result;
}

int getCsvCount(const FilePath* path, const PerformanceOutputCSVRequest* request,
                std::int32_t* files) {
  std::vector<PerformanceTime> data;
  const int result = dataOf(path, request, data);
  *files = static_cast<std::int32_t>(data.size());
  return result;
}

int getMostFiles(std::int32_t* files) {
  *files = kMostFiles;
  return 0;
}

int getStatistics(const UnitName* unit, const QVSessionInfo*, std::int32_t* enabled) {
  *enabled = performanceOf(unit).statistics;
  return 0;
}

int setStatistics(const UnitName* unit, const QVSessionInfo*, std::int32_t enabled) {
  performanceOf(unit).statistics = enabled;
  return 0;
}

int getThreshold(const UnitName* unit, const QVSessionInfo*, Threshold* threshold) {
  *threshold = performanceOf(unit).threshold;
  return 0;
}

int setThreshold(const UnitName* unit, const QVSessionInfo*, const Threshold* threshold) {
  performanceOf(unit).threshold = *threshold;
  return 0;
}

int getStatisticalInformation(const UnitName* unit, const QVSessionInfo*, std::int32_t,
                              StatisticalInformation* information) {
  clear(information);
  const std::int32_t intervals = performanceOf(unit).intervals;
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
SIMULATE(7, QV_PerformanceOutput, outputCommands)
SIMULATE(10, QV_PerformanceOutputLU, outputCommandsOfLus)
SIMULATE(7, QV_PerformanceOutputAll, outputAll)
SIMULATE(8, QV_PerformanceOutputAllEx, outputAllEx)
SIMULATE(4, QV_PerformanceOutputSkip, outputSkip)
SIMULATE(2, QV_PerformanceOutputCSV, outputCsv)
SIMULATE(3, QV_GetPerformanceCSVNum, getCsvCount)
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
