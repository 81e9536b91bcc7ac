/** How a test steers the simulated library. */
final class Simulator {
    static {
        System.loadLibrary("simulator_control");
    }

    private Simulator() {}

    /** Returns how often a function of the library was called; "*" stands for all of them. */
    static native int calls(String function);

    /** Makes the next calls of a function, or "*", return <code>result</code> and nothing else. */
    static native void force(String function, int result, int times);

    /** Makes every call of a function, or "*", answer with these bytes. */
    static native void prepare(String function, byte[] answer);
}
