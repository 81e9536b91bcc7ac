package tessaly.str.diskarray;

/** A host group of a port. Where a group is created or renamed, only the name is read. */
public class HGInfo {
    /** Not 0 where the entry is in use; 0 to 255. */
    public int valid;
    /** Name, at most 32 bytes; not null where it is handed over. */
    public String hgname = "";
}
