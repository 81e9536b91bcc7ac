// Firmware files staged on this host, and the firmware of the arrays.
//
// A firmware file is any file; its revision is its first word. Each question for the count of a
// download takes it a step further, and only a complete download can replace the firmware. The
// array has no NAS nodes.
#include "arraylib/firmware.h"

#include <fstream>

#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kLastCount = 4;
/// The replacement succeeded, but on one controller only.
constexpr int kOneControllerReplaced = 4109;

/// The revisions of the files that this host has staged.
struct StagedFiles {
  std::vector<std::string> array;
  std::vector<std::string> enclosures;
};

struct Update {
  std::string downloaded;
  std::int32_t count = 0;
  std::int32_t replacedControllers = 0;
};

StagedFiles& files() { return state().host.part<StagedFiles>(); }

/// The revision of files is that of the first.
std::string revisionOf(const std::vector<std::string>& staged) {
  return staged.empty() ? std::string() : staged.front();
}

int stage(std::vector<std::string>& staged, const FilePath* path) {
  std::ifstream file(textOf(*path));
  std::string revision;
  if (!(file >> revision)) {
    return kFileFailed;
  }
  staged.push_back(revision);
  return 0;
}

// Firmware of the array

int stageNumbered(const UnitName*, const QVSessionInfo*, const FilePath* path, std::int32_t,
                  std::int32_t* number) {
  const int result = stage(files().array, path);
  *number = static_cast<std::int32_t>(files().array.size());
  return result;
}

int stageFile(const UnitName*, const QVSessionInfo*, const FilePath* path) {
  return stage(files().array, path);
}

int unstage() {
  files().array.clear();
  return 0;
}

int download(const UnitName* unit, const QVSessionInfo*, std::int32_t, std::int32_t, std::int32_t) {
  if (files().array.empty()) {
    return kNothingStaged;
  }
  partOf<Update>(unit) = {revisionOf(files().array), 0, 0};
  return 0;
}

int getCount(const UnitName* unit, std::int32_t* count) {
  auto& update = partOf<Update>(unit);
  if (!update.downloaded.empty()) {
    update.count = std::min(update.count + 1, kLastCount);
  }
  *count = update.count;
  return 0;
}

/// Replaces the firmware of one controller more.
int replaceNext(const UnitName* unit, const QVSessionInfo*, std::int32_t,
                MicroReplaceInformation* information) {
  clear(information);
  auto& update = partOf<Update>(unit);
  if (update.count < kLastCount) {
    return kNothingDownloaded;
  }
  update.replacedControllers = std::min(update.replacedControllers + 1, kControllers);
  const bool more = update.replacedControllers < kControllers;
  *information = {1, more ? 1 : 0, update.replacedControllers - 1};
  return more ? kOneControllerReplaced : 0;
}

int completeReplacement(const UnitName* unit, const QVSessionInfo*, std::int32_t) {
  auto& update = partOf<Update>(unit);
  if (update.replacedControllers < kControllers) {
    return kNothingDownloaded;
  }
  unitOf(unit).firmware = update.downloaded;
  update = {};
  return 0;
}

int getFileInformation(MicroFileInformation* information) {
  clear(information);
  setText(information->micro, revisionOf(files().array));
  information->valid = files().array.empty() ? 0 : 1;
  return 0;
}

int getNewRevision(MicroRevisionText* revision) {
  setText(*revision, revisionOf(files().array));
  return files().array.empty() ? kNothingStaged : 0;
}

// Firmware of the enclosures

int stageEnclosure(const UnitName*, const QVSessionInfo*, const FilePath* path) {
  return stage(files().enclosures, path);
}

void describeEnclosure(const std::string& revision, ENCMicroInformation* information) {
  clear(information);
  information->read_rev.bas_rev.valid_index = revision.empty() ? 0 : 1;
  setText(information->read_rev.bas_rev.rev_main, revision);
}

int getStagedEnclosure(ENCMicroInformation* information) {
  describeEnclosure(revisionOf(files().enclosures), information);
  return 0;
}

int getEnclosure(const UnitName* unit, const QVSessionInfo*, ENCMicroInformation* information) {
  describeEnclosure(unitOf(unit).enclosureFirmware, information);
  information->device_type = unitOf(unit).param.device_type;
  return 0;
}

}  // namespace

SIMULATE(5, QV_MicroFileConcat, stageNumbered)
SIMULATE(3, QV_MicroFileConcat2, stageFile)
SIMULATE(3, QV_MicroFileConcatEx, stageFile)
SIMULATE(4, QV_MicroFileConcatEx2)
SIMULATE(0, QV_CancelMicroFileConcat, unstage)
SIMULATE(1, QV_CancelMicroFileConcat2)
SIMULATE(2, QV_GetMicroDownloadCount, getCount)
SIMULATE(3, QV_GetMicroDownloadCountEx)
SIMULATE(4, QV_GetMicroDownloadCountEx2)
SIMULATE(5, QV_MicroDownload, download)
SIMULATE(6, QV_MicroDownloadEx)
SIMULATE(7, QV_MicroDownloadEx2)
SIMULATE(3, QV_MicroReplace)
SIMULATE(4, QV_MicroReplaceEx, replaceNext)
SIMULATE(4, QV_MicroReplaceCrosscall)
SIMULATE(3, QV_CompleteMicroReplace, completeReplacement)
SIMULATE(1, QV_GetMicroFileInformation, getFileInformation)
SIMULATE(1, QV_GetNewMicroRevision, getNewRevision)
SIMULATE(2, QV_GetNewMicroRevision2)
SIMULATE(3, QV_ENCMicroFileConcat, stageEnclosure)
SIMULATE(4, QV_ENCMicroFileConcatEx)
SIMULATE(0, QV_CancelENCMicroFileConcat)
SIMULATE(5, QV_ENCMicroDownload)
SIMULATE(3, QV_GetENCMicroDownloadCount)
SIMULATE(3, QV_ENCMicroReplace)
SIMULATE(4, QV_ENCMicroReplaceEx)
SIMULATE(1, QV_GetENCMicroInformation, getStagedEnclosure)
SIMULATE(3, QV_GetENCMicroInformationEx, getEnclosure)
SIMULATE(1, QV_GetLocalNNCBiosRevision)
SIMULATE(3, QV_GetNNCBiosRevisionList)
SIMULATE(3, QV_PreparesNNCBiosDownload)
SIMULATE(3, QV_NNCBiosFileConcat)
SIMULATE(0, QV_CancelNNCBiosFileConcat)
SIMULATE(4, QV_NNCBiosDownload)
SIMULATE(1, QV_GetNNCBiosDownloadCount)
SIMULATE(4, QV_GetNNCBiosDownloadStatus)
SIMULATE(3, QV_GetNNCUpgradeStatusList)
