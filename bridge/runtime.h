#pragma once

#include <cstddef>

// What the bridge asks of the C runtime. The tests link a runtime of their own, which counts,
// traces and refuses these calls one by one.
namespace quorvelj {

/// Returns `bytes` of uninitialised C heap memory for one record, or null.
void* allocateRecord(std::size_t bytes);

/// Returns zero-filled C heap memory for `count` records of `bytes` each, or null; also null where
/// the product does not fit into a `size_t`.
void* allocateZeroedRecords(std::size_t count, std::size_t bytes);

/// Releases what the two functions above returned; null is allowed.
void releaseRecord(void* record);

/// Returns uninitialised C heap memory for what a native call keeps, or null; the call goes on
/// without.
void* allocateKept(std::size_t bytes);
void releaseKept(void* kept);

/// Flushes the C runtime's standard output.
void flushOutput();

}  // namespace quorvelj
