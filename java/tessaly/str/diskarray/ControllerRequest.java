package tessaly.str.diskarray;

/** The controllers that a request asks of. */
public class ControllerRequest {
    public int requestCTL;
}
