package tessaly.str.diskarray;

/** A Farlink or Longlink pair for the operation that is called simple. */
public class SimpleRemotePair extends PairOperation {
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String remote_serial = "";
    /** Range of the operation, the library's own value. */
    public int simple_range;
}
