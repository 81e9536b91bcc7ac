package tessaly.str.diskarray;

/** How far the formatting of an LU is. */
public class LuFormatStatus {
    /** Status of the formatting, the library's own value. */
    public int status;
    /** How much is done, in percent. */
    public int percent;
    /** Sense key of an error, the library's own value. */
    public int err_code_sense_key;
    /** Sense code of an error, the library's own value. */
    public int err_code_sense_code;
}
