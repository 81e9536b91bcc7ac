#include "simulator/simulator.h"

#include <algorithm>
#include <cstring>
#include <mutex>

#include "simulator/control.h"

namespace quorvelsim {
namespace {

using Role = Value::Role;

constexpr char kAllFunctions[] = "*";

/// What a test asked of one function, and what the function was last given.
struct Control {
  int forcedResult = 0;
  int forcedTimes = 0;
  Bytes prepared;
  int calls = 0;
  std::vector<Bytes> lastInputs;
};

struct Simulator {
  // A function may be answered by others.
  std::recursive_mutex lock;
  State state;
  std::map<std::string, Control> controls;
  void (*observer)(const char*) = nullptr;
};

Simulator& simulator() {
  static Simulator instance;
  return instance;
}

Bytes bytesOf(const Value& value) {
  if (value.data == nullptr) {
    return {};
  }
  const auto* const first = static_cast<const std::byte*>(value.data);
  return {first, first + value.bytes};
}

std::string nameOf(const Value& value) {
  const auto* const text = static_cast<const char*>(value.data);
  return {text, std::find(text, text + value.bytes, '\0')};
}

void fillOutputs(std::span<const Value> values, const Bytes& source) {
  std::size_t used = 0;
  for (const Value& value : values) {
    if (value.role != Role::kOutput || value.data == nullptr) {
      continue;
    }
    const std::size_t given = std::min(value.bytes, source.size() - used);
    std::memset(value.data, 0, value.bytes);
    std::copy_n(source.data() + used, given, static_cast<std::byte*>(value.data));
    used += given;
  }
}

/// Refuses a unit or a session that is not known. Returns the unit that the call names, if any.
int admit(std::span<const Value> values, Unit*& unit) {
  for (const Value& value : values) {
    if (value.role == Role::kUnitName) {
      unit = findUnit(nameOf(value));
      if (unit == nullptr) {
        return kUnknownUnit;
      }
    } else if (value.role == Role::kSession && unit != nullptr &&
               !unit->sessions.contains(
                   identifierOf(*static_cast<const QVSessionInfo*>(value.data)))) {
      return kUnknownSession;
    }
  }
  return 0;
}

/// A Set keeps its records, the Get of the same operation and ints returns them, or zeros.
int keep(const std::string& function, std::span<const Value> values, Unit* unit) {
  std::string key = function.substr(std::min<std::size_t>(function.size(), 6));
  Bytes given;
  for (const Value& value : values) {
    if (value.role == Role::kNumber) {
      key += ' ' + std::to_string(*static_cast<const std::int32_t*>(value.data));
    } else if (value.role == Role::kInput) {
      const Bytes record = bytesOf(value);
      given.insert(given.end(), record.begin(), record.end());
    }
  }
  // What belongs to no unit is kept with the unit of the empty name, which cannot be registered.
  static const std::string kNoUnit;
  Unit& keeper = unit != nullptr ? *unit : simulator().state.units[kNoUnit];
  if (function.starts_with("QV_Set")) {
    keeper.kept[key] = given;
  }
  fillOutputs(values, function.starts_with("QV_Get") ? keeper.kept[key] : Bytes{});
  return 0;
}

}  // namespace

State& state() { return simulator().state; }

Unit* findUnit(const std::string& name) {
  const auto found = state().units.find(name);
  return name.empty() || found == state().units.end() ? nullptr : &found->second;
}

std::string identifierOf(const QVSessionInfo& session) {
  return {reinterpret_cast<const char*>(session.session_id), sizeof session.session_id};
}

int run(const std::string& function, std::span<const Value> values,
        const std::function<int()>& handler) {
  Simulator& self = simulator();
  const std::lock_guard guard(self.lock);
  Control& control = self.controls[function];
  ++control.calls;
  control.lastInputs.clear();
  for (const Value& value : values) {
    control.lastInputs.push_back(value.role == Role::kOutput ? Bytes{} : bytesOf(value));
  }
  if (self.observer != nullptr) {
    self.observer(function.c_str());
  }
  // What a function is not told itself it takes from what all are told.
  Control& all = self.controls[kAllFunctions];
  ++all.calls;
  Control& forcing = control.forcedTimes > 0 ? control : all;
  const bool forced = forcing.forcedTimes > 0;
  if (forced) {
    --forcing.forcedTimes;
    if (forcing.forcedResult != 0) {
      return forcing.forcedResult;
    }
  }
  const Bytes& prepared = control.prepared.empty() ? all.prepared : control.prepared;
  if (forced || !prepared.empty()) {
    fillOutputs(values, prepared);
    return 0;
  }
  Unit* unit = nullptr;
  const int refused = admit(values, unit);
  if (refused != 0) {
    return refused;
  }
  return handler ? handler() : keep(function, values, unit);
}

}  // namespace quorvelsim

using quorvelsim::simulator;

void quorvelSimReset() {
  const std::lock_guard guard(simulator().lock);
  simulator().state = {};
  simulator().controls.clear();
  simulator().observer = nullptr;
}

void quorvelSimForceResult(const char* function, int result, int times) {
  const std::lock_guard guard(simulator().lock);
  auto& control = simulator().controls[function];
  control.forcedResult = result;
  control.forcedTimes = times;
}

void quorvelSimPrepareOutput(const char* function, const void* bytes, size_t size) {
  const std::lock_guard guard(simulator().lock);
  const auto* const first = static_cast<const std::byte*>(bytes);
  simulator().controls[function].prepared.assign(first, first + size);
}

int quorvelSimCallCount(const char* function) {
  const std::lock_guard guard(simulator().lock);
  return simulator().controls[function].calls;
}

size_t quorvelSimLastInput(const char* function, int index, void* buffer, size_t size) {
  const std::lock_guard guard(simulator().lock);
  const auto& inputs = simulator().controls[function].lastInputs;
  if (index < 0 || static_cast<std::size_t>(index) >= inputs.size()) {
    return 0;
  }
  const auto& input = inputs[static_cast<std::size_t>(index)];
  std::copy_n(input.data(), std::min(size, input.size()), static_cast<std::byte*>(buffer));
  return input.size();
}

void quorvelSimObserve(void (*observer)(const char* function)) {
  const std::lock_guard guard(simulator().lock);
  simulator().observer = observer;
}
