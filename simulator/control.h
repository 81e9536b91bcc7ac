#pragma once

#include <cstddef>

// How a test steers the simulator. `function` is the name of a library function, "QV_GetUnitParam",
// or "*" for all that were told nothing themselves; `index` counts its parameters from 0.

#ifndef QUORVEL_API
#define QUORVEL_API extern "C"
#endif

/// Forgets everything: units, sessions, what was forced, prepared and kept, and the observer.
QUORVEL_API void quorvelSimReset();

/// Makes the next `times` calls of `function` return `result` and do nothing else, but that a
/// result of 0 fills the outputs with what was prepared, or with zeros.
QUORVEL_API void quorvelSimForceResult(const char* function, int result, int times);

/// Makes every call of `function` succeed with these bytes as its outputs, which lie behind one
/// another. Fewer bytes leave the rest zero, no bytes end it.
QUORVEL_API void quorvelSimPrepareOutput(const char* function, const void* bytes, size_t size);

/// Returns how often `function` was called.
QUORVEL_API int quorvelSimCallCount(const char* function);

/// Copies at most `size` bytes of what `function` was last given and returns how many there are: a
/// record, an int's 4 bytes, or the whole buffer of a text. 0 where it was not called.
QUORVEL_API size_t quorvelSimLastInput(const char* function, int index, void* buffer, size_t size);

/// Calls `observer` on every call of a function, before the function does anything; null ends it.
/// The observer must not call the library.
QUORVEL_API void quorvelSimObserve(void (*observer)(const char* function));
