#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "arraylib/accounts.h"
#include "arraylib/units.h"
#include "simulator/records.h"

// What the simulator keeps in memory between the calls.
namespace quorvelsim {

/// The account that every unit begins with.
inline constexpr char kFirstUser[] = "admin";
inline constexpr char kFirstPassword[] = "quorvel";

/// Its address is the key of the type in `Unit::parts`.
template <class Part>
inline constexpr char kKeyOf = 0;

/// An object of any type.
struct Held {
  Held() = default;
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  ~Held() {
    if (destroy != nullptr) {
      destroy(object);
    }
  }

  void* object = nullptr;
  void (*destroy)(void*) = nullptr;
};

struct Unit {
  QVUnitParam param{};
  std::map<std::string, Account> accounts;
  /// The user of each session, by its identifier.
  std::map<std::string, std::string> sessions;
  std::string firmware = kFirmware;
  std::string enclosureFirmware = kEnclosureFirmware;
  /// The records that Set functions keep, by the name behind `QV_Set` and the ints of the call.
  std::map<std::string, std::vector<std::byte>> kept;
  /// The state of the subsystems, one object of each type.
  std::map<const void*, Held> parts;

  /// The unit's `Part`, which is made on first use.
  template <class Part>
  Part& part() {
    Held& held = parts[&kKeyOf<Part>];
    if (held.object == nullptr) {
      held.object = new Part();
      held.destroy = [](void* object) { delete static_cast<Part*>(object); };
    }
    return *static_cast<Part*>(held.object);
  }
};

struct State {
  /// The registered units by name.
  std::map<std::string, Unit> units;
  /// What belongs to no unit, but to the host on which the library runs.
  Unit host;
  std::int32_t sessionsOpened = 0;
};

/// What the running call, which holds the lock, works on.
State& state();

/// The registered unit of that name, or null.
Unit* findUnit(const std::string& name);

/// The unit that the running call names, which is registered.
inline Unit& unitOf(const UnitName* name) { return *findUnit(textOf(*name)); }

template <class Part>
Part& partOf(const UnitName* name) {
  return unitOf(name).part<Part>();
}

/// The identifier of a session as the key of its unit's sessions.
std::string identifierOf(const QVSessionInfo& session);

}  // namespace quorvelsim
