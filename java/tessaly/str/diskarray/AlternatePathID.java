package tessaly.str.diskarray;

/** The identifier of an alternate path. Layout assumed. */
public class AlternatePathID {}
