#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "recorder/format.h"
#include "recorder/function.h"
#include "recorder/secrets.h"

namespace recorder {

/// A recording that is being written.
class Recording {
 public:
  /// Opens a new file; where `path` exists, the first of path-2, path-3, … that does not.
  explicit Recording(const std::string& path);
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  ~Recording();

  [[nodiscard]] bool isOpen() const { return file_ >= 0; }

  /// Calls the real function and writes the call down. Each output is handed over as a block of its
  /// own, with a guard behind it; the caller's gets what the library wrote.
  int call(const Function& function, void* real, void* const* values);

 private:
  struct Block;
  struct Seen {
    std::string chunks;
    std::uint64_t number;
  };

  static std::vector<Block> blocksOf(const Function& function, void* const* values);
  void putBlock(std::string& body, const Function& function, std::size_t index, Block& block,
                std::uint64_t number);
  void write(const std::string& bytes);
  void close();

  std::atomic<int> file_ = -1;
  bool keepsSecrets_;
  std::chrono::steady_clock::time_point start_;
  std::atomic<std::uint64_t> calls_ = 0;
  std::mutex mutex_;
  Tokens tokens_;
  /// The chunks that a parameter had last, and the call that has them.
  std::map<std::pair<std::string, std::size_t>, Seen> seen_;
};

}  // namespace recorder
