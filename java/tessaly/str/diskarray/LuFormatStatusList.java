package tessaly.str.diskarray;

/** How far the formatting of each LU is. */
public class LuFormatStatusList {
    /** Always 2,048 elements, one for each LU from number 0 on. */
    public LuFormatStatus[] lu;
}
