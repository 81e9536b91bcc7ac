package tessaly.str.diskarray;

/** The condition of a cache memory. */
public class CacheStatus {
    /** Option, the library's own value. */
    public int option;
    /** Condition, the library's own code. */
    public int condition;
}
