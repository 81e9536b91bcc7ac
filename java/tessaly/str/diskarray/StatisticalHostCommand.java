package tessaly.str.diskarray;

/** Host commands, by LU. */
public class StatisticalHostCommand {
    public StatisticalHostCommand_Info[] lu;
}
