// The array's internal counters in a real Java process.
#include "tests/real_jvm/registered_unit.h"

namespace quorvelj::testing {
namespace {

/// A member of both elements of an array, as its table prints it.
struct Entry {
  const char* field;
  std::size_t offset;
  std::size_t bytes;
  std::vector<Member> members;
};

/// Elements of which no field is known are told by their number.
const std::vector<Entry> kEntries{
    {"controller", 4, 44,
     int32sAt(0, {"power_on", "reset", "total_time", "on_time", "total_time_rap_cnt",
                  "total_time_rap_cnt_work", "lu_change", "procnt_time[0]", "procnt_time[1]",
                  "procnt_time[2]", "procnt_time[3]"})},
    {"cache", 720988, 528,
     int32sAt(0, {"wrt_inhcnt", "wrt_outhcnt", "seqwr_bufcnt", "seg_lock_cnt"})},
    {"writeafter",
     722044,
     14408,
     {int32At(0, "raid0_stripe_cnt"), int32At(4, "raid0_stripe_job[0]"),
      int32At(1800, "raid0_stripe_job[449]"), int32At(1804, "raid5_stripe_cnt"),
      int32At(1808, "raid5_stripe_job[0]"), int32At(3604, "raid5_stripe_job[449]"),
      int32At(3608, "stripe_job_rmw[0]"), int32At(5404, "stripe_job_rmw[449]"),
      int32At(5408, "stripe_job_partial[0]"), int32At(7204, "stripe_job_partial[449]")}},
    {"drive_rest", 750860, 12, int32sAt(0, {"inter_cnt", "back_cnt", "system_cnt"})},
    {"cache_mem",
     750884,
     312,
     {int32At(0, "battery"), int32At(4, "threshold"), int32At(8, "correct_err[0]"),
      int32At(52, "correct_err[11]"), int32At(56, "segment[0]"), int32At(308, "segment[63]")}},
    {"drive", 751508, 34204, int32sAt(0, {"err_rtry"})},
    {"d_spc",
     820012,
     32,
     {int32At(0, "retry"), int32At(4, "err_threshold"), int32At(8, "err_count[0]"),
      int32At(28, "err_count[5]")}},
    {"d_dma", 820268, 108, int32sAt(0, {"dma_retry", "dma_path_retry", "drr_retry"})},
    {"h_dma", 820484, 16, int32sAt(0, {"err_rtry", "dma_errcnt", "bus_errcnt", "la_errcnt"})},
    {"hontai",
     820516,
     52,
     {int32At(0, "pctl_err"), int32At(4, "pci_err"), int32At(8, "mpu_err"), int32At(12, "dctl_err"),
      int32At(16, "bridge_err"), int32At(28, "upst"), int32At(32, "ac_inbox"),
      int32At(36, "backup_power"), int32At(40, "auto_reset"), int32At(44, "auto_reboot"),
      int32At(48, "ectl_err")}},
    {"shuuhen", 820620, 16, {int32At(0, "panel"), int32At(8, "rs232c")}},
    {"dual", 820652, 12, int32sAt(0, {"other_correct", "other_dual", "self_dual"})},
    {"unit", 825092, 20, {int32At(0, "battery"), int32At(12, "upst"), int32At(16, "backup_power")}},
};

class StatisticalInformation : public RegisteredUnit {
 protected:
  std::vector<jobject> arguments_{unit_, session_, number(3)};
};

TEST_F(StatisticalInformation, Record) {
  std::vector<Member> members{int32At(0, "unite_option")};
  for (const Entry& entry : kEntries) {
    for (const std::size_t controller : {0U, 1U}) {
      for (Member member : entry.members) {
        member.offset += entry.offset + controller * entry.bytes;
        member.path =
            std::string(entry.field) + '[' + std::to_string(controller) + "]." + member.path;
        members.push_back(member);
      }
    }
  }
  expectBuilt("QV_GetStatisticalInformation", arguments_, 900852, members);
  int option = 0;
  quorvelSimLastInput("QV_GetStatisticalInformation", 2, &option, sizeof option);
  EXPECT_EQ(option, 3);
}

TEST_F(StatisticalInformation, TablesAreBuiltAtFullCapacity) {
  quorvelSimForceResult("*", 0, 1);
  const jobject information = call("QV_GetStatisticalInformation", arguments_).result;
  for (const char* const field : {"controller",
                                  "h_command",
                                  "h_command_unite",
                                  "com_status",
                                  "com_status_unite",
                                  "cache",
                                  "writeafter",
                                  "drive_rest",
                                  "cache_mem",
                                  "drive",
                                  "h_spc",
                                  "d_spc",
                                  "d_fpc",
                                  "d_dma",
                                  "h_dma",
                                  "hontai",
                                  "shuuhen",
                                  "dual",
                                  "fibre",
                                  "unit",
                                  "drive_err"}) {
    const std::string shown = get(information, field);
    EXPECT_EQ(shown.substr(shown.find('[')), "[2]") << field;
    EXPECT_NE(get(information, std::string(field) + "[1]"), "null") << field;
  }
  const auto shape = [&](const char* path) { return get(information, path); };
  EXPECT_EQ(shape("h_command[1].lu"), "StatisticalHostCommand_Info[4096]");
  EXPECT_NE(shape("h_command_unite[1].lu[4095]"), "null");
  EXPECT_EQ(shape("com_status[0].lu"), "StatisticalCommandStatus_Info[4096]");
  EXPECT_NE(shape("com_status_unite[1].lu[4095]"), "null");
  EXPECT_EQ(shape("cache[1].cachepartition"), "StatisticalCachePartition[64]");
  EXPECT_EQ(shape("writeafter[1].pdev[14]"), "StatisticalWriteAfter_PDEVInfo[30]");
  EXPECT_EQ(shape("drive[1].drive[14]"), "StatisticalDrive_Info[30]");
  EXPECT_EQ(shape("h_spc[1].port"), "StatisticalHostSpc_Info[4]");
  EXPECT_EQ(shape("d_fpc[1].port"), "StatisticalDriveFpc_Info[4]");
  EXPECT_EQ(shape("d_dma[1].error"), "StatisticalDriveDma_Error[4]");
  EXPECT_EQ(shape("fibre[1].Install"), "StatisticalFibre_Info[4]");
  EXPECT_EQ(shape("fibre[1].Pson"), "StatisticalFibre_Info[4]");
  EXPECT_NE(shape("drive_err[1].limit"), "null");
  EXPECT_EQ(shape("drive_err[1].drive[14]"), "StatisticalDriveError_Info[30]");
}

}  // namespace
}  // namespace quorvelj::testing
