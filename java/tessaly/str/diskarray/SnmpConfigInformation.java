package tessaly.str.diskarray;

/** The configuration of an array's SNMP agent. */
public class SnmpConfigInformation {
    public int set_valid;
    /** The text, at most 4095 bytes. */
    public String conf = "";
    /** At most 254 bytes. */
    public String name = "";
}
