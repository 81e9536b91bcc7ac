#pragma once

#include <map>
#include <string>

#include "recorder/function.h"

namespace recorder {

inline constexpr char kTokenPrefix[] = "secret-";

inline bool isToken(const std::string& value) { return value.rfind(kTokenPrefix, 0) == 0; }

/// The tokens that stand for secrets in a recording: equal ones for equal values.
class Tokens {
 public:
  /// The token of a value; "" for "".
  std::string of(const std::string& value);
  /// Puts a token into the place of each secret that is not empty, and wherever else in the block a
  /// secret stands that was met before: what a caller leaves unset is memory that others had.
  void hide(unsigned char* block, std::size_t bytes, const std::vector<Range>& secrets);

 private:
  std::map<std::string, std::string> tokens_;
};

}  // namespace recorder
