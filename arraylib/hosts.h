#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"

// How hosts reach the array: host groups and their mapping, iSCSI, fibre ports and LAN.

// Host groups and LU mapping

// iSCSI targets and ports

// Fibre ports and LAN settings
