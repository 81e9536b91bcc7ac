package tessaly.str.diskarray;

/**
 * The firmware levels of a Fibre Channel adapter, at most 4 bytes each. Layout assumed. No text may
 * be null where it is handed over.
 */
public class FibreInformationSfc {
    /** Level of the BIU. */
    public String biu = "";
    /** Level of the sequence. */
    public String sequence = "";
    /** Level of the operating firmware. */
    public String oper_firmware = "";
    /** Level of the POST firmware. */
    public String post_firmware = "";
    /** Level of the ENDEC. */
    public String endec = "";
    /** Level of FC-PH. */
    public String fc_ph = "";
}
