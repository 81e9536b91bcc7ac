package tessaly.str.diskarray;

/** A connector of a Fibre Channel port. Layout assumed. */
public class FibreInformationConnector {
    public int topology_ref;
}
