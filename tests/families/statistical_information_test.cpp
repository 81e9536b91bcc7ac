// The array's internal counters.
#include "tests/families/registered_unit.h"

namespace quorvelj::testing {
namespace {

using StatisticalInformation = RegisteredUnit;

TEST_F(StatisticalInformation, Record) {
  expectFromUnit(
      "QV_GetStatisticalInformation", 900852,
      "0:int32 unite_option" +
          at("4:controller[0] 48:controller[1]",
             "0:int32 power_on reset total_time on_time total_time_rap_cnt total_time_rap_cnt_work "
             "lu_change procnt_time[0] procnt_time[1] procnt_time[2] procnt_time[3]") +
          "visited h_command h_command_unite com_status com_status_unite" +
          at("720988:cache[0] 721516:cache[1]",
             "0:int32 wrt_inhcnt wrt_outhcnt seqwr_bufcnt seg_lock_cnt; visited cachepartition") +
          at("722044:writeafter[0] 736452:writeafter[1]",
             "0:int32 raid0_stripe_cnt raid0_stripe_job[0]; 1800:int32 raid0_stripe_job[449] "
             "raid5_stripe_cnt raid5_stripe_job[0]; 3604:int32 raid5_stripe_job[449] "
             "stripe_job_rmw[0]; 5404:int32 stripe_job_rmw[449] stripe_job_partial[0]; 7204:int32 "
             "stripe_job_partial[449]; visited pdev") +
          at("750860:drive_rest[0] 750872:drive_rest[1]", "0:int32 inter_cnt back_cnt system_cnt") +
          at("750884:cache_mem[0] 751196:cache_mem[1]",
             "0:int32 battery threshold correct_err[0]; 52:int32 correct_err[11] segment[0]; "
             "308:int32 segment[63]") +
          at("751508:drive[0] 785712:drive[1]", "0:int32 err_rtry; visited drive") +
          "visited h_spc" +
          at("820012:d_spc[0] 820044:d_spc[1]",
             "0:int32 retry err_threshold err_count[0]; 28:int32 err_count[5]") +
          "visited d_fpc" +
          at("820268:d_dma[0] 820376:d_dma[1]",
             "0:int32 dma_retry dma_path_retry drr_retry; visited error") +
          at("820484:h_dma[0] 820500:h_dma[1]",
             "0:int32 err_rtry dma_errcnt bus_errcnt la_errcnt") +
          at("820516:hontai[0] 820568:hontai[1]",
             "0:int32 pctl_err pci_err mpu_err dctl_err bridge_err; 28:int32 upst ac_inbox "
             "backup_power auto_reset auto_reboot ectl_err") +
          at("820620:shuuhen[0] 820636:shuuhen[1]", "0:int32 panel; 8:int32 rs232c") +
          at("820652:dual[0] 820664:dual[1]", "0:int32 other_correct other_dual self_dual") +
          at("0:fibre[0] 0:fibre[1]", "visited Install Pson") +
          at("825092:unit[0] 825112:unit[1]", "0:int32 battery; 12:int32 upst backup_power") +
          at("0:drive_err[0] 0:drive_err[1]", "visited limit drive"),
      {3});
}

// The size of the record does not tell their rows from their columns.
TEST_F(StatisticalInformation, RowsOfTables) {
  expectFields(information("QV_GetStatisticalInformation", 3),
               "writeafter[1].pdev[14]=StatisticalWriteAfter_PDEVInfo[30]; "
               "drive[1].drive[14]=StatisticalDrive_Info[30]; "
               "drive_err[1].drive[14]=StatisticalDriveError_Info[30]");
}

}  // namespace
}  // namespace quorvelj::testing
