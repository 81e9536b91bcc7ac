package tessaly.str.diskarray;

/** Host commands, by LU. */
public class StatisticalHostCommand {
    /** The LUs, 4,096 elements, whether or not they exist. */
    public StatisticalHostCommand_Info[] lu;
}
