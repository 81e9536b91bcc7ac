package tessaly.str.diskarray;

/** A cross-call replacement. */
public class MicroReplaceCrosscallRequest {
    /** Controller, the library's own number. */
    public int ctl;
    /** Whether it is forced, the library's own value. */
    public int forced_mode;
}
