// Remote arrays and the paths to them, command devices and the synchronisation of ports.
#include <algorithm>
#include <iterator>

#include "arraylib/replication.h"
#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kConnected = 1;

struct RemotePaths {
  /// The arrays at the other ends; one without a serial number is free.
  RvrfSrcArrayUnit arrays[std::extent_v<decltype(RvrfSrcInfo::arrayunit)>]{};
  std::map<std::int32_t, SyncControl> synchronisation;
};

RemotePaths& pathsOf(const UnitName* unit) { return findUnit(textOf(*unit))->part<RemotePaths>(); }

/// The array of that serial number, or null; with no number, a free place.
RvrfSrcArrayUnit* find(RemotePaths& paths, const std::string& serial) {
  auto* const found = std::find_if(
      std::begin(paths.arrays), std::end(paths.arrays),
      [&](const RvrfSrcArrayUnit& array) { return textOf(array.other_serial_no) == serial; });
  return found == std::end(paths.arrays) ? nullptr : found;
}

int setPaths(const UnitName* unit, const QVSessionInfo*, const RvrfSrcArrayUnit* given) {
  RemotePaths& paths = pathsOf(unit);
  const std::string serial = textOf(given->other_serial_no);
  if (serial.empty()) {
    return kInvalidName;
  }
  RvrfSrcArrayUnit* place = find(paths, serial);
  place = place != nullptr ? place : find(paths, "");
  if (place == nullptr) {
    return kTooManyRemotePaths;
  }
  *place = *given;
  place->valid = 1;
  for (RvrfSrcPath& path : place->path) {
    path.path_status = path.valid_index == 0 ? 0 : kConnected;
    // What was set is not told again.
    setText(path.secret, "");
  }
  return 0;
}

int getPaths(const UnitName* unit, const QVSessionInfo*, RvrfSrcInfo* info) {
  const Unit& known = *findUnit(textOf(*unit));
  *info = {};
  setText(info->self_serial_no, textOf(known.param.serial));
  std::copy(std::begin(pathsOf(unit).arrays), std::end(pathsOf(unit).arrays), info->arrayunit);
  return 0;
}

int deleteAllPaths(const UnitName* unit, const QVSessionInfo*) {
  std::fill(std::begin(pathsOf(unit).arrays), std::end(pathsOf(unit).arrays), RvrfSrcArrayUnit{});
  return 0;
}

int deletePaths(const UnitName* unit, const QVSessionInfo*, const RemotePathDeletion* deletion) {
  const auto room = static_cast<std::int32_t>(std::size(deletion->serial));
  for (std::int32_t index = 0; index < std::min(deletion->delete_count, room); ++index) {
    const std::string serial = textOf(deletion->serial[index].remote_serial);
    RvrfSrcArrayUnit* const array = serial.empty() ? nullptr : find(pathsOf(unit), serial);
    if (array == nullptr) {
      return kUnknownRemotePath;
    }
    *array = {};
  }
  return 0;
}

int rebuildPath(const UnitName* unit, const QVSessionInfo*, const RemotePathRebuild* rebuild) {
  const std::string serial = textOf(rebuild->remote_serial);
  RvrfSrcArrayUnit* const array = serial.empty() ? nullptr : find(pathsOf(unit), serial);
  if (array == nullptr || rebuild->path < 0 ||
      rebuild->path >= static_cast<std::int32_t>(std::size(array->path))) {
    return kUnknownRemotePath;
  }
  array->path[rebuild->path].valid_index = 1;
  array->path[rebuild->path].path_status = kConnected;
  return 0;
}

// Written out, because the Set has an int that the Get does not have.
int getSynchronisation(const UnitName* unit, std::int32_t controller, SyncControl* control) {
  *control = pathsOf(unit).synchronisation[controller];
  return 0;
}

int setSynchronisation(const UnitName* unit, std::int32_t controller, const SyncControl* control,
                       std::int32_t) {
  pathsOf(unit).synchronisation[controller] = *control;
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetRemoteDeviceInformation)
SIMULATE(3, QV_SetRemoteDeviceInformation)
SIMULATE(3, QV_GetRemoteDeviceInformationEx)
SIMULATE(3, QV_SetRemoteDeviceInformationEx)
SIMULATE(3, QV_DelRemotePath, deletePaths)
SIMULATE(3, QV_ReconstructRemotePath, rebuildPath)
SIMULATE(3, QV_GetRvrfSrcPath, getPaths)
SIMULATE(3, QV_SetRvrfSrcPath, setPaths)
SIMULATE(2, QV_DelRvrfSrcPath, deleteAllPaths)
SIMULATE(3, QV_GetCommandDevice)
SIMULATE(3, QV_SetCommandDevice)
SIMULATE(3, QV_GetSyncControl, getSynchronisation)
SIMULATE(4, QV_SetSyncControl, setSynchronisation)
