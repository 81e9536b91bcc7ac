#pragma once

#include <cstdint>
#include <iterator>

// What the simulated array consists of and how much it can hold. Every page answers from here.
namespace quorvelsim {

/// A number of blocks of 512 bytes.
using Blocks = std::uint64_t;

/// Stands for no LU, no group or no drive where a number is expected.
inline constexpr std::int32_t kNone = -1;

// Controllers and their paths

inline constexpr std::int32_t kControllers = 2;
/// The host ports of a controller. The first are iSCSI ports, the others Fibre Channel ports.
inline constexpr std::int32_t kPorts = 8;
inline constexpr std::int32_t kIscsiPorts = 2;
inline constexpr std::int32_t kBackendPaths = 2;
/// The cache of a controller in MiB.
inline constexpr std::int32_t kCacheSize = 4096;

/// The TCP ports of a controller for this library, without and with encryption.
inline constexpr std::int32_t kTcpPort = 2000;
inline constexpr std::int32_t kSecureTcpPort = 28355;

inline constexpr bool isController(std::int32_t number) {
  return number >= 0 && number < kControllers;
}
inline constexpr bool isPort(std::int32_t controller, std::int32_t port) {
  return isController(controller) && port >= 0 && port < kPorts;
}
inline constexpr bool isIscsiPort(std::int32_t controller, std::int32_t port) {
  return isPort(controller, port) && port < kIscsiPorts;
}

// Enclosures and drives

/// The enclosures that the array can have, and the slots of each.
inline constexpr std::int32_t kEnclosures = 60;
inline constexpr std::int32_t kSlots = 30;

/// An enclosure with drives of one kind in its first slots.
struct Enclosure {
  std::int32_t drives;
  const char* product;
  const char* kind;
  const char* capacity;
  Blocks blocks;
  std::int32_t type;
  std::int32_t rotation;
};

inline constexpr Enclosure kMounted[] = {
    {15, "TD-1000S7", "SAS", "1.0TB", 1'953'525'168, 1, 7200},
    {4, "TD-2000N7", "SATA", "2.0TB", 3'907'029'168, 2, 7200},
};
inline constexpr auto kMountedEnclosures = static_cast<std::int32_t>(std::size(kMounted));

inline constexpr bool isMounted(std::int32_t enclosure, std::int32_t slot) {
  return enclosure >= 0 && enclosure < kMountedEnclosures && slot >= 0 &&
         slot < kMounted[enclosure].drives;
}

// How much the array can hold

inline constexpr std::int32_t kRaidGroups = 200;
inline constexpr std::int32_t kLogicalUnits = 8192;
inline constexpr std::int32_t kPools = 64;
inline constexpr std::int32_t kPoolLus = 64;
/// The host groups of a port, and all numbers to which LUs can be mapped: groups, then targets.
inline constexpr std::int32_t kHostGroups = 128;
inline constexpr std::int32_t kMappable = 255;
/// The targets, initiators and CHAP users of an iSCSI port.
inline constexpr std::int32_t kTargets = kMappable;
inline constexpr std::int32_t kInitiators = 256;
inline constexpr std::int32_t kChapUsers = 512;
/// Primary LUs of copy pairs, and the secondary LUs of each.
inline constexpr std::int32_t kPairs = 4094;
inline constexpr std::int32_t kMirrors = 32;
inline constexpr std::int32_t kConsistencyGroups = 256;
inline constexpr std::int32_t kMigrations = 4095;
inline constexpr std::int32_t kAccounts = 21;
/// Roles 1 to 3.
inline constexpr std::int32_t kRoles = 3;

// Firmware of a new array

inline constexpr char kFirmware[] = "0957/A";
inline constexpr char kEnclosureFirmware[] = "0113";

}  // namespace quorvelsim
