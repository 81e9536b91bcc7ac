package tessaly.str.diskarray;

/** A role that accounts may have. */
public class QVAccountRole {
    public String role_name;
}
