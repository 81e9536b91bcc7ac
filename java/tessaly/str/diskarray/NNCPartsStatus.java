package tessaly.str.diskarray;

/** A network node controller and its parts. */
public class NNCPartsStatus {
    public int valid_index;
    /** 4 elements. */
    public int[] dimm;
    /** 2 elements. */
    public int[] ps;
    /** 3 elements. */
    public int[] fan;
    /** 8 elements. */
    public int[] connector;
    /** 0 to 255. */
    public int nnc_type;
    /** 4 elements. */
    public NNCExtensionSlotStatus[] ext_slot;
    /** 0 to 255. */
    public int nnc_base;
}
