package tessaly.str.diskarray;

/** The host groups of a port. The name of <code>hg</code> is assumed. */
public class HGPortInfo {
    /** Security of the port's host groups, 0 to 255, the library's own value. */
    public int security;
    /**
     * Always 128 elements, the group of each number; those in use have a <code>valid</code> other
     * than 0.
     */
    public HGInfo[] hg;
}
