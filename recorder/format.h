#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The file of a recording; docs/recording.md describes it.
namespace recorder {

inline constexpr char kMagic[] = "quorvrec";
inline constexpr std::uint32_t kVersion = 1;
inline constexpr std::size_t kHeaderBytes = 24;
/// Length and sum, before each body.
inline constexpr std::size_t kEntryBytes = 8;

/// A run of bytes that the library did not write.
struct Run {
  std::size_t start;
  std::size_t end;
};

void putFixed(std::string& out, std::uint64_t value, std::size_t bytes);
void putNumber(std::string& out, std::uint64_t value);
void putSigned(std::string& out, std::int64_t value);
void putText(std::string& out, const std::string& text);
/// Writes the chunks of a block; `unwritten` are in their order.
void putChunks(std::string& out, const unsigned char* block, std::size_t bytes,
               const std::vector<Run>& unwritten);

std::uint32_t checksum(const void* data, std::size_t bytes);

/// Reads what a `put` wrote. Behind the end, and where a number is too long, everything reads as 0
/// and `failed` is true.
class Reader {
 public:
  Reader(const char* data, std::size_t bytes) : at_(data), end_(data + bytes) {}

  std::uint64_t fixed(std::size_t bytes);
  std::uint64_t number();
  std::int64_t signedNumber();
  std::string text();
  /// Reads the chunks of a block into `block`, whose unwritten bytes stay as they are; null skips
  /// them.
  void chunks(unsigned char* block, std::size_t bytes);

  [[nodiscard]] bool failed() const { return failed_; }
  [[nodiscard]] bool atEnd() const { return at_ == end_; }

 private:
  [[nodiscard]] std::size_t rest() const { return static_cast<std::size_t>(end_ - at_); }
  std::uint64_t fail();

  const char* at_;
  const char* end_;
  bool failed_ = false;
};

}  // namespace recorder
