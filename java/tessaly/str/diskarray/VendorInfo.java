package tessaly.str.diskarray;

/** What a part is. */
public class VendorInfo {
    public int support_index;
    public int valid_index;
    public String vendor;
    public String product;
    public String revision;
    public String serial;
    public String type_name;
}
