package tessaly.str.diskarray;

/** A slice of what an array tells of itself: the LU mapping. Layout assumed. */
public class ArrayAllInfo_Mapping {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The guards of the mapping. */
    public MappingGuardList mapguard;
    /** The mapping of LUs to host groups. */
    public LuMapping lumap;
}
