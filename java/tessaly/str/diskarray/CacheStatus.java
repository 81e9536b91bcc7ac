package tessaly.str.diskarray;

/** The condition of a cache memory. */
public class CacheStatus {
    public int option;
    public int condition;
}
