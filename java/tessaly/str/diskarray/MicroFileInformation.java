package tessaly.str.diskarray;

/** What is staged of the array's firmware. */
public class MicroFileInformation {
    public String micro;
    public int valid;
    public int booting_wait;
}
