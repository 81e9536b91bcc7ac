package tessaly.str.diskarray;

import java.util.Arrays;

/** The host groups to initialise. Layout assumed. */
public class InitHGList {
    /** 2 elements, one for each controller; neither null nor with a null. */
    public InitHGCtlList[] ctl = new InitHGCtlList[2];

    {
        Arrays.setAll(ctl, index -> new InitHGCtlList());
    }
}
