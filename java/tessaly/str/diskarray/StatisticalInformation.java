package tessaly.str.diskarray;

/**
 * The array's internal counters; every array has an element a controller, two in all, also on an
 * array with one controller.
 */
public class StatisticalInformation {
    /** The library's own value. */
    public int unite_option;
    /** Power-on and reset counts, and times. */
    public StatisticalController[] controller;
    /** Host commands by LU. */
    public StatisticalHostCommand[] h_command;
    /** Host commands by united LU. */
    public StatisticalHostCommand[] h_command_unite;
    /** Command statuses by LU. */
    public StatisticalCommandStatus[] com_status;
    /** Command statuses by united LU. */
    public StatisticalCommandStatus[] com_status_unite;
    /** The cache. */
    public StatisticalCache[] cache;
    /** Write-after. */
    public StatisticalWriteAfter[] writeafter;
    /** Restorations of drives. */
    public StatisticalDriveRestoration[] drive_rest;
    /** Errors of the cache memory. */
    public StatisticalCacheMemory[] cache_mem;
    /** The drives. */
    public StatisticalDrive[] drive;
    /** Errors of the host ports. */
    public StatisticalHostSpc[] h_spc;
    /** Errors of the drive interface. */
    public StatisticalDriveSpc[] d_spc;
    /** Errors of the ports to the drives. */
    public StatisticalDriveFpc[] d_fpc;
    /** Errors of the drive interface's transfers. */
    public StatisticalDriveDma[] d_dma;
    /** Errors of the host interface's transfers. */
    public StatisticalHostDma[] h_dma;
    /** Errors of the main body. */
    public StatisticalHontai[] hontai;
    /** Errors of the peripherals. */
    public StatisticalShuuhen[] shuuhen;
    /** Dual-controller events. */
    public StatisticalDual[] dual;
    /** The fibre ports. */
    public StatisticalFibre[] fibre;
    /** Counters of the units. */
    public StatisticalUnit[] unit;
    /** Errors of the drives, and their limits. */
    public StatisticalDriveError[] drive_err;
}
