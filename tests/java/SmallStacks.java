import java.util.List;

/**
 * Calls every native method on a thread with the smallest stack that the JVM gives: as it is, and
 * from as deep in it as the call can be made. A method that needs more than the JVM secures below a
 * native call ends the process.
 */
public final class SmallStacks {
    private final NativeCall call;
    private final Object[] arguments;
    private int tries;

    private SmallStacks(NativeCall call) throws ReflectiveOperationException {
        this.call = call;
        this.arguments = PlainArguments.of(call.method);
    }

    public static void main(String[] unused) throws Exception {
        List<NativeCall> calls = NativeCall.all();
        // What is loaded and linked at the first call is not to be loaded at the end of a stack.
        callAll(calls, NativeCall.REFUSED, false);
        callAll(calls, 0, false);
        Thread small = new Thread(null, () -> {
            try {
                callAll(calls, NativeCall.REFUSED, true);
                callAll(calls, 0, true);
            } catch (Throwable failure) {
                NativeCall.fail("%s", failure);
            }
        }, "small", 1);
        small.start();
        small.join();
    }

    private static void callAll(List<NativeCall> calls, int result, boolean deep)
            throws ReflectiveOperationException {
        Simulator.force("*", result, Integer.MAX_VALUE);
        int reached = 0;
        int overflowed = 0;
        int mostTries = 0;
        int built = 0;
        for (NativeCall call : calls) {
            SmallStacks stack = new SmallStacks(call);
            Throwable thrown = call.callQuickly(stack.arguments, 50);
            if (thrown instanceof StackOverflowError) {
                NativeCall.fail("%s overflows the smallest stack", call.name());
            }
            built += thrown == null ? 1 : 0;
            if (deep) {
                // Nothing else tells where the process ended.
                System.out.print(call.name() + " ");
                System.out.flush();
            }
            int before = Simulator.calls(call.function());
            if (deep && !stack.descend()) {
                NativeCall.fail("%s was never called at depth", call.name());
            }
            int calledAtDepth = Simulator.calls(call.function()) - before;
            reached += calledAtDepth > 0 ? 1 : 0;
            overflowed += Math.max(0, calledAtDepth - 1);
            mostTries = Math.max(mostTries, stack.tries);
        }
        if (deep) {
            System.out.printf("%nstacks: result %d: %d methods, %d succeeded, %d called at depth, "
                            + "%d calls more that overflowed inside, at most %d tries%n",
                    result, calls.size(), built, reached, overflowed, mostTries);
            if (reached != calls.size()) {
                NativeCall.fail("only %d methods were called at depth", reached);
            }
        }
    }

    /** Goes to the end of the stack, and calls on the way back until the stack suffices. */
    private boolean descend() {
        try {
            if (descend()) {
                return true;
            }
        } catch (StackOverflowError end) {
            // This frame is the last.
        }
        return tryCall();
    }

    private boolean tryCall() {
        ++tries;
        try {
            return !(call.call(arguments) instanceof StackOverflowError);
        } catch (StackOverflowError tooDeep) {
            return false;
        }
    }
}
