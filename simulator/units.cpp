// The list of registered units, and the network on which they are found.
#include "arraylib/units.h"

#include <utility>

#include "simulator/simulate.h"

using namespace quorvelsim;

namespace {

/// An array that answers on the network, with the addresses of its controllers.
struct Station {
  const char* addresses[kControllers];
  const char* serial;
  std::uint8_t deviceType;
};

constexpr Station kNetwork[] = {
    {{"192.0.2.10", "192.0.2.11"}, "85000101", 201},
    {{"192.0.2.20", "192.0.2.21"}, "85000202", 203},
};

/// The station of an address, or null. Finds the controller that has the address.
const Station* findStation(const std::string& address, std::uint8_t* controller = nullptr) {
  for (const Station& station : kNetwork) {
    for (std::uint8_t index = 0; index < kControllers; ++index) {
      if (address == station.addresses[index]) {
        if (controller != nullptr) {
          *controller = index;
        }
        return &station;
      }
    }
  }
  return nullptr;
}

/// Completes a registration with what the network knows of the unit.
QVUnitParam completed(const QVUnitParam& given) {
  QVUnitParam param = given;
  const Station* const station = findStation(textOf(param.ctl0));
  if (station != nullptr && textOf(param.serial).empty()) {
    setText(param.serial, station->serial);
    param.device_type = station->deviceType;
  }
  if (station != nullptr && textOf(param.ctl1).empty()) {
    setText(param.ctl1, station->addresses[1]);
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
  Unit& unit = state().units[name];
  unit.param = completed(*param);
  Account& account = unit.accounts[kFirstUser];
  setText(account.user_id, kFirstUser);
  setText(account.passwd, kFirstPassword);
  account.role = 1;
  account.account_enable = 1;
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
  *param = unitOf(unit).param;
  return 0;
}

int getUnitCount(std::int32_t* count) {
  *count = static_cast<std::int32_t>(state().units.size());
  return 0;
}

/// Lists the units in the order of their names.
int getUnitParamTable(std::int32_t count, QVUnitParam* table) {
  std::int32_t index = 0;
  for (const auto& [name, unit] : state().units) {
    if (index < count) {
      table[index++] = unit.param;
    }
  }
  return 0;
}

int discover(const DiscoverUnitRequest* request, DiscoverUnit* found) {
  clear(found);
  const std::string address = textOf(request->ip_dev);
  const Station* const station = findStation(address, &found->ctlno);
  if (station == nullptr) {
    return kNothingFound;
  }
  found->connect_type = request->connect_type;
  setText(found->ip_dev, address);
  found->device_type = station->deviceType;
  setText(found->serial, station->serial);
  found->communication_port = kTcpPort;
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
SIMULATE(3, QV_AddAdditionalUnit)
SIMULATE(3, QV_GetAdditionalUnitInformation)
SIMULATE(2, QV_GetUnitParamTable, getUnitParamTable)
