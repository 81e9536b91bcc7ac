package tessaly.str.diskarray;

/** What an alert check found. */
public class AlertCheckEx {
    public int valid_index;
    public int alert;
    public int alert_sa;
}
