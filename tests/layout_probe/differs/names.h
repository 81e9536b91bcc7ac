#include "differs.h"
#define FURTHER_HGName SHOW(owner)
