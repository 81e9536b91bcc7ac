package tessaly.str.diskarray;

/** A network node controller and its parts. States are the library's own codes, -128 to 127. */
public class NNCPartsStatus {
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** States of the memory modules, 4 elements. */
    public int[] dimm;
    /** States of the power supplies, 2 elements. */
    public int[] ps;
    /** States of the fans, 3 elements. */
    public int[] fan;
    /** States of the connectors, 8 elements. */
    public int[] connector;
    /** Kind of the controller, the library's own code, 0 to 255. */
    public int nnc_type;
    /** The extension slots, 4 elements. */
    public NNCExtensionSlotStatus[] ext_slot;
    /** The library's own value, 0 to 255. */
    public int nnc_base;
}
