package tessaly.str.diskarray;

/** A Farlink or Longlink pair to resynchronise or to swap. */
public class RemotePairOperation extends PairOperation {
    /** At most 8 bytes. */
    public String remote_serial = "";
}
