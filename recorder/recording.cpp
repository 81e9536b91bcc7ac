#include "recorder/recording.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <memory>
#include <new>

#include "recorder/library.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace recorder {

namespace {

using Clock = std::chrono::steady_clock;

/// What may lie behind an output without harm.
constexpr std::size_t kGuard = 1 << 16;
/// A shorter run of bytes that are as before may be what the library wrote.
constexpr std::size_t kShortestRun = 4;

#ifdef _WIN32
constexpr int kMode = O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_BINARY;
#else
constexpr int kMode = O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC;
#endif

/// What an output holds before the call: bytes that a library hardly writes, no two places alike.
constexpr std::size_t kPatternBytes = 1 << 16;
const std::array<unsigned char, kPatternBytes>& pattern() {
  static const auto bytes = [] {
    std::array<unsigned char, kPatternBytes> made{};
    std::uint32_t state = 1;
    for (unsigned char& byte : made) {
      state = state * 1664525 + 1013904223;
      byte = static_cast<unsigned char>(0x80 | state >> 24);
    }
    return made;
  }();
  return bytes;
}

unsigned char patternAt(std::size_t at) { return pattern()[at % kPatternBytes]; }

void fillWithPattern(unsigned char* block, std::size_t bytes) {
  for (std::size_t at = 0; at < bytes; at += kPatternBytes) {
    std::memcpy(block + at, pattern().data(), std::min(kPatternBytes, bytes - at));
  }
}

/// The runs of bytes that are as before. Every fourth byte is looked at, so that no run of four is
/// missed.
std::vector<Run> unwrittenRuns(const unsigned char* block, std::size_t bytes) {
  std::vector<Run> runs;
  for (std::size_t at = 0; at < bytes; at += kShortestRun) {
    if (block[at] != patternAt(at)) {
      continue;
    }
    const std::size_t least = runs.empty() ? 0 : runs.back().end;
    std::size_t start = at;
    while (start > least && block[start - 1] == patternAt(start - 1)) {
      --start;
    }
    std::size_t end = at;
    while (end < bytes && block[end] == patternAt(end)) {
      ++end;
    }
    if (end - start >= kShortestRun) {
      runs.push_back({start, end});
      at = end - end % kShortestRun;
    }
  }
  return runs;
}

std::uint64_t threadNumber() {
  static std::atomic<std::uint64_t> threads = 0;
  thread_local const std::uint64_t own = ++threads;
  return own;
}

std::uint64_t count(Clock::duration time, Clock::duration unit) {
  return static_cast<std::uint64_t>(time / unit);
}

}  // namespace

/// The bytes of a parameter.
struct Recording::Block {
  std::size_t bytes = 0;
  std::unique_ptr<unsigned char[]> own{};
  std::vector<Run> unwritten{};
  /// Bytes that were written behind it.
  std::size_t behind = 0;

  /// Looks at what the library wrote, and gives it to the caller. What it did not write stays with
  /// the caller as it was.
  void handBack(unsigned char* callers) {
    const unsigned char* const guard = own.get() + bytes;
    behind = kGuard;
    while (behind > 0 && guard[behind - 1] == patternAt(bytes + behind - 1)) {
      --behind;
    }
    unwritten = unwrittenRuns(own.get(), bytes);
    std::size_t at = 0;
    for (const Run& run : unwritten) {
      std::memcpy(callers + at, own.get() + at, run.start - at);
      at = run.end;
    }
    std::memcpy(callers + at, own.get() + at, bytes - at);
  }

  [[nodiscard]] bool isWritten(const Range& range) const {
    return std::none_of(unwritten.begin(), unwritten.end(), [&](const Run& run) {
      return run.start <= range.offset && range.offset + range.bytes <= run.end;
    });
  }
};

Recording::Recording(const std::string& path)
    : keepsSecrets_(setting("QUORVEL_RECORD_SECRETS") == "1"), start_(Clock::now()) {
  constexpr int kReadable = 0600;
  std::string name = path;
  for (int next = 2; file_ < 0; name = path + '-' + std::to_string(next++)) {
    file_ = ::open(name.c_str(), kMode, kReadable);
    if (file_ < 0 && errno != EEXIST) {
      complain("nothing is recorded, " + name + " cannot be made: " + std::strerror(errno));
      return;
    }
    if (file_ >= 0 && name != path) {
      complain("recording into " + name);
      break;
    }
  }
  std::string header = kMagic;
  putFixed(header, kVersion, sizeof kVersion);
  putFixed(header, 8 * sizeof(void*), 4);
  putFixed(header,
           static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                          std::chrono::system_clock::now().time_since_epoch())
                                          .count()),
           8);
  write(header);
}

Recording::~Recording() { close(); }

void Recording::close() {
  const int file = file_.exchange(-1);
  if (file >= 0) {
    ::close(file);
  }
}

int Recording::call(const Function& function, void* real, void* const* values) {
  const std::size_t parameters = function.parameters.size();
  std::vector<Block> blocks;
  std::vector<void*> handed(values, values + parameters + 1);
  try {
    blocks = blocksOf(function, values);
  } catch (const std::bad_alloc&) {
    complain(std::string("no memory to record a call of ") + function.name);
    return function.invoke(real, values);
  }
  for (std::size_t index = 0; index < parameters; ++index) {
    if (blocks[index].own != nullptr && function.parameters[index].role == Role::kOutput) {
      handed[index] = blocks[index].own.get();
    }
  }

  std::uint64_t number = ++calls_;
  const Clock::time_point began = Clock::now();
  const int result = function.invoke(real, handed.data());
  const Clock::duration took = Clock::now() - began;

  std::string body;
  putNumber(body, number);
  putNumber(body, threadNumber());
  putNumber(body, count(began - start_, std::chrono::microseconds(1)));
  putNumber(body, count(took, std::chrono::nanoseconds(1)));
  putSigned(body, result);
  putText(body, function.name);
  putNumber(body, parameters);
  try {
    for (std::size_t index = 0; index < parameters; ++index) {
      if (handed[index] != values[index]) {
        blocks[index].handBack(static_cast<unsigned char*>(values[index]));
      }
    }
    const std::lock_guard lock(mutex_);
    for (std::size_t index = 0; index < parameters && isOpen(); ++index) {
      putBlock(body, function, index, blocks[index], number);
      if (function.parameters[index].role == Role::kNumber) {
        putSigned(body, *static_cast<const std::int32_t*>(values[index]));
      }
    }
    std::string entry;
    putFixed(entry, body.size(), 4);
    putFixed(entry, checksum(body.data(), body.size()), 4);
    entry += body;
    write(entry);
  } catch (const std::bad_alloc&) {
    complain(std::string("no memory to record a call of ") + function.name);
  }
  return result;
}

std::vector<Recording::Block> Recording::blocksOf(const Function& function, void* const* values) {
  std::vector<Block> blocks(function.parameters.size());
  for (std::size_t index = 0; index < blocks.size(); ++index) {
    const Role role = function.parameters[index].role;
    Block& block = blocks[index];
    if (role == Role::kNumber || values[index] == nullptr) {
      continue;
    }
    block.bytes = function.bytesOf(index, values);
    const std::size_t guard = role == Role::kOutput ? kGuard : 0;
    block.own.reset(new unsigned char[block.bytes + guard]);
    if (role == Role::kOutput) {
      fillWithPattern(block.own.get(), block.bytes + guard);
    } else {
      std::memcpy(block.own.get(), values[index], block.bytes);
    }
  }
  return blocks;
}

void Recording::putBlock(std::string& body, const Function& function, std::size_t index,
                         Block& block, std::uint64_t number) {
  const Parameter& parameter = function.parameters[index];
  const bool isNull = parameter.role != Role::kNumber && block.own == nullptr;
  body.push_back(static_cast<char>(isNull ? Role::kNull : parameter.role));
  if (block.own == nullptr) {
    return;
  }
  putNumber(body, block.bytes);
  if (parameter.role == Role::kOutput) {
    putNumber(body, block.behind);
  }
  if (!keepsSecrets_) {
    std::vector<Range> secrets = secretsOf(parameter, block.bytes);
    std::erase_if(secrets, [&](const Range& secret) { return !block.isWritten(secret); });
    tokens_.hide(block.own.get(), block.bytes, secrets);
  }
  std::string chunks;
  putChunks(chunks, block.own.get(), block.bytes, block.unwritten);
  Seen& seen = seen_[{function.name, index}];
  if (seen.chunks == chunks && !chunks.empty()) {
    putNumber(body, seen.number);
    return;
  }
  putNumber(body, 0);
  body += chunks;
  seen = {std::move(chunks), number};
}

void Recording::write(const std::string& bytes) {
  constexpr std::size_t kMostAtOnce = 1 << 30;
  for (std::size_t done = 0; done < bytes.size() && isOpen();) {
    const std::size_t rest = std::min(bytes.size() - done, kMostAtOnce);
    const auto written = ::write(file_, bytes.data() + done, static_cast<unsigned>(rest));
    if (written < 0 && errno == EINTR) {
      continue;
    }
    if (written <= 0) {
      complain(std::string("the recording ends here: ") + std::strerror(errno));
      close();
      return;
    }
    done += static_cast<std::size_t>(written);
  }
}

}  // namespace recorder
