import tessaly.str.diskarray.DiskArrayException;

/** What a refusal says: the call, the code, and whose code it is. */
final class Refusal {
    private static final int NULL_TEXT = 258;
    private static final int NOT_BUILT = 2817;
    private static final int FIRST_OF_SIMULATOR = 20001;
    private static final int LAST_OF_SIMULATOR = 20899;
    private static final int FIRST_OF_RECORDER = 29001;
    private static final int LAST_OF_RECORDER = 29002;

    private Refusal() {}

    static boolean isOfBridge(int code) {
        return code == NULL_TEXT || code == NOT_BUILT || code == -1;
    }

    private static boolean isOfRecorder(int code) {
        return code >= FIRST_OF_RECORDER && code <= LAST_OF_RECORDER;
    }

    /** Whether it is the refusal of this call. For a code of the simulator a real array has its own. */
    static boolean is(DiskArrayException refused, String call, int code, boolean simulated) {
        int found = refused.getCode();
        return call(refused).equals(call) && (found == code
                || !simulated && !isOfBridge(code) && !isOfBridge(found) && !isOfRecorder(found));
    }

    static String words(DiskArrayException refused) {
        int code = refused.getCode();
        String whose = code == NULL_TEXT ? "a required text is null"
                : code == NOT_BUILT ? "the result could not be built, ask the doctor"
                : isOfRecorder(code) ? "the recorder's, see standard error"
                : code >= FIRST_OF_SIMULATOR && code <= LAST_OF_SIMULATOR ? "the simulator's"
                : "the array library's own";
        return call(refused) + " with code " + code + " (" + whose + ")";
    }

    /** The native method that threw it. */
    private static String call(DiskArrayException refused) {
        for (StackTraceElement frame : refused.getStackTrace()) {
            if (frame.isNativeMethod()) {
                return frame.getMethodName();
            }
        }
        return "a call";
    }

    /** Where in the tour it happened. */
    static String place(Throwable failure) {
        for (StackTraceElement frame : failure.getStackTrace()) {
            if (frame.getClassName().indexOf('.') < 0) {
                return ", at " + frame.getFileName() + ":" + frame.getLineNumber();
            }
        }
        return "";
    }
}
