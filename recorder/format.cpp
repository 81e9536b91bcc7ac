#include "recorder/format.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace recorder {

namespace {

enum Chunk : unsigned { kLiteral, kZeros, kUnwritten, kCopy };

constexpr std::size_t kShortestZeros = 8;
constexpr std::size_t kShortestCopy = 16;
constexpr unsigned kHashBits = 12;

constexpr std::array<std::uint32_t, 256> crcTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t sum = byte;
    for (int bit = 0; bit < 8; ++bit) {
      sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0);
    }
    table[byte] = sum;
  }
  return table;
}
constexpr auto kCrcTable = crcTable();

std::uint64_t word(const unsigned char* at) {
  std::uint64_t value = 0;
  std::memcpy(&value, at, sizeof value);
  return value;
}

std::size_t zerosFrom(const unsigned char* block, std::size_t at, std::size_t end) {
  std::size_t to = at;
  while (to + sizeof(std::uint64_t) <= end && word(block + to) == 0) {
    to += sizeof(std::uint64_t);
  }
  while (to < end && block[to] == 0) {
    ++to;
  }
  return to - at;
}

void putChunk(std::string& out, Chunk kind, std::size_t bytes) {
  if (bytes > 0) {
    putNumber(out, bytes << 2 | kind);
  }
}

/// Writes literals, zeros and copies of what stands before in the same stretch of written bytes.
class Packer {
 public:
  explicit Packer(std::string& out) : out_(out) {}

  void pack(const unsigned char* block, std::size_t start, std::size_t end) {
    std::size_t literal = start;
    std::size_t at = start;
    const auto flush = [&] {
      putChunk(out_, kLiteral, at - literal);
      out_.append(reinterpret_cast<const char*>(block) + literal, at - literal);
    };
    while (at < end) {
      const std::size_t zeros = block[at] == 0 ? zerosFrom(block, at, end) : 0;
      if (zeros >= kShortestZeros) {
        flush();
        putChunk(out_, kZeros, zeros);
        literal = at += zeros;
        continue;
      }
      if (at + sizeof(std::uint64_t) <= end) {
        const std::uint64_t product = word(block + at) * 0x9E3779B97F4A7C15U;
        const auto hash = static_cast<std::size_t>(product >> (64 - kHashBits));
        const std::size_t before = seen_[hash];
        seen_[hash] = at;
        std::size_t same = 0;
        while (before >= start && before < at && at + same < end &&
               block[before + same] == block[at + same]) {
          ++same;
        }
        if (same >= kShortestCopy) {
          flush();
          putChunk(out_, kCopy, same);
          putNumber(out_, at - before);
          literal = at += same;
          continue;
        }
      }
      at += std::max<std::size_t>(1, zeros);
    }
    flush();
  }

 private:
  std::string& out_;
  /// Where eight bytes with this hash were last.
  std::array<std::size_t, 1 << kHashBits> seen_{};
};

}  // namespace

void putFixed(std::string& out, std::uint64_t value, std::size_t bytes) {
  for (std::size_t byte = 0; byte < bytes; ++byte) {
    out.push_back(static_cast<char>(value >> (8 * byte)));
  }
}

void putNumber(std::string& out, std::uint64_t value) {
  for (; value >= 0x80; value >>= 7) {
    out.push_back(static_cast<char>(value | 0x80));
  }
  out.push_back(static_cast<char>(value));
}

void putSigned(std::string& out, std::int64_t value) {
  const auto bits = static_cast<std::uint64_t>(value);
  putNumber(out, bits << 1 ^ (value < 0 ? ~std::uint64_t{0} : 0));
}

void putText(std::string& out, const std::string& text) {
  putNumber(out, text.size());
  out += text;
}

void putChunks(std::string& out, const unsigned char* block, std::size_t bytes,
               const std::vector<Run>& unwritten) {
  const auto packer = std::make_unique<Packer>(out);
  std::size_t at = 0;
  for (const Run& run : unwritten) {
    packer->pack(block, at, run.start);
    putChunk(out, kUnwritten, run.end - run.start);
    at = run.end;
  }
  packer->pack(block, at, bytes);
}

std::uint32_t checksum(const void* data, std::size_t bytes) {
  const auto* at = static_cast<const unsigned char*>(data);
  std::uint32_t sum = ~0U;
  for (const unsigned char* const end = at + bytes; at < end; ++at) {
    sum = (sum >> 8) ^ kCrcTable[(sum ^ *at) & 0xFF];
  }
  return ~sum;
}

std::uint64_t Reader::fail() {
  failed_ = true;
  at_ = end_;
  return 0;
}

std::uint64_t Reader::fixed(std::size_t bytes) {
  if (rest() < bytes) {
    return fail();
  }
  std::uint64_t value = 0;
  for (std::size_t byte = 0; byte < bytes; ++byte) {
    value |= std::uint64_t{static_cast<unsigned char>(*at_++)} << (8 * byte);
  }
  return value;
}

std::uint64_t Reader::number() {
  std::uint64_t value = 0;
  for (unsigned shift = 0; shift < 64 && at_ < end_; shift += 7) {
    const auto byte = static_cast<unsigned char>(*at_++);
    value |= std::uint64_t{byte & 0x7FU} << shift;
    if (byte < 0x80) {
      return value;
    }
  }
  return fail();
}

std::int64_t Reader::signedNumber() {
  const std::uint64_t bits = number();
  return static_cast<std::int64_t>(bits >> 1 ^ (~(bits & 1) + 1));
}

std::string Reader::text() {
  const std::uint64_t bytes = number();
  if (bytes > rest()) {
    fail();
    return {};
  }
  std::string text(at_, static_cast<std::size_t>(bytes));
  at_ += bytes;
  return text;
}

void Reader::chunks(unsigned char* block, std::size_t bytes) {
  for (std::size_t done = 0; done < bytes && !failed_;) {
    const std::uint64_t chunk = number();
    const std::uint64_t count = chunk >> 2;
    const std::uint64_t distance = (chunk & 3) == kCopy ? number() : 1;
    if (count == 0 || count > bytes - done || distance == 0 ||
        ((chunk & 3) == kCopy && distance > done) || ((chunk & 3) == kLiteral && count > rest())) {
      fail();
      return;
    }
    const auto size = static_cast<std::size_t>(count);
    if (block != nullptr && (chunk & 3) == kLiteral) {
      std::memcpy(block + done, at_, size);
    } else if (block != nullptr && (chunk & 3) == kZeros) {
      std::memset(block + done, 0, size);
    } else if (block != nullptr && (chunk & 3) == kCopy) {
      for (std::size_t byte = done; byte < done + size; ++byte) {
        block[byte] = block[byte - static_cast<std::size_t>(distance)];
      }
    }
    at_ += (chunk & 3) == kLiteral ? size : 0;
    done += size;
  }
}

}  // namespace recorder
