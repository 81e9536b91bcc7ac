package tessaly.str.diskarray;

/** A call that failed, with the code of the array library or of the bridge. */
public class DiskArrayException extends Exception {
    private static final long serialVersionUID = 1L;

    /** As {@link #getCode} returns it. */
    private final int code;

    /**
     * Made by the native library.
     *
     * @param code the code
     */
    public DiskArrayException(int code) {
        super("disk array error " + code + words(code));
        this.code = code;
    }

    /** What a code of the bridge means; "" for the library's own. */
    private static String words(int code) {
        switch (code) {
            case -1:
                return ": the time to set is null, or a code of the array library";
            case 258:
                return ": a required text is null";
            case 2817:
                return ": the result could not be built, since a class is not as expected";
            default:
                return "";
        }
    }

    /**
     * Returns the code: 258 where a required text was null, 2817 where the result could not be
     * built, -1 where the time to set was null or the array of units could not be made, any other
     * as the array library returned it. These three may be the library's own as well.
     *
     * @return the code
     */
    public int getCode() {
        return code;
    }
}
