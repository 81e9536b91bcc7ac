package tessaly.str.diskarray;

import java.util.Arrays;

/** The host groups of a controller to delete. Layout assumed. */
public class DeleteHGCtlList {
    /** 8 elements. */
    public DeleteHGPortList[] port = new DeleteHGPortList[8];

    {
        Arrays.setAll(port, index -> new DeleteHGPortList());
    }
}
