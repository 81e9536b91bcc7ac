package tessaly.str.diskarray;

/**
 * Command counts of the first LUs of one controller at one time. They go on from snapshot to
 * snapshot: what happened between two is their difference.
 */
public class StatisticalCommand {
    /**
     * 4,096 elements as a result: the index is the LU's number. As an argument any number, of which
     * 4,096 are taken; an LU without an element reaches the library as it lay in memory, and where
     * the array is null all of them and the time. Null in a new object.
     */
    public StatisticalCommand_Info[] lu;
    /** When the snapshot was taken. Null in a new object. */
    public QVTime mtime;
}
