#include "recorder/replay.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "recorder/library.h"
#include "recorder/secrets.h"

namespace recorder {

namespace {

/// No parameter of the library is larger.
constexpr std::uint64_t kMostBytes = 128 << 20;

/// A call's head.
struct Head {
  std::uint64_t number;
  int result;
  std::string function;
  std::uint64_t parameters;
};

Head readHead(Reader& reader) {
  Head head{};
  head.number = reader.number();
  for (int skipped = 0; skipped < 3; ++skipped) {
    reader.number();
  }
  head.result = static_cast<int>(reader.signedNumber());
  head.function = reader.text();
  head.parameters = reader.number();
  return head;
}

/// A parameter's head; its chunks follow where it is not the same as in an earlier call.
struct Recorded {
  Role role;
  std::int64_t value;
  std::uint64_t bytes;
  std::uint64_t sameAs;

  [[nodiscard]] bool hasBlock() const { return role == Role::kInput || role == Role::kOutput; }
};

Recorded readParameter(Reader& reader) {
  Recorded recorded{static_cast<Role>(reader.fixed(1)), 0, 0, 0};
  if (recorded.role == Role::kNumber) {
    recorded.value = reader.signedNumber();
  } else if (recorded.hasBlock()) {
    recorded.bytes = reader.number();
    if (recorded.role == Role::kOutput) {
      reader.number();
    }
    recorded.sameAs = reader.number();
  }
  return recorded;
}

std::string shown(const std::string& value) {
  constexpr std::size_t kMost = 40;
  std::string text;
  for (const char letter : value.substr(0, kMost)) {
    char hex[8];
    static_cast<void>(
        std::snprintf(hex, sizeof hex, "\\x%02x", static_cast<unsigned char>(letter)));
    text += letter >= ' ' && letter <= '~' ? std::string(1, letter) : hex;
  }
  return '"' + text + '"';
}

}  // namespace

Replay::Replay(const std::string& path) : file_(path, std::ios::binary), path_(path) {
  if (!file_) {
    complain(path + " cannot be read");
    return;
  }
  readEntries();
}

void Replay::readEntries() {
  file_.seekg(0, std::ios::end);
  const auto size = static_cast<std::uint64_t>(file_.tellg());
  file_.seekg(0);
  std::string bytes(kHeaderBytes, '\0');
  file_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  Reader header(bytes.data() + sizeof kMagic - 1, bytes.size() - (sizeof kMagic - 1));
  if (!file_ || bytes.compare(0, sizeof kMagic - 1, kMagic) != 0) {
    complain(path_ + " is no recording");
    return;
  }
  const std::uint64_t version = header.fixed(4);
  if (version != kVersion) {
    complain(path_ + " has the version " + std::to_string(version));
    return;
  }
  std::uint64_t at = kHeaderBytes;
  const auto stop = [&](const char* why) {
    complain(path_ + " " + why + " at byte " + std::to_string(at));
    file_.clear();
  };
  while (at < size) {
    std::string entry(kEntryBytes, '\0');
    file_.read(entry.data(), kEntryBytes);
    Reader head(entry.data(), entry.size());
    const std::uint64_t length = head.fixed(4);
    const std::uint64_t sum = head.fixed(4);
    if (!file_ || length > size - at - kEntryBytes) {
      stop("ends inside an entry");
      return;
    }
    std::string body(static_cast<std::size_t>(length), '\0');
    file_.read(body.data(), static_cast<std::streamsize>(length));
    Reader reader(body.data(), body.size());
    const Head call = readHead(reader);
    if (!file_ || checksum(body.data(), body.size()) != sum || reader.failed()) {
      stop("is damaged");
      return;
    }
    calls_[call.function].entries.push_back(
        {call.number, static_cast<std::streamoff>(at + kEntryBytes), body.size()});
    at += kEntryBytes + length;
  }
}

std::string Replay::bodyOf(const Entry& entry) {
  std::string body(entry.bytes, '\0');
  file_.clear();
  file_.seekg(entry.offset);
  file_.read(body.data(), static_cast<std::streamsize>(body.size()));
  return body;
}

void Replay::add(Arguments& arguments, const Function& function, std::size_t parameter,
                 const void* value, std::size_t bytes) {
  const Parameter& known = function.parameters[parameter];
  if (!known.isText) {
    arguments.plain.push_back(std::to_string(bytes) + " bytes");
    arguments.places.push_back({parameter, 0, false});
  }
  for (const Range& range : plainOf(known, bytes)) {
    arguments.plain.push_back(valueOf(value, range));
    arguments.places.push_back({parameter, range.offset, range.isElement});
  }
  for (const Range& range : secretsOf(known, bytes)) {
    arguments.secrets.push_back(valueOf(value, range));
  }
}

Replay::Arguments Replay::argumentsOf(const Function& function, void* const* values) {
  Arguments arguments;
  for (std::size_t index = 0; index < function.parameters.size(); ++index) {
    const Role role = function.parameters[index].role;
    if (role == Role::kNumber) {
      arguments.plain.push_back(std::to_string(*static_cast<const std::int32_t*>(values[index])));
      arguments.places.push_back({index, 0, false});
    } else if (values[index] == nullptr) {
      arguments.plain.emplace_back("null");
      arguments.places.push_back({index, 0, false});
    } else if (role == Role::kInput) {
      add(arguments, function, index, values[index], function.bytesOf(index, values));
    }
  }
  return arguments;
}

void Replay::prepare(const Function& function, Calls& calls) {
  // The chunks that each parameter had last, and the call that has them.
  std::vector<std::pair<std::uint64_t, std::vector<unsigned char>>> last(
      function.parameters.size());
  for (const Entry& entry : calls.entries) {
    const std::string body = bodyOf(entry);
    Reader reader(body.data(), body.size());
    bool isWhole = readHead(reader).parameters == function.parameters.size();
    Candidate candidate{entry, {}};
    for (std::size_t index = 0; index < function.parameters.size() && isWhole; ++index) {
      const Recorded recorded = readParameter(reader);
      const Role role = function.parameters[index].role;
      isWhole = !reader.failed() && recorded.bytes <= kMostBytes &&
                (recorded.role == role || (recorded.role == Role::kNull && role != Role::kNumber));
      if (!isWhole) {
        break;
      }
      if (!recorded.hasBlock()) {
        candidate.arguments.plain.push_back(
            recorded.role == Role::kNull ? "null" : std::to_string(recorded.value));
        candidate.arguments.places.push_back({index, 0, false});
        continue;
      }
      const auto bytes = static_cast<std::size_t>(recorded.bytes);
      if (role == Role::kOutput) {
        if (recorded.sameAs == 0) {
          reader.chunks(nullptr, bytes);
        }
        continue;
      }
      auto& [number, block] = last[index];
      if (recorded.sameAs == 0) {
        number = entry.number;
        block.assign(bytes, 0);
        reader.chunks(block.data(), bytes);
      }
      const std::size_t wanted = function.parameters[index].bytes;
      isWhole = !reader.failed() && (wanted == 0 || bytes == wanted) && block.size() == bytes &&
                (recorded.sameAs == 0 || recorded.sameAs == number);
      if (isWhole) {
        add(candidate.arguments, function, index, block.data(), bytes);
      }
    }
    if (isWhole && !reader.failed()) {
      calls.byArguments[candidate.arguments.plain].push_back(calls.candidates.size());
      calls.candidates.push_back(std::move(candidate));
    } else {
      complain("call " + std::to_string(entry.number) + " is not one of " + function.name +
               " as this library declares it");
    }
  }
}

bool Replay::fits(const std::vector<std::string>& live,
                  const std::vector<std::string>& recorded) const {
  return std::equal(
      live.begin(), live.end(), recorded.begin(), recorded.end(),
      [this](const std::string& own, const std::string& known) {
        if (own == known || own.empty() || known.empty() || isToken(own) || !isToken(known)) {
          return own == known;
        }
        const auto token = tokens_.find(own);
        return token != tokens_.end() ? token->second == known : !values_.contains(known);
      });
}

void Replay::bind(const std::vector<std::string>& live, const std::vector<std::string>& recorded) {
  for (std::size_t index = 0; index < live.size(); ++index) {
    if (!isToken(live[index]) && isToken(recorded[index])) {
      tokens_.emplace(live[index], recorded[index]);
      values_.emplace(recorded[index], live[index]);
    }
  }
}

std::size_t Replay::differing(const Arguments& live, const Arguments& recorded) {
  const std::size_t both = std::min(live.plain.size(), recorded.plain.size());
  std::size_t count = std::max(live.plain.size(), recorded.plain.size()) - both;
  for (std::size_t index = 0; index < both; ++index) {
    count += live.plain[index] != recorded.plain[index] ? 1 : 0;
  }
  return count;
}

bool Replay::agree(const Arguments& live, const Arguments& recorded) {
  if (live.plain.size() != recorded.plain.size()) {
    return false;
  }
  for (std::size_t index = 0; index < live.plain.size(); ++index) {
    if (!live.places[index].isElement && live.plain[index] != recorded.plain[index]) {
      return false;
    }
  }
  return true;
}

Replay::Candidate* Replay::choose(Calls& calls, const Arguments& arguments) {
  Candidate* last = nullptr;
  for (const std::size_t index : calls.byArguments[arguments.plain]) {
    Candidate& candidate = calls.candidates[index];
    if (fits(arguments.secrets, candidate.arguments.secrets)) {
      last = &candidate;
      if (!candidate.isUsed) {
        return last;
      }
    }
  }
  if (last != nullptr) {
    return last;
  }
  const auto rank = [&](const Candidate& candidate) {
    return std::make_pair(candidate.isUsed, differing(arguments, candidate.arguments));
  };
  for (Candidate& candidate : calls.candidates) {
    if (agree(arguments, candidate.arguments) &&
        fits(arguments.secrets, candidate.arguments.secrets) &&
        (last == nullptr || rank(candidate) < rank(*last))) {
      last = &candidate;
    }
  }
  return last;
}

int Replay::call(const Function& function, void* const* values) {
  const std::lock_guard lock(mutex_);
  Calls& calls = calls_[function.name];
  if (!calls.isPrepared) {
    prepare(function, calls);
    calls.isPrepared = true;
  }
  const Arguments arguments = argumentsOf(function, values);
  Candidate* const chosen = choose(calls, arguments);
  int result = kNotRecorded;
  if (chosen == nullptr) {
    complain(std::string(function.name) + " was not recorded" + nearest(calls, arguments));
  } else {
    if (chosen->arguments.plain != arguments.plain) {
      complain(std::string(function.name) + " is answered by call " +
               difference(arguments, *chosen));
    }
    chosen->isUsed = true;
    bind(arguments.secrets, chosen->arguments.secrets);
    if (!fill(function, calls, chosen->entry, values, result)) {
      complain("call " + std::to_string(chosen->entry.number) + " of " + function.name +
               " is damaged");
      result = kNotRecorded;
    }
  }
  return result;
}

bool Replay::fill(const Function& function, const Calls& calls, const Entry& entry,
                  void* const* values, int& result) {
  const std::string body = bodyOf(entry);
  Reader reader(body.data(), body.size());
  result = readHead(reader).result;
  for (std::size_t index = 0; index < function.parameters.size(); ++index) {
    const Recorded recorded = readParameter(reader);
    if (!recorded.hasBlock()) {
      continue;
    }
    const auto bytes = static_cast<std::size_t>(recorded.bytes);
    const bool isOutput = recorded.role == Role::kOutput;
    if (isOutput && (values[index] == nullptr || bytes != function.bytesOf(index, values))) {
      return false;
    }
    auto* const output = isOutput ? static_cast<unsigned char*>(values[index]) : nullptr;
    if (recorded.sameAs == 0) {
      reader.chunks(output, bytes);
      continue;
    }
    if (!isOutput) {
      continue;
    }
    const auto earlier =
        std::find_if(calls.entries.begin(), calls.entries.end(),
                     [&](const Entry& other) { return other.number == recorded.sameAs; });
    if (earlier == calls.entries.end()) {
      return false;
    }
    const std::string other = bodyOf(*earlier);
    Reader before(other.data(), other.size());
    readHead(before);
    for (std::size_t skipped = 0;; ++skipped) {
      const Recorded parameter = readParameter(before);
      if (before.failed() || (skipped == index && parameter.bytes != recorded.bytes)) {
        return false;
      }
      if (parameter.hasBlock() && parameter.sameAs == 0) {
        before.chunks(skipped == index ? output : nullptr,
                      static_cast<std::size_t>(parameter.bytes));
      }
      if (skipped == index) {
        break;
      }
    }
    if (before.failed()) {
      return false;
    }
  }
  return !reader.failed();
}

std::string Replay::difference(const Arguments& live, const Candidate& recorded) {
  const auto& plain = recorded.arguments.plain;
  std::string text = std::to_string(recorded.entry.number);
  const auto [own, other] =
      std::mismatch(live.plain.begin(), live.plain.end(), plain.begin(), plain.end());
  if (own == live.plain.end() || other == plain.end()) {
    return text + ", which has another password or session";
  }
  const Place& place = live.places[static_cast<std::size_t>(own - live.plain.begin())];
  return text + ", where argument " + std::to_string(place.parameter + 1) + " has at byte " +
         std::to_string(place.offset) + " " + shown(*other) + " instead of " + shown(*own);
}

std::string Replay::nearest(const Calls& calls, const Arguments& arguments) {
  const auto found = std::min_element(calls.candidates.begin(), calls.candidates.end(),
                                      [&](const Candidate& left, const Candidate& right) {
                                        return differing(arguments, left.arguments) <
                                               differing(arguments, right.arguments);
                                      });
  return found == calls.candidates.end()
             ? ""
             : " with these arguments; the nearest is call " + difference(arguments, *found);
}

}  // namespace recorder
