package tessaly.str.diskarray;

import java.util.Arrays;

/** The host groups to delete. Layout assumed. */
public class DeleteHGList {
    /** 2 elements, one for each controller; neither null nor with a null. */
    public DeleteHGCtlList[] ctl = new DeleteHGCtlList[2];

    {
        Arrays.setAll(ctl, index -> new DeleteHGCtlList());
    }
}
