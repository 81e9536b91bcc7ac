// Performance counters and their files.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

const Members kTime =
    "0:int32 tm_sec tm_min tm_hour tm_mday tm_mon tm_year tm_wday tm_yday tm_isdst";
const Members kCommands =
    "0:int32 valid support read_count write_count read_cache write_cache read_size write_size "
    "online_verify_count";
const Members kLuCommands =
    "0:int32 valid support command_count command_total_time_h command_total_time_l "
    "command_max_time_h command_max_time_l delay_command_count_upto300 delay_command_count_upto500 "
    "delay_command_count_upto1000 delay_command_count_ormore1000";
const Members kLuEx = "0:int32 valid support" + at("8:read_hit", kLuCommands) +
                      at("52:write_hit", kLuCommands) + at("96:read_miss", kLuCommands) +
                      at("140:write_miss", kLuCommands) + at("184:read_job", kLuCommands) +
                      at("228:write_job", kLuCommands) +
                      "272:int32 tag_count total_tag_count total_tag_set_count";
const Members kPartition =
    "0:int32 valid support partition_valid partition_cache_size used_cache_size used_cache_clean "
    "used_cache_middle used_cache_physical used_cache_size_h used_cache_size_l used_cache_clean_h "
    "used_cache_clean_l used_cache_middle_h used_cache_middle_l used_cache_physical_h "
    "used_cache_physical_l";
const Members kCacheBus =
    "0:int32 valid support cachebus_monitoring_time cachebus_used_time host_cachebus_used_time "
    "drive_cachebus_used_time drr_cachebus_used_time cpu_cachebus_used_time "
    "dual_cachebus_used_time";
const Members kDrive =
    at("0:drive_info", kCommands) +
    "36:int32 valid support not_opr_time_h not_opr_time_l tag_count[0]; 288:int32 tag_count[59] "
    "unload_time total_tag_count_h total_tag_count_l total_tag_set_count_h total_tag_set_count_l";
const Members kProcessor =
    "0:int32 valid support all_opr_time_h all_opr_time_l special_job_time_h special_job_time_l "
    "job_io_time_h job_io_time_l io_special_time_h io_special_time_l host_interrup_time_h "
    "host_interrup_time_l drive_interrup_time_h drive_interrup_time_l drr_interrup_time_h "
    "drr_interrup_time_l hostio_stop_time_h hostio_stop_time_l monitoring_time_h monitoring_time_l";
const Members kVirtualCommands =
    "0:int32 valid support command_count command_transfer_block_count command_total_time_h "
    "command_total_time_l command_max_time_h command_max_time_l";
const Members kVirtualPort = at("0:control", kVirtualCommands) +
                             at("32:data_transfer", kVirtualCommands) +
                             at("64:error", "0:int32 valid support timeout_error_count");

/// The first and the last element of every table, and all other members.
const Members kSnapshot =
    "0:int32 valid support get_status" + at("12:port[0] 264:port[7]", kCommands) +
    at("300:rg[0] 7464:rg[199]", kCommands) + at("7500:lu[0] 302376:lu[8191]", kCommands) +
    at("302412:lu_ex[0] 2628656:lu_ex[8191]", kLuEx) +
    "2628940:int32 all_cache_size used_cache_size used_cache_clean used_cache_middle "
    "used_cache_physical used_cache_size_h used_cache_size_l used_cache_clean_h used_cache_clean_l "
    "used_cache_middle_h used_cache_middle_l used_cache_physical_h used_cache_physical_l "
    "update_count" +
    at("2628996:cachePartition[0] 2633028:cachePartition[63]", kPartition) +
    at("2633092:cachebus", kCacheBus) + at("2633128:backend[0] 2633380:backend[7]", kCommands) +
    at("2633416:drive[0][0] 3194704:drive[59][29]", kDrive) + at("3195016:processor", kProcessor) +
    at("3195096:processor_core[0] 3195336:processor_core[3]", kProcessor) +
    at("3195416:vu_port[0] 3195948:vu_port[7]", kVirtualPort) +
    at("3196024:vu_lu[0] 3458136:vu_lu[8191]", kVirtualCommands) + at("3458168:mtime", kTime) +
    "3458204:int32 err_code";

const Members kCommandCounts =
    at("0:lu[0] 65520:lu[4095]", "0:int32 read_count write_count read_cache write_cache") +
    at("65536:mtime", kTime);

class PerformanceCollection : public RegisteredUnit {
 protected:
  static jobject selection(std::size_t bytes, const std::vector<int>& chosen) {
    const jbyteArray array = javaEnv()->NewByteArray(static_cast<jsize>(bytes));
    const jbyte one = 1;
    for (const int index : chosen) {
      javaEnv()->SetByteArrayRegion(array, index, 1, &one);
    }
    return array;
  }
  /// A request with tables of drives of so many rows.
  static jobject requestWith(const char* className, int rows,
                             const std::vector<std::string>& tables) {
    const jobject made = create(className);
    for (const std::string& table : tables) {
      for (int row = 0; row < rows; ++row) {
        set(made, table + '[' + std::to_string(row) + "][29]", "0");
      }
    }
    return made;
  }
};

TEST_F(PerformanceCollection, Snapshots) {
  expectFromUnit("QV_GetPerformanceAll", 6916416, at("0:[0] 3458208:[1]", kSnapshot), {5});
  expectFromUnit("QV_GetPerformance", 131144, at("0:[0] 65572:[1]", kCommandCounts));
  const jobject pair = call("QV_GetPerformance", {text("nowhere"), session_}).result;
  EXPECT_EQ(pair, nullptr) << "the unit is not registered";
}

TEST_F(PerformanceCollection, SnapshotsInRequests) {
  const jobject all = create("PerformanceOutputAllRequest");
  const jobject allEx = create("PerformanceOutputAllExRequest");
  const jobject graph = create("PerformanceOutputGraphInfoRequest");
  int place = 0;
  for (const char* const field : {"0:preinfo0", "0:afterinfo0", "0:preinfo1", "0:afterinfo1"}) {
    expectRead("QV_PerformanceOutputAll", {unit_, all}, all, 3 + place, 3458208,
               at(field, kSnapshot));
    // The same reader: its first members show the place.
    const Members few = at(field, "0:int32 valid support get_status");
    expectRead("QV_PerformanceOutputAllEx", {unit_, session_, allEx}, allEx, 4 + place, 3458208,
               few);
    expectRead("QV_PerformanceOutputGraphInfo", {unit_, session_, graph}, graph, 2 + place, 3458208,
               few);
    ++place;
  }
  const Members snapshots = "visited preinfo0 afterinfo0 preinfo1 afterinfo1";
  expectRead("QV_PerformanceOutputAll", {unit_, all}, all, 3, 3458208,
             "visited filename port" + snapshots);
  expectRead("QV_PerformanceOutputAllEx", {unit_, session_, allEx}, allEx, 4, 3458208,
             "visited filename specifyinfo" + snapshots);
  expectRead("QV_PerformanceOutputGraphInfo", {unit_, session_, graph}, graph, 2, 3458208,
             snapshots);
}

TEST_F(PerformanceCollection, Requests) {
  const jobject all = requestWith("PerformanceOutputAllRequest", 15, {"drive", "drive_opr_rate"});
  expectRead("QV_PerformanceOutputAll", {unit_, all}, all, 1, 1024, "0:text1024 filename");
  expectRead("QV_PerformanceOutputAll", {unit_, all}, all, 2, 3088,
             "0:bytes8 port backend; 16:bytes2048 lu; 2064:int32 cache processor; 2072:bytes30 "
             "drive[0]; 2492:bytes30 drive[14] drive_opr_rate[0]; 2942:bytes30 drive_opr_rate[14]; "
             "2972:int32 count mode file_fmt_mode");

  const jobject allEx = requestWith("PerformanceOutputAllExRequest", 60,
                                    {"specifyinfo[0].drive", "specifyinfo[0].drive_opr_rate",
                                     "specifyinfo[1].drive", "specifyinfo[1].drive_opr_rate"});
  expectRead("QV_PerformanceOutputAllEx", {unit_, session_, allEx}, allEx, 2, 1024,
             "0:text1024 filename");
  expectRead(
      "QV_PerformanceOutputAllEx", {unit_, session_, allEx}, allEx, 3, 24056,
      at("0:specifyinfo[0] 11816:specifyinfo[1]",
         "0:bytes8 port backend; 16:bytes8192 lu; 8208:int32 cache processor; 8216:bytes30 "
         "drive[0]; 9986:bytes30 drive[59] drive_opr_rate[0]; 11786:bytes30 drive_opr_rate[59]") +
          "23632:int32 count mode file_fmt_mode");

  const jobject csv = create("PerformanceOutputCSVRequest");
  for (const char* const method : {"QV_PerformanceOutputCSV", "QV_GetPerformanceCSVNum"}) {
    expectRead(method, {text("path"), csv}, csv, 1, 1336,
               "0:text1024 dirname" +
                   at("1024:fromtime 1048:totime", "0:int32 year month day hour minute second") +
                   "1072:int32 fromDataNum toDataNum; visited outputopt");
    EXPECT_EQ(lastText(method, 0), "path");
  }
  const std::int32_t written = -5;
  quorvelSimPrepareOutput("QV_GetPerformanceCSVNum", &written, sizeof written);
  EXPECT_EQ(get(call("QV_GetPerformanceCSVNum", {text("path"), csv}).result, ""), "-5");

  const jobject time = create("QVTime");
  expectRead("QV_PerformanceOutputSkip", {unit_, text("path"), time, number(9)}, time, 2, 36,
             kTime);
  EXPECT_EQ(lastText("QV_PerformanceOutputSkip", 1), "path");
  EXPECT_EQ(lastInt("QV_PerformanceOutputSkip", 3), 9);
  expectPassed("QV_PerformanceDataInitialize spii");
}

TEST_F(PerformanceCollection, CommandCountsAsArguments) {
  std::vector<jobject> arguments{unit_, session_, text("path")};
  for (int index = 0; index < 4; ++index) {
    arguments.push_back(create("StatisticalCommand"));
  }
  const auto expectCounts = [&](const char* method) {
    for (std::size_t index = 3; index < 7; ++index) {
      expectRead(method, arguments, arguments[index], static_cast<int>(index), 65572,
                 kCommandCounts);
    }
    EXPECT_EQ(lastText(method, 2), "path");
  };
  expectCounts("QV_PerformanceOutput");

  const char* const method = "QV_PerformanceOutputLU";
  arguments.insert(arguments.end(), {selection(4097, {0, 4095, 4096}), number(6), number(7)});
  expectCounts(method);
  const std::string chosen = lastInput(method, 7);
  ASSERT_EQ(chosen.size(), 4096U);
  EXPECT_EQ(std::count(chosen.begin(), chosen.end(), '\1'), 2);
  EXPECT_EQ(chosen[0] + chosen[4095], 2);
  EXPECT_EQ(lastInt(method, 8), 6);
  EXPECT_EQ(lastInt(method, 9), 7);
  arguments[7] = nullptr;
  quorvelSimForceResult(method, 0, 1);
  EXPECT_EQ(call(method, arguments).failure, "");
}

TEST_F(PerformanceCollection, SmallRecords) {
  expectGetAndSet(
      "Threshold", "Threshold", 56,
      "0:int32 mechanical_recover mechanical_unrecover media_recover media_unrecover "
      "read_write_recover read_write_unrecover drive_recover drive_unrecover controller_recover "
      "controller_unrecover scsi_recover scsi_unrecover correctable_error uncorrectable_error");

  expectBuilt("QV_PerformanceInputMngFile", {text("path")}, 232,
              "0:text16 dampver; 16:text65 unitname; 81:text9 microver serialno; 100:int32 qv_type "
              "device_type portMaxCount rgMaxCount luMaxCount cacheMaxCount processorMaxCount "
              "hdd_hdu_count hdd_unit_count backendMaxCount cachepartitionMaxCount cpucoreCount "
              "ctlcond ctl0 ctl1 intervaltime; 168:text16 structver" +
                  at("184:fromtime 208:totime", "0:int32 year month day hour minute second"));
  EXPECT_EQ(lastText("QV_PerformanceInputMngFile", 0), "path");

  const Members times = at("0:graphinfo.mtime[0] 36:graphinfo.mtime[1]", kTime) +
                        at("0:graphinfo",
                           "visited port lu cache backend drive processor driveopr rg cache2 luex "
                           "cachepartition vu_port vu_lu");
  expectBuilt("QV_PerformanceOutputGraphInfo",
              {unit_, session_, create("PerformanceOutputGraphInfoRequest")}, 1729120, times);
  quorvelSimForceResult("QV_PerformanceOutputGraphInfo", 0, 1);
  const jobject graph =
      information("QV_PerformanceOutputGraphInfo", create("PerformanceOutputGraphInfoRequest"));
  expectFields(graph,
               "graphinfo.drive[59]=PerformanceCollectGraphDrive[30]; "
               "graphinfo.driveopr[59]=PerformanceCollectGraphDriveOpr[30]");
  expectRead("QV_PerformanceDataOutput", {text("path"), graph}, graph, 1, 864560, times);
  expectPassed("QV_SetPfmStatisCfg usi");
  expectPassedAndReturned("QV_GetPfmStatisCfg us; QV_GetPfmFileMaxCount");
}

TEST_F(PerformanceCollection, CountsBecomeAFile) {
  createGroup(0);
  createLu(3, 0, 0, 2048);
  const jobject before = information("QV_GetPerformance");
  const jobject after = information("QV_GetPerformance");
  const std::string path = temporary("counts");
  update("QV_PerformanceOutputLU", path, element(before, 0), element(after, 0), element(before, 1),
         element(after, 1), selection(4096, {3}), 0, 0);
  EXPECT_EQ(contentOf(path), "controller,lu,reads,writes\n0,3,3900,1300\n");
}

}  // namespace
}  // namespace quorvelj::testing
