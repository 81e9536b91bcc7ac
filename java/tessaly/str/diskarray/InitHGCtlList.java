package tessaly.str.diskarray;

import java.util.Arrays;

/** The host groups of a controller to initialise. Layout assumed. */
public class InitHGCtlList {
    /** 8 elements, one for each port; neither null nor with a null. */
    public InitHGPortList[] port = new InitHGPortList[8];

    {
        Arrays.setAll(port, index -> new InitHGPortList());
    }
}
