package tessaly.str.diskarray;

/** A replacement by way of the other controller. */
public class MicroReplaceCrosscallRequest {
    /** Controller, the library's own number. */
    public int ctl;
    /** Whether it is forced, the library's own value. */
    public int forced_mode;
}
