import java.io.File;
import java.lang.management.ManagementFactory;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.net.URL;
import java.net.URLClassLoader;
import java.util.Arrays;
import java.util.Comparator;

/**
 * Calls the bridge that looks everything up by name and the one that keeps identifiers during a call,
 * each in a class loader of its own.
 *
 * <p>Usage: TwoBuilds trees JAR DIRECTORY CACHED_DIRECTORY: every method's result or exception is the
 * same in both, field by field. TwoBuilds loaders JAR CACHED_DIRECTORY TIMES: an application's class
 * loader that is thrown away behind its calls leaves nothing.
 */
public final class TwoBuilds {
    /** The record of the whole array. */
    private static final int LARGEST_RECORD = 76_038_764;
    private static final int LEAST_VALUES = 20_000_000;
    private static final long MOST_GROWTH = 4_000_000;
    private static long compared;

    /** An application's class loader, with its own library. */
    private static final class Build extends URLClassLoader {
        private final String directory;
        private Class<?> utility;
        private Object array;

        Build(String jar, String directory) throws Exception {
            super(new URL[] {new File(jar).toURI().toURL()}, null);
            this.directory = directory;
        }

        @Override
        protected String findLibrary(String name) {
            File file = new File(directory, System.mapLibraryName(name));
            return name.equals("quorvelj") ? file.getAbsolutePath() : null;
        }

        /** Makes the caller; false where the library of another class loader is still loaded. */
        boolean load() throws ReflectiveOperationException {
            try {
                utility = Class.forName("tessaly.str.diskarray.DiskArrayUtilityJNI", true, this);
            } catch (UnsatisfiedLinkError inUse) {
                return false;
            }
            array = utility.getConstructor().newInstance();
            return true;
        }

        Method[] natives() {
            return Arrays.stream(utility.getDeclaredMethods())
                    .filter(method -> Modifier.isNative(method.getModifiers()))
                    .sorted(Comparator.comparing(Method::getName))
                    .toArray(Method[]::new);
        }

        /** Returns what the method returns, or what it throws. */
        Object call(Method method) throws ReflectiveOperationException {
            try {
                return method.invoke(array, PlainArguments.of(method));
            } catch (InvocationTargetException thrown) {
                return thrown.getCause();
            }
        }
    }

    private TwoBuilds() {}

    public static void main(String[] arguments) throws Exception {
        byte[] answer = new byte[LARGEST_RECORD];
        for (int index = 0; index < answer.length; ++index) {
            answer[index] = (byte) ((index + index / 251) % 127);
        }
        Simulator.prepare("*", answer);
        if (arguments[0].equals("trees")) {
            compareTrees(new Build(arguments[1], arguments[2]), new Build(arguments[1], arguments[3]));
        } else {
            throwAway(arguments[1], arguments[2], Integer.parseInt(arguments[3]));
        }
    }

    private static void compareTrees(Build byName, Build cached) throws Exception {
        if (!byName.load() || !cached.load()) {
            throw new IllegalStateException("one of the libraries cannot be loaded");
        }
        Method[] methods = byName.natives();
        Method[] others = cached.natives();
        for (int index = 0; index < methods.length; ++index) {
            compare(methods[index].getName(), byName.call(methods[index]), cached.call(others[index]));
        }
        System.out.println("builds: " + methods.length + " methods, " + compared + " values compared");
        if (compared < LEAST_VALUES) {
            throw new AssertionError("at least " + LEAST_VALUES + " are expected");
        }
    }

    private static void compare(String path, Object left, Object right) throws IllegalAccessException {
        ++compared;
        if (left == null || right == null) {
            check(left == right, path, left, right);
            return;
        }
        Class<?> type = left.getClass();
        check(type.getName().equals(right.getClass().getName()), path, type, right.getClass());
        if (left instanceof Throwable) {
            check(left.toString().equals(right.toString()), path, left, right);
        } else if (left instanceof String || left instanceof Integer) {
            check(left.equals(right), path, left, right);
        } else if (left instanceof int[]) {
            check(Arrays.equals((int[]) left, (int[]) right), path, left, right);
        } else if (left instanceof byte[]) {
            check(Arrays.equals((byte[]) left, (byte[]) right), path, left, right);
        } else if (left instanceof Object[]) {
            int length = Array.getLength(left);
            check(length == Array.getLength(right), path, length, Array.getLength(right));
            for (int index = 0; index < length; ++index) {
                compare(path + "[]", Array.get(left, index), Array.get(right, index));
            }
        } else {
            Field[] fields = FIELDS.get(type);
            Field[] others = FIELDS.get(right.getClass());
            for (int index = 0; index < fields.length; ++index) {
                if (fields[index].getType() == int.class) {
                    ++compared;
                    int value = fields[index].getInt(left);
                    int other = others[index].getInt(right);
                    check(value == other, fields[index].toString(), value, other);
                } else {
                    compare(fields[index].getName(), fields[index].get(left), others[index].get(right));
                }
            }
        }
    }

    private static final ClassValue<Field[]> FIELDS = new ClassValue<Field[]>() {
        @Override
        protected Field[] computeValue(Class<?> type) {
            Field[] fields = type.getFields();
            Arrays.sort(fields, Comparator.comparing(Field::getName));
            return fields;
        }
    };

    private static void check(boolean same, String path, Object left, Object right) {
        if (!same) {
            throw new AssertionError(path + ": " + left + " by name, " + right + " where it is kept");
        }
    }

    private static void throwAway(String jar, String directory, int times) throws Exception {
        long warm = 0;
        for (int time = 0; time < times; ++time) {
            try (Build build = load(jar, directory)) {
                for (Method method : build.natives()) {
                    if (method.getName().matches("QV_(GetThreshold|SetThreshold|GetUnitCondition)")) {
                        build.call(method);
                    }
                }
            }
            if (time == times / 10) {
                warm = used();
            }
        }
        long growth = used() - warm;
        long unloaded = ManagementFactory.getClassLoadingMXBean().getUnloadedClassCount();
        System.out.println("loaders: " + times + " thrown away, " + unloaded + " classes unloaded, "
                + growth + " bytes of heap more");
        if (growth > MOST_GROWTH || unloaded < times) {
            throw new AssertionError("something is left");
        }
    }

    /** The library is unloaded some time behind the class loader that had it. */
    private static Build load(String jar, String directory) throws Exception {
        for (int attempt = 0; attempt < 1000; ++attempt) {
            Build build = new Build(jar, directory);
            if (build.load()) {
                return build;
            }
            build.close();
            System.gc();
            Thread.sleep(1);
        }
        throw new AssertionError("the library stays loaded");
    }

    private static long used() {
        System.gc();
        return ManagementFactory.getMemoryMXBean().getHeapMemoryUsage().getUsed();
    }
}
