package tessaly.str.diskarray;

/** A role that accounts may have. Layout assumed. */
public class QVAccountRole {
    /** Name of the role, at most 256 bytes. */
    public String role_name;
}
