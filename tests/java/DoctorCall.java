import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;

/**
 * Calls one native method in an application whose classes may not fit, and prints what came of it:
 * "ok", "2817", or the name of another throwable. Usage: DoctorCall METHOD.
 */
public final class DoctorCall {
    private static final String PACKAGE = "tessaly.str.diskarray.";

    private final Class<?> natives = Class.forName(PACKAGE + "DiskArrayUtilityJNI");
    private final Object array = natives.getConstructor().newInstance();

    private DoctorCall() throws ReflectiveOperationException {}

    public static void main(String[] arguments) throws ReflectiveOperationException {
        String outcome = "ok";
        try {
            DoctorCall call = new DoctorCall();
            call.register();
            call.call(arguments[0], call.login());
        } catch (InvocationTargetException e) {
            outcome = shown(e.getCause());
        } catch (LinkageError e) {
            outcome = shown(e);
        }
        System.out.println(outcome);
    }

    private static String shown(Throwable thrown) {
        try {
            return thrown.getClass().getMethod("getCode").invoke(thrown).toString();
        } catch (ReflectiveOperationException e) {
            return thrown.getClass().getSimpleName() + " " + thrown.getMessage();
        }
    }

    private static Object make(String name, String... fields) throws ReflectiveOperationException {
        Class<?> type = Class.forName(PACKAGE + name);
        Object object = type.getConstructor().newInstance();
        for (int index = 0; index < fields.length; index += 2) {
            type.getField(fields[index]).set(object, fields[index + 1]);
        }
        return object;
    }

    private void register() throws ReflectiveOperationException {
        call("QV_UnitAddByIP", make("QVUnitParam", "unit_name", "north", "ctl0", "192.0.2.10"));
    }

    private Object login() throws ReflectiveOperationException {
        return call(
                "QV_LoginQVAccount",
                "north",
                make("LoginRequest", "user_id", "admin", "passwd", "quorvel"));
    }

    /** Calls a method with these arguments, or with a name, the session, new objects and ints of 0. */
    private Object call(String name, Object... given) throws ReflectiveOperationException {
        for (Method method : natives.getMethods()) {
            if (method.getName().equals(name)) {
                Class<?>[] types = method.getParameterTypes();
                Object[] arguments = new Object[types.length];
                for (int index = 0; index < types.length; ++index) {
                    for (Object argument : given) {
                        if (types[index].isInstance(argument)) {
                            arguments[index] = argument;
                        }
                    }
                    if (arguments[index] == null) {
                        arguments[index] =
                                types[index] == String.class
                                        ? "north"
                                        : types[index].isPrimitive()
                                                ? (Object) 0
                                                : types[index].getConstructor().newInstance();
                    }
                }
                return method.invoke(array, arguments);
            }
        }
        throw new NoSuchMethodException(name);
    }
}
