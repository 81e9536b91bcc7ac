package tessaly.str.diskarray;

/** A path to a virtual unit. */
public class VUDataAll_Info {
    public VUCommandAll_Info control;
    public VUCommandAll_Info data_transfer;
    public VUError_Info error;
}
