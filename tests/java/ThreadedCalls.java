import java.io.IOException;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.nio.file.Files;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Random;
import java.util.concurrent.atomic.AtomicInteger;
import java.util.concurrent.atomic.LongAdder;
import tessaly.str.diskarray.DiskArrayException;

/**
 * Sixteen threads call native methods with arguments made at random, while the library succeeds.
 * Usage: ThreadedCalls valid|any SECONDS [SECONDS BETWEEN TWO LINES]. Arguments that are `valid` leave
 * no exception behind; of `any` some are null, short or empty.
 */
public final class ThreadedCalls {
    private static final int THREADS = 16;
    /** No fixed-length copy takes more elements, and no table more rows. */
    private static final int[] INTS = new int[8192];
    private static final byte[] BYTES = new byte[8192];
    private static final int ROWS_ENOUGH = 100;
    /**
     * What a process may grow by after its warm-up: by itself, and by a call's documented leaks. That
     * tells a leak in a run of a minute or more.
     */
    private static final long GROWTH = 64_000_000;
    private static final long GROWTH_OF_A_CALL = 8;

    private static final List<NativeCall> CALLS = NativeCall.all();
    private static final LongAdder CALLED = new LongAdder();
    private static final LongAdder REACHED = new LongAdder();
    private static final AtomicInteger SEEDS = new AtomicInteger();
    private static volatile boolean ended;

    private final boolean valid;
    private final Random random = new Random(SEEDS.incrementAndGet());

    private ThreadedCalls(boolean valid) {
        this.valid = valid;
    }

    public static void main(String[] arguments) throws Exception {
        boolean valid = arguments[0].equals("valid");
        int seconds = Integer.parseInt(arguments[1]);
        int between = arguments.length > 2 ? Integer.parseInt(arguments[2]) : Math.max(1, seconds / 2);
        Simulator.force("*", 0, Integer.MAX_VALUE);
        for (NativeCall call : CALLS) {
            // What builds up to a million objects takes too long to be built here.
            if (call.name().matches("QV_(GetAllInfo|GetPairInformation).*")) {
                Simulator.force(call.function(), NativeCall.REFUSED, Integer.MAX_VALUE);
            }
        }
        List<Thread> threads = new ArrayList<>();
        for (int index = 0; index < THREADS; ++index) {
            threads.add(new Thread(new ThreadedCalls(valid)::run));
        }
        for (Thread thread : threads) {
            thread.start();
        }
        long warm = 0;
        long warmCalls = 0;
        for (int passed = between; passed <= seconds; passed += between) {
            Thread.sleep(between * 1000L);
            System.out.printf("threads: %5d s, %9d calls, %5d MB resident%n",
                    passed, CALLED.sum(), resident() / 1_000_000);
            if (warm == 0) {
                warm = resident();
                warmCalls = CALLED.sum();
            }
        }
        ended = true;
        for (Thread thread : threads) {
            thread.join();
        }
        int seen = Simulator.calls("*");
        System.out.printf("threads: %d, %s arguments, %d calls, of which %d must reach the library, "
                + "which saw %d%n", THREADS, arguments[0], CALLED.sum(), REACHED.sum(), seen);
        if (seen != REACHED.sum()) {
            NativeCall.fail("the library saw %d calls", seen);
        }
        long growth = resident() - warm;
        long bound = GROWTH + GROWTH_OF_A_CALL * (CALLED.sum() - warmCalls);
        if (growth > bound) {
            NativeCall.fail("%d bytes more since the warm-up; at most %d are expected", growth, bound);
        }
    }

    private static long resident() throws IOException {
        for (String line : Files.readAllLines(Paths.get("/proc/self/status"))) {
            if (line.startsWith("VmRSS:")) {
                return Long.parseLong(line.replaceAll("[^0-9]", "")) * 1024;
            }
        }
        throw new IOException("no VmRSS");
    }

    private void run() {
        try {
            while (!ended) {
                callOne(CALLS.get(random.nextInt(CALLS.size())));
            }
        } catch (Throwable failure) {
            failure.printStackTrace(System.out);
            NativeCall.fail("%s", failure);
        }
    }

    private void callOne(NativeCall call) throws ReflectiveOperationException, InterruptedException {
        Class<?>[] types = call.method.getParameterTypes();
        Object[] arguments = new Object[types.length];
        for (int index = 0; index < types.length; ++index) {
            arguments[index] = types[index] == int.class ? Integer.valueOf(random.nextInt(4)) : value(types[index]);
        }
        Throwable thrown = call.callQuickly(arguments, 3);
        CALLED.increment();
        if (!isRefusedByTheBridge(call, thrown)) {
            REACHED.increment();
        }
        if (!valid) {
            Thread.sleep(20);
        } else if (thrown != null && !isCode(thrown, NativeCall.REFUSED)) {
            NativeCall.fail("%s: %s", call.name(), thrown);
        }
    }

    /** A null text, or a time that cannot be read. The library succeeds where it is called. */
    private static boolean isRefusedByTheBridge(NativeCall call, Throwable thrown) {
        return isCode(thrown, 258)
                || call.name().equals("QV_SetUnitTime") && thrown instanceof DiskArrayException;
    }

    private static boolean isCode(Throwable thrown, int code) {
        return thrown instanceof DiskArrayException && ((DiskArrayException) thrown).getCode() == code;
    }

    private boolean oneIn(int times) {
        return random.nextInt(times) == 0;
    }

    /** A new value of an argument or a field. */
    private Object value(Class<?> type) throws ReflectiveOperationException {
        if (!valid && oneIn(20)) {
            return null;
        }
        if (type == String.class) {
            char[] characters = new char[random.nextInt(300)];
            Arrays.fill(characters, (char) random.nextInt(0xD800));
            return new String(characters);
        }
        if (type.isArray()) {
            return array(type.getComponentType());
        }
        Object object = type.getConstructor().newInstance();
        for (Field field : type.getFields()) {
            if (field.getType() == int.class) {
                field.setInt(object, random.nextInt());
            } else if (oneIn(2)) {
                field.set(object, value(field.getType()));
            }
        }
        return object;
    }

    private Object array(Class<?> element) throws ReflectiveOperationException {
        if (element.isPrimitive()) {
            Object full = element == int.class ? INTS : BYTES;
            return !valid && oneIn(20) ? Array.newInstance(element, random.nextInt(30)) : full;
        }
        boolean isTable = element.isArray() && element.getComponentType().isPrimitive();
        Object[] array = (Object[]) Array.newInstance(element, isTable ? ROWS_ENOUGH : random.nextInt(4));
        Object first = value(element);
        for (int index = 0; index < array.length; ++index) {
            array[index] = isTable ? first : value(element);
        }
        return array;
    }
}
