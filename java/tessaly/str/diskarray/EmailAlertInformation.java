package tessaly.str.diskarray;

/** The state of an array's e-mail alert. The values are the library's own. */
public class EmailAlertInformation {
    /** Mode of sending. */
    public int send_mode;
    /** 2 elements, one a controller. */
    public int[] ctl_flag;
    /** State of the sending. */
    public int exec_flag;
    /** Result of the sending. */
    public int exec_result;
    /** The mail. */
    public EmailAlertInfo mail;
}
