package tessaly.str.diskarray;

/** The identifier of an alternate path: 84 bytes of which no field is known. Layout assumed. */
public class AlternatePathID {}
