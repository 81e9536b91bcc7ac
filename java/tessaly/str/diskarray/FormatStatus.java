package tessaly.str.diskarray;

/** How far an LU that was entered for formatting is. */
public class FormatStatus {
    public int entry;
    public int status;
    public int percent;
    public int err_code_sense_key;
    public int err_code_sense_code;
}
