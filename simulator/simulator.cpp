#include <algorithm>
#include <cstring>
#include <mutex>

#include "simulator/control.h"
#include "simulator/simulate.h"

namespace quorvelsim {
namespace {

using Bytes = std::vector<std::byte>;
using Role = Value::Role;

constexpr char kAllFunctions[] = "*";

/// A copy of an input, in memory that is kept: fresh memory for large records is slow.
struct Input {
  Bytes memory;
  std::size_t size = 0;

  void take(const Value& value) {
    size = value.data == nullptr ? 0 : value.bytes;
    memory.resize(std::max(memory.size(), size));
    if (size > 0) {
      std::memcpy(memory.data(), value.data, size);
    }
  }
};

/// What a test asks of one function, and the inputs of the last call.
struct Control {
  int forcedResult = 0;
  int forcedTimes = 0;
  Bytes prepared;
  int calls = 0;
  std::vector<Input> lastInputs;

  void forgetInputs() {
    for (Input& input : lastInputs) {
      input.size = 0;
    }
  }
};

struct Simulator {
  // The bundles call the functions that return their members.
  std::recursive_mutex lock;
  State state;
  std::map<std::string, Control> controls;
  void (*observer)(const char*) = nullptr;
};

Simulator& simulator() {
  static Simulator instance;
  return instance;
}

/// The arguments of the running call.
struct Arguments {
  const Value* first;
  std::size_t count;

  [[nodiscard]] const Value* begin() const { return first; }
  [[nodiscard]] const Value* end() const { return first + count; }
};

void append(Bytes& bytes, const Value& value) {
  if (value.data != nullptr) {
    const auto* const first = static_cast<const std::byte*>(value.data);
    bytes.insert(bytes.end(), first, first + value.bytes);
  }
}

/// Fills one output behind the other; where the bytes end, the outputs are zero.
void fillOutputs(const Arguments& arguments, const Bytes& source) {
  std::size_t used = 0;
  for (const Value& value : arguments) {
    if (value.role == Role::kOutput && value.data != nullptr) {
      const std::size_t given = std::min(value.bytes, source.size() - used);
      auto* const output = static_cast<std::byte*>(value.data);
      std::copy_n(source.data() + used, given, output);
      std::memset(output + given, 0, value.bytes - given);
      used += given;
    }
  }
}

/// Refuses an unknown unit or session. Finds the unit that the call names, if any.
int admit(const Arguments& arguments, Unit*& unit) {
  for (const Value& value : arguments) {
    if (value.role == Role::kUnitName) {
      unit = findUnit(textOf(*static_cast<const UnitName*>(value.data)));
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

/// A Set keeps its records. The Get with the same name and ints returns them, or zeros.
void keep(const std::string& function, const Arguments& arguments, Unit& keeper) {
  std::string key = function.substr(std::min<std::size_t>(function.size(), 6));
  Bytes given;
  for (const Value& value : arguments) {
    if (value.role == Role::kNumber) {
      key += ' ' + std::to_string(*static_cast<const std::int32_t*>(value.data));
    } else if (value.role == Role::kInput) {
      append(given, value);
    }
  }
  if (function.starts_with("QV_Set")) {
    keeper.kept[key] = given;
  }
  fillOutputs(arguments, function.starts_with("QV_Get") ? keeper.kept[key] : Bytes{});
}

/// Does what the control interface asks for this call, if anything.
bool isControlled(const Arguments& arguments, Control& control, Control& all, int& result) {
  // What is asked of all functions counts where nothing is asked of this one.
  Control& forcing = control.forcedTimes > 0 ? control : all;
  const bool forced = forcing.forcedTimes > 0;
  const Bytes& prepared = control.prepared.empty() ? all.prepared : control.prepared;
  if (forced) {
    --forcing.forcedTimes;
    result = forcing.forcedResult;
  }
  const bool controlled = forced || !prepared.empty();
  if (controlled && result == 0) {
    fillOutputs(arguments, prepared);
  }
  return controlled;
}

}  // namespace

State& state() { return simulator().state; }

Unit* findUnit(const std::string& name) {
  const auto found = state().units.find(name);
  return found == state().units.end() ? nullptr : &found->second;
}

std::string identifierOf(const QVSessionInfo& session) {
  return {reinterpret_cast<const char*>(session.session_id), sizeof session.session_id};
}

void multiplyLast(Value* values, std::size_t count, int countParameter) {
  if (countParameter >= 0) {
    const auto records = *static_cast<const std::int32_t*>(values[countParameter].data);
    values[count - 1].bytes *= static_cast<std::size_t>(std::max(records, 0));
  }
}

Call::Call(const char* function, const Value* values, std::size_t count, bool hasHandler) {
  Simulator& self = simulator();
  self.lock.lock();
  const Arguments arguments{values, count};
  Control& control = self.controls[function];
  Control& all = self.controls[kAllFunctions];
  ++control.calls;
  ++all.calls;
  control.forgetInputs();
  control.lastInputs.resize(count);
  for (std::size_t index = 0; index < count; ++index) {
    if (values[index].role != Role::kOutput) {
      control.lastInputs[index].take(values[index]);
    }
  }
  if (self.observer != nullptr) {
    self.observer(function);
  }
  if (isControlled(arguments, control, all, result_)) {
    return;
  }
  Unit* unit = nullptr;
  result_ = admit(arguments, unit);
  if (result_ != 0) {
    return;
  }
  if (hasHandler) {
    settled_ = false;
  } else {
    keep(function, arguments, unit != nullptr ? *unit : self.state.host);
  }
}

Call::~Call() { simulator().lock.unlock(); }

}  // namespace quorvelsim

using quorvelsim::Control;
using quorvelsim::simulator;

void quorvelSimReset() {
  const std::lock_guard guard(simulator().lock);
  simulator().state = {};
  for (auto& [function, control] : simulator().controls) {
    control.forgetInputs();
    Control fresh;
    fresh.lastInputs.swap(control.lastInputs);
    control = std::move(fresh);
  }
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
  if (const std::size_t copied = std::min(size, input.size); copied > 0) {
    std::memcpy(buffer, input.memory.data(), copied);
  }
  return input.size;
}

void quorvelSimObserve(void (*observer)(const char* function)) {
  const std::lock_guard guard(simulator().lock);
  simulator().observer = observer;
}
