package quorvelj.tools;

import java.io.PrintStream;

/** Lines under headings, each with a verdict at its end. */
final class Report {
    private static final int HEADING = 11;
    private static final int LINE = 88;

    private final PrintStream out;
    private String heading = "";
    private int failures;

    Report(PrintStream out) {
        this.out = out;
    }

    /** Begins a group of lines. */
    void heading(String text) {
        heading = text;
    }

    void ok(String line) {
        print(line, "ok");
    }

    void fail(String line) {
        ++failures;
        print(line, "FAIL");
    }

    /** A line without a verdict. */
    void note(String line) {
        print(line, "");
    }

    int failures() {
        return failures;
    }

    private void print(String line, String verdict) {
        String text = String.format("%-" + HEADING + "s%s", heading, line);
        heading = "";
        out.println(
                verdict.isEmpty() ? text : String.format("%-" + LINE + "s  %s", text, verdict));
    }
}
