#pragma once

#include <cstddef>

// How a test steers the simulator. `function` is the name of a library function, "QV_GetUnitParam".
// "*" stands for all functions; what is asked of a function by its name goes before it. `index`
// counts the parameters of a function from 0.

#ifndef QUORVEL_API
#define QUORVEL_API extern "C"
#endif

/// Forgets everything: units, sessions, what was forced, prepared and kept, and the observer.
QUORVEL_API void quorvelSimReset();

/// Makes the next `times` calls of `function` return `result` and do nothing else. Only with the
/// result 0 they fill the outputs: with what was prepared, or with zeros.
QUORVEL_API void quorvelSimForceResult(const char* function, int result, int times);

/// Makes every call of `function` succeed with these bytes as its outputs, one behind the other.
/// The outputs are zero behind the last byte. A `size` of 0 ends it.
QUORVEL_API void quorvelSimPrepareOutput(const char* function, const void* bytes, size_t size);

/// Returns how often `function` was called.
QUORVEL_API int quorvelSimCallCount(const char* function);

/// Copies at most `size` bytes of what `function` was last given: a record, the 4 bytes of an int,
/// or the whole buffer of a text. Returns how many bytes that has, 0 where there was no call.
QUORVEL_API size_t quorvelSimLastInput(const char* function, int index, void* buffer, size_t size);

/// Calls `observer` at the beginning of every call of a function; null ends it.
/// The observer must not call the library.
QUORVEL_API void quorvelSimObserve(void (*observer)(const char* function));
