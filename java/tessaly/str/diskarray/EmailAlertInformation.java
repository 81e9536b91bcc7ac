package tessaly.str.diskarray;

/** The e-mail alert settings of an array. The values are the library's own. */
public class EmailAlertInformation {
    /** Mode of sending. */
    public int send_mode;
    /** Controller flags, 2 elements. */
    public int[] ctl_flag;
    /** Execution flag. */
    public int exec_flag;
    /** Execution result. */
    public int exec_result;
    /** The mail. */
    public EmailAlertInfo mail;
}
