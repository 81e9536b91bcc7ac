package tessaly.str.diskarray;

/** A connector of a Fibre Channel port. Layout assumed. */
public class FibreInformationConnector {
    /** Reference topology, the library's own value. */
    public int topology_ref;
}
