// Performance counters and their files in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

const Members kTime = int32sAt(0, {".tm_sec", ".tm_min", ".tm_hour", ".tm_mday", ".tm_mon",
                                   ".tm_year", ".tm_wday", ".tm_yday", ".tm_isdst"});
const Members kCommands =
    int32sAt(0, {".valid", ".support", ".read_count", ".write_count", ".read_cache", ".write_cache",
                 ".read_size", ".write_size", ".online_verify_count"});
const Members kLuCommands =
    int32sAt(0, {".valid", ".support", ".command_count", ".command_total_time_h",
                 ".command_total_time_l", ".command_max_time_h", ".command_max_time_l",
                 ".delay_command_count_upto300", ".delay_command_count_upto500",
                 ".delay_command_count_upto1000", ".delay_command_count_ormore1000"});
const Members kLuEx = int32sAt(0, {".valid", ".support"}) + at(8, ".read_hit", kLuCommands) +
                      at(52, ".write_hit", kLuCommands) + at(96, ".read_miss", kLuCommands) +
                      at(140, ".write_miss", kLuCommands) + at(184, ".read_job", kLuCommands) +
                      at(228, ".write_job", kLuCommands) +
                      int32sAt(272, {".tag_count", ".total_tag_count", ".total_tag_set_count"});
const Members kPartition = int32sAt(
    0, {".valid", ".support", ".partition_valid", ".partition_cache_size", ".used_cache_size",
        ".used_cache_clean", ".used_cache_middle", ".used_cache_physical", ".used_cache_size_h",
        ".used_cache_size_l", ".used_cache_clean_h", ".used_cache_clean_l", ".used_cache_middle_h",
        ".used_cache_middle_l", ".used_cache_physical_h", ".used_cache_physical_l"});
const Members kCacheBus =
    int32sAt(0, {".valid", ".support", ".cachebus_monitoring_time", ".cachebus_used_time",
                 ".host_cachebus_used_time", ".drive_cachebus_used_time", ".drr_cachebus_used_time",
                 ".cpu_cachebus_used_time", ".dual_cachebus_used_time"});
const Members kDrive =
    at(0, ".drive_info", kCommands) +
    int32sAt(36, {".valid", ".support", ".not_opr_time_h", ".not_opr_time_l", ".tag_count[0]"}) +
    int32sAt(288, {".tag_count[59]", ".unload_time", ".total_tag_count_h", ".total_tag_count_l",
                   ".total_tag_set_count_h", ".total_tag_set_count_l"});
const Members kProcessor = int32sAt(0, {".valid",
                                        ".support",
                                        ".all_opr_time_h",
                                        ".all_opr_time_l",
                                        ".special_job_time_h",
                                        ".special_job_time_l",
                                        ".job_io_time_h",
                                        ".job_io_time_l",
                                        ".io_special_time_h",
                                        ".io_special_time_l",
                                        ".host_interrup_time_h",
                                        ".host_interrup_time_l",
                                        ".drive_interrup_time_h",
                                        ".drive_interrup_time_l",
                                        ".drr_interrup_time_h",
                                        ".drr_interrup_time_l",
                                        ".hostio_stop_time_h",
                                        ".hostio_stop_time_l",
                                        ".monitoring_time_h",
                                        ".monitoring_time_l"});
const Members kVirtualCommands =
    int32sAt(0, {".valid", ".support", ".command_count", ".command_transfer_block_count",
                 ".command_total_time_h", ".command_total_time_l", ".command_max_time_h",
                 ".command_max_time_l"});
const Members kVirtualPort =
    at(0, ".control", kVirtualCommands) + at(32, ".data_transfer", kVirtualCommands) +
    at(64, ".error", int32sAt(0, {".valid", ".support", ".timeout_error_count"}));

/// The first and the last element of every table, and all that is no table.
const Members kSnapshot =
    int32sAt(0, {".valid", ".support", ".get_status"}) + at(12, ".port[0]", kCommands) +
    at(264, ".port[7]", kCommands) + at(300, ".rg[0]", kCommands) +
    at(7464, ".rg[199]", kCommands) + at(7500, ".lu[0]", kCommands) +
    at(302376, ".lu[8191]", kCommands) + at(302412, ".lu_ex[0]", kLuEx) +
    at(2628656, ".lu_ex[8191]", kLuEx) +
    int32sAt(2628940, {".all_cache_size", ".used_cache_size", ".used_cache_clean",
                       ".used_cache_middle", ".used_cache_physical", ".used_cache_size_h",
                       ".used_cache_size_l", ".used_cache_clean_h", ".used_cache_clean_l",
                       ".used_cache_middle_h", ".used_cache_middle_l", ".used_cache_physical_h",
                       ".used_cache_physical_l", ".update_count"}) +
    at(2628996, ".cachePartition[0]", kPartition) + at(2633028, ".cachePartition[63]", kPartition) +
    at(2633092, ".cachebus", kCacheBus) + at(2633128, ".backend[0]", kCommands) +
    at(2633380, ".backend[7]", kCommands) + at(2633416, ".drive[0][0]", kDrive) +
    at(3194704, ".drive[59][29]", kDrive) + at(3195016, ".processor", kProcessor) +
    at(3195096, ".processor_core[0]", kProcessor) + at(3195336, ".processor_core[3]", kProcessor) +
    at(3195416, ".vu_port[0]", kVirtualPort) + at(3195948, ".vu_port[7]", kVirtualPort) +
    at(3196024, ".vu_lu[0]", kVirtualCommands) + at(3458136, ".vu_lu[8191]", kVirtualCommands) +
    at(3458168, ".mtime", kTime) + int32sAt(3458204, {".err_code"});

const Members kCommandCounts = int32sAt(0, {".lu[0].read_count", ".lu[0].write_count",
                                            ".lu[0].read_cache", ".lu[0].write_cache"}) +
                               int32sAt(65520, {".lu[4095].read_count", ".lu[4095].write_count",
                                                ".lu[4095].read_cache", ".lu[4095].write_cache"}) +
                               at(65536, ".mtime", kTime);

/// The members of an object at hand: their paths begin with the field itself.
Members own(Members members) {
  for (Member& member : members) {
    member.path.erase(0, 1);
  }
  return members;
}

class PerformanceCollection : public RegisteredUnit {
 protected:
  jobject element(jobject array, int index) {
    return realJvm()->GetObjectArrayElement(static_cast<jobjectArray>(array), index);
  }
  jobject snapshots() { return call("QV_GetPerformanceAll", {unit_, session_, number(0)}).result; }
  jobject commandCounts() { return call("QV_GetPerformance", {unit_, session_}).result; }
  static void setObject(jobject object, const char* name, const char* signature, jobject value) {
    JNIEnv* const env = realJvm();
    env->SetObjectField(object, env->GetFieldID(env->GetObjectClass(object), name, signature),
                        value);
  }
  /// A request for what was counted between two results of `snapshots`.
  jobject request(const char* className, jobject before, jobject after) {
    const jobject made = create(className);
    const char* const type = "Ltessaly/str/diskarray/PerformanceAll;";
    setObject(made, "preinfo0", type, element(before, 0));
    setObject(made, "afterinfo0", type, element(after, 0));
    setObject(made, "preinfo1", type, element(before, 1));
    setObject(made, "afterinfo1", type, element(after, 1));
    return made;
  }
  static jobject selection(std::size_t bytes, const std::vector<int>& chosen) {
    const jbyteArray array = realJvm()->NewByteArray(static_cast<jsize>(bytes));
    const jbyte one = 1;
    for (const int index : chosen) {
      realJvm()->SetByteArrayRegion(array, index, 1, &one);
    }
    return array;
  }
  static void fillMatrix(jobject object, const std::string& field, int rows) {
    for (int row = 0; row < rows; ++row) {
      set(object, field + '[' + std::to_string(row) + "][29]", "0");
    }
  }
  static std::string file(const char* name) { return ::testing::TempDir() + name; }
};

TEST_F(PerformanceCollection, Snapshots) {
  expectBuilt("QV_GetPerformanceAll", {unit_, session_, number(5)}, 6916416,
              at(0, "[0]", kSnapshot) + at(3458208, "[1]", kSnapshot));
  int passed = 0;
  quorvelSimLastInput("QV_GetPerformanceAll", 2, &passed, sizeof passed);
  EXPECT_EQ(passed, 5);
  expectBuilt("QV_GetPerformance", {unit_, session_}, 131144,
              at(0, "[0]", kCommandCounts) + at(65572, "[1]", kCommandCounts));
  const jobject pair = call("QV_GetPerformance", {text("nowhere"), session_}).result;
  EXPECT_EQ(pair, nullptr) << "the unit is not registered";
}

TEST_F(PerformanceCollection, SnapshotsInRequests) {
  const jobject all = create("PerformanceOutputAllRequest");
  const jobject allEx = create("PerformanceOutputAllExRequest");
  const jobject graph = create("PerformanceOutputGraphInfoRequest");
  int place = 0;
  for (const char* const field : {"preinfo0", "afterinfo0", "preinfo1", "afterinfo1"}) {
    expectRead("QV_PerformanceOutputAll", {unit_, all}, all, 3 + place, 3458208,
               at(0, field, kSnapshot));
    // The same reader: its first members show the place.
    const Members few = at(0, field, int32sAt(0, {".valid", ".support", ".get_status"}));
    expectRead("QV_PerformanceOutputAllEx", {unit_, session_, allEx}, allEx, 4 + place, 3458208,
               few);
    expectRead("QV_PerformanceOutputGraphInfo", {unit_, session_, graph}, graph, 2 + place, 3458208,
               few);
    ++place;
  }
}

TEST_F(PerformanceCollection, Requests) {
  const jobject all = create("PerformanceOutputAllRequest");
  fillMatrix(all, "drive", 16);
  fillMatrix(all, "drive_opr_rate", 16);
  const std::vector<jobject> arguments{unit_, all};
  expectRead("QV_PerformanceOutputAll", arguments, all, 1, 1024, {textAt(0, 1024, "filename")});
  expectRead(
      "QV_PerformanceOutputAll", arguments, all, 2, 3088,
      Members{bytesAt(0, 8, "port"), bytesAt(8, 8, "backend"), bytesAt(16, 2048, "lu"),
              int32At(2064, "cache"), int32At(2068, "processor"), bytesAt(2072, 30, "drive[0]"),
              bytesAt(2522, 30, "drive[15]"), bytesAt(2552, 30, "drive_opr_rate[0]"),
              bytesAt(3002, 30, "drive_opr_rate[15]")} +
          int32sAt(3032, {"count", "mode", "file_fmt_mode"}));

  const jobject allEx = create("PerformanceOutputAllExRequest");
  for (const char* const path : {"specifyinfo[0].drive", "specifyinfo[0].drive_opr_rate",
                                 "specifyinfo[1].drive", "specifyinfo[1].drive_opr_rate"}) {
    fillMatrix(allEx, path, 60);
  }
  const Members specifyInfo{bytesAt(0, 8, ".port"),
                            bytesAt(8, 8, ".backend"),
                            bytesAt(16, 8192, ".lu"),
                            int32At(8208, ".cache"),
                            int32At(8212, ".processor"),
                            bytesAt(8216, 30, ".drive[0]"),
                            bytesAt(9986, 30, ".drive[59]"),
                            bytesAt(10016, 30, ".drive_opr_rate[0]"),
                            bytesAt(11786, 30, ".drive_opr_rate[59]")};
  const std::vector<jobject> argumentsEx{unit_, session_, allEx};
  expectRead("QV_PerformanceOutputAllEx", argumentsEx, allEx, 2, 1024,
             {textAt(0, 1024, "filename")});
  expectRead("QV_PerformanceOutputAllEx", argumentsEx, allEx, 3, 24056,
             at(0, "specifyinfo[0]", specifyInfo) + at(11816, "specifyinfo[1]", specifyInfo) +
                 int32sAt(23632, {"count", "mode", "file_fmt_mode"}));

  const jobject csv = create("PerformanceOutputCSVRequest");
  const Members csvMembers =
      Members{textAt(0, 1024, "dirname")} +
      int32sAt(1024,
               {"fromtime.year", "fromtime.month", "fromtime.day", "fromtime.hour",
                "fromtime.minute", "fromtime.second", "totime.year", "totime.month", "totime.day",
                "totime.hour", "totime.minute", "totime.second", "fromDataNum", "toDataNum"});
  for (const char* const method : {"QV_PerformanceOutputCSV", "QV_GetPerformanceCSVNum"}) {
    expectRead(method, {text("path"), csv}, csv, 1, 1336, csvMembers);
  }

  const jobject time = create("QVTime");
  expectRead("QV_PerformanceOutputSkip", {unit_, text("path"), time, number(9)}, time, 2, 36,
             own(kTime));
}

TEST_F(PerformanceCollection, CommandCountsAsArguments) {
  std::vector<jobject> arguments{unit_, session_, text("path")};
  for (int index = 0; index < 4; ++index) {
    arguments.push_back(create("StatisticalCommand"));
  }
  for (std::size_t index = 3; index < 7; ++index) {
    expectRead("QV_PerformanceOutput", arguments, arguments[index], static_cast<int>(index), 65572,
               own(kCommandCounts));
  }
  // More elements than the record has room for end in front of the time, fewer do not matter.
  for (const char* const last : {"lu[5000].write_cache", "lu[2].write_cache"}) {
    set(arguments[3], last, "77");
    set(arguments[3], "mtime.tm_sec", "42");
    quorvelSimForceResult("QV_PerformanceOutput", 0, 1);
    EXPECT_EQ(call("QV_PerformanceOutput", arguments).failure, "");
    std::vector<int> record(65572 / sizeof(int));
    ASSERT_EQ(quorvelSimLastInput("QV_PerformanceOutput", 3, record.data(), 65572), 65572U);
    EXPECT_EQ(record[65536 / sizeof(int)], 42);
    setLength(arguments[3], "lu", 0);
  }

  arguments.insert(arguments.end(), {selection(4097, {0, 4095, 4096}), number(6), number(7)});
  for (std::size_t index = 3; index < 7; ++index) {
    expectRead("QV_PerformanceOutputLU", arguments, arguments[index], static_cast<int>(index),
               65572, own(kCommandCounts));
  }
  std::vector<unsigned char> chosen(4096);
  EXPECT_EQ(quorvelSimLastInput("QV_PerformanceOutputLU", 7, chosen.data(), 4096), 4096U);
  EXPECT_EQ(chosen[0] + chosen[1] + chosen[4095], 2);
  int option = 0;
  quorvelSimLastInput("QV_PerformanceOutputLU", 9, &option, sizeof option);
  EXPECT_EQ(option, 7);
  arguments[7] = nullptr;
  quorvelSimForceResult("QV_PerformanceOutputLU", 0, 1);
  EXPECT_EQ(call("QV_PerformanceOutputLU", arguments).failure, "");
}

TEST_F(PerformanceCollection, SmallRecords) {
  const Members threshold =
      int32sAt(0, {"mechanical_recover", "mechanical_unrecover", "media_recover", "media_unrecover",
                   "read_write_recover", "read_write_unrecover", "drive_recover", "drive_unrecover",
                   "controller_recover", "controller_unrecover", "scsi_recover", "scsi_unrecover",
                   "correctable_error", "uncorrectable_error"});
  expectBuilt("QV_GetThreshold", {unit_, session_}, 56, threshold);
  const jobject object = create("Threshold");
  expectRead("QV_SetThreshold", {unit_, session_, object}, object, 2, 56, threshold);

  expectBuilt(
      "QV_PerformanceInputMngFile", {text("path")}, 232,
      Members{textAt(0, 16, "dampver"), textAt(16, 65, "unitname"), textAt(81, 9, "microver"),
              textAt(90, 9, "serialno")} +
          int32sAt(100, {"qv_type", "device_type", "portMaxCount", "rgMaxCount", "luMaxCount",
                         "cacheMaxCount", "processorMaxCount", "hdd_hdu_count", "hdd_unit_count",
                         "backendMaxCount", "cachepartitionMaxCount", "cpucoreCount", "ctlcond",
                         "ctl0", "ctl1", "intervaltime"}) +
          Members{textAt(168, 16, "structver")} +
          int32sAt(184, {"fromtime.year", "fromtime.month", "fromtime.day", "fromtime.hour",
                         "fromtime.minute", "fromtime.second", "totime.year", "totime.month",
                         "totime.day", "totime.hour", "totime.minute", "totime.second"}));

  const Members times = at(0, "graphinfo.mtime[0]", kTime) + at(36, "graphinfo.mtime[1]", kTime);
  const jobject graphRequest = create("PerformanceOutputGraphInfoRequest");
  expectBuilt("QV_PerformanceOutputGraphInfo", {unit_, session_, graphRequest}, 1729120, times);
  const jobject graph = create("PerformanceCollectGraphInfo");
  expectRead("QV_PerformanceDataOutput", {text("path"), graph}, graph, 1, 864560, times);
  expectRead("QV_PerformanceDataInitialize", {session_, text("path"), number(1), number(2)},
             session_, 0, 32, {bytesAt(0, 32, "session_id")});
}

TEST_F(PerformanceCollection, GraphsAreBuiltAtFullCapacity) {
  quorvelSimForceResult("QV_PerformanceOutputGraphInfo", 0, 1);
  const jobject graph = call("QV_PerformanceOutputGraphInfo",
                             {unit_, session_, create("PerformanceOutputGraphInfoRequest")})
                            .result;
  const auto shape = [&](const char* field) {
    return get(graph, std::string("graphinfo.") + field);
  };
  EXPECT_EQ(shape("port"), "PerformanceCollectGraphPort[8]");
  EXPECT_EQ(shape("lu"), "PerformanceCollectGraphLU[8192]");
  EXPECT_NE(shape("lu[8191]"), "null");
  EXPECT_NE(shape("cache"), "null");
  EXPECT_EQ(shape("backend"), "PerformanceCollectGraphBackend[8]");
  EXPECT_EQ(shape("drive[59]"), "PerformanceCollectGraphDrive[30]");
  EXPECT_NE(shape("processor"), "null");
  EXPECT_EQ(shape("driveopr[59]"), "PerformanceCollectGraphDriveOpr[30]");
  EXPECT_EQ(shape("rg"), "PerformanceCollectGraphRG[200]");
  EXPECT_NE(shape("cache2"), "null");
  EXPECT_EQ(shape("luex"), "PerformanceCollectGraphLUEx[8192]");
  EXPECT_EQ(shape("cachepartition"), "PerformanceCollectGraphCachePartition[64]");
  EXPECT_EQ(shape("vu_port"), "PerformanceCollectGraphVUPort[8]");
  EXPECT_EQ(shape("vu_lu"), "PerformanceCollectGraphVULU[8192]");
}

TEST_F(PerformanceCollection, CountersGrowWhileStatisticsAreOn) {
  const jobject first = snapshots();
  const jobject second = snapshots();
  EXPECT_EQ(get(first, ""), "PerformanceAll[2]");
  EXPECT_EQ(get(first, "[1].lu[3].read_count"), "3900");
  EXPECT_EQ(get(second, "[1].lu[3].read_count"), "7800");
  EXPECT_EQ(get(second, "[0].lu[3].read_count"), "0");
  EXPECT_EQ(get(second, "[0].used_cache_size_h"), "1");
  call("QV_SetPfmStatisCfg", {unit_, session_, number(0)});
  EXPECT_EQ(get(call("QV_GetPfmStatisCfg", {unit_, session_}).result, ""), "0");
  EXPECT_EQ(get(snapshots(), "[1].lu[3].read_count"), "7800");
  EXPECT_EQ(get(commandCounts(), "[1].lu[3].read_count"), "7800");

  EXPECT_EQ(get(call("QV_GetPfmFileMaxCount", {}).result, ""), "2880");
  const jobject threshold = call("QV_GetThreshold", {unit_, session_}).result;
  EXPECT_EQ(get(threshold, "media_recover"), "50");
  set(threshold, "media_recover", "51");
  call("QV_SetThreshold", {unit_, session_, threshold});
  EXPECT_EQ(get(call("QV_GetThreshold", {unit_, session_}).result, "media_recover"), "51");
}

TEST_F(PerformanceCollection, IntervalsBecomeFiles) {
  const jobject before = commandCounts();
  const jobject after = commandCounts();
  const std::string path = file("counts");
  std::vector<jobject> arguments{unit_,
                                 session_,
                                 text(path),
                                 element(before, 0),
                                 element(after, 0),
                                 element(before, 1),
                                 element(after, 1)};
  EXPECT_EQ(call("QV_PerformanceOutput", arguments).failure, "");
  const std::string content = contentOf(path);
  EXPECT_NE(content.find("\n0,0,120,40\n"), std::string::npos) << content;
  EXPECT_NE(content.find("\n1,3,3900,1300\n"), std::string::npos) << content;
  arguments.insert(arguments.end(), {selection(4096, {3}), number(0), number(0)});
  EXPECT_EQ(call("QV_PerformanceOutputLU", arguments).failure, "");
  EXPECT_EQ(contentOf(path), "controller,lu,reads,writes\n1,3,3900,1300\n");
  arguments[2] = text(file("no such directory/counts"));
  EXPECT_EQ(call("QV_PerformanceOutputLU", arguments).failure, "DiskArrayException 20801");
  arguments[2] = nullptr;
  EXPECT_EQ(call("QV_PerformanceOutputLU", arguments).failure, "DiskArrayException 258");

  const jobject allBefore = snapshots();
  const jobject allAfter = snapshots();
  const jobject all = request("PerformanceOutputAllRequest", allBefore, allAfter);
  set(all, "filename", path);
  setObject(all, "port", "[B", selection(8, {}));
  setObject(all, "backend", "[B", selection(8, {}));
  setObject(all, "lu", "[B", selection(2048, {3}));
  EXPECT_EQ(call("QV_PerformanceOutputAll", {unit_, all}).failure, "");
  // No table of drives was given: the reading of the options ends there, which is not looked at.
  EXPECT_EQ(contentOf(path), "controller,lu,reads,writes\n1,3,3900,1300\n");
  const jobject time = create("QVTime");
  set(time, "tm_hour", "9");
  EXPECT_EQ(call("QV_PerformanceOutputSkip", {unit_, text(path), time, number(0)}).failure, "");
  EXPECT_EQ(contentOf(path), "controller,lu,reads,writes\n1,3,3900,1300\nskipped,9,0,0\n");
}

TEST_F(PerformanceCollection, GraphsMakeACollection) {
  const std::string path = file("collection");
  EXPECT_EQ(
      call("QV_PerformanceDataInitialize", {session_, text(path), number(60), number(0)}).failure,
      "");
  for (int interval = 0; interval < 2; ++interval) {
    const jobject before = snapshots();
    const jobject graph =
        call("QV_PerformanceOutputGraphInfo",
             {unit_, session_, request("PerformanceOutputGraphInfoRequest", before, snapshots())})
            .result;
    EXPECT_EQ(call("QV_PerformanceDataOutput", {text(path), graph}).failure, "");
  }
  const jobject information = call("QV_PerformanceInputMngFile", {text(path)}).result;
  EXPECT_EQ(get(information, "unitname"), "north");
  EXPECT_EQ(get(information, "serialno"), "85000101");
  EXPECT_EQ(get(information, "intervaltime"), "60");
  EXPECT_EQ(get(information, "fromtime.minute"), "2");
  EXPECT_EQ(get(information, "totime.minute"), "4");
  EXPECT_EQ(get(information, "totime.year"), "2010");

  const jobject csv = create("PerformanceOutputCSVRequest");
  set(csv, "dirname", ::testing::TempDir());
  set(csv, "fromtime.year", "2010");
  set(csv, "totime.year", "2010");
  set(csv, "fromDataNum", "2");
  set(csv, "toDataNum", "9");
  EXPECT_EQ(get(call("QV_GetPerformanceCSVNum", {text(path), csv}).result, ""), "1");
  EXPECT_EQ(call("QV_PerformanceOutputCSV", {text(path), csv}).failure, "");
  EXPECT_EQ(contentOf(file("performance1.csv")), "hour,minute\n0,4\n");
  EXPECT_EQ(call("QV_PerformanceInputMngFile", {text(file("nothing"))}).failure,
            "DiskArrayException 20801");
}

}  // namespace
}  // namespace quorvelj::testing
