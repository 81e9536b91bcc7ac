// The array's internal counters.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using StatisticalInformation = RegisteredUnit;

TEST_F(StatisticalInformation, Record) {
  const auto both = [](const std::string& field, std::size_t offset, std::size_t bytes,
                       const Members& members) {
    return at({{offset, field + "[0]."}, {offset + bytes, field + "[1]."}}, members);
  };
  expectFromUnit(
      "QV_GetStatisticalInformation", 900852,
      Members{int32At(0, "unite_option")} +
          both("controller", 4, 44,
               int32sAt(0, {"power_on", "reset", "total_time", "on_time", "total_time_rap_cnt",
                            "total_time_rap_cnt_work", "lu_change", "procnt_time[0]",
                            "procnt_time[1]", "procnt_time[2]", "procnt_time[3]"})) +
          visited("h_command h_command_unite com_status com_status_unite") +
          both("cache", 720988, 528,
               int32sAt(0, {"wrt_inhcnt", "wrt_outhcnt", "seqwr_bufcnt", "seg_lock_cnt"}) +
                   visited("cachepartition")) +
          both("writeafter", 722044, 14408,
               int32sAt(0, {"raid0_stripe_cnt", "raid0_stripe_job[0]"}) +
                   int32sAt(1800,
                            {"raid0_stripe_job[449]", "raid5_stripe_cnt", "raid5_stripe_job[0]"}) +
                   int32sAt(3604, {"raid5_stripe_job[449]", "stripe_job_rmw[0]"}) +
                   int32sAt(5404, {"stripe_job_rmw[449]", "stripe_job_partial[0]"}) +
                   Members{int32At(7204, "stripe_job_partial[449]")} + visited("pdev")) +
          both("drive_rest", 750860, 12, int32sAt(0, {"inter_cnt", "back_cnt", "system_cnt"})) +
          both("cache_mem", 750884, 312,
               int32sAt(0, {"battery", "threshold", "correct_err[0]"}) +
                   int32sAt(52, {"correct_err[11]", "segment[0]"}) +
                   Members{int32At(308, "segment[63]")}) +
          both("drive", 751508, 34204, int32sAt(0, "err_rtry") + visited("drive")) +
          visited("h_spc") +
          both("d_spc", 820012, 32,
               int32sAt(0, {"retry", "err_threshold", "err_count[0]"}) +
                   Members{int32At(28, "err_count[5]")}) +
          visited("d_fpc") +
          both("d_dma", 820268, 108,
               int32sAt(0, {"dma_retry", "dma_path_retry", "drr_retry"}) + visited("error")) +
          both("h_dma", 820484, 16,
               int32sAt(0, {"err_rtry", "dma_errcnt", "bus_errcnt", "la_errcnt"})) +
          both("hontai", 820516, 52,
               int32sAt(0, {"pctl_err", "pci_err", "mpu_err", "dctl_err", "bridge_err"}) +
                   int32sAt(28, {"upst", "ac_inbox", "backup_power", "auto_reset", "auto_reboot",
                                 "ectl_err"})) +
          both("shuuhen", 820620, 16, {int32At(0, "panel"), int32At(8, "rs232c")}) +
          both("dual", 820652, 12, int32sAt(0, {"other_correct", "other_dual", "self_dual"})) +
          both("fibre", 0, 0, visited("Install Pson")) +
          both("unit", 825092, 20,
               {int32At(0, "battery"), int32At(12, "upst"), int32At(16, "backup_power")}) +
          both("drive_err", 0, 0, visited("limit drive")),
      {3});
}

TEST_F(StatisticalInformation, TablesAreBuiltAtFullCapacity) {
  quorvelSimForceResult("*", 0, 1);
  const jobject built = information("QV_GetStatisticalInformation", 3);
  // The record shows both elements of the other tables.
  for (const char* const table : {"h_command", "h_command_unite", "com_status", "com_status_unite",
                                  "h_spc", "d_fpc", "fibre", "drive_err"}) {
    EXPECT_TRUE(get(built, table).ends_with("[2]")) << table;
    EXPECT_NE(get(built, std::string(table) + "[1]"), "null") << table;
  }
  expectFields(built, {{"h_command[1].lu", "StatisticalHostCommand_Info[4096]"},
                       {"com_status[0].lu", "StatisticalCommandStatus_Info[4096]"},
                       {"cache[1].cachepartition", "StatisticalCachePartition[64]"},
                       {"writeafter[1].pdev[14]", "StatisticalWriteAfter_PDEVInfo[30]"},
                       {"drive[1].drive[14]", "StatisticalDrive_Info[30]"},
                       {"h_spc[1].port", "StatisticalHostSpc_Info[4]"},
                       {"d_fpc[1].port", "StatisticalDriveFpc_Info[4]"},
                       {"d_dma[1].error", "StatisticalDriveDma_Error[4]"},
                       {"fibre[1].Install", "StatisticalFibre_Info[4]"},
                       {"fibre[1].Pson", "StatisticalFibre_Info[4]"},
                       {"drive_err[1].drive[14]", "StatisticalDriveError_Info[30]"},
                       {"h_command_unite[1].lu[4095]", "StatisticalHostCommand_Info"},
                       {"com_status[1].lu[4095]", "StatisticalCommandStatus_Info"},
                       {"com_status_unite[1].lu[4095]", "StatisticalCommandStatus_Info"},
                       {"drive_err[1].limit", "StatisticalDriveError_LimitInfo"}});
}

}  // namespace
}  // namespace quorvelj::testing
