#pragma once

// What every family of native methods includes: the declarations generated from the Java class,
// against which the definitions are compiled, and the frames.
#include "bridge/native_frame.h"
#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"
