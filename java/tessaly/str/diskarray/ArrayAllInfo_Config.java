package tessaly.str.diskarray;

/** A slice of what an array tells of itself: ports, LAN and settings. Layout assumed. */
public class ArrayAllInfo_Config {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The fibre ports by controller, 2 elements. */
    public FibreInformation[] fibre_info;
    /** The ports' options. */
    public PortOption portopt;
    /** The user's LAN. */
    public QVUserLANInformation qvuser_lan_info;
    /** The LAN's port numbers. */
    public LANPortNumber port_num;
    /** The LAN for maintenance. */
    public MainteLanInfo maintelaninfo;
    /** Addresses for maintenance. */
    public MainteLanAvailableList mainte_avail;
    /** Time zones. */
    public TimeZoneList timezonelist;
    /** The clock's settings. */
    public TimeInfo timeinfo;
    /** How drives are restored and spared. */
    public DiskDriveRestoration rest_info;
    /** Online verify. */
    public OnlineVerify verify;
    /** Boot options. */
    public BootOption boot_opt;
    /** Online system parameters. */
    public OnlineSystemParam on_sysparam;
    /** Options of the quick format. */
    public QuickFormatOption quickfmtopt;
}
