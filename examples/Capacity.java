import java.util.Locale;

/** Capacities as the library counts them, in blocks of 512 bytes. */
final class Capacity {
    private static final String[] UNITS = {"B", "KiB", "MiB", "GiB", "TiB", "PiB"};

    private Capacity() {}

    /** The blocks of a high and a low word. */
    static long blocks(int high, int low) {
        return (long) high << 32 | low & 0xFFFFFFFFL;
    }

    /** In human units. */
    static String of(long blocks) {
        double bytes = 512.0 * blocks;
        int unit = 0;
        while (bytes >= 1024 && unit < UNITS.length - 1) {
            bytes /= 1024;
            unit++;
        }
        return String.format(Locale.ROOT, unit == 0 ? "%.0f %s" : "%.1f %s", bytes, UNITS[unit]);
    }

    static String of(int high, int low) {
        return of(blocks(high, low));
    }
}
