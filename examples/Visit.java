import java.io.File;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.util.ArrayDeque;
import java.util.Deque;
import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskArrayUtilityJNI;
import tessaly.str.diskarray.QVSessionInfo;

/**
 * A session on a unit. Runs the steps of the tour, reports what becomes of each, and removes what they
 * made.
 */
final class Visit {
    /** A part of the tour that may be refused. */
    interface Step {
        void run() throws DiskArrayException;
    }

    /** Something that was made, and how it is removed. */
    private static final class Made {
        final String what;
        final Step removal;
        boolean certain;

        Made(String what, Step removal) {
            this.what = what;
            this.removal = removal;
        }
    }

    /** A step that has nothing to do. */
    private static final class LeftOut extends RuntimeException {
        private static final long serialVersionUID = 1L;

        LeftOut(String why) {
            super(why);
        }
    }

    static final DiskArrayUtilityJNI ARRAY = new DiskArrayUtilityJNI();

    final String unit;
    /** Null before the login. */
    final QVSessionInfo session;
    /** Whether nothing of the array may be changed. */
    final boolean readOnly;
    /** Whether logical units may be overwritten: they are nobody's. */
    final boolean simulated;
    final Report report;
    private final Deque<Made> made = new ArrayDeque<Made>();
    private boolean ended;

    private Visit(
            String unit, QVSessionInfo session, boolean readOnly, boolean simulated, Report report) {
        this.unit = unit;
        this.session = session;
        this.readOnly = readOnly;
        this.simulated = simulated;
        this.report = report;
    }

    /** A visit to the library itself. */
    Visit(boolean readOnly, boolean simulated, Report report) {
        this(null, null, readOnly, simulated, report);
    }

    /** A visit in a session. */
    Visit in(String visitedUnit, QVSessionInfo openSession) {
        return new Visit(visitedUnit, openSession, readOnly, simulated, report);
    }

    /** A step that changes nothing of the array. */
    void step(String heading, Step step) {
        run(heading, ended ? "the tour ended before" : null, null, 0, "", step);
    }

    /** A step that is taken even after an Error. */
    void always(String heading, Step step) {
        run(heading, null, null, 0, "", step);
    }

    /** A step that is left out where the array is in use. */
    void change(String heading, Step step) {
        run(heading, whyNoChange(), null, 0, "", step);
    }

    /** A step that is for the simulator only. */
    void simulate(String heading, Step step) {
        run(heading, simulated ? whyNoChange() : "for the simulator only", null, 0, "", step);
    }

    /**
     * A step that the library must refuse at this call with this code. A real array has other codes than
     * the simulator.
     */
    void refuse(String heading, String call, int code, String why, Step step) {
        run(heading, Refusal.isOfBridge(code) ? null : whyNoChange(), call, code, why, step);
    }

    private String whyNoChange() {
        return ended ? "the tour ended before" : readOnly ? "it is not for an array in use" : null;
    }

    /** A step that is left out where <code>why</code> says so, and refused where a call is named. */
    private void run(String heading, String leftOut, String call, int code, String why, Step step) {
        Report.Outcome outcome = Report.Outcome.UNEXPECTED;
        String words;
        try {
            report.begin(heading);
            need(leftOut == null, leftOut);
            step.run();
            outcome = call == null ? Report.Outcome.OK : outcome;
            words = call == null ? "" : call + " was carried out, although " + why;
        } catch (LeftOut nothing) {
            outcome = Report.Outcome.LEFT_OUT;
            words = nothing.getMessage();
        } catch (DiskArrayException refused) {
            boolean expected = Refusal.is(refused, call, code, simulated);
            outcome = expected ? Report.Outcome.EXPECTED : outcome;
            words = Refusal.words(refused) + (expected ? ", since " + why : Refusal.place(refused));
        } catch (RuntimeException failure) {
            words = failure + Refusal.place(failure);
        } catch (Error failure) {
            words = failure + Refusal.place(failure);
            ended = true;
        }
        report.end(outcome, words);
    }

    /** Leaves the running step out where it lacks something. */
    static void need(boolean holds, String why) {
        if (!holds) {
            throw new LeftOut(why);
        }
    }

    /**
     * Makes something that is removed when the visit ends. What the library refuses was not made; after
     * any other failure nobody knows, so that the removal is tried.
     */
    void make(String what, Step creation, Step removal) throws DiskArrayException {
        Made thing = new Made(what, removal);
        made.push(thing);
        try {
            creation.run();
            thing.certain = true;
        } catch (DiskArrayException refused) {
            made.pop();
            throw refused;
        }
    }

    /** Removes what was made, the last first, whatever happened before. */
    void removeAll(String heading) {
        if (made.isEmpty()) {
            return;
        }
        report.begin(heading);
        Table table = new Table("What", "Removed");
        int before = report.left.size();
        while (!made.isEmpty()) {
            Made thing = made.pop();
            String failed;
            try {
                thing.removal.run();
                table.row(thing.what, "yes");
                continue;
            } catch (DiskArrayException refused) {
                failed = Refusal.words(refused);
            } catch (RuntimeException | Error failure) {
                failed = failure.toString();
            }
            table.row(thing.what, "NO: " + failed);
            report.left.add(thing.what + (thing.certain ? "" : " (if it was made at all)"));
        }
        report.show(table);
        int left = report.left.size() - before;
        report.end(left == 0 ? Report.Outcome.OK : Report.Outcome.UNEXPECTED,
                left == 0 ? "" : left + " not removed");
    }

    void page(String title) {
        report.page(title);
    }

    void show(Table table) {
        report.show(table);
    }

    void say(String text) {
        report.say(text);
    }

    /**
     * A file of this content that goes when the tour ends. It has the same name in every run, as a
     * recording wants it.
     */
    static File newFile(String name, String content) {
        File file = new File(System.getProperty("java.io.tmpdir"), "array-tour-" + name + ".txt");
        try {
            Files.write(file.toPath(), content.getBytes(StandardCharsets.UTF_8));
        } catch (IOException failure) {
            throw new IllegalStateException("no temporary file", failure);
        }
        file.deleteOnExit();
        return file;
    }
}
