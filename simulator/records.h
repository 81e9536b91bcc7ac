#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

#include "simulator/geometry.h"

// Texts and capacities as the records hold them.
namespace quorvelsim {

/// A text member up to its NUL, never past its width.
template <std::size_t N>
std::string textOf(const char (&text)[N]) {
  const void* const end = std::memchr(text, '\0', N);
  return {text, end == nullptr ? text + N : static_cast<const char*>(end)};
}

/// Fills a text member, cut to its width and terminated.
template <std::size_t N>
void setText(char (&member)[N], const std::string& text) {
  member[text.copy(member, N - 1)] = '\0';
}

/// Zeroes a record in place: it may be too large for a temporary on the stack.
template <class Record>
void clear(Record* record) {
  std::memset(static_cast<void*>(record), 0, sizeof *record);
}

/// A capacity has two words. The single word of older records holds as much of it as fits.
inline std::int32_t highWord(Blocks blocks) { return static_cast<std::int32_t>(blocks >> 32); }
inline std::int32_t lowWord(Blocks blocks) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(blocks));
}
inline std::int32_t singleWord(Blocks blocks) {
  return static_cast<std::int32_t>(
      std::min<Blocks>(blocks, std::numeric_limits<std::int32_t>::max()));
}
inline Blocks blocksOf(std::int32_t high, std::int32_t low) {
  return Blocks{static_cast<std::uint32_t>(high)} << 32 | static_cast<std::uint32_t>(low);
}

}  // namespace quorvelsim
