#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"
#include "arraylib/times.h"

// Performance counters, the files that the library writes of them, and statistics. A counter of 64
// bits is two words, `…_h` and `…_l`.

// Performance collection and output

/// Commands of a port, a RAID group, an LU, a back-end path or a drive.
struct CommandAll_Info {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t read_count;
  std::int32_t write_count;
  std::int32_t read_cache;
  std::int32_t write_cache;
  std::int32_t read_size;
  std::int32_t write_size;
  std::int32_t online_verify_count;
};
QUORVEL_RECORD(CommandAll_Info, 36);

/// Times of one kind of command to an LU.
struct LuEx_CommandInfo {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t command_count;
  std::int32_t command_total_time_h;
  std::int32_t command_total_time_l;
  std::int32_t command_max_time_h;
  std::int32_t command_max_time_l;
  std::int32_t delay_command_count_upto300;
  std::int32_t delay_command_count_upto500;
  std::int32_t delay_command_count_upto1000;
  std::int32_t delay_command_count_ormore1000;
};
QUORVEL_RECORD(LuEx_CommandInfo, 44);

/// Command times of an LU.
struct LuEx_Info {
  std::int32_t valid;
  std::int32_t support;
  LuEx_CommandInfo read_hit;
  LuEx_CommandInfo write_hit;
  LuEx_CommandInfo read_miss;
  LuEx_CommandInfo write_miss;
  LuEx_CommandInfo read_job;
  LuEx_CommandInfo write_job;
  std::int32_t tag_count;
  std::int32_t total_tag_count;
  std::int32_t total_tag_set_count;
};
QUORVEL_RECORD(LuEx_Info, 284);

/// Usage of a cache partition.
struct CachePartitionAll_Info {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t partition_valid;
  std::int32_t partition_cache_size;
  std::int32_t used_cache_size;
  std::int32_t used_cache_clean;
  std::int32_t used_cache_middle;
  std::int32_t used_cache_physical;
  std::int32_t used_cache_size_h;
  std::int32_t used_cache_size_l;
  std::int32_t used_cache_clean_h;
  std::int32_t used_cache_clean_l;
  std::int32_t used_cache_middle_h;
  std::int32_t used_cache_middle_l;
  std::int32_t used_cache_physical_h;
  std::int32_t used_cache_physical_l;
};
QUORVEL_RECORD(CachePartitionAll_Info, 64);

/// How long the cache bus was in use, and by what.
struct CacheBusAll_Info {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t cachebus_monitoring_time;
  std::int32_t cachebus_used_time;
  std::int32_t host_cachebus_used_time;
  std::int32_t drive_cachebus_used_time;
  std::int32_t drr_cachebus_used_time;
  std::int32_t cpu_cachebus_used_time;
  std::int32_t dual_cachebus_used_time;
};
QUORVEL_RECORD(CacheBusAll_Info, 36);

/// Commands and operating time of a drive.
struct DriveAll_Info {
  CommandAll_Info drive_info;
  std::int32_t valid;
  std::int32_t support;
  std::int32_t not_opr_time_h;
  std::int32_t not_opr_time_l;
  std::int32_t tag_count[60];
  std::int32_t unload_time;
  std::int32_t total_tag_count_h;
  std::int32_t total_tag_count_l;
  std::int32_t total_tag_set_count_h;
  std::int32_t total_tag_set_count_l;
};
QUORVEL_RECORD(DriveAll_Info, 312);
QUORVEL_OFFSET(DriveAll_Info, tag_count, 52);
QUORVEL_OFFSET(DriveAll_Info, unload_time, 292);

/// What a processor spent its time on.
struct ProcessorAll_Info {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t all_opr_time_h;
  std::int32_t all_opr_time_l;
  std::int32_t special_job_time_h;
  std::int32_t special_job_time_l;
  std::int32_t job_io_time_h;
  std::int32_t job_io_time_l;
  std::int32_t io_special_time_h;
  std::int32_t io_special_time_l;
  std::int32_t host_interrup_time_h;
  std::int32_t host_interrup_time_l;
  std::int32_t drive_interrup_time_h;
  std::int32_t drive_interrup_time_l;
  std::int32_t drr_interrup_time_h;
  std::int32_t drr_interrup_time_l;
  std::int32_t hostio_stop_time_h;
  std::int32_t hostio_stop_time_l;
  std::int32_t monitoring_time_h;
  std::int32_t monitoring_time_l;
};
QUORVEL_RECORD(ProcessorAll_Info, 80);

/// Commands of a virtual unit.
struct VUCommandAll_Info {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t command_count;
  std::int32_t command_transfer_block_count;
  std::int32_t command_total_time_h;
  std::int32_t command_total_time_l;
  std::int32_t command_max_time_h;
  std::int32_t command_max_time_l;
};
QUORVEL_RECORD(VUCommandAll_Info, 32);

/// Errors of a virtual unit.
struct VUError_Info {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t timeout_error_count;
};
QUORVEL_RECORD(VUError_Info, 12);

/// A path to a virtual unit.
struct VUDataAll_Info {
  VUCommandAll_Info control;
  VUCommandAll_Info data_transfer;
  VUError_Info error;
};
QUORVEL_RECORD(VUDataAll_Info, 76);

/// All counters of one controller at one time.
struct PerformanceAll {
  std::int32_t valid;
  std::int32_t support;
  std::int32_t get_status;
  CommandAll_Info port[8];
  CommandAll_Info rg[200];
  CommandAll_Info lu[8192];
  LuEx_Info lu_ex[8192];
  std::int32_t all_cache_size;
  std::int32_t used_cache_size;
  std::int32_t used_cache_clean;
  std::int32_t used_cache_middle;
  std::int32_t used_cache_physical;
  std::int32_t used_cache_size_h;
  std::int32_t used_cache_size_l;
  std::int32_t used_cache_clean_h;
  std::int32_t used_cache_clean_l;
  std::int32_t used_cache_middle_h;
  std::int32_t used_cache_middle_l;
  std::int32_t used_cache_physical_h;
  std::int32_t used_cache_physical_l;
  std::int32_t update_count;
  CachePartitionAll_Info cachePartition[64];
  CacheBusAll_Info cachebus;
  CommandAll_Info backend[8];
  DriveAll_Info drive[60][30];
  ProcessorAll_Info processor;
  ProcessorAll_Info processor_core[4];
  VUDataAll_Info vu_port[8];
  VUCommandAll_Info vu_lu[8192];
  QVTime mtime;
  std::int32_t err_code;
};
QUORVEL_RECORD(PerformanceAll, 3458208);
QUORVEL_OFFSET(PerformanceAll, lu, 7500);
QUORVEL_OFFSET(PerformanceAll, lu_ex, 302412);
QUORVEL_OFFSET(PerformanceAll, all_cache_size, 2628940);
QUORVEL_OFFSET(PerformanceAll, cachePartition, 2628996);
QUORVEL_OFFSET(PerformanceAll, cachebus, 2633092);
QUORVEL_OFFSET(PerformanceAll, drive, 2633416);
QUORVEL_OFFSET(PerformanceAll, processor, 3195016);
QUORVEL_OFFSET(PerformanceAll, vu_port, 3195416);
QUORVEL_OFFSET(PerformanceAll, vu_lu, 3196024);
QUORVEL_OFFSET(PerformanceAll, mtime, 3458168);

/// Command counts of an LU.
struct StatisticalCommand_Info {
  std::int32_t read_count;
  std::int32_t write_count;
  std::int32_t read_cache;
  std::int32_t write_cache;
};
QUORVEL_RECORD(StatisticalCommand_Info, 16);

/// Command counts of all LUs of one controller at one time.
struct StatisticalCommand {
  StatisticalCommand_Info lu[4096];
  QVTime mtime;
};
QUORVEL_RECORD(StatisticalCommand, 65572);
QUORVEL_OFFSET(StatisticalCommand, mtime, 65536);

/// The drive error thresholds.
struct Threshold {
  std::int32_t mechanical_recover;
  std::int32_t mechanical_unrecover;
  std::int32_t media_recover;
  std::int32_t media_unrecover;
  std::int32_t read_write_recover;
  std::int32_t read_write_unrecover;
  std::int32_t drive_recover;
  std::int32_t drive_unrecover;
  std::int32_t controller_recover;
  std::int32_t controller_unrecover;
  std::int32_t scsi_recover;
  std::int32_t scsi_unrecover;
  std::int32_t correctable_error;
  std::int32_t uncorrectable_error;
};
QUORVEL_RECORD(Threshold, 56);

/// A time of a collection.
struct PerformanceTime {
  std::int32_t year;
  std::int32_t month;
  std::int32_t day;
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t second;
};
QUORVEL_RECORD(PerformanceTime, 24);

/// The content of a collection's management file.
struct PerformanceMngInfo {
  char dampver[16];
  char unitname[65];
  char microver[9];
  char serialno[9];
  std::int32_t qv_type;
  std::int32_t device_type;
  std::int32_t portMaxCount;
  std::int32_t rgMaxCount;
  std::int32_t luMaxCount;
  std::int32_t cacheMaxCount;
  std::int32_t processorMaxCount;
  std::int32_t hdd_hdu_count;
  std::int32_t hdd_unit_count;
  std::int32_t backendMaxCount;
  std::int32_t cachepartitionMaxCount;
  std::int32_t cpucoreCount;
  std::int32_t ctlcond;
  std::int32_t ctl0;
  std::int32_t ctl1;
  std::int32_t intervaltime;
  std::int32_t reserved;
  char structver[16];
  PerformanceTime fromtime;
  PerformanceTime totime;
};
QUORVEL_RECORD(PerformanceMngInfo, 232);
QUORVEL_ASSUMED(PerformanceMngInfo);
QUORVEL_ASSUMED_SIZE(PerformanceMngInfo, 4096);

/// What an output of all counters writes, with 2,048 bytes of LUs.
struct PerformanceOutputAllRequest {
  std::byte port[8];
  std::byte backend[8];
  std::byte lu[2048];
  std::int32_t cache;
  std::int32_t processor;
  std::byte drive[15][30];
  std::byte drive_opr_rate[15][30];
  std::int32_t count;
  std::int32_t mode;
  std::int32_t file_fmt_mode;
  std::byte reserved[104];
};
QUORVEL_RECORD(PerformanceOutputAllRequest, 3088);
QUORVEL_ASSUMED(PerformanceOutputAllRequest);

/// A selection of what an output of all counters writes.
struct PerformanceOutputSpecifyInfo {
  std::byte port[8];
  std::byte backend[8];
  std::byte lu[8192];
  std::int32_t cache;
  std::int32_t processor;
  std::byte drive[60][30];
  std::byte drive_opr_rate[60][30];
};
QUORVEL_RECORD(PerformanceOutputSpecifyInfo, 11816);
QUORVEL_ASSUMED(PerformanceOutputSpecifyInfo);

/// What an output of all counters writes.
struct PerformanceOutputAllExRequest {
  PerformanceOutputSpecifyInfo specifyinfo[2];
  std::int32_t count;
  std::int32_t mode;
  std::int32_t file_fmt_mode;
  std::byte reserved[412];
};
QUORVEL_RECORD(PerformanceOutputAllExRequest, 24056);
QUORVEL_ASSUMED(PerformanceOutputAllExRequest);

/// The file of an output request, handed over beside its options.
struct PerformanceOutputFile {
  char filename[1024];
};
QUORVEL_PART(PerformanceOutputFile, 1024);

struct PerformanceCSVOutputOpt {
  std::byte reserved[4];
};
QUORVEL_RECORD(PerformanceCSVOutputOpt, 4);
QUORVEL_ASSUMED(PerformanceCSVOutputOpt);

/// The part of a collection to write as CSV, and where to.
struct PerformanceOutputCSVRequest {
  char dirname[1024];
  PerformanceTime fromtime;
  PerformanceTime totime;
  std::int32_t fromDataNum;
  std::int32_t toDataNum;
  PerformanceCSVOutputOpt outputopt[64];
};
QUORVEL_RECORD(PerformanceOutputCSVRequest, 1336);
QUORVEL_ASSUMED(PerformanceOutputCSVRequest);
QUORVEL_ASSUMED_SIZE(PerformanceOutputCSVRequest, 4096);

struct PerformanceCollectGraphPort {
  std::byte reserved[24];
};
QUORVEL_RECORD(PerformanceCollectGraphPort, 24);
QUORVEL_ASSUMED(PerformanceCollectGraphPort);

struct PerformanceCollectGraphLU {
  std::byte reserved[24];
};
QUORVEL_RECORD(PerformanceCollectGraphLU, 24);
QUORVEL_ASSUMED(PerformanceCollectGraphLU);

struct PerformanceCollectGraphCache {
  std::byte reserved[12];
};
QUORVEL_RECORD(PerformanceCollectGraphCache, 12);
QUORVEL_ASSUMED(PerformanceCollectGraphCache);

struct PerformanceCollectGraphBackend {
  std::byte reserved[16];
};
QUORVEL_RECORD(PerformanceCollectGraphBackend, 16);
QUORVEL_ASSUMED(PerformanceCollectGraphBackend);

struct PerformanceCollectGraphDrive {
  std::byte reserved[24];
};
QUORVEL_RECORD(PerformanceCollectGraphDrive, 24);
QUORVEL_ASSUMED(PerformanceCollectGraphDrive);

struct PerformanceCollectGraphProcessor {
  std::byte reserved[8];
};
QUORVEL_RECORD(PerformanceCollectGraphProcessor, 8);
QUORVEL_ASSUMED(PerformanceCollectGraphProcessor);

struct PerformanceCollectGraphDriveOpr {
  std::byte reserved[16];
};
QUORVEL_RECORD(PerformanceCollectGraphDriveOpr, 16);
QUORVEL_ASSUMED(PerformanceCollectGraphDriveOpr);

struct PerformanceCollectGraphRG {
  std::byte reserved[24];
};
QUORVEL_RECORD(PerformanceCollectGraphRG, 24);
QUORVEL_ASSUMED(PerformanceCollectGraphRG);

struct PerformanceCollectGraphCache2 {
  std::byte reserved[20];
};
QUORVEL_RECORD(PerformanceCollectGraphCache2, 20);
QUORVEL_ASSUMED(PerformanceCollectGraphCache2);

struct PerformanceCollectGraphLUEx {
  std::byte reserved[48];
};
QUORVEL_RECORD(PerformanceCollectGraphLUEx, 48);
QUORVEL_ASSUMED(PerformanceCollectGraphLUEx);

struct PerformanceCollectGraphCachePartition {
  std::byte reserved[12];
};
QUORVEL_RECORD(PerformanceCollectGraphCachePartition, 12);
QUORVEL_ASSUMED(PerformanceCollectGraphCachePartition);

struct PerformanceCollectGraphVUPort {
  std::byte reserved[16];
};
QUORVEL_RECORD(PerformanceCollectGraphVUPort, 16);
QUORVEL_ASSUMED(PerformanceCollectGraphVUPort);

struct PerformanceCollectGraphVULU {
  std::byte reserved[24];
};
QUORVEL_RECORD(PerformanceCollectGraphVULU, 24);
QUORVEL_ASSUMED(PerformanceCollectGraphVULU);

/// Counter differences, computed for a graph.
struct PerformanceCollectGraph {
  QVTime mtime[2];
  PerformanceCollectGraphPort port[8];
  PerformanceCollectGraphLU lu[8192];
  PerformanceCollectGraphCache cache;
  PerformanceCollectGraphBackend backend[8];
  PerformanceCollectGraphDrive drive[60][30];
  PerformanceCollectGraphProcessor processor;
  PerformanceCollectGraphDriveOpr driveopr[60][30];
  PerformanceCollectGraphRG rg[200];
  PerformanceCollectGraphCache2 cache2;
  PerformanceCollectGraphLUEx luex[8192];
  PerformanceCollectGraphCachePartition cachepartition[64];
  PerformanceCollectGraphVUPort vu_port[8];
  PerformanceCollectGraphVULU vu_lu[8192];
};
QUORVEL_RECORD(PerformanceCollectGraph, 864560);
QUORVEL_ASSUMED(PerformanceCollectGraph);

/// A graph as Java holds it.
struct PerformanceCollectGraphInfo {
  PerformanceCollectGraph graphinfo;
};
QUORVEL_RECORD(PerformanceCollectGraphInfo, 864560);

/// Which LUs an output writes, a byte each.
using LuSelection = std::byte[4096];

QUORVEL_API int QV_GetPerformance(const UnitName* unit, const QVSessionInfo* session,
                                  StatisticalCommand* controller0, StatisticalCommand* controller1);
QUORVEL_API int QV_GetPerformanceAll(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t option, PerformanceAll* controller0,
                                     PerformanceAll* controller1);
QUORVEL_API int QV_PerformanceOutput(const UnitName* unit, const QVSessionInfo* session,
                                     const FilePath* path, const StatisticalCommand* preinfo0,
                                     const StatisticalCommand* afterinfo0,
                                     const StatisticalCommand* preinfo1,
                                     const StatisticalCommand* afterinfo1);
QUORVEL_API int QV_PerformanceOutputLU(const UnitName* unit, const QVSessionInfo* session,
                                       const FilePath* path, const StatisticalCommand* preinfo0,
                                       const StatisticalCommand* afterinfo0,
                                       const StatisticalCommand* preinfo1,
                                       const StatisticalCommand* afterinfo1, const LuSelection* lu,
                                       std::int32_t option0, std::int32_t option1);
QUORVEL_API int QV_PerformanceOutputAll(const UnitName* unit, const PerformanceOutputFile* file,
                                        const PerformanceOutputAllRequest* request,
                                        const PerformanceAll* preinfo0,
                                        const PerformanceAll* afterinfo0,
                                        const PerformanceAll* preinfo1,
                                        const PerformanceAll* afterinfo1);
QUORVEL_API int QV_PerformanceOutputAllEx(const UnitName* unit, const QVSessionInfo* session,
                                          const PerformanceOutputFile* file,
                                          const PerformanceOutputAllExRequest* request,
                                          const PerformanceAll* preinfo0,
                                          const PerformanceAll* afterinfo0,
                                          const PerformanceAll* preinfo1,
                                          const PerformanceAll* afterinfo1);
QUORVEL_API int QV_PerformanceOutputSkip(const UnitName* unit, const FilePath* path,
                                         const QVTime* time, std::int32_t option);
QUORVEL_API int QV_PerformanceOutputCSV(const FilePath* path,
                                        const PerformanceOutputCSVRequest* request);
QUORVEL_API int QV_GetPerformanceCSVNum(const FilePath* path,
                                        const PerformanceOutputCSVRequest* request,
                                        std::int32_t* count);
QUORVEL_API int QV_PerformanceOutputGraphInfo(const UnitName* unit, const QVSessionInfo* session,
                                              const PerformanceAll* preinfo0,
                                              const PerformanceAll* afterinfo0,
                                              const PerformanceAll* preinfo1,
                                              const PerformanceAll* afterinfo1,
                                              PerformanceCollectGraphInfo* graph,
                                              PerformanceCollectGraph* second);
QUORVEL_API int QV_PerformanceDataInitialize(const QVSessionInfo* session, const FilePath* path,
                                             std::int32_t option0, std::int32_t option1);
QUORVEL_API int QV_PerformanceDataOutput(const FilePath* path,
                                         const PerformanceCollectGraphInfo* graph);
QUORVEL_API int QV_PerformanceInputMngFile(const FilePath* path, PerformanceMngInfo* information);
QUORVEL_API int QV_GetPfmFileMaxCount(std::int32_t* count);
QUORVEL_API int QV_GetPfmStatisCfg(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t* enabled);
QUORVEL_API int QV_SetPfmStatisCfg(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t enabled);
QUORVEL_API int QV_GetThreshold(const UnitName* unit, const QVSessionInfo* session,
                                Threshold* threshold);
QUORVEL_API int QV_SetThreshold(const UnitName* unit, const QVSessionInfo* session,
                                const Threshold* threshold);

// Statistical information

/// Power-on and reset counts of a controller, and its times.
struct StatisticalController {
  std::int32_t power_on;
  std::int32_t reset;
  std::int32_t total_time;
  std::int32_t on_time;
  std::int32_t total_time_rap_cnt;
  std::int32_t total_time_rap_cnt_work;
  std::int32_t lu_change;
  std::int32_t procnt_time[4];
};
QUORVEL_RECORD(StatisticalController, 44);

struct StatisticalHostCommand_Info {
  std::byte reserved[8];
};
QUORVEL_RECORD(StatisticalHostCommand_Info, 8);

/// Host commands, by LU.
struct StatisticalHostCommand {
  StatisticalHostCommand_Info lu[4096];
};
QUORVEL_RECORD(StatisticalHostCommand, 32768);

struct StatisticalCommandStatus_Info {
  std::byte reserved[36];
};
QUORVEL_RECORD(StatisticalCommandStatus_Info, 36);

/// Command statuses by LU.
struct StatisticalCommandStatus {
  StatisticalCommandStatus_Info lu[4096];
};
QUORVEL_RECORD(StatisticalCommandStatus, 147456);

struct StatisticalCachePartition {
  std::byte reserved[8];
};
QUORVEL_RECORD(StatisticalCachePartition, 8);
QUORVEL_ASSUMED(StatisticalCachePartition);

struct StatisticalCache {
  std::int32_t wrt_inhcnt;
  std::int32_t wrt_outhcnt;
  std::int32_t seqwr_bufcnt;
  std::int32_t seg_lock_cnt;
  StatisticalCachePartition cachepartition[64];
};
QUORVEL_RECORD(StatisticalCache, 528);
QUORVEL_ASSUMED(StatisticalCache);

struct StatisticalWriteAfter_PDEVInfo {
  std::byte reserved[16];
};
QUORVEL_RECORD(StatisticalWriteAfter_PDEVInfo, 16);
QUORVEL_ASSUMED(StatisticalWriteAfter_PDEVInfo);

struct StatisticalWriteAfter {
  std::int32_t raid0_stripe_cnt;
  std::int32_t raid0_stripe_job[450];
  std::int32_t raid5_stripe_cnt;
  std::int32_t raid5_stripe_job[450];
  std::int32_t stripe_job_rmw[450];
  std::int32_t stripe_job_partial[450];
  StatisticalWriteAfter_PDEVInfo pdev[15][30];
};
QUORVEL_RECORD(StatisticalWriteAfter, 14408);
QUORVEL_ASSUMED(StatisticalWriteAfter);

/// Restorations of drives.
struct StatisticalDriveRestoration {
  std::int32_t inter_cnt;
  std::int32_t back_cnt;
  std::int32_t system_cnt;
};
QUORVEL_RECORD(StatisticalDriveRestoration, 12);

struct StatisticalCacheMemory {
  std::int32_t battery;
  std::int32_t threshold;
  std::int32_t correct_err[12];
  std::int32_t segment[64];
};
QUORVEL_RECORD(StatisticalCacheMemory, 312);
QUORVEL_ASSUMED(StatisticalCacheMemory);

struct StatisticalDrive_Info {
  std::byte reserved[76];
};
QUORVEL_RECORD(StatisticalDrive_Info, 76);
QUORVEL_ASSUMED(StatisticalDrive_Info);

struct StatisticalDrive {
  std::int32_t err_rtry;
  StatisticalDrive_Info drive[15][30];
};
QUORVEL_RECORD(StatisticalDrive, 34204);
QUORVEL_ASSUMED(StatisticalDrive);

struct StatisticalHostSpc_Info {
  std::byte reserved[12];
};
QUORVEL_RECORD(StatisticalHostSpc_Info, 12);
QUORVEL_ASSUMED(StatisticalHostSpc_Info);

struct StatisticalHostSpc {
  StatisticalHostSpc_Info port[4];
};
QUORVEL_RECORD(StatisticalHostSpc, 48);
QUORVEL_ASSUMED(StatisticalHostSpc);

/// Errors of the drive interface.
struct StatisticalDriveSpc {
  std::int32_t retry;
  std::int32_t err_threshold;
  std::int32_t err_count[6];
};
QUORVEL_RECORD(StatisticalDriveSpc, 32);

struct StatisticalDriveFpc_Info {
  std::byte reserved[24];
};
QUORVEL_RECORD(StatisticalDriveFpc_Info, 24);
QUORVEL_ASSUMED(StatisticalDriveFpc_Info);

struct StatisticalDriveFpc {
  StatisticalDriveFpc_Info port[4];
};
QUORVEL_RECORD(StatisticalDriveFpc, 96);
QUORVEL_ASSUMED(StatisticalDriveFpc);

struct StatisticalDriveDma_Error {
  std::byte reserved[24];
};
QUORVEL_RECORD(StatisticalDriveDma_Error, 24);
QUORVEL_ASSUMED(StatisticalDriveDma_Error);

struct StatisticalDriveDma {
  std::int32_t dma_retry;
  std::int32_t dma_path_retry;
  std::int32_t drr_retry;
  StatisticalDriveDma_Error error[4];
};
QUORVEL_RECORD(StatisticalDriveDma, 108);
QUORVEL_ASSUMED(StatisticalDriveDma);

/// Errors of the host interface's transfers.
struct StatisticalHostDma {
  std::int32_t err_rtry;
  std::int32_t dma_errcnt;
  std::int32_t bus_errcnt;
  std::int32_t la_errcnt;
};
QUORVEL_RECORD(StatisticalHostDma, 16);

/// Errors of the main body.
struct StatisticalHontai {
  std::int32_t pctl_err;
  std::int32_t pci_err;
  std::int32_t mpu_err;
  std::int32_t dctl_err;
  std::int32_t bridge_err;
  std::int32_t reserved[2];
  std::int32_t upst;
  std::int32_t ac_inbox;
  std::int32_t backup_power;
  std::int32_t auto_reset;
  std::int32_t auto_reboot;
  std::int32_t ectl_err;
};
QUORVEL_RECORD(StatisticalHontai, 52);
QUORVEL_OFFSET(StatisticalHontai, upst, 28);

/// Errors of the peripherals.
struct StatisticalShuuhen {
  std::int32_t panel;
  std::int32_t reserved0;
  std::int32_t rs232c;
  std::int32_t reserved1;
};
QUORVEL_RECORD(StatisticalShuuhen, 16);

/// Dual-controller events.
struct StatisticalDual {
  std::int32_t other_correct;
  std::int32_t other_dual;
  std::int32_t self_dual;
};
QUORVEL_RECORD(StatisticalDual, 12);

struct StatisticalFibre_Info {
  std::byte reserved[276];
};
QUORVEL_RECORD(StatisticalFibre_Info, 276);
QUORVEL_ASSUMED(StatisticalFibre_Info);

struct StatisticalFibre {
  StatisticalFibre_Info Install[4];
  StatisticalFibre_Info Pson[4];
};
QUORVEL_RECORD(StatisticalFibre, 2208);
QUORVEL_ASSUMED(StatisticalFibre);

/// Counters of the units.
struct StatisticalUnit {
  std::int32_t battery;
  std::int32_t reserved[2];
  std::int32_t upst;
  std::int32_t backup_power;
};
QUORVEL_RECORD(StatisticalUnit, 20);

struct StatisticalDriveError_LimitInfo {
  std::byte reserved[60];
};
QUORVEL_RECORD(StatisticalDriveError_LimitInfo, 60);
QUORVEL_ASSUMED(StatisticalDriveError_LimitInfo);

struct StatisticalDriveError_Info {
  std::byte reserved[84];
};
QUORVEL_RECORD(StatisticalDriveError_Info, 84);
QUORVEL_ASSUMED(StatisticalDriveError_Info);

struct StatisticalDriveError {
  StatisticalDriveError_LimitInfo limit;
  StatisticalDriveError_Info drive[15][30];
};
QUORVEL_RECORD(StatisticalDriveError, 37860);
QUORVEL_ASSUMED(StatisticalDriveError);

/// The array's internal counters, an element a controller.
struct StatisticalInformation {
  std::int32_t unite_option;
  StatisticalController controller[2];
  StatisticalHostCommand h_command[2];
  StatisticalHostCommand h_command_unite[2];
  StatisticalCommandStatus com_status[2];
  StatisticalCommandStatus com_status_unite[2];
  StatisticalCache cache[2];
  StatisticalWriteAfter writeafter[2];
  StatisticalDriveRestoration drive_rest[2];
  StatisticalCacheMemory cache_mem[2];
  StatisticalDrive drive[2];
  StatisticalHostSpc h_spc[2];
  StatisticalDriveSpc d_spc[2];
  StatisticalDriveFpc d_fpc[2];
  StatisticalDriveDma d_dma[2];
  StatisticalHostDma h_dma[2];
  StatisticalHontai hontai[2];
  StatisticalShuuhen shuuhen[2];
  StatisticalDual dual[2];
  StatisticalFibre fibre[2];
  StatisticalUnit unit[2];
  StatisticalDriveError drive_err[2];
};
QUORVEL_RECORD(StatisticalInformation, 900852);
QUORVEL_OFFSET(StatisticalInformation, h_command, 92);
QUORVEL_OFFSET(StatisticalInformation, h_command_unite, 65628);
QUORVEL_OFFSET(StatisticalInformation, com_status, 131164);
QUORVEL_OFFSET(StatisticalInformation, com_status_unite, 426076);
QUORVEL_OFFSET(StatisticalInformation, cache, 720988);
QUORVEL_OFFSET(StatisticalInformation, writeafter, 722044);
QUORVEL_OFFSET(StatisticalInformation, drive_rest, 750860);
QUORVEL_OFFSET(StatisticalInformation, cache_mem, 750884);
QUORVEL_OFFSET(StatisticalInformation, drive, 751508);
QUORVEL_OFFSET(StatisticalInformation, h_spc, 819916);
QUORVEL_OFFSET(StatisticalInformation, d_spc, 820012);
QUORVEL_OFFSET(StatisticalInformation, d_fpc, 820076);
QUORVEL_OFFSET(StatisticalInformation, d_dma, 820268);
QUORVEL_OFFSET(StatisticalInformation, h_dma, 820484);
QUORVEL_OFFSET(StatisticalInformation, hontai, 820516);
QUORVEL_OFFSET(StatisticalInformation, shuuhen, 820620);
QUORVEL_OFFSET(StatisticalInformation, dual, 820652);
QUORVEL_OFFSET(StatisticalInformation, fibre, 820676);
QUORVEL_OFFSET(StatisticalInformation, unit, 825092);
QUORVEL_OFFSET(StatisticalInformation, drive_err, 825132);

QUORVEL_API int QV_GetStatisticalInformation(const UnitName* unit, const QVSessionInfo* session,
                                             std::int32_t option,
                                             StatisticalInformation* information);
