// The array's internal counters.
#include "arraylib/performance.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_OPAQUE_CLASS(StatisticalHostCommand_Info);
QUORVELJ_OPAQUE_CLASS(StatisticalCommandStatus_Info);
QUORVELJ_OPAQUE_CLASS(StatisticalCachePartition);
QUORVELJ_OPAQUE_CLASS(StatisticalWriteAfter_PDEVInfo);
QUORVELJ_OPAQUE_CLASS(StatisticalDrive_Info);
QUORVELJ_OPAQUE_CLASS(StatisticalHostSpc_Info);
QUORVELJ_OPAQUE_CLASS(StatisticalDriveFpc_Info);
QUORVELJ_OPAQUE_CLASS(StatisticalDriveDma_Error);
QUORVELJ_OPAQUE_CLASS(StatisticalFibre_Info);
QUORVELJ_OPAQUE_CLASS(StatisticalDriveError_LimitInfo);
QUORVELJ_OPAQUE_CLASS(StatisticalDriveError_Info);
QUORVELJ_CLASS(StatisticalController, power_on, reset, total_time, on_time, total_time_rap_cnt,
               total_time_rap_cnt_work, lu_change, procnt_time);
QUORVELJ_CLASS(StatisticalHostCommand, lu);
QUORVELJ_CLASS(StatisticalCommandStatus, lu);
QUORVELJ_CLASS(StatisticalCache, wrt_inhcnt, wrt_outhcnt, seqwr_bufcnt, seg_lock_cnt,
               cachepartition);
QUORVELJ_CLASS(StatisticalWriteAfter, raid0_stripe_cnt, raid0_stripe_job, raid5_stripe_cnt,
               raid5_stripe_job, stripe_job_rmw, stripe_job_partial, pdev);
QUORVELJ_CLASS(StatisticalDriveRestoration, inter_cnt, back_cnt, system_cnt);
QUORVELJ_CLASS(StatisticalCacheMemory, battery, threshold, correct_err, segment);
QUORVELJ_CLASS(StatisticalDrive, err_rtry, drive);
QUORVELJ_CLASS(StatisticalHostSpc, port);
QUORVELJ_CLASS(StatisticalDriveSpc, retry, err_threshold, err_count);
QUORVELJ_CLASS(StatisticalDriveFpc, port);
QUORVELJ_CLASS(StatisticalDriveDma, dma_retry, dma_path_retry, drr_retry, error);
QUORVELJ_CLASS(StatisticalHostDma, err_rtry, dma_errcnt, bus_errcnt, la_errcnt);
QUORVELJ_CLASS(StatisticalHontai, pctl_err, pci_err, mpu_err, dctl_err, bridge_err, upst, ac_inbox,
               backup_power, auto_reset, auto_reboot, ectl_err);
QUORVELJ_CLASS(StatisticalShuuhen, panel, rs232c);
QUORVELJ_CLASS(StatisticalDual, other_correct, other_dual, self_dual);
QUORVELJ_CLASS(StatisticalFibre, Install, Pson);
QUORVELJ_CLASS(StatisticalUnit, battery, upst, backup_power);
QUORVELJ_CLASS(StatisticalDriveError, limit, drive);
QUORVELJ_CLASS(StatisticalInformation, unite_option, controller, h_command, h_command_unite,
               com_status, com_status_unite, cache, writeafter, drive_rest, cache_mem, drive, h_spc,
               d_spc, d_fpc, d_dma, h_dma, hontai, shuuhen, dual, fibre, unit, drive_err);

NATIVE_METHOD(jobject, GetStatisticalInformation, jstring unit, jobject session, jint option) {
  return query(env, QV_GetStatisticalInformation, unit, session, option);
}
