package tessaly.str.diskarray;

/** A platform of hosts, in the second form. */
public class PlatformInfo2 {
    public int platform_id;
}
