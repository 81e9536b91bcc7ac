package tessaly.str.diskarray;

/** How drives are restored and spared. */
public class DiskDriveRestoration {
    public int mode;
    public int restoration;
    public int dynamic_sparing;
    public int interval;
    public int unit_size;
    public int sparemode;
    public int no_copyback_allunit;
}
