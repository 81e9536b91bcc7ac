#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "arraylib/accounts.h"
#include "arraylib/prototype.h"
#include "arraylib/record.h"
#include "simulator/codes.h"
#include "simulator/state.h"

// How a function of the library is simulated: by one line in the source of its subsystem, with the
// number of its parameters.
//
//   SIMULATE(3, QV_SetAccountOption)              keeps its records for the Get of the same name
//   SIMULATE(3, QV_CreateAccount, createAccount)  calls `createAccount`
//
// A function without a handler that is neither a Set nor a Get only succeeds. In all cases, a unit
// name of 65 bytes must name a registered unit, and a session must be one of that unit. All calls
// run under one lock.
namespace quorvelsim {

/// One argument of a call, without its type.
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

/// One call of a library function, which holds the lock as long as it lives.
class Call {
 public:
  /// Settles the call if the control interface determines its result, if it names an unknown unit
  /// or session, or if it has no handler.
  Call(const char* function, const Value* values, std::size_t count, bool hasHandler);
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;
  ~Call();

  [[nodiscard]] bool settled() const { return settled_; }
  [[nodiscard]] int result() const { return result_; }

 private:
  bool settled_ = true;
  int result_ = 0;
};

/// Makes the last argument as many records as the argument of this number says; -1 for one.
void multiplyLast(Value* values, std::size_t count, int countParameter);

template <class... Parameter>
int call(const char* function, int countParameter, int (*handler)(Parameter...),
         Parameter... parameters) {
  Value values[] = {describe(parameters)..., Value{}};
  multiplyLast(values, sizeof...(Parameter), countParameter);
  const Call running(function, values, sizeof...(Parameter), handler != nullptr);
  return handler == nullptr || running.settled() ? running.result() : handler(parameters...);
}

}  // namespace quorvelsim

#define SIMULATE(count, function, ...)                                                      \
  int function(QUORVEL_PARAMETERS_##count(function)) {                                      \
    return quorvelsim::call(#function, quorvelj::kCountParameter<function>,                 \
                            static_cast<decltype(&function)>(SIMULATE_HANDLER(__VA_ARGS__)) \
                                QUORVEL_ARGUMENTS_##count);                                 \
  }
#define SIMULATE_HANDLER(...) SIMULATE_FIRST(__VA_ARGS__ __VA_OPT__(, ) nullptr)
#define SIMULATE_FIRST(first, ...) first
