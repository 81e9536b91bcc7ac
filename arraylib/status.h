#pragma once

#include "arraylib/record.h"

// The state of an array and of its parts.

/// The firmware revisions of one enclosure controller.
struct ENCRevision {
  std::int32_t valid_index;
  char rev_main[7];
  char rev_boot[3];
  char rev_ectl[3];
  char rev_rtr[7];
  char rev_ses[7];
  char rev_sas[9];
};
QUORVEL_RECORD(ENCRevision, 40);
QUORVEL_OFFSET(ENCRevision, rev_boot, 11);
QUORVEL_OFFSET(ENCRevision, rev_ectl, 14);
QUORVEL_OFFSET(ENCRevision, rev_rtr, 17);
QUORVEL_OFFSET(ENCRevision, rev_ses, 24);
QUORVEL_OFFSET(ENCRevision, rev_sas, 31);

/// The revisions in an enclosure firmware.
struct ENCMicroRevision {
  ENCRevision bas_rev;
  ENCRevision ext_rev;
  ENCRevision ext_rev_plus[1];
};
QUORVEL_RECORD(ENCMicroRevision, 120);
