package tessaly.str.diskarray;

/** The parts of an array. */
public class PartsList {
    public int support_index;
    public int valid_index;
    public String array_serial;
    public String array_id;
    /** 60 rows of 30. */
    public VendorInfo[][] drive;
    /** 2 x 8 x 2. */
    public VendorInfo[][][] connector;
    /** 2 elements. */
    public VendorInfo[] controller;
    /** 61 elements. */
    public VendorInfo[] unit;
    /** 61 rows of 2. */
    public VendorInfo[][] enc;
}
