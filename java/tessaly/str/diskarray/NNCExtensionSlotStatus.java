package tessaly.str.diskarray;

/** An extension slot of a network node controller. */
public class NNCExtensionSlotStatus {
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** State of the card, the library's own code, 0 to 255. */
    public int card_state;
    /** Kind of the card, the library's own code, 0 to 255. */
    public int card_type;
    /** States of the connectors, 8 elements, -128 to 127: the library's own codes. */
    public int[] connector_state;
}
