package tessaly.str.diskarray;

/** The configuration of an array's SNMP agent. */
public class SnmpConfigInformation {
    /** What of the configuration is valid, the library's own value. */
    public int set_valid;
    /** Text of the configuration, at most 4,095 bytes. */
    public String conf = "";
    /** Name of the configuration, at most 254 bytes. */
    public String name = "";
}
