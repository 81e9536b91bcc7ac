#include "agrees.h"
