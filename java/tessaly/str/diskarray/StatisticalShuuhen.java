package tessaly.str.diskarray;

/** Errors of the peripherals. */
public class StatisticalShuuhen {
    /** Errors of the panel. */
    public int panel;
    /** Errors of the kind "rs232c". */
    public int rs232c;
}
