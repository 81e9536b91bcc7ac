package tessaly.str.diskarray;

/** An array that another one is connected to. */
public class RvrfSrcArrayUnit {
    public int valid;
    public int mode;
    public int other_detect_id;
    /** At most 8 bytes. */
    public String other_serial_no = "";
    /** At most 4 bytes. */
    public String other_sequence_no = "";
    /** At most 2; those behind are left out. */
    public RvrfSrcPath[] path;
    public int timeout_valid;
    public int timeout;
    public int port_type;
    public int line_band_valid;
    public int line_band;
}
