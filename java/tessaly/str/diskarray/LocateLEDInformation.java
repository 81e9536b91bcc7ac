package tessaly.str.diskarray;

/** Which locate LEDs are lit. */
public class LocateLEDInformation {
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** The LED of the controller unit, the library's own value. */
    public int ctu;
    /**
     * The LEDs of the enclosures, the library's own values. 60 elements, of which a new object has
     * none. As an argument null leaves them as they lay in memory, and a shorter array throws
     * ArrayIndexOutOfBoundsException.
     */
    public int[] unit;
}
