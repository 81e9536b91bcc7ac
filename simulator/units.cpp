// The list of registered units, and the network on which they are found.
#include "arraylib/units.h"

#include <algorithm>
#include <iterator>

#include "simulator/simulator.h"

using namespace quorvelsim;

namespace {

/// An array that answers on the network.
struct Station {
  const char* address;
  const char* serial;
  std::uint8_t deviceType;
  std::uint8_t controller;
};

constexpr Station kNetwork[] = {
    {"192.0.2.10", "85000101", 201, 0},
    {"192.0.2.11", "85000101", 201, 1},
    {"192.0.2.20", "85000202", 203, 0},
};
constexpr std::int32_t kPort = 2000;

const Station* findStation(const std::string& address) {
  const auto* const found =
      std::find_if(std::begin(kNetwork), std::end(kNetwork),
                   [&](const Station& station) { return address == station.address; });
  return found == std::end(kNetwork) ? nullptr : found;
}

/// What the network tells of a unit fills what its registration leaves empty.
QVUnitParam completed(const QVUnitParam& given) {
  QVUnitParam param = given;
  const Station* const station = findStation(textOf(param.ctl0));
  if (station != nullptr && textOf(param.serial).empty()) {
    setText(param.serial, station->serial);
    param.device_type = station->deviceType;
  }
  return param;
}

int addUnit(const QVUnitParam* param) {
  const std::string name = textOf(param->unit_name);
  if (name.empty()) {
    return kInvalidName;
  }
  if (findUnit(name) != nullptr) {
    return kUnitExists;
  }
  Unit unit;
  unit.param = completed(*param);
  Account account{};
  setText(account.user_id, kFirstUser);
  setText(account.passwd, kFirstPassword);
  account.role = 1;
  account.account_enable = 1;
  unit.accounts[kFirstUser] = account;
  state().units[name] = unit;
  return 0;
}

int addUnitByAddress(const QVUnitParam* param) {
  return findStation(textOf(param->ctl0)) == nullptr ? kNothingFound : addUnit(param);
}

int changeUnit(const LongUnitName* unit, const QVUnitParam* param) {
  const std::string name = textOf(*unit);
  const std::string newName = textOf(param->unit_name);
  Unit* const known = findUnit(name);
  if (known == nullptr) {
    return kUnknownUnit;
  }
  if (newName.empty()) {
    return kInvalidName;
  }
  if (newName != name && findUnit(newName) != nullptr) {
    return kUnitExists;
  }
  known->param = completed(*param);
  auto node = state().units.extract(name);
  node.key() = newName;
  state().units.insert(std::move(node));
  return 0;
}

int changeUnitByAddress(const LongUnitName* unit, const QVUnitParam* param) {
  return findStation(textOf(param->ctl0)) == nullptr ? kNothingFound : changeUnit(unit, param);
}

int deleteUnit(const UnitName* unit) {
  state().units.erase(textOf(*unit));
  return 0;
}

int getUnitParam(const UnitName* unit, QVUnitParam* param) {
  *param = findUnit(textOf(*unit))->param;
  return 0;
}

/// The registered units in the order of their names.
std::vector<const QVUnitParam*> registered() {
  std::vector<const QVUnitParam*> params;
  for (const auto& [name, unit] : state().units) {
    if (!name.empty()) {
      params.push_back(&unit.param);
    }
  }
  return params;
}

int getUnitCount(std::int32_t* count) {
  *count = static_cast<std::int32_t>(registered().size());
  return 0;
}

int getUnitParamTable(std::int32_t count, QVUnitParam* table) {
  std::int32_t index = 0;
  for (const QVUnitParam* const param : registered()) {
    if (index < count) {
      table[index++] = *param;
    }
  }
  return 0;
}

int discover(const DiscoverUnitRequest* request, DiscoverUnit* found) {
  const Station* const station = findStation(textOf(request->ip_dev));
  if (station == nullptr) {
    return kNothingFound;
  }
  *found = {};
  found->connect_type = request->connect_type;
  setText(found->ip_dev, station->address);
  found->device_type = station->deviceType;
  found->ctlno = station->controller;
  setText(found->serial, station->serial);
  found->communication_port = kPort;
  return 0;
}

int addAdditionalUnit(const UnitName* unit, const QVSessionInfo*, const AdditionalUnitRequest*) {
  auto& additional = findUnit(textOf(*unit))->part<AdditionalUnitInformation>();
  ++additional.add_unit_num;
  ++additional.connect_unit_num;
  return 0;
}

int getAdditionalUnits(const UnitName* unit, const QVSessionInfo*,
                       AdditionalUnitInformation* information) {
  *information = findUnit(textOf(*unit))->part<AdditionalUnitInformation>();
  return 0;
}

}  // namespace

SIMULATE(1, QV_UnitAdd, addUnit)
SIMULATE(1, QV_UnitAddByIP, addUnitByAddress)
SIMULATE(2, QV_UnitChange, changeUnit)
SIMULATE(2, QV_UnitChangeByIP, changeUnitByAddress)
SIMULATE(1, QV_UnitDelete, deleteUnit)
SIMULATE(2, QV_GetUnitParam, getUnitParam)
SIMULATE(1, QV_GetUnitCount, getUnitCount)
SIMULATE(2, QV_DiscoverUnitInformation, discover)
SIMULATE(2, QV_DiscoverUnitInformationEx, discover)
SIMULATE(3, QV_AddAdditionalUnit, addAdditionalUnit)
SIMULATE(3, QV_GetAdditionalUnitInformation, getAdditionalUnits)

// Written out, because only here the caller's count says how large the output is.
int QV_GetUnitParamTable(std::int32_t count, QVUnitParam* table) {
  const std::size_t bytes = count < 0 ? 0 : static_cast<std::size_t>(count) * sizeof *table;
  const std::array<Value, 2> values{describe(count), Value{Value::Role::kOutput, table, bytes}};
  return run("QV_GetUnitParamTable", values, [=] { return getUnitParamTable(count, table); });
}
