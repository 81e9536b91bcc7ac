package tessaly.str.diskarray;

/**
 * The array's internal counters; every array has an element a controller, two in all, also on an
 * array with one controller.
 */
public class StatisticalInformation {
    /** The library's own value. */
    public int unite_option;
    /** How often and how long it ran. */
    public StatisticalController[] controller;
    /** Host commands by LU. */
    public StatisticalHostCommand[] h_command;
    /** Host commands by united LU. */
    public StatisticalHostCommand[] h_command_unite;
    /** How commands ended, by LU. */
    public StatisticalCommandStatus[] com_status;
    /** How commands ended, by united LU. */
    public StatisticalCommandStatus[] com_status_unite;
    /** The cache. */
    public StatisticalCache[] cache;
    /** The writing from the cache to the drives. */
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
    /** What passed between the controllers. */
    public StatisticalDual[] dual;
    /** The fibre ports. */
    public StatisticalFibre[] fibre;
    /** Errors of the units. */
    public StatisticalUnit[] unit;
    /** Errors of the drives, and their limits. */
    public StatisticalDriveError[] drive_err;
}
