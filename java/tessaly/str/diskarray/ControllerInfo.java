package tessaly.str.diskarray;

/** A controller, as an array identifies itself; its fields are not known. Layout assumed. */
public class ControllerInfo {}
