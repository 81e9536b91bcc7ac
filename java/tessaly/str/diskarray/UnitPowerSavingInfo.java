package tessaly.str.diskarray;

/** Power saving of the unit. No field is known. Layout assumed. */
public class UnitPowerSavingInfo {}
