package tessaly.str.diskarray;

/** A replacement by way of the other controller. */
public class MicroReplaceCrosscallRequest {
    public int ctl;
    public int forced_mode;
}
