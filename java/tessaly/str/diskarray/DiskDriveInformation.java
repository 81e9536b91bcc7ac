package tessaly.str.diskarray;

/** What a drive is. Over the simulator all is empty or 0 in a slot without a drive. */
public class DiskDriveInformation {
    /** Name of its maker. */
    public String vendor;
    /** Its product. */
    public String product;
    /** Revision of its microprogram. */
    public String revision;
    /** Last logical block address. */
    public int lastLBA;
    /** Its capacity: a text, as the library wrote it. */
    public String drive_capacity;
    /** The library's own value. */
    public int add_info_index;
    /** Its serial number. */
    public String serial;
    /** Unit type, the library's own code. */
    public int unit_type;
    /** Kind of drive, the library's own code. */
    public int drive_type;
    /** Detail of the unit type, the library's own code. */
    public int unit_type_sub_code;
    /** Its rotation, in the library's own unit; revolutions a minute over the simulator. */
    public int drive_rotation;
    /** Kind of drive as a text. */
    public String drive_type_name;
}
