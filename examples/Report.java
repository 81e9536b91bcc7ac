import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;

/** What became of the tour, page by page and step by step. It is printed as it comes. */
final class Report {
    /** What became of a step. */
    enum Outcome {
        OK("OK"),
        EXPECTED("Refused as expected"),
        UNEXPECTED("UNEXPECTED"),
        LEFT_OUT("Left out");

        final String words;

        Outcome(String words) {
            this.words = words;
        }
    }

    /** A step with the texts and tables that it showed. */
    static final class Step {
        final String heading;
        final List<Object> content = new ArrayList<Object>();
        Outcome outcome;
        String words = "";
        double milliseconds;

        private Step(String heading) {
            this.heading = heading;
        }
    }

    /** Steps that belong together. */
    static final class Page {
        final String title;
        final List<Step> steps = new ArrayList<Step>();

        private Page(String title) {
            this.title = title;
        }

        int count(Outcome outcome) {
            int count = 0;
            for (Step step : steps) {
                count += step.outcome == outcome ? 1 : 0;
            }
            return count;
        }
    }

    final List<Page> pages = new ArrayList<Page>();
    /** What is known of the array, by name. */
    final Map<String, String> facts = new LinkedHashMap<String, String>();
    /** Markup by title; a later picture of a title takes the place of an earlier one. */
    final Map<String, String> pictures = new LinkedHashMap<String, String>();
    /** What the tour made and could not remove. */
    final List<String> left = new ArrayList<String>();
    private final long start = System.nanoTime();
    private long startOfStep;
    private Step step;

    void page(String title) {
        pages.add(new Page(title));
        printTitle(title);
    }

    private static void printTitle(String title) {
        System.out.println(title + "\n" + title.replaceAll(".", "=") + "\n");
    }

    void begin(String heading) {
        step = new Step(heading);
        pages.get(pages.size() - 1).steps.add(step);
        startOfStep = System.nanoTime();
        System.out.println(heading);
    }

    void show(Table table) {
        step.content.add(table);
        table.print();
    }

    void say(String text) {
        step.content.add(text);
        System.out.println("  " + text + "\n");
    }

    void end(Outcome outcome, String words) {
        step.outcome = outcome;
        step.words = words;
        step.milliseconds = (System.nanoTime() - startOfStep) / 1e6;
        System.out.println("  " + outcome.words + (words.isEmpty() ? "" : ": " + words) + "\n");
    }

    int count(Outcome outcome) {
        int count = 0;
        for (Page page : pages) {
            count += page.count(outcome);
        }
        return count;
    }

    boolean isAsExpected() {
        return count(Outcome.UNEXPECTED) == 0;
    }

    double seconds() {
        return (System.nanoTime() - start) / 1e9;
    }

    /** Prints how many steps became what, and each that is unexpected once more. */
    void summarise() {
        printTitle("Summary");
        Table counts = new Table("Page", "OK", "As expected", "Unexpected", "Left out");
        Table unexpected = new Table("Page", "Step", "What happened");
        for (Page page : pages) {
            counts.row(page.title, page.count(Outcome.OK), page.count(Outcome.EXPECTED),
                    page.count(Outcome.UNEXPECTED), page.count(Outcome.LEFT_OUT));
            for (Step each : page.steps) {
                if (each.outcome == Outcome.UNEXPECTED) {
                    unexpected.row(page.title, each.heading, each.words);
                }
            }
        }
        counts.print();
        if (!isAsExpected()) {
            unexpected.print();
        }
        for (String each : left) {
            System.out.println("  Still there: " + each);
        }
        System.out.printf(Locale.ROOT, "  %d OK, %d refused as expected, %d unexpected, %d left out,"
                        + " in %.2f seconds%n",
                count(Outcome.OK), count(Outcome.EXPECTED), count(Outcome.UNEXPECTED),
                count(Outcome.LEFT_OUT), seconds());
    }
}
