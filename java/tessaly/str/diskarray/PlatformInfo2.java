package tessaly.str.diskarray;

/** A platform of hosts and its middleware, in the second form. Layout assumed. */
public class PlatformInfo2 {
    /** Platform, the library's own value. */
    public int platform_id;
    /** Number of middlewares; <code>middlewareinfo</code> has its full length all the same. */
    public int middleware_count;
    /** Always 20 elements. */
    public MiddlewareInfo[] middlewareinfo;
}
