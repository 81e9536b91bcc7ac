package tessaly.str.diskarray;

/** A Farlink or Longlink pair to dissolve. */
public class SimpleRemotePair extends PairOperation {
    /** At most 8 bytes. */
    public String remote_serial = "";
    public int simple_range;
}
