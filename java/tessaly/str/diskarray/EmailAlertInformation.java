package tessaly.str.diskarray;

/** The state of an array's e-mail alert. */
public class EmailAlertInformation {
    public int send_mode;
    /** 2 elements. */
    public int[] ctl_flag;
    public int exec_flag;
    public int exec_result;
    public EmailAlertInfo mail;
}
