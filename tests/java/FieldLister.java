import java.io.IOException;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.util.Collections;
import java.util.jar.JarEntry;
import java.util.jar.JarFile;

/**
 * Prints the fields of every class of a jar: "tessaly/str/diskarray/QVSessionInfo session_id [B 32",
 * with the lengths of the arrays that the constructor makes, from the outer to the inner ones. "0"
 * stands for another value that it makes, "-" for null and for a number.
 */
public final class FieldLister {
    private FieldLister() {}

    public static void main(String[] arguments) throws ReflectiveOperationException, IOException {
        try (JarFile jar = new JarFile(arguments[0])) {
            for (JarEntry entry : Collections.list(jar.entries())) {
                String name = entry.getName().replace(".class", "");
                if (entry.getName().endsWith(".class") && !name.matches(".*(JNI|Exception|package-info)")) {
                    list(name);
                }
            }
        }
    }

    private static void list(String className) throws ReflectiveOperationException {
        Object object = Class.forName(className.replace('/', '.')).getConstructor().newInstance();
        for (Field field : object.getClass().getFields()) {
            System.out.println(className + " " + field.getName() + " " + signature(field.getType())
                    + " " + made(field.getType(), field.get(object)));
        }
    }

    private static String made(Class<?> type, Object value) {
        if (value == null || type == int.class) {
            return "-";
        }
        if (!type.isArray()) {
            return "0";
        }
        String inner = type.getComponentType().isArray()
                ? "," + made(type.getComponentType(), Array.get(value, 0)) : "";
        return Array.getLength(value) + inner;
    }

    private static String signature(Class<?> type) {
        return type == int.class
                ? "I"
                : Array.newInstance(type, 0).getClass().getName().replace('.', '/').substring(1);
    }
}
