package tessaly.str.diskarray;

/** What an alert check found. The values are the library's own. */
public class AlertCheckEx {
    /** Which of the others are valid. */
    public int valid_index;
    /** Alert of the array. */
    public int alert;
    /** Further alert, the library's own kind. */
    public int alert_sa;
}
