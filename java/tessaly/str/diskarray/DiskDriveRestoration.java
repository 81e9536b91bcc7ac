package tessaly.str.diskarray;

/**
 * How drives are restored and spared. The values are the library's own: change those of
 * {@link DiskArrayUtilityJNI#QV_GetDiskDriveRestoration} and hand them back.
 */
public class DiskDriveRestoration {
    /** Mode, the library's own value. */
    public int mode;
    /** Kind of restoration, the library's own value. */
    public int restoration;
    /** Dynamic sparing, the library's own value. */
    public int dynamic_sparing;
    /** Interval, in the library's own unit. */
    public int interval;
    /** Unit size, in the library's own unit. */
    public int unit_size;
    /** Mode of sparing, the library's own value. */
    public int sparemode;
    /** No copying back, in all units: the library's own value. */
    public int no_copyback_allunit;
}
