#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"
#include "arraylib/status.h"

// Firmware of the array, of its enclosures and of its network node controllers. Each is updated in
// the same order: files are staged on this host, downloaded, and take the place of what runs.

/// What is staged of the array's firmware.
struct MicroFileInformation {
  char micro[12];
  std::int32_t valid;
  std::int32_t booting_wait;
};
QUORVEL_RECORD(MicroFileInformation, 20);

/// Information on a replacement.
struct MicroReplaceInformation {
  std::int32_t valid;
  std::int32_t WaitCancelreq;
  std::int32_t ReplaceCTL;
};
QUORVEL_RECORD(MicroReplaceInformation, 12);

/// A cross-call replacement.
struct MicroReplaceCrosscallRequest {
  std::int32_t ctl;
  std::int32_t forced_mode;
};
QUORVEL_RECORD(MicroReplaceCrosscallRequest, 8);

/// An enclosure firmware: what is staged, or what an array was given.
struct ENCMicroInformation {
  std::int32_t qv_type;
  std::int32_t device_type;
  std::int32_t micro_type;
  ENCMicroRevision read_rev;
};
QUORVEL_RECORD(ENCMicroInformation, 132);

/// The revision of a network node controller's BIOS.
struct NNCBiosRevision {
  char nncbiosrevision[9];
};
QUORVEL_RECORD(NNCBiosRevision, 9);

struct NNCBiosRevisionList {
  std::int32_t mount[4];
  NNCBiosRevision nnc_revision[4];
};
QUORVEL_RECORD(NNCBiosRevisionList, 52);
QUORVEL_ASSUMED(NNCBiosRevisionList, nnc_revision);

struct NNCBiosDownloadStatus {
  std::int32_t downloadStatus;
  std::int32_t errorInfo;
};
QUORVEL_RECORD(NNCBiosDownloadStatus, 8);

struct NNCUpgradeStatus {
  std::int32_t nncUpgradeStatus;
};
QUORVEL_RECORD(NNCUpgradeStatus, 4);

struct NNCUpgradeStatusList {
  NNCUpgradeStatus nnc_status[4];
};
QUORVEL_RECORD(NNCUpgradeStatusList, 16);

/// The text buffer for the revision of a firmware file.
using MicroRevisionText = char[64];

// Firmware of the array

/// Stages a file and writes a number of its own.
QUORVEL_API int QV_MicroFileConcat(const UnitName* unit, const QVSessionInfo* session,
                                   const FilePath* path, std::int32_t option, std::int32_t* number);
QUORVEL_API int QV_MicroFileConcat2(const UnitName* unit, const QVSessionInfo* session,
                                    const FilePath* path);
QUORVEL_API int QV_MicroFileConcatEx(const UnitName* unit, const QVSessionInfo* session,
                                     const FilePath* path);
QUORVEL_API int QV_MicroFileConcatEx2(const UnitName* unit, const QVSessionInfo* session,
                                      const FilePath* first, const FilePath* second);
QUORVEL_API int QV_CancelMicroFileConcat();
QUORVEL_API int QV_CancelMicroFileConcat2(const FilePath* path);
QUORVEL_API int QV_GetMicroDownloadCount(const UnitName* unit, std::int32_t* count);
QUORVEL_API int QV_GetMicroDownloadCountEx(const UnitName* unit, std::int32_t option,
                                           std::int32_t* count);
QUORVEL_API int QV_GetMicroDownloadCountEx2(const UnitName* unit, std::int32_t option,
                                            const FilePath* path, std::int32_t* count);
QUORVEL_API int QV_MicroDownload(const UnitName* unit, const QVSessionInfo* session,
                                 std::int32_t option1, std::int32_t option2, std::int32_t option3);
QUORVEL_API int QV_MicroDownloadEx(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t option1, std::int32_t option2, std::int32_t option3,
                                   std::int32_t option4);
QUORVEL_API int QV_MicroDownloadEx2(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t option1, std::int32_t option2,
                                    std::int32_t option3, std::int32_t option4,
                                    const FilePath* path);
QUORVEL_API int QV_MicroReplace(const UnitName* unit, const QVSessionInfo* session,
                                std::int32_t option);
/// Its result 4109 is a success as well.
QUORVEL_API int QV_MicroReplaceEx(const UnitName* unit, const QVSessionInfo* session,
                                  std::int32_t option, MicroReplaceInformation* information);
QUORVEL_API int QV_MicroReplaceCrosscall(const UnitName* unit, const QVSessionInfo* session,
                                         const MicroReplaceCrosscallRequest* request,
                                         MicroReplaceInformation* information);
QUORVEL_API int QV_CompleteMicroReplace(const UnitName* unit, const QVSessionInfo* session,
                                        std::int32_t option);
QUORVEL_API int QV_GetMicroFileInformation(MicroFileInformation* information);
QUORVEL_API int QV_GetNewMicroRevision(MicroRevisionText* revision);
QUORVEL_ASSUMED_FUNCTION(QV_GetNewMicroRevision);
QUORVEL_API int QV_GetNewMicroRevision2(const FilePath* path, MicroRevisionText* revision);
QUORVEL_ASSUMED_FUNCTION(QV_GetNewMicroRevision2);

// Firmware of the enclosures

QUORVEL_API int QV_ENCMicroFileConcat(const UnitName* unit, const QVSessionInfo* session,
                                      const FilePath* path);
QUORVEL_API int QV_ENCMicroFileConcatEx(const UnitName* unit, const QVSessionInfo* session,
                                        const FilePath* path, std::int32_t option);
QUORVEL_API int QV_CancelENCMicroFileConcat();
QUORVEL_API int QV_ENCMicroDownload(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t option1, std::int32_t option2,
                                    std::int32_t* number);
QUORVEL_ASSUMED_FUNCTION(QV_ENCMicroDownload);
QUORVEL_API int QV_GetENCMicroDownloadCount(const UnitName* unit, const QVSessionInfo* session,
                                            std::int32_t* count);
QUORVEL_API int QV_ENCMicroReplace(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t option);
QUORVEL_API int QV_ENCMicroReplaceEx(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t option, const std::int32_t* record);
QUORVEL_ASSUMED_FUNCTION(QV_ENCMicroReplaceEx);
QUORVEL_API int QV_GetENCMicroInformation(ENCMicroInformation* information);
QUORVEL_API int QV_GetENCMicroInformationEx(const UnitName* unit, const QVSessionInfo* session,
                                            ENCMicroInformation* information);

// BIOS of the network node controllers

QUORVEL_API int QV_GetLocalNNCBiosRevision(NNCBiosRevision* revision);
QUORVEL_API int QV_GetNNCBiosRevisionList(const UnitName* unit, const QVSessionInfo* session,
                                          NNCBiosRevisionList* list);
QUORVEL_API int QV_PreparesNNCBiosDownload(const UnitName* unit, const QVSessionInfo* session,
                                           std::int32_t option);
QUORVEL_API int QV_NNCBiosFileConcat(const UnitName* unit, const QVSessionInfo* session,
                                     const FilePath* path);
QUORVEL_API int QV_CancelNNCBiosFileConcat();
QUORVEL_API int QV_NNCBiosDownload(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t option1, std::int32_t option2);
QUORVEL_API int QV_GetNNCBiosDownloadCount(std::int32_t* count);
QUORVEL_API int QV_GetNNCBiosDownloadStatus(const UnitName* unit, const QVSessionInfo* session,
                                            std::int32_t option, NNCBiosDownloadStatus* status);
QUORVEL_API int QV_GetNNCUpgradeStatusList(const UnitName* unit, const QVSessionInfo* session,
                                           NNCUpgradeStatusList* list);
