package tessaly.str.diskarray;

/** A role that accounts may have. Layout assumed. */
public class QVAccountRole {
    public String role_name;
}
