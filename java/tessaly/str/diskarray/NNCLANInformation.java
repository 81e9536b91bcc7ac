package tessaly.str.diskarray;

/** The LAN of the network node controllers. Layout assumed. */
public class NNCLANInformation {
    /**
     * Whether each network node controller is there, -128 to 127, the library's own value: always 4
     * elements. Hand over as many. Null in a new object.
     */
    public int[] nnclaninfo_valid;
    /** Whether the LAN is to be set, the library's own value. */
    public int set_valid;
    /**
     * The LAN as it is: always 4 elements, one for each network node controller. Hand over as many,
     * none of them null. Null in a new object.
     */
    public NNCLANInformationDetail[] nnclaninfo;
    /**
     * The LAN to set: always 4 elements, one for each network node controller. Hand over as many,
     * none of them null. Null in a new object.
     */
    public NNCLANInformationDetail[] set_nnclaninfo;
}
