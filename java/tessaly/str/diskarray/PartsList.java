package tessaly.str.diskarray;

/** The parts of an array. The arrays have an element for every place, with a part or without. */
public class PartsList {
    /** Which fields the array supports, the library's own value. */
    public int support_index;
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** Serial number of the array. */
    public String array_serial;
    /** The library's own identifier of the array. */
    public String array_id;
    /** The drives by enclosure and slot, 60 rows of 30. */
    public VendorInfo[][] drive;
    /** The connectors, 2 x 8 x 2. */
    public VendorInfo[][][] connector;
    /** The controllers, 2 elements. */
    public VendorInfo[] controller;
    /** The enclosures, 61 elements. */
    public VendorInfo[] unit;
    /** The enclosure controllers by enclosure, 61 rows of 2. */
    public VendorInfo[][] enc;
}
