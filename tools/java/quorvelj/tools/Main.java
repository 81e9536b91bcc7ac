package quorvelj.tools;

import java.io.FileDescriptor;
import java.io.FileOutputStream;
import java.io.IOException;
import java.io.OutputStream;
import java.util.Arrays;
import java.util.List;

/** The commands of quorvelj-tools.jar. */
public final class Main {
    private Main() {}

    /** Arguments that no command takes, with a message of one line. */
    static final class Misuse extends Exception {
        private static final long serialVersionUID = 1L;

        Misuse(String message) {
            super(message);
        }
    }

    public static void main(String[] arguments) {
        System.exit(run(Arrays.asList(arguments), new FileOutputStream(FileDescriptor.out)));
    }

    /** Runs a command and returns the exit status. What `show` shows goes to `out`. */
    public static int run(List<String> arguments, OutputStream out) {
        try {
            String command = arguments.isEmpty() ? "" : arguments.get(0);
            if (arguments.isEmpty() || arguments.contains("--help")) {
                if (!command.equals("show")) {
                    System.out.print("java -jar quorvelj-tools.jar " + Doctor.USAGE);
                }
                if (!command.equals("doctor")) {
                    System.out.print("java -jar quorvelj-tools.jar " + Show.USAGE);
                }
                return arguments.isEmpty() ? 2 : 0;
            }
            if (command.equals("doctor")) {
                return Doctor.run(arguments.subList(1, arguments.size()), System.out);
            }
            if (command.equals("show")) {
                return Show.run(arguments.subList(1, arguments.size()), out);
            }
            throw new Misuse("unknown: " + command);
        } catch (Misuse | IOException e) {
            System.err.println("quorvelj-tools: " + e.getMessage());
            return 2;
        }
    }
}
