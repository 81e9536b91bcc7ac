package tessaly.str.diskarray;

/**
 * A path to a virtual unit. As an argument no field may be null: it ends the reading of the path.
 * All are null in a new object.
 */
public class VUDataAll_Info {
    /** Control commands. */
    public VUCommandAll_Info control;
    /** Commands that transfer data. */
    public VUCommandAll_Info data_transfer;
    /** Errors. */
    public VUError_Info error;
}
