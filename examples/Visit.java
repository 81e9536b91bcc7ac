import tessaly.str.diskarray.DiskArrayException;
import tessaly.str.diskarray.DiskArrayUtilityJNI;
import tessaly.str.diskarray.QVSessionInfo;

/** A session on a unit, and how the pages of the tour are shown in it. */
final class Visit {
    /** A step of the tour that may be refused. */
    interface Step {
        void run() throws DiskArrayException;
    }

    static final DiskArrayUtilityJNI ARRAY = new DiskArrayUtilityJNI();

    final String unit;
    final QVSessionInfo session;

    Visit(String unit, QVSessionInfo session) {
        this.unit = unit;
        this.session = session;
    }

    /** Runs a step under its heading; a refusal is shown with its code and the tour goes on. */
    static void step(String heading, Step step) {
        System.out.println(heading);
        try {
            step.run();
        } catch (DiskArrayException refused) {
            System.out.println("  refused with code " + refused.getCode() + "\n");
        }
    }
}
