package tessaly.str.diskarray;

/** The identifier of a middleware. Layout assumed. */
public class MiddlewareID {
    public int middleware_id;
    /** At most 39 bytes. */
    public String middleware_name;
    /** At most 39 bytes. */
    public String middleware_name_str;
}
