package tessaly.str.diskarray;

/** The ports through which each LU is mapped. Layout assumed. */
public class LuMappingPortAssignInfo {
    /** Always 8192 elements, one an LU. */
    public int[][] lu_assign;
}
