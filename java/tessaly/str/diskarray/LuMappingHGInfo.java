package tessaly.str.diskarray;

/** What is mapped to a host group or target. */
public class LuMappingHGInfo {
    /**
     * Always 2,048 elements: the LU that the hosts see under each number from 0 on. What stands for
     * none is the library's own. Hand over at least as many. Null in a new object.
     */
    public int[] lu;
}
