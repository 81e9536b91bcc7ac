import java.io.File;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
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
