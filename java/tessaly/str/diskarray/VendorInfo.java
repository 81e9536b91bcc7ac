package tessaly.str.diskarray;

/** What a part is. */
public class VendorInfo {
    /** Which texts the array supports, the library's own value. */
    public int support_index;
    /**
     * Which texts are valid, the library's own value; over the simulator 0 marks a place without a
     * part.
     */
    public int valid_index;
    /** Name of its maker. */
    public String vendor;
    /** Its product. */
    public String product;
    /** Its revision. */
    public String revision;
    /** Its serial number. */
    public String serial;
    /** Kind of part as a text. */
    public String type_name;
}
