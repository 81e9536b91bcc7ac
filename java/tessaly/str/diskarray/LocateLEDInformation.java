package tessaly.str.diskarray;

/** Which locate LEDs are lit. */
public class LocateLEDInformation {
    public int valid_index;
    public int ctu;
    /** 60 elements. */
    public int[] unit;
}
