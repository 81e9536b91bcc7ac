// Snapshots of the performance counters, and the files that the library writes of them.
#include "arraylib/performance.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(CommandAll_Info, valid, support, read_count, write_count, read_cache, write_cache,
               read_size, write_size, online_verify_count);
QUORVELJ_CLASS(LuEx_CommandInfo, valid, support, command_count, command_total_time_h,
               command_total_time_l, command_max_time_h, command_max_time_l,
               delay_command_count_upto300, delay_command_count_upto500,
               delay_command_count_upto1000, delay_command_count_ormore1000);
QUORVELJ_CLASS(LuEx_Info, valid, support, read_hit, write_hit, read_miss, write_miss, read_job,
               write_job, tag_count, total_tag_count, total_tag_set_count);
QUORVELJ_CLASS(CachePartitionAll_Info, valid, support, partition_valid, partition_cache_size,
               used_cache_size, used_cache_clean, used_cache_middle, used_cache_physical,
               used_cache_size_h, used_cache_size_l, used_cache_clean_h, used_cache_clean_l,
               used_cache_middle_h, used_cache_middle_l, used_cache_physical_h,
               used_cache_physical_l);
QUORVELJ_CLASS(CacheBusAll_Info, valid, support, cachebus_monitoring_time, cachebus_used_time,
               host_cachebus_used_time, drive_cachebus_used_time, drr_cachebus_used_time,
               cpu_cachebus_used_time, dual_cachebus_used_time);
QUORVELJ_CLASS(DriveAll_Info, drive_info, valid, support, not_opr_time_h, not_opr_time_l, tag_count,
               unload_time, total_tag_count_h, total_tag_count_l, total_tag_set_count_h,
               total_tag_set_count_l);
QUORVELJ_CLASS(ProcessorAll_Info, valid, support, all_opr_time_h, all_opr_time_l,
               special_job_time_h, special_job_time_l, job_io_time_h, job_io_time_l,
               io_special_time_h, io_special_time_l, host_interrup_time_h, host_interrup_time_l,
               drive_interrup_time_h, drive_interrup_time_l, drr_interrup_time_h,
               drr_interrup_time_l, hostio_stop_time_h, hostio_stop_time_l, monitoring_time_h,
               monitoring_time_l);
QUORVELJ_CLASS(VUCommandAll_Info, valid, support, command_count, command_transfer_block_count,
               command_total_time_h, command_total_time_l, command_max_time_h, command_max_time_l);
QUORVELJ_CLASS(VUError_Info, valid, support, timeout_error_count);
QUORVELJ_CLASS(VUDataAll_Info, control, data_transfer, error);
QUORVELJ_CLASS(PerformanceAll, valid, support, get_status, port, rg, lu, lu_ex, all_cache_size,
               used_cache_size, used_cache_clean, used_cache_middle, used_cache_physical,
               used_cache_size_h, used_cache_size_l, used_cache_clean_h, used_cache_clean_l,
               used_cache_middle_h, used_cache_middle_l, used_cache_physical_h,
               used_cache_physical_l, update_count, cachePartition, cachebus, backend, drive,
               processor, processor_core, vu_port, vu_lu, mtime, err_code);
QUORVELJ_CLASS(StatisticalCommand_Info, read_count, write_count, read_cache, write_cache);
QUORVELJ_CLASS(StatisticalCommand, lu, mtime);
QUORVELJ_CLASS(Threshold, mechanical_recover, mechanical_unrecover, media_recover, media_unrecover,
               read_write_recover, read_write_unrecover, drive_recover, drive_unrecover,
               controller_recover, controller_unrecover, scsi_recover, scsi_unrecover,
               correctable_error, uncorrectable_error);
QUORVELJ_CLASS(PerformanceTime, year, month, day, hour, minute, second);
QUORVELJ_CLASS(PerformanceMngInfo, dampver, unitname, microver, serialno, qv_type, device_type,
               portMaxCount, rgMaxCount, luMaxCount, cacheMaxCount, processorMaxCount,
               hdd_hdu_count, hdd_unit_count, backendMaxCount, cachepartitionMaxCount, cpucoreCount,
               ctlcond, ctl0, ctl1, intervaltime, structver, fromtime, totime);
QUORVELJ_CLASS(PerformanceOutputAllRequest, port, backend, lu, cache, processor, drive,
               drive_opr_rate, count, mode, file_fmt_mode);
QUORVELJ_CLASS(PerformanceOutputSpecifyInfo, port, backend, lu, cache, processor, drive,
               drive_opr_rate);
QUORVELJ_CLASS(PerformanceOutputAllExRequest, specifyinfo, count, mode, file_fmt_mode);
QUORVELJ_CLASS(PerformanceOutputFile, filename);
QUORVELJ_OPAQUE_CLASS(PerformanceCSVOutputOpt);
QUORVELJ_CLASS(PerformanceOutputCSVRequest, dirname, fromtime, totime, fromDataNum, toDataNum,
               outputopt);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphPort);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphLU);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphCache);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphBackend);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphDrive);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphProcessor);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphDriveOpr);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphRG);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphCache2);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphLUEx);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphCachePartition);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphVUPort);
QUORVELJ_OPAQUE_CLASS(PerformanceCollectGraphVULU);
QUORVELJ_CLASS(PerformanceCollectGraph, mtime, port, lu, cache, backend, drive, processor, driveopr,
               rg, cache2, luex, cachepartition, vu_port, vu_lu);
QUORVELJ_CLASS(PerformanceCollectGraphInfo, graphinfo);

// The fields of an output request that hold its snapshots, each a record of its own.
QUORVELJ_MAP(kPreinfo0, PerformanceAll, fieldOf<PerformanceAll>("preinfo0", 0));
QUORVELJ_MAP(kAfterinfo0, PerformanceAll, fieldOf<PerformanceAll>("afterinfo0", 0));
QUORVELJ_MAP(kPreinfo1, PerformanceAll, fieldOf<PerformanceAll>("preinfo1", 0));
QUORVELJ_MAP(kAfterinfo1, PerformanceAll, fieldOf<PerformanceAll>("afterinfo1", 0));
static constexpr const ClassMap* kSnapshots[] = {&kPreinfo0, &kAfterinfo0, &kPreinfo1,
                                                 &kAfterinfo1};
static constexpr const ClassMap* kFileAndSnapshots[] = {
    &ClassOf<PerformanceOutputFile>::kMap, &kPreinfo0, &kAfterinfo0, &kPreinfo1, &kAfterinfo1};

namespace {

/// A snapshot inside a request: read into a record of its own.
struct Snapshot {
  jobject request;
  const ClassMap& field;

  class Argument {
   public:
    explicit Argument(Snapshot snapshot) : request_(snapshot.request), field_(snapshot.field) {}
    bool accept(Env) { return true; }
    bool allocate() {
      record_ = quorvelj::allocate<PerformanceAll>();
      return record_ != nullptr;
    }
    int read(Env env) { return quorvelj::read(env, field_, request_, record_); }
    void release() { releaseRecord(record_); }
    const PerformanceAll* get() { return record_; }

   private:
    jobject request_;
    const ClassMap& field_;
    PerformanceAll* record_ = nullptr;
  };
};

/// The name of the file inside a request: copied like a text of its own, but not required.
struct OutputFile {
  jobject request;

  class Argument {
   public:
    explicit Argument(OutputFile file) : request_(file.request) { file_.filename[0] = '\0'; }
    bool accept(Env env) {
      result_ = quorvelj::read(env, ClassOf<PerformanceOutputFile>::kMap, request_, &file_);
      return true;
    }
    bool allocate() { return true; }
    int read(Env) { return result_; }
    void release() {}
    const PerformanceOutputFile* get() { return &file_; }

   private:
    jobject request_;
    PerformanceOutputFile file_;
    int result_ = kOk;
  };
};

/// The bytes of an LU selection. A null array selects nothing.
struct SelectedLus {
  jbyteArray array;

  class Argument {
   public:
    explicit Argument(SelectedLus selected) : array_(selected.array) {}
    bool accept(Env) { return true; }
    bool allocate() { return true; }
    int read(Env env) {
      if (array_ != nullptr) {
        env->GetByteArrayRegion(array_, 0, sizeof lus_, reinterpret_cast<jbyte*>(&lus_));
      }
      return kOk;
    }
    void release() {}
    const LuSelection* get() { return &lus_; }

   private:
    jbyteArray array_;
    LuSelection lus_{};
  };
};

constexpr char kOutputDeparts[] =
    "where a record could not be had, the others are released before the exception is thrown";

/// An update with this departure.
template <class Function, class... Java>
void output(Env env, Function function, Java... java) {
  LibraryCall library(env, function, java...);
  if (!library.enter()) {
    return;
  }
  if (!library.allocateInputs()) {
    library.releaseInputs();
    throwArrayException(env, kOutOfMemory);
    return;
  }
  library.readInputs();
  finishUpdate(env, library.call());
}

/// Returns a new array of two controllers' objects, or null. From the first that cannot be built on
/// its elements are null. No exception is tested for or thrown.
template <class Record>
jobjectArray buildPair(Env env, const Record* controller0, const Record* controller1) {
  const jobjectArray array = newObjectArrayByName(env, ClassOf<Record>::kName, 2);
  if (array != nullptr && storeBuilt(env, array, 0, ClassOf<Record>::kMap, controller0)) {
    storeBuilt(env, array, 1, ClassOf<Record>::kMap, controller1);
  }
  return array;
}

}  // namespace

DEPARTS(PerformanceOutput, kOutputDeparts);
NATIVE_METHOD(void, PerformanceOutput, jstring unit, jobject session, jstring path,
              jobject preinfo0, jobject afterinfo0, jobject preinfo1, jobject afterinfo1) {
  output(env, QV_PerformanceOutput, unit, session, path, preinfo0, afterinfo0, preinfo1,
         afterinfo1);
}

DEPARTS(PerformanceOutputLU, kOutputDeparts);
NATIVE_METHOD(void, PerformanceOutputLU, jstring unit, jobject session, jstring path,
              jobject preinfo0, jobject afterinfo0, jobject preinfo1, jobject afterinfo1,
              jbyteArray lu, jint option0, jint option1) {
  output(env, QV_PerformanceOutputLU, unit, session, path, preinfo0, afterinfo0, preinfo1,
         afterinfo1, SelectedLus{lu}, option0, option1);
}

DEPARTS(PerformanceOutputAll, kOutputDeparts, .alsoReads = kFileAndSnapshots);
NATIVE_METHOD(void, PerformanceOutputAll, jstring unit, jobject request) {
  output(env, QV_PerformanceOutputAll, unit, OutputFile{request}, request,
         Snapshot{request, kPreinfo0}, Snapshot{request, kAfterinfo0}, Snapshot{request, kPreinfo1},
         Snapshot{request, kAfterinfo1});
}

DEPARTS(PerformanceOutputAllEx, kOutputDeparts, .alsoReads = kFileAndSnapshots);
NATIVE_METHOD(void, PerformanceOutputAllEx, jstring unit, jobject session, jobject request) {
  output(env, QV_PerformanceOutputAllEx, unit, session, OutputFile{request}, request,
         Snapshot{request, kPreinfo0}, Snapshot{request, kAfterinfo0}, Snapshot{request, kPreinfo1},
         Snapshot{request, kAfterinfo1});
}

DEPARTS(PerformanceOutputSkip, kOutputDeparts);
NATIVE_METHOD(void, PerformanceOutputSkip, jstring unit, jstring path, jobject time, jint option) {
  output(env, QV_PerformanceOutputSkip, unit, path, time, option);
}

DEPARTS(PerformanceOutputCSV, kOutputDeparts);
NATIVE_METHOD(void, PerformanceOutputCSV, jstring path, jobject request) {
  output(env, QV_PerformanceOutputCSV, path, request);
}

NATIVE_METHOD(jint, GetPerformanceCSVNum, jstring path, jobject request) {
  return value(env, QV_GetPerformanceCSVNum, path, request);
}

DEPARTS(PerformanceDataInitialize, kOutputDeparts);
NATIVE_METHOD(void, PerformanceDataInitialize, jobject session, jstring path, jint option0,
              jint option1) {
  output(env, QV_PerformanceDataInitialize, session, path, option0, option1);
}

DEPARTS(PerformanceDataOutput, kOutputDeparts);
NATIVE_METHOD(void, PerformanceDataOutput, jstring path, jobject graph) {
  output(env, QV_PerformanceDataOutput, path, graph);
}

NATIVE_METHOD(jobject, PerformanceInputMngFile, jstring path) {
  return query(env, QV_PerformanceInputMngFile, path);
}

NATIVE_METHOD(jint, GetPfmFileMaxCount) { return value(env, QV_GetPfmFileMaxCount); }

NATIVE_METHOD(jint, GetPfmStatisCfg, jstring unit, jobject session) {
  return value(env, QV_GetPfmStatisCfg, unit, session);
}

NATIVE_METHOD(void, SetPfmStatisCfg, jstring unit, jobject session, jint enabled) {
  update(env, QV_SetPfmStatisCfg, unit, session, enabled);
}

NATIVE_METHOD(jobject, GetThreshold, jstring unit, jobject session) {
  return query(env, QV_GetThreshold, unit, session);
}

NATIVE_METHOD(void, SetThreshold, jstring unit, jobject session, jobject threshold) {
  update(env, QV_SetThreshold, unit, session, threshold);
}

DEPARTS(GetPerformance,
        "the session's record is never released, the counters' records are released also where one "
        "could not be had, and the array is returned as far as it could be built",
        .releasesOnRefusal = true, .neverReleased = 1);
NATIVE_METHOD(jobjectArray, GetPerformance, jstring unit, jobject session) {
  LibraryCall library(env, QV_GetPerformance, unit, session);
  if (!library.begin()) {
    return nullptr;
  }
  const OwnRecord<StatisticalCommand> controller0;
  const OwnRecord<StatisticalCommand> controller1;
  if (!controller0 || !controller1) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  const int result = library.callAndKeepInputs(controller0.get(), controller1.get());
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  const jobjectArray array = buildPair(env, controller0.get(), controller1.get());
  if (array != nullptr) {
    flushOutput();
  }
  return array;
}

DEPARTS(GetPerformanceAll,
        "the library is called whether or not there is memory for the snapshots, the session's "
        "record is never released, and the array is returned as far as it could be built",
        .neverReleased = 1, .firstUntestedAllocation = 2);
NATIVE_METHOD(jobjectArray, GetPerformanceAll, jstring unit, jobject session, jint option) {
  LibraryCall library(env, QV_GetPerformanceAll, unit, session, option);
  if (!library.begin()) {
    return nullptr;
  }
  auto* const controller0 = allocate<PerformanceAll>();
  auto* const controller1 = allocate<PerformanceAll>();
  const int result = library.callAndKeepInputs(controller0, controller1);
  jobjectArray array = nullptr;
  if (result != 0) {
    throwArrayException(env, result);
  } else {
    array = buildPair(env, controller0, controller1);
  }
  releaseRecord(controller0);
  releaseRecord(controller1);
  if (array != nullptr) {
    flushOutput();
  }
  return array;
}

DEPARTS(PerformanceOutputGraphInfo,
        "where a record could not be had, the others are released before the exception is thrown; "
        "of the two graphs the first is built",
        .alsoReads = kSnapshots, .releasesOnRefusal = true);
NATIVE_METHOD(jobject, PerformanceOutputGraphInfo, jstring unit, jobject session, jobject request) {
  LibraryCall library(env, QV_PerformanceOutputGraphInfo, unit, session,
                      Snapshot{request, kPreinfo0}, Snapshot{request, kAfterinfo0},
                      Snapshot{request, kPreinfo1}, Snapshot{request, kAfterinfo1});
  if (!library.enter()) {
    return nullptr;
  }
  const bool all = library.allocateInputs();
  auto* const graph = allocate<PerformanceCollectGraphInfo>();
  auto* const second = allocate<PerformanceCollectGraph>();
  if (!all || graph == nullptr || second == nullptr) {
    library.releaseInputs();
    releaseRecord(graph);
    releaseRecord(second);
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  library.readInputs();
  const int result = library.call(graph, second);
  releaseRecord(second);
  return finishQuery(env, result, graph);
}
