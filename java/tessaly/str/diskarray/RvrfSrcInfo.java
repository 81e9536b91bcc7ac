package tessaly.str.diskarray;

/** The remote paths of an array. */
public class RvrfSrcInfo {
    public int rvrfsrc_option;
    public int self_detect_id;
    public String self_serial_no;
    public String self_sequence_no;
    public int line_band_default;
    public int port_num_default;
    public RvrfSrcArrayUnit[] arrayunit;
}
