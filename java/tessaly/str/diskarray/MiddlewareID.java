package tessaly.str.diskarray;

/** The identifier of a middleware. Layout assumed. */
public class MiddlewareID {
    /** Middleware, the library's own value. */
    public int middleware_id;
    /** Name, at most 39 bytes. */
    public String middleware_name;
    /** Name as a text, at most 39 bytes. */
    public String middleware_name_str;
}
