import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import tessaly.str.diskarray.DiskArrayUtilityJNI;

/** One native method, called by reflection. */
final class NativeCall {
    /** The code of a library that refuses. */
    static final int REFUSED = 1234;

    private static final DiskArrayUtilityJNI ARRAY = new DiskArrayUtilityJNI();
    private static final ThreadMXBean THREADS = ManagementFactory.getThreadMXBean();

    final Method method;
    private volatile boolean slow;

    private NativeCall(Method method) {
        this.method = method;
    }

    /** All native methods, by name. */
    static List<NativeCall> all() {
        List<NativeCall> calls = new ArrayList<>();
        for (Method method : DiskArrayUtilityJNI.class.getDeclaredMethods()) {
            if (Modifier.isNative(method.getModifiers())) {
                calls.add(new NativeCall(method));
            }
        }
        calls.sort(Comparator.comparing(NativeCall::name));
        return calls;
    }

    String name() {
        return method.getName();
    }

    /** The library's function, of which the light forms build less. */
    String function() {
        return name().replaceAll("Lite2?$", "");
    }

    /** Returns what the method threw, or null. */
    Throwable call(Object[] arguments) {
        try {
            method.invoke(ARRAY, arguments);
            return null;
        } catch (InvocationTargetException thrown) {
            return thrown.getCause();
        } catch (IllegalAccessException impossible) {
            throw new AssertionError(impossible);
        }
    }

    /**
     * Calls the method while the library succeeds. Where that builds so much that it takes longer than
     * <code>milliseconds</code>, the library refuses it from then on.
     */
    Throwable callQuickly(Object[] arguments, int milliseconds) {
        long start = THREADS.getCurrentThreadCpuTime();
        Throwable thrown = call(arguments);
        if (!slow && THREADS.getCurrentThreadCpuTime() - start > milliseconds * 1_000_000L) {
            slow = true;
            Simulator.force(function(), REFUSED, Integer.MAX_VALUE);
        }
        return thrown;
    }

    /** Ends the program with a message. */
    static void fail(String message, Object... values) {
        System.out.println("FAILED: " + String.format(message, values));
        System.out.flush();
        Runtime.getRuntime().halt(1);
    }
}
