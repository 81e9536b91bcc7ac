package tessaly.str.diskarray;

/** A session, as the login returned it; nearly every other method wants it back. */
public class QVSessionInfo {
    /**
     * 32 opaque bytes. The native library copies into this array and never replaces it: an array of
     * fewer bytes, or null, makes a login fail with code 2817.
     */
    public byte[] session_id = new byte[32];
}
