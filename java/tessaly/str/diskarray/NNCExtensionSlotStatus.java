package tessaly.str.diskarray;

/** An extension slot of a network node controller. */
public class NNCExtensionSlotStatus {
    public int valid_index;
    /** 0 to 255. */
    public int card_state;
    /** 0 to 255. */
    public int card_type;
    /** 8 elements. */
    public int[] connector_state;
}
