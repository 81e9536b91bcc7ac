package tessaly.str.diskarray;

/** What a drive is. */
public class DiskDriveInformation {
    public String vendor;
    public String product;
    public String revision;
    public int lastLBA;
    /** A text, as the library wrote it. */
    public String drive_capacity;
    public int add_info_index;
    public String serial;
    public int unit_type;
    public int drive_type;
    public int unit_type_sub_code;
    public int drive_rotation;
    public String drive_type_name;
}
