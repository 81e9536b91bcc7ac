package tessaly.str.diskarray;

/** The LAN of the network controllers. Layout assumed. */
public class NNCLANInformation {
    /** 4 elements, -128 to 127. */
    public int[] nnclaninfo_valid;
    public int set_valid;
    /** 4 elements. */
    public NNCLANInformationDetail[] nnclaninfo;
    /** 4 elements. */
    public NNCLANInformationDetail[] set_nnclaninfo;
}
