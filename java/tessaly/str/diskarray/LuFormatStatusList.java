package tessaly.str.diskarray;

/** How far the formatting of each LU is. */
public class LuFormatStatusList {
    /** Always 2,048 elements. */
    public LuFormatStatus[] lu;
}
