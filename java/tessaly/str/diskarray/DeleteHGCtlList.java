package tessaly.str.diskarray;

import java.util.Arrays;

/** The host groups of a controller to delete. Layout assumed. */
public class DeleteHGCtlList {
    /** 8 elements, one for each port; neither null nor with a null. */
    public DeleteHGPortList[] port = new DeleteHGPortList[8];

    {
        Arrays.setAll(port, index -> new DeleteHGPortList());
    }
}
