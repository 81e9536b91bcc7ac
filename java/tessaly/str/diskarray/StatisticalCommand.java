package tessaly.str.diskarray;

/** Command counts of all LUs of one controller at one time. */
public class StatisticalCommand {
    /** 4096 elements as a result; as an argument any number, of which 4096 are taken. */
    public StatisticalCommand_Info[] lu;

    public QVTime mtime;
}
