#pragma once

// What jni.h needs to know of 32-bit Windows. Native methods are not marked for export: the linker
// would export them undecorated as well, and the generated quorvelj.def lists what is exported.
#define JNIEXPORT
#define JNIIMPORT __declspec(dllimport)
#define JNICALL __stdcall

typedef long jint;
typedef long long jlong;
typedef signed char jbyte;
