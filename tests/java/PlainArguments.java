import java.lang.reflect.Array;
import java.lang.reflect.Method;

/** Arguments for a native method that need no thought. */
final class PlainArguments {
    /** No fixed-length copy takes more elements. */
    private static final int LONG_ENOUGH = 8192;

    private PlainArguments() {}

    /** A name, ints of 0, new objects and arrays, of the method's own class loader. */
    static Object[] of(Method method) throws ReflectiveOperationException {
        Class<?>[] types = method.getParameterTypes();
        Object[] arguments = new Object[types.length];
        for (int index = 0; index < types.length; ++index) {
            Class<?> type = types[index];
            arguments[index] = type == int.class
                    ? Integer.valueOf(0)
                    : type == String.class
                            ? "north"
                            : type.isArray()
                                    ? Array.newInstance(type.getComponentType(), LONG_ENOUGH)
                                    : type.getConstructor().newInstance();
        }
        return arguments;
    }
}
