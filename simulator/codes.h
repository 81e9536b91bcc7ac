#pragma once

namespace quorvelsim {

/// The codes of the simulator's refusals. The real library has others.
enum Code : int {
  kUnknownUnit = 20001,
  kUnitExists = 20002,
  kInvalidName = 20003,
  kNothingFound = 20004,
  kUnknownSession = 20101,
  kLoginRefused = 20102,
  kUnknownAccount = 20103,
  kAccountExists = 20104,
  kTooManyAccounts = 20105,
  kTargetExists = 20311,
  kUnknownNumber = 20501,
  kNumberTaken = 20502,
  kNoCapacity = 20503,
  kInUse = 20504,
  kUnknownPort = 20601,
  kUnknownHostGroup = 20602,
  kHostGroupExists = 20603,
  kMappingGuarded = 20604,
  kUnknownPair = 20701,
  kPairExists = 20702,
  kTooManyPairs = 20703,
  kWrongPairState = 20704,
  kUnknownGroup = 20705,
  kUnknownRemotePath = 20711,
  kTooManyRemotePaths = 20712,
  kNotReserved = 20721,
  kLuInUse = 20722,
  kUnknownMigration = 20723,
  kFileFailed = 20801,
  kNothingStaged = 20802,
  kNothingDownloaded = 20803,
};

}  // namespace quorvelsim
