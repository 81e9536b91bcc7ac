/* The one file to edit. A new `make probe` leaves it as it is. */

/* The library's headers, in the order in which they need each other. */
#include "quorvel.h"

/* What the library calls otherwise:

     #define RECORD_LogicalUnit struct lu_state
     #define MEMBER_LogicalUnit_capacity lu_capacity

   Members that the bridge does not have, to see where they are:

     #define FURTHER_LogicalUnit SHOW(owner) SHOW(label)
*/
