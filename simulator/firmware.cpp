// Firmware files staged on this host, and the firmware of the arrays.
//
// A firmware file is any file; its revision is its first word. A poll for the count of a download
// takes it a step further, and only what came to its end can replace the running firmware.
#include "arraylib/firmware.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kLastCount = 4;
constexpr std::int32_t kControllers = 2;
constexpr std::size_t kNodes = 4;
constexpr std::size_t kMountedNodes = 2;
constexpr std::int32_t kBootingWait = 90;
/// The replacement succeeded, but on one controller only.
constexpr int kOneControllerReplaced = 4109;

/// The files of one kind that are staged, with their revisions.
struct Staging {
  std::vector<std::pair<std::string, std::string>> files;

  /// The revision of the whole: that of the first file.
  [[nodiscard]] std::string revision() const {
    return files.empty() ? std::string() : files.front().second;
  }
};

struct Download {
  std::string revision;
  std::int32_t count = 0;

  void begin(const std::string& staged) { *this = {staged, 0}; }
  std::int32_t advance() {
    if (!revision.empty()) {
      count = std::min(count + 1, kLastCount);
    }
    return count;
  }
  [[nodiscard]] bool complete() const { return count == kLastCount; }
};

/// What this host holds.
struct FirmwareFiles {
  Staging array;
  Staging enclosures;
  Staging nodes;
  Download nodeDownload;
  std::size_t downloadingNode = 0;
};

/// What an array holds.
struct Firmware {
  std::string running = "0900/A";
  Download download;
  std::int32_t replacedControllers = 0;
  std::string runningEnclosure = "1.00";
  Download enclosureDownload;
  std::array<std::string, kNodes> nodeRevisions{"1.0", "1.0"};
  std::array<bool, kNodes> prepared{};
};

FirmwareFiles& files() { return state().units[std::string()].part<FirmwareFiles>(); }
Firmware& firmwareOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<Firmware>(); }

/// The first word of a file, or nothing.
std::string revisionIn(const FilePath* path) {
  std::ifstream file(textOf(*path));
  std::string revision;
  file >> revision;
  return revision;
}

int stage(Staging& staging, const FilePath* path) {
  const std::string revision = revisionIn(path);
  if (revision.empty()) {
    return kFileFailed;
  }
  staging.files.emplace_back(textOf(*path), revision);
  return 0;
}

// Firmware of the array

int stageNumbered(const UnitName*, const QVSessionInfo*, const FilePath* path, std::int32_t,
                  std::int32_t* number) {
  const int result = stage(files().array, path);
  *number = static_cast<std::int32_t>(files().array.files.size());
  return result;
}

int stageFile(const UnitName*, const QVSessionInfo*, const FilePath* path) {
  return stage(files().array, path);
}

int stageTwo(const UnitName*, const QVSessionInfo*, const FilePath* first, const FilePath* second) {
  const int result = stage(files().array, first);
  return result == 0 ? stage(files().array, second) : result;
}

int unstage() {
  files().array = {};
  return 0;
}

int unstageFile(const FilePath* path) {
  const std::string name = textOf(*path);
  const auto erased =
      std::erase_if(files().array.files, [&](const auto& file) { return file.first == name; });
  return erased == 0 ? kNothingStaged : 0;
}

int download(const UnitName* unit) {
  const std::string staged = files().array.revision();
  if (staged.empty()) {
    return kNothingStaged;
  }
  firmwareOf(unit).download.begin(staged);
  firmwareOf(unit).replacedControllers = 0;
  return 0;
}

int downloadBy3(const UnitName* unit, const QVSessionInfo*, std::int32_t, std::int32_t,
                std::int32_t) {
  return download(unit);
}

int downloadBy4(const UnitName* unit, const QVSessionInfo*, std::int32_t, std::int32_t,
                std::int32_t, std::int32_t) {
  return download(unit);
}

int downloadFile(const UnitName* unit, const QVSessionInfo*, std::int32_t, std::int32_t,
                 std::int32_t, std::int32_t, const FilePath* path) {
  const auto& staged = files().array.files;
  const std::string name = textOf(*path);
  const auto found = std::find_if(staged.begin(), staged.end(),
                                  [&](const auto& file) { return file.first == name; });
  if (found == staged.end()) {
    return kNothingStaged;
  }
  firmwareOf(unit).download.begin(found->second);
  firmwareOf(unit).replacedControllers = 0;
  return 0;
}

int getCount(const UnitName* unit, std::int32_t* count) {
  *count = firmwareOf(unit).download.advance();
  return 0;
}

int getCountEx(const UnitName* unit, std::int32_t, std::int32_t* count) {
  return getCount(unit, count);
}

int getCountOfFile(const UnitName* unit, std::int32_t, const FilePath*, std::int32_t* count) {
  return getCount(unit, count);
}

/// Replaces the firmware of this many controllers more.
int replaceControllers(Firmware& firmware, std::int32_t controllers) {
  if (!firmware.download.complete()) {
    return kNothingDownloaded;
  }
  firmware.replacedControllers = std::min(firmware.replacedControllers + controllers, kControllers);
  return 0;
}

int replaceAll(const UnitName* unit, const QVSessionInfo*, std::int32_t) {
  return replaceControllers(firmwareOf(unit), kControllers);
}

void describeReplacement(const Firmware& firmware, MicroReplaceInformation* information) {
  *information = {};
  information->valid = 1;
  information->WaitCancelreq = firmware.replacedControllers < kControllers ? 1 : 0;
  information->ReplaceCTL = firmware.replacedControllers - 1;
}

int replaceNext(const UnitName* unit, const QVSessionInfo*, std::int32_t,
                MicroReplaceInformation* information) {
  Firmware& firmware = firmwareOf(unit);
  const int result = replaceControllers(firmware, 1);
  describeReplacement(firmware, information);
  if (result != 0) {
    return result;
  }
  return firmware.replacedControllers < kControllers ? kOneControllerReplaced : 0;
}

int replaceByCrosscall(const UnitName* unit, const QVSessionInfo*,
                       const MicroReplaceCrosscallRequest* request,
                       MicroReplaceInformation* information) {
  Firmware& firmware = firmwareOf(unit);
  const int result = replaceControllers(firmware, request->forced_mode != 0 ? kControllers : 1);
  describeReplacement(firmware, information);
  return result;
}

int completeReplacement(const UnitName* unit, const QVSessionInfo*, std::int32_t) {
  Firmware& firmware = firmwareOf(unit);
  if (firmware.replacedControllers < kControllers) {
    return kNothingDownloaded;
  }
  firmware.running = firmware.download.revision;
  firmware.download = {};
  firmware.replacedControllers = 0;
  return 0;
}

int getFileInformation(MicroFileInformation* information) {
  *information = {};
  setText(information->micro, files().array.revision());
  information->valid = files().array.files.empty() ? 0 : 1;
  information->booting_wait = kBootingWait;
  return 0;
}

int getNewRevision(MicroRevisionText* revision) {
  setText(*revision, files().array.revision());
  return files().array.files.empty() ? kNothingStaged : 0;
}

int getNewRevisionOfFile(const FilePath* path, MicroRevisionText* revision) {
  setText(*revision, revisionIn(path));
  return (*revision)[0] == '\0' ? kFileFailed : 0;
}

// Firmware of the enclosures

int stageEnclosure(const UnitName*, const QVSessionInfo*, const FilePath* path) {
  return stage(files().enclosures, path);
}

int stageEnclosureEx(const UnitName*, const QVSessionInfo*, const FilePath* path, std::int32_t) {
  return stage(files().enclosures, path);
}

int unstageEnclosure() {
  files().enclosures = {};
  return 0;
}

int downloadEnclosure(const UnitName* unit, const QVSessionInfo*, std::int32_t, std::int32_t,
                      std::int32_t* number) {
  const Staging& staging = files().enclosures;
  *number = static_cast<std::int32_t>(staging.files.size());
  if (staging.files.empty()) {
    return kNothingStaged;
  }
  firmwareOf(unit).enclosureDownload.begin(staging.revision());
  return 0;
}

int getEnclosureCount(const UnitName* unit, const QVSessionInfo*, std::int32_t* count) {
  *count = firmwareOf(unit).enclosureDownload.advance();
  return 0;
}

int replaceEnclosure(const UnitName* unit, const QVSessionInfo*, std::int32_t) {
  Firmware& firmware = firmwareOf(unit);
  if (!firmware.enclosureDownload.complete()) {
    return kNothingDownloaded;
  }
  firmware.runningEnclosure = firmware.enclosureDownload.revision;
  firmware.enclosureDownload = {};
  return 0;
}

int replaceEnclosureEx(const UnitName* unit, const QVSessionInfo* session, std::int32_t option,
                       const std::int32_t*) {
  return replaceEnclosure(unit, session, option);
}

void describeEnclosure(const std::string& revision, ENCMicroInformation* information) {
  *information = {};
  information->read_rev.bas_rev.valid_index = revision.empty() ? 0 : 1;
  setText(information->read_rev.bas_rev.rev_main, revision);
}

int getStagedEnclosure(ENCMicroInformation* information) {
  describeEnclosure(files().enclosures.revision(), information);
  return 0;
}

int getEnclosure(const UnitName* unit, const QVSessionInfo*, ENCMicroInformation* information) {
  describeEnclosure(firmwareOf(unit).runningEnclosure, information);
  information->device_type = findUnit(textOf(*unit))->param.device_type;
  return 0;
}

// BIOS of the NAS nodes

bool isNode(std::int32_t node) {
  return node >= 0 && static_cast<std::size_t>(node) < kMountedNodes;
}

int getStagedBios(NNCBiosRevision* revision) {
  *revision = {};
  setText(revision->nncbiosrevision, files().nodes.revision());
  return 0;
}

int getBiosRevisions(const UnitName* unit, const QVSessionInfo*, NNCBiosRevisionList* list) {
  *list = {};
  std::fill_n(list->mount, kMountedNodes, 1);
  for (std::size_t node = 0; node < kNodes; ++node) {
    setText(list->nnc_revision[node].nncbiosrevision, firmwareOf(unit).nodeRevisions[node]);
  }
  return 0;
}

int prepareBios(const UnitName* unit, const QVSessionInfo*, std::int32_t node) {
  if (!isNode(node)) {
    return kUnknownNode;
  }
  firmwareOf(unit).prepared[static_cast<std::size_t>(node)] = true;
  return 0;
}

int stageBios(const UnitName*, const QVSessionInfo*, const FilePath* path) {
  return stage(files().nodes, path);
}

int unstageBios() {
  files().nodes = {};
  return 0;
}

int downloadBios(const UnitName* unit, const QVSessionInfo*, std::int32_t node, std::int32_t) {
  if (!isNode(node) || !firmwareOf(unit).prepared[static_cast<std::size_t>(node)]) {
    return kUnknownNode;
  }
  if (files().nodes.files.empty()) {
    return kNothingStaged;
  }
  files().downloadingNode = static_cast<std::size_t>(node);
  files().nodeDownload.begin(files().nodes.revision());
  return 0;
}

int getBiosCount(std::int32_t* count) {
  *count = files().nodeDownload.advance();
  return 0;
}

/// The state of a node's download is its count; a complete one is the node's BIOS from then on.
int getBiosStatus(const UnitName* unit, const QVSessionInfo*, std::int32_t node,
                  NNCBiosDownloadStatus* status) {
  *status = {};
  if (!isNode(node)) {
    return kUnknownNode;
  }
  const auto index = static_cast<std::size_t>(node);
  if (files().downloadingNode == index) {
    status->downloadStatus = files().nodeDownload.count;
    if (files().nodeDownload.complete()) {
      firmwareOf(unit).nodeRevisions[index] = files().nodeDownload.revision;
      firmwareOf(unit).prepared[index] = false;
    }
  }
  return 0;
}

int getUpgrades(const UnitName* unit, const QVSessionInfo*, NNCUpgradeStatusList* list) {
  for (std::size_t node = 0; node < kNodes; ++node) {
    list->nnc_status[node].nncUpgradeStatus = firmwareOf(unit).prepared[node] ? 1 : 0;
  }
  return 0;
}

}  // namespace

SIMULATE(5, QV_MicroFileConcat, stageNumbered)
SIMULATE(3, QV_MicroFileConcat2, stageFile)
SIMULATE(3, QV_MicroFileConcatEx, stageFile)
SIMULATE(4, QV_MicroFileConcatEx2, stageTwo)
SIMULATE(0, QV_CancelMicroFileConcat, unstage)
SIMULATE(1, QV_CancelMicroFileConcat2, unstageFile)
SIMULATE(2, QV_GetMicroDownloadCount, getCount)
SIMULATE(3, QV_GetMicroDownloadCountEx, getCountEx)
SIMULATE(4, QV_GetMicroDownloadCountEx2, getCountOfFile)
SIMULATE(5, QV_MicroDownload, downloadBy3)
SIMULATE(6, QV_MicroDownloadEx, downloadBy4)
SIMULATE(7, QV_MicroDownloadEx2, downloadFile)
SIMULATE(3, QV_MicroReplace, replaceAll)
SIMULATE(4, QV_MicroReplaceEx, replaceNext)
SIMULATE(4, QV_MicroReplaceCrosscall, replaceByCrosscall)
SIMULATE(3, QV_CompleteMicroReplace, completeReplacement)
SIMULATE(1, QV_GetMicroFileInformation, getFileInformation)
SIMULATE(1, QV_GetNewMicroRevision, getNewRevision)
SIMULATE(2, QV_GetNewMicroRevision2, getNewRevisionOfFile)
SIMULATE(3, QV_ENCMicroFileConcat, stageEnclosure)
SIMULATE(4, QV_ENCMicroFileConcatEx, stageEnclosureEx)
SIMULATE(0, QV_CancelENCMicroFileConcat, unstageEnclosure)
SIMULATE(5, QV_ENCMicroDownload, downloadEnclosure)
SIMULATE(3, QV_GetENCMicroDownloadCount, getEnclosureCount)
SIMULATE(3, QV_ENCMicroReplace, replaceEnclosure)
SIMULATE(4, QV_ENCMicroReplaceEx, replaceEnclosureEx)
SIMULATE(1, QV_GetENCMicroInformation, getStagedEnclosure)
SIMULATE(3, QV_GetENCMicroInformationEx, getEnclosure)
SIMULATE(1, QV_GetLocalNNCBiosRevision, getStagedBios)
SIMULATE(3, QV_GetNNCBiosRevisionList, getBiosRevisions)
SIMULATE(3, QV_PreparesNNCBiosDownload, prepareBios)
SIMULATE(3, QV_NNCBiosFileConcat, stageBios)
SIMULATE(0, QV_CancelNNCBiosFileConcat, unstageBios)
SIMULATE(4, QV_NNCBiosDownload, downloadBios)
SIMULATE(1, QV_GetNNCBiosDownloadCount, getBiosCount)
SIMULATE(4, QV_GetNNCBiosDownloadStatus, getBiosStatus)
SIMULATE(3, QV_GetNNCUpgradeStatusList, getUpgrades)
