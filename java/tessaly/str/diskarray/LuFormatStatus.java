package tessaly.str.diskarray;

/** How far the formatting of an LU is. */
public class LuFormatStatus {
    public int status;
    public int percent;
    public int err_code_sense_key;
    public int err_code_sense_code;
}
