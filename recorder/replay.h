#pragma once

#include <cstdint>
#include <fstream>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "recorder/format.h"
#include "recorder/function.h"

namespace recorder {

/// A recording that answers calls.
class Replay {
 public:
  /// Opens a recording. What is wrong with it is said on standard error; the calls before that
  /// answer.
  explicit Replay(const std::string& path);

  /// Returns the next recorded result of a call with the same arguments, or the last one again, and
  /// fills its outputs; `kNotRecorded` where there is none.
  int call(const Function& function, void* const* values);

 private:
  struct Entry {
    std::uint64_t number;
    std::streamoff offset;
    std::size_t bytes;
  };
  struct Place {
    std::size_t parameter;
    std::size_t offset;
    bool isElement;
  };
  struct Arguments {
    std::vector<std::string> plain;
    std::vector<std::string> secrets;
    std::vector<Place> places;  // of the plain ones
  };
  struct Candidate {
    Entry entry;
    Arguments arguments;
    bool isUsed = false;
  };
  struct Calls {
    std::vector<Entry> entries;
    /// The entries, once the function was called: those that fit its declaration.
    std::vector<Candidate> candidates;
    bool isPrepared = false;
    std::map<std::vector<std::string>, std::vector<std::size_t>> byArguments;
  };

  void readEntries();
  std::string bodyOf(const Entry& entry);
  void prepare(const Function& function, Calls& calls);
  static void add(Arguments& arguments, const Function& function, std::size_t parameter,
                  const void* value, std::size_t bytes);
  static Arguments argumentsOf(const Function& function, void* const* values);
  /// In how many plain arguments two calls differ.
  static std::size_t differing(const Arguments& live, const Arguments& recorded);
  /// Whether nothing differs but elements of arrays: a caller that sets fewer hands over what lay
  /// in memory.
  static bool agree(const Arguments& live, const Arguments& recorded);
  Candidate* choose(Calls& calls, const Arguments& arguments);
  bool fits(const std::vector<std::string>& live, const std::vector<std::string>& recorded) const;
  void bind(const std::vector<std::string>& live, const std::vector<std::string>& recorded);
  bool fill(const Function& function, const Calls& calls, const Entry& entry, void* const* values,
            int& result);
  static std::string difference(const Arguments& live, const Candidate& recorded);
  static std::string nearest(const Calls& calls, const Arguments& arguments);

  std::ifstream file_;
  std::string path_;
  std::mutex mutex_;
  std::map<std::string, Calls> calls_;
  /// The tokens of the caller's own secrets, and the other way round.
  std::map<std::string, std::string> tokens_;
  std::map<std::string, std::string> values_;
};

}  // namespace recorder
