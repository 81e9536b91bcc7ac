package quorvelj.tools;

import java.io.IOException;
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
        System.exit(run(Arrays.asList(arguments)));
    }

    private static int run(List<String> arguments) {
        try {
            if (arguments.isEmpty() || arguments.contains("--help")) {
                System.out.print("java -jar quorvelj-tools.jar " + Doctor.USAGE);
                return arguments.isEmpty() ? 2 : 0;
            }
            if (arguments.get(0).equals("doctor")) {
                return Doctor.run(arguments.subList(1, arguments.size()), System.out);
            }
            throw new Misuse("unknown: " + arguments.get(0));
        } catch (Misuse | IOException e) {
            System.err.println("quorvelj-tools: " + e.getMessage());
            return 2;
        }
    }
}
