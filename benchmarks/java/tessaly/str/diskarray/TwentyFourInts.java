package tessaly.str.diskarray;

/** As many ints as a logical unit has. */
public class TwentyFourInts {
    public int field00;
    public int field01;
    public int field02;
    public int field03;
    public int field04;
    public int field05;
    public int field06;
    public int field07;
    public int field08;
    public int field09;
    public int field10;
    public int field11;
    public int field12;
    public int field13;
    public int field14;
    public int field15;
    public int field16;
    public int field17;
    public int field18;
    public int field19;
    public int field20;
    public int field21;
    public int field22;
    public int field23;
}
