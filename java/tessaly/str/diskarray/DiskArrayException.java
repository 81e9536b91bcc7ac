package tessaly.str.diskarray;

/** A call that failed, with the code of the array library or of the bridge. */
public class DiskArrayException extends Exception {
    private static final long serialVersionUID = 1L;

    private final int code;

    /** Made by the native library. */
    public DiskArrayException(int code) {
        super("disk array error " + code);
        this.code = code;
    }

    /**
     * Returns the code: 258 where a required argument was null, 2817 where the result could not be
     * built, any other as the array library returned it.
     */
    public int getCode() {
        return code;
    }
}
