package tessaly.str.diskarray;

/** Power saving of the unit. Layout assumed. */
public class UnitPowerSavingInfo {}
