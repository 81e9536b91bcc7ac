package tessaly.str.diskarray;

/** The firmware levels of a Fibre Channel adapter, at most 4 bytes each. Layout assumed. */
public class FibreInformationSfc {
    public String biu = "";
    public String sequence = "";
    public String oper_firmware = "";
    public String post_firmware = "";
    public String endec = "";
    public String fc_ph = "";
}
