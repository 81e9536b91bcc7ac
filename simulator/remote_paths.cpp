// Remote arrays and the paths to them, command devices and the synchronisation of ports.
#include "arraylib/replication.h"
#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

constexpr std::int32_t kConnected = 1;

struct RemotePaths {
  /// An array without a serial number is a free place.
  RvrfSrcInfo info{};
  SyncControl synchronisation[kControllers]{};
};

/// The remote array of a serial number, or null.
RvrfSrcArrayUnit* find(RvrfSrcInfo& info, const std::string& serial) {
  for (RvrfSrcArrayUnit& array : info.arrayunit) {
    if (textOf(array.other_serial_no) == serial) {
      return &array;
    }
  }
  return nullptr;
}

int setPaths(const UnitName* unit, const QVSessionInfo*, const RvrfSrcArrayUnit* given) {
  RvrfSrcInfo& info = partOf<RemotePaths>(unit).info;
  const std::string serial = textOf(given->other_serial_no);
  if (serial.empty()) {
    return kInvalidName;
  }
  RvrfSrcArrayUnit* place = find(info, serial);
  place = place != nullptr ? place : find(info, "");
  if (place == nullptr) {
    return kTooManyRemotePaths;
  }
  *place = *given;
  place->valid = 1;
  for (RvrfSrcPath& path : place->path) {
    path.path_status = path.valid_index == 0 ? 0 : kConnected;
    // A secret is never returned.
    setText(path.secret, "");
  }
  return 0;
}

int getPaths(const UnitName* unit, const QVSessionInfo*, RvrfSrcInfo* info) {
  *info = partOf<RemotePaths>(unit).info;
  setText(info->self_serial_no, textOf(unitOf(unit).param.serial));
  return 0;
}

int deletePaths(const UnitName* unit, const QVSessionInfo*, const RemotePathDeletion* deletion) {
  const auto room = static_cast<std::int32_t>(std::size(deletion->serial));
  for (std::int32_t index = 0; index < std::min(deletion->delete_count, room); ++index) {
    const std::string serial = textOf(deletion->serial[index].remote_serial);
    RvrfSrcArrayUnit* const array =
        serial.empty() ? nullptr : find(partOf<RemotePaths>(unit).info, serial);
    if (array == nullptr) {
      return kUnknownRemotePath;
    }
    *array = {};
  }
  return 0;
}

// The Set has one int more than the Get: the plain keeping does not match them.
int getSynchronisation(const UnitName* unit, std::int32_t controller, SyncControl* control) {
  if (!isController(controller)) {
    return kNothingFound;
  }
  *control = partOf<RemotePaths>(unit).synchronisation[controller];
  return 0;
}

int setSynchronisation(const UnitName* unit, std::int32_t controller, const SyncControl* control,
                       std::int32_t) {
  if (!isController(controller)) {
    return kNothingFound;
  }
  partOf<RemotePaths>(unit).synchronisation[controller] = *control;
  return 0;
}

}  // namespace

SIMULATE(3, QV_GetRemoteDeviceInformation)
SIMULATE(3, QV_SetRemoteDeviceInformation)
SIMULATE(3, QV_GetRemoteDeviceInformationEx)
SIMULATE(3, QV_SetRemoteDeviceInformationEx)
SIMULATE(3, QV_DelRemotePath, deletePaths)
SIMULATE(3, QV_ReconstructRemotePath)
SIMULATE(3, QV_GetRvrfSrcPath, getPaths)
SIMULATE(3, QV_SetRvrfSrcPath, setPaths)
SIMULATE(2, QV_DelRvrfSrcPath)
SIMULATE(3, QV_GetCommandDevice)
SIMULATE(3, QV_SetCommandDevice)
SIMULATE(3, QV_GetSyncControl, getSynchronisation)
SIMULATE(4, QV_SetSyncControl, setSynchronisation)
