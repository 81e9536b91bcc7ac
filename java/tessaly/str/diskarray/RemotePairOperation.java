package tessaly.str.diskarray;

/** A Farlink or Longlink pair to resynchronise or to swap. */
public class RemotePairOperation extends PairOperation {
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String remote_serial = "";
}
