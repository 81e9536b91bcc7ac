package tessaly.str.diskarray;

/** The identifier of an alternate path. */
public class AlternatePathID {}
