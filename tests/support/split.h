#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace quorvelj::testing {

/// The parts of a text between its separators; none of an empty text.
inline std::vector<std::string> split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find(separator, start), text.size());
    parts.push_back(text.substr(start, end - start));
    start = end + separator.size();
  }
  return parts;
}

}  // namespace quorvelj::testing
