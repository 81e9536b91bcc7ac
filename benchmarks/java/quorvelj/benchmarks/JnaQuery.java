package quorvelj.benchmarks;

import com.sun.jna.Function;
import com.sun.jna.Memory;
import com.sun.jna.NativeLibrary;
import com.sun.jna.Pointer;
import com.sun.jna.Structure;
import java.lang.reflect.Constructor;

/** A query by unit and session, whose output JNA reads into its structures. */
public final class JnaQuery {
    private static final int UNIT_NAME_BYTES = 65;

    private final Function function;
    private final Constructor<? extends Structure> constructor;
    private final int count;
    private final long bytes;
    private final long sessionBytes;

    /** The output is `count` records of this name. */
    public JnaQuery(String library, String function, String record, int count) throws Exception {
        this.function = NativeLibrary.getInstance(library).getFunction(function);
        this.count = count;
        constructor = constructorOf(record);
        bytes = sizeOf(record) * count;
        sessionBytes = sizeOf("QVSessionInfo");
    }

    /** Calls the function and returns its output as a structure, or as an array of them. */
    public Object call() throws Exception {
        try (Memory unit = new Memory(UNIT_NAME_BYTES);
                Memory session = new Memory(sessionBytes);
                Memory output = new Memory(bytes)) {
            unit.setString(0, "unit");
            int result = function.invokeInt(new Object[] {unit, session, output});
            if (result != 0) {
                throw new IllegalStateException("the library returned " + result);
            }
            Structure first = constructor.newInstance(output);
            first.read();
            return count == 1 ? first : first.toArray(count);
        }
    }

    private static Constructor<? extends Structure> constructorOf(String record) throws Exception {
        Class<?> type = Class.forName("quorvelj.benchmarks.Structures$" + record);
        return type.asSubclass(Structure.class).getConstructor(Pointer.class);
    }

    /** That of the record; JNA's layout must be the same. */
    private static long sizeOf(String record) throws Exception {
        Structure structure = constructorOf(record).newInstance(Pointer.NULL);
        long expected = structure.getClass().getField("BYTES").getLong(null);
        if (structure.size() != expected) {
            throw new IllegalStateException(record + " has " + structure.size() + " bytes");
        }
        return expected;
    }
}
