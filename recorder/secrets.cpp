#include "recorder/secrets.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace recorder {

namespace {

/// Shorter ones would be found in what is none.
constexpr std::size_t kShortest = 4;

}  // namespace

std::string Tokens::of(const std::string& value) {
  if (value.empty()) {
    return value;
  }
  return tokens_.try_emplace(value, kTokenPrefix + std::to_string(tokens_.size() + 1))
      .first->second;
}

void Tokens::hide(unsigned char* block, std::size_t bytes, const std::vector<Range>& secrets) {
  const auto put = [block](std::size_t at, std::size_t width, const std::string& token) {
    std::memset(block + at, 0, width);
    std::copy_n(token.begin(), std::min(width, token.size()), block + at);
  };
  for (const Range& secret : secrets) {
    // What stands behind the NUL of a text may be an older secret.
    put(secret.offset, secret.bytes, of(valueOf(block, secret)));
  }
  const std::string_view all(reinterpret_cast<const char*>(block), bytes);
  for (const auto& [value, token] : tokens_) {
    if (value.size() < kShortest) {
      continue;
    }
    for (std::size_t at = 0; (at = all.find(value, at)) != std::string_view::npos;) {
      put(at, value.size(), token);
      at += value.size();
    }
  }
}

}  // namespace recorder
