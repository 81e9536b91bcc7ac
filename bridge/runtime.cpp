#include "bridge/runtime.h"

#include <cstdio>
#include <cstdlib>

namespace quorvelj {

void* allocateRecord(std::size_t bytes) { return std::malloc(bytes); }

void* allocateZeroedRecords(std::size_t count, std::size_t bytes) {
  return std::calloc(count, bytes);
}

void releaseRecord(void* record) { std::free(record); }

void* allocateKept(std::size_t bytes) { return std::malloc(bytes); }

void releaseKept(void* kept) { std::free(kept); }

void flushOutput() { static_cast<void>(std::fflush(stdout)); }

}  // namespace quorvelj
