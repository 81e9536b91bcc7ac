#include "absent.h"
