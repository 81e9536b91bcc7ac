package tessaly.str.diskarray;

/** Another array, and the paths to it. */
public class RvrfSrcArrayUnit {
    /** Whether the entry is in use; 0 is no. */
    public int valid;
    /** Mode, the library's own value. */
    public int mode;
    /** Detection identifier of the other array, the library's own value. */
    public int other_detect_id;
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String other_serial_no = "";
    /** Sequence number of the other array, at most 4 bytes; not null. */
    public String other_sequence_no = "";
    /**
     * 2 elements, in use where <code>valid_index</code> is not 0. Handed over: at most 2 elements.
     * Null in a new object.
     */
    public RvrfSrcPath[] path;
    /** Whether <code>timeout</code> is given, the library's own value. */
    public int timeout_valid;
    /** Time limit in the library's own unit. */
    public int timeout;
    /** Type of the ports, the library's own value. */
    public int port_type;
    /** Whether <code>line_band</code> is given, the library's own value. */
    public int line_band_valid;
    /** Bandwidth of the line in the library's own unit. */
    public int line_band;
}
