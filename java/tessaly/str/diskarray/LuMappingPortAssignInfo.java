package tessaly.str.diskarray;

/** The ports through which each LU is mapped. Layout assumed. */
public class LuMappingPortAssignInfo {
    /**
     * Always 8,192 elements, one for each LU from number 0 on, of 2 ints, one for each controller.
     * How an int names ports is the library's own.
     */
    public int[][] lu_assign;
}
