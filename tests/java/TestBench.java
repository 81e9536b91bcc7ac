import java.io.IOException;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.util.Arrays;
import java.util.Collections;
import java.util.jar.JarEntry;
import java.util.jar.JarFile;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskArrayUtilityJNI;

/** What the native tests do in Java: calls by name, and fields by paths like "role_info[3].role_name". */
public final class TestBench {
    /** How the last call failed: "" or "DiskArrayException 258". */
    public static String failure;

    private TestBench() {}

    public static Object call(String name, Object[] arguments) throws ReflectiveOperationException {
        failure = "";
        for (Method method : DiskArrayUtilityJNI.class.getMethods()) {
            if (method.getName().equals(name)) {
                try {
                    return method.invoke(new DiskArrayUtilityJNI(), arguments);
                } catch (InvocationTargetException thrown) {
                    failure = describe(thrown.getCause());
                    return null;
                }
            }
        }
        throw new NoSuchMethodException(name);
    }

    private static String describe(Throwable cause) {
        return cause instanceof DiskArrayException
                ? "DiskArrayException " + ((DiskArrayException) cause).getCode()
                : cause.getClass().getSimpleName() + " " + cause.getMessage();
    }

    public static Object create(String className) throws ReflectiveOperationException {
        return Class.forName("tessaly.str.diskarray." + className).getConstructor().newInstance();
    }

    /** The value at a path as text; ints as "[1, 2]", bytes in decimal, other objects by their class. */
    public static String get(Object root, String path) throws ReflectiveOperationException {
        Object value = root;
        for (String step : steps(path)) {
            value = isIndex(step)
                    ? Array.get(value, Integer.parseInt(step))
                    : value.getClass().getField(step).get(value);
        }
        if (value instanceof int[]) {
            return Arrays.toString((int[]) value);
        }
        if (value instanceof byte[]) {
            return Arrays.toString((byte[]) value);
        }
        if (value != null && value.getClass().isArray()) {
            return value.getClass().getSimpleName().replace("[]", "[" + Array.getLength(value) + "]");
        }
        boolean shown = value == null || value instanceof String || value instanceof Number;
        return shown ? String.valueOf(value) : value.getClass().getSimpleName();
    }

    /** Sets the value at a path; objects and arrays on the way are made as they are needed. */
    public static void set(Object root, String path, String value)
            throws ReflectiveOperationException {
        String[] steps = steps(path);
        Object at = root;
        for (int step = 0; step < steps.length; step++) {
            boolean last = step == steps.length - 1;
            if (isIndex(steps[step])) {
                int index = Integer.parseInt(steps[step]);
                Class<?> type = at.getClass().getComponentType();
                if (last) {
                    Array.set(at, index, parse(type, value));
                } else {
                    if (Array.get(at, index) == null) {
                        Array.set(at, index, make(type, steps[step + 1]));
                    }
                    at = Array.get(at, index);
                }
                continue;
            }
            Field field = at.getClass().getField(steps[step]);
            if (last) {
                field.set(at, parse(field.getType(), value));
                continue;
            }
            if (isIndex(steps[step + 1])) {
                field.set(at, grown(field.get(at), field.getType(), steps[step + 1]));
            } else if (field.get(at) == null) {
                field.set(at, make(field.getType(), steps[step + 1]));
            }
            at = field.get(at);
        }
    }

    /** Gives the array field at a path a new array of this length; of no length, null. */
    public static void setLength(Object root, String field, int length)
            throws ReflectiveOperationException {
        Field target = root.getClass().getField(field);
        target.set(root, length < 0
                ? null : Array.newInstance(target.getType().getComponentType(), length));
    }

    /**
     * Prints the fields of every class of a jar: "QVSessionInfo session_id [B 32", with the length
     * of the array that the constructor makes, or -1.
     */
    public static void main(String[] arguments) throws ReflectiveOperationException, IOException {
        try (JarFile jar = new JarFile(arguments[0])) {
            for (JarEntry entry : Collections.list(jar.entries())) {
                String name = entry.getName().replace(".class", "").replace('/', '.');
                if (!entry.getName().endsWith(".class") || name.matches(".*(JNI|Exception|package-info)")) {
                    continue;
                }
                Object object = Class.forName(name).getConstructor().newInstance();
                for (Field field : object.getClass().getFields()) {
                    Object value = field.get(object);
                    boolean made = value != null && value.getClass().isArray();
                    System.out.println(object.getClass().getSimpleName() + " " + field.getName() + " "
                            + signature(field.getType()) + " " + (made ? Array.getLength(value) : -1));
                }
            }
        }
    }

    private static String signature(Class<?> type) {
        return type == int.class
                ? "I"
                : Array.newInstance(type, 0).getClass().getName().replace('.', '/').substring(1);
    }

    private static String[] steps(String path) {
        String plain = path.replace("]", "").replace('[', '.').replaceFirst("^\\.", "");
        return plain.isEmpty() ? new String[0] : plain.split("\\.");
    }

    private static boolean isIndex(String step) {
        return Character.isDigit(step.charAt(0));
    }

    private static Object make(Class<?> type, String next) throws ReflectiveOperationException {
        return type.isArray() ? grown(null, type, next) : type.getConstructor().newInstance();
    }

    private static Object grown(Object array, Class<?> type, String index) {
        int length = Integer.parseInt(index) + 1;
        if (array != null && Array.getLength(array) >= length) {
            return array;
        }
        Object longer = Array.newInstance(type.getComponentType(), length);
        if (array != null) {
            System.arraycopy(array, 0, longer, 0, Array.getLength(array));
        }
        return longer;
    }

    private static Object parse(Class<?> type, String value) {
        if (type == int.class) {
            return Integer.valueOf(value);
        }
        if (type == byte.class) {
            return Byte.valueOf(value);
        }
        return value;
    }
}
