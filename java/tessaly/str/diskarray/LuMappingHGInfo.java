package tessaly.str.diskarray;

/** What is mapped to a host group or target. */
public class LuMappingHGInfo {
    /** 2048 elements. */
    public int[] lu;
}
