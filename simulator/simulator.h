#pragma once

#include <any>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <typeindex>
#include <vector>

#include "arraylib/accounts.h"
#include "arraylib/units.h"

// A stand-in for the closed library: the same functions on the same records, with state in memory.
//
// A function is one line in the source of its subsystem, with the number of its parameters:
//
//   SIMULATE(3, QV_SetAccountOption)              keeps what it is given for the matching Get
//   SIMULATE(3, QV_CreateAccount, createAccount)  does what `createAccount` does
//
// Before either, a unit name of 65 bytes must name a registered unit, and a session must be one of
// that unit's. All calls run under one lock.
namespace quorvelsim {

/// What the simulator refuses with. The codes are its own; the real library has others.
enum Code : int {
  kUnknownUnit = 20001,
  kUnitExists = 20002,
  kInvalidName = 20003,
  kNothingFound = 20004,
  kUnknownSession = 20101,
  kLoginRefused = 20102,
  kUnknownAccount = 20103,
  kAccountExists = 20104,
  kTooManyAccounts = 20105,
  kFileFailed = 20801,
};

/// The account that every unit begins with.
inline constexpr char kFirstUser[] = "admin";
inline constexpr char kFirstPassword[] = "quorvel";

using Bytes = std::vector<std::byte>;

struct Unit {
  QVUnitParam param{};
  std::map<std::string, Account> accounts;
  /// The user of each session, by its identifier.
  std::map<std::string, std::string> sessions;
  /// What Set functions were given, by operation and selecting ints.
  std::map<std::string, Bytes> kept;
  /// What a subsystem keeps of a unit, in a type of its own.
  std::map<std::type_index, std::any> parts;

  /// The unit's `Part`, as it was left, or a new one.
  template <class Part>
  Part& part() {
    std::any& held = parts[typeid(Part)];
    if (!held.has_value()) {
      held = Part{};
    }
    return std::any_cast<Part&>(held);
  }
};

struct State {
  std::map<std::string, Unit> units;
  std::int32_t sessionsOpened = 0;
};

/// What the running call works on; the lock is held.
State& state();

/// The registered unit of that name, or null.
Unit* findUnit(const std::string& name);

/// A text member up to its NUL, never past its width.
template <std::size_t N>
std::string textOf(const char (&text)[N]) {
  const std::string whole(text, N);
  return whole.substr(0, whole.find('\0'));
}

/// The identifier of a session as the key of its unit's sessions.
std::string identifierOf(const QVSessionInfo& session);

/// Fills a text member, cut to its width and terminated.
template <std::size_t N>
void setText(char (&member)[N], const std::string& text) {
  const std::size_t length = text.copy(member, N - 1);
  member[length] = '\0';
}

/// One argument of a call, so that the simulator can keep and fill it without knowing its type.
struct Value {
  enum class Role { kUnitName, kText, kSession, kInput, kNumber, kOutput };
  Role role;
  void* data;
  std::size_t bytes;
};

template <class Parameter>
Value describe(Parameter& parameter) {
  using Target = std::remove_pointer_t<Parameter>;
  if constexpr (std::is_same_v<Parameter, std::int32_t>) {
    return {Value::Role::kNumber, &parameter, sizeof parameter};
  } else {
    constexpr Value::Role kRole =
        std::is_same_v<Target, const UnitName>                          ? Value::Role::kUnitName
        : std::is_same_v<std::remove_all_extents_t<Target>, const char> ? Value::Role::kText
        : std::is_same_v<Target, const QVSessionInfo>                   ? Value::Role::kSession
        : std::is_const_v<std::remove_all_extents_t<Target>>            ? Value::Role::kInput
                                                                        : Value::Role::kOutput;
    return {kRole, const_cast<std::remove_const_t<Target>*>(parameter), sizeof(Target)};
  }
}

/// Runs one call of `function`: what the control interface asks for, else `handler`, else the
/// keeping of records.
int run(const std::string& function, std::span<const Value> values,
        const std::function<int()>& handler);

template <class... Parameter>
int call(const char* function, int (*handler)(Parameter...), Parameter... parameters) {
  const std::array<Value, sizeof...(Parameter)> values{describe(parameters)...};
  if (handler == nullptr) {
    return run(function, values, nullptr);
  }
  return run(function, values, [&] { return handler(parameters...); });
}

template <class Function>
struct Parameters;
template <class... Parameter>
struct Parameters<int(Parameter...)> {
  using Handler = int (*)(Parameter...);
  using All = std::tuple<Parameter...>;
};
template <class Function, std::size_t Index>
using ParameterOf = std::tuple_element_t<Index, typename Parameters<Function>::All>;

}  // namespace quorvelsim

#define SIMULATE(count, function, ...)                                                        \
  int function(SIMULATE_PARAMETERS_##count(function)) {                                       \
    return quorvelsim::call(#function,                                                        \
                            static_cast<quorvelsim::Parameters<decltype(function)>::Handler>( \
                                SIMULATE_HANDLER(__VA_ARGS__)) SIMULATE_ARGUMENTS_##count);   \
  }
#define SIMULATE_HANDLER(...) SIMULATE_FIRST(__VA_ARGS__ __VA_OPT__(, ) nullptr)
#define SIMULATE_FIRST(first, ...) first
#define SIMULATE_PARAMETER(function, index) \
  quorvelsim::ParameterOf<decltype(function), index> p##index
#define SIMULATE_PARAMETERS_0(function)
#define SIMULATE_PARAMETERS_1(function) SIMULATE_PARAMETER(function, 0)
#define SIMULATE_PARAMETERS_2(function) \
  SIMULATE_PARAMETERS_1(function), SIMULATE_PARAMETER(function, 1)
#define SIMULATE_PARAMETERS_3(function) \
  SIMULATE_PARAMETERS_2(function), SIMULATE_PARAMETER(function, 2)
#define SIMULATE_PARAMETERS_4(function) \
  SIMULATE_PARAMETERS_3(function), SIMULATE_PARAMETER(function, 3)
#define SIMULATE_PARAMETERS_5(function) \
  SIMULATE_PARAMETERS_4(function), SIMULATE_PARAMETER(function, 4)
#define SIMULATE_PARAMETERS_6(function) \
  SIMULATE_PARAMETERS_5(function), SIMULATE_PARAMETER(function, 5)
#define SIMULATE_PARAMETERS_7(function) \
  SIMULATE_PARAMETERS_6(function), SIMULATE_PARAMETER(function, 6)
#define SIMULATE_PARAMETERS_8(function) \
  SIMULATE_PARAMETERS_7(function), SIMULATE_PARAMETER(function, 7)
#define SIMULATE_PARAMETERS_9(function) \
  SIMULATE_PARAMETERS_8(function), SIMULATE_PARAMETER(function, 8)
#define SIMULATE_PARAMETERS_10(function) \
  SIMULATE_PARAMETERS_9(function), SIMULATE_PARAMETER(function, 9)
#define SIMULATE_PARAMETERS_11(function) \
  SIMULATE_PARAMETERS_10(function), SIMULATE_PARAMETER(function, 10)
#define SIMULATE_PARAMETERS_12(function) \
  SIMULATE_PARAMETERS_11(function), SIMULATE_PARAMETER(function, 11)
#define SIMULATE_ARGUMENTS_0
#define SIMULATE_ARGUMENTS_1 , p0
#define SIMULATE_ARGUMENTS_2 SIMULATE_ARGUMENTS_1, p1
#define SIMULATE_ARGUMENTS_3 SIMULATE_ARGUMENTS_2, p2
#define SIMULATE_ARGUMENTS_4 SIMULATE_ARGUMENTS_3, p3
#define SIMULATE_ARGUMENTS_5 SIMULATE_ARGUMENTS_4, p4
#define SIMULATE_ARGUMENTS_6 SIMULATE_ARGUMENTS_5, p5
#define SIMULATE_ARGUMENTS_7 SIMULATE_ARGUMENTS_6, p6
#define SIMULATE_ARGUMENTS_8 SIMULATE_ARGUMENTS_7, p7
#define SIMULATE_ARGUMENTS_9 SIMULATE_ARGUMENTS_8, p8
#define SIMULATE_ARGUMENTS_10 SIMULATE_ARGUMENTS_9, p9
#define SIMULATE_ARGUMENTS_11 SIMULATE_ARGUMENTS_10, p10
#define SIMULATE_ARGUMENTS_12 SIMULATE_ARGUMENTS_11, p11
