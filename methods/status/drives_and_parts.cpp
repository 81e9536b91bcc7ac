// Drives and the other parts of an array.
#include "arraylib/status.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(ENCRevision, valid_index, rev_main, rev_boot, rev_ectl, rev_rtr, rev_ses, rev_sas);
QUORVELJ_CLASS(ENCMicroRevision, bas_rev, ext_rev, ext_rev_plus);
