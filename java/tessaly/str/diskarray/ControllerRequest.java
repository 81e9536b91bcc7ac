package tessaly.str.diskarray;

/** The controllers that a request asks of. Layout assumed. */
public class ControllerRequest {
    /** Controllers, the library's own value. */
    public int requestCTL;
}
