package tessaly.str.diskarray;

/** Power saving of the unit. */
public class UnitPowerSavingInfo {}
