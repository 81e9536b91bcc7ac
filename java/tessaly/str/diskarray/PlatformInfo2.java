package tessaly.str.diskarray;

/** A platform of hosts and its middleware, in the second form. Layout assumed. */
public class PlatformInfo2 {
    public int platform_id;
    public int middleware_count;
    /** Always 20 elements. */
    public MiddlewareInfo[] middlewareinfo;
}
