package tessaly.str.diskarray;

/** The controllers that a request asks of. Layout assumed. */
public class ControllerRequest {
    public int requestCTL;
}
