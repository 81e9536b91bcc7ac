package tessaly.str.diskarray;

/** The remote-verify source paths of an array. */
public class RvrfSrcInfo {
    /** Option, the library's own value. */
    public int rvrfsrc_option;
    /** Detection identifier of this array, the library's own value. */
    public int self_detect_id;
    /** Serial number of this array. */
    public String self_serial_no;
    /** Sequence number of this array. */
    public String self_sequence_no;
    /** Default bandwidth of a line in the library's own unit. */
    public int line_band_default;
    /** Default port number. */
    public int port_num_default;
    /** 8 elements, in use where <code>valid</code> is not 0. */
    public RvrfSrcArrayUnit[] arrayunit;
}
