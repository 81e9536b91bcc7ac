package tessaly.str.diskarray;

/** A slice of what an array tells of itself: ports, LAN and settings. Layout assumed. */
public class ArrayAllInfo_Config {
    public int valid_index;
    public FibreInformation[] fibre_info;
    public PortOption portopt;
    public QVUserLANInformation qvuser_lan_info;
    public LANPortNumber port_num;
    public MainteLanInfo maintelaninfo;
    public MainteLanAvailableList mainte_avail;
    public TimeZoneList timezonelist;
    public TimeInfo timeinfo;
    public DiskDriveRestoration rest_info;
    public OnlineVerify verify;
    public BootOption boot_opt;
    public OnlineSystemParam on_sysparam;
    public QuickFormatOption quickfmtopt;
}
