package tessaly.str.diskarray;

/** A slice of what an array tells of itself: the LU mapping. Layout assumed. */
public class ArrayAllInfo_Mapping {
    public int valid_index;
    public MappingGuardList mapguard;
    public LuMapping lumap;
}
