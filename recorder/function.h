#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "arraylib/record.h"

namespace quorvelj {
struct ClassMap;
}

// What the recorder knows of the library's functions, from their declarations and from the class
// maps of their records.
namespace recorder {

enum class Role : std::uint8_t { kNumber, kInput, kOutput, kNull };

/// A parameter of a library function.
struct Parameter {
  Role role = Role::kNumber;
  bool isText = false;
  bool isSecret = false;
  /// Of the record, the text or the array; 0 for a text of any length.
  std::size_t bytes = 0;
  /// Of one record of an array.
  std::size_t elementBytes = 0;
  /// Of the record; null for a text, raw bytes and ints.
  const quorvelj::ClassMap* map = nullptr;
};

/// A library function.
struct Function {
  const char* name;
  std::span<const Parameter> parameters;
  /// The parameter that says how many records the last one has, or -1.
  int countParameter;
  /// Calls `target`, which has this function's prototype. A value is the address of an int, or what
  /// a pointer points to.
  int (*invoke)(void* target, void* const* values);
  /// The real function, once it was found.
  std::atomic<void*>* real;

  /// The bytes of a parameter in a call.
  [[nodiscard]] std::size_t bytesOf(std::size_t parameter, void* const* values) const;
};

/// What a member of an input or an output is to a recording.
struct Range {
  std::size_t offset;
  std::size_t bytes;
  bool isText;
  /// In an array, of which the caller may have set fewer elements.
  bool isElement;
};

/// The secret members of a parameter, those of nested records too.
std::vector<Range> secretsOf(const Parameter& parameter, std::size_t bytes);

/// All others: what Java's fields, or a text, can differ in.
std::vector<Range> plainOf(const Parameter& parameter, std::size_t bytes);

/// The bytes of a member: of a text those before its NUL, of others without the zeros at their end.
std::string valueOf(const void* block, const Range& range);

/// Records the call, answers it from a recording, or hands it on.
int call(const Function& function, void* const* values);

template <class Type, bool kSecret>
constexpr Parameter parameterOf() {
  if constexpr (std::is_same_v<Type, std::int32_t>) {
    return {.role = Role::kNumber, .bytes = sizeof(Type)};
  } else {
    using Target = std::remove_pointer_t<Type>;
    using Element = std::remove_const_t<std::remove_all_extents_t<Target>>;
    Parameter parameter{
        .role = std::is_const_v<std::remove_all_extents_t<Target>> ? Role::kInput : Role::kOutput,
        .isText = std::is_same_v<Element, char>,
        .isSecret = std::is_same_v<Element, char> && kSecret,
        .bytes = std::is_same_v<Target, const char> ? 0 : sizeof(Target),
        .elementBytes = sizeof(Element)};
    if constexpr (std::is_class_v<Element>) {
      parameter.map = &quorvelj::ClassOf<Element>::kMap;
    }
    return parameter;
  }
}

template <class Type>
void* valueAt(Type& argument) {
  if constexpr (std::is_same_v<Type, std::int32_t>) {
    return &argument;
  } else {
    return const_cast<std::remove_const_t<std::remove_pointer_t<Type>>*>(argument);
  }
}

template <class Type>
Type argumentOf(void* value) {
  if constexpr (std::is_same_v<Type, std::int32_t>) {
    return *static_cast<std::int32_t*>(value);
  } else {
    return static_cast<Type>(value);
  }
}

template <auto kFunction>
struct Known;
template <class... Type, int (*kFunction)(Type...)>
struct Known<kFunction> {
  static constexpr Parameter kParameters[sizeof...(Type) + 1] = {
      parameterOf<Type, quorvelj::kSecretTexts<kFunction>>()..., Parameter{}};

  static inline std::atomic<void*> real = nullptr;

  template <std::size_t... Index>
  static int invokeWith(void* target, void* const* values, std::index_sequence<Index...>) {
    return reinterpret_cast<int (*)(Type...)>(target)(argumentOf<Type>(values[Index])...);
  }
  static int invoke(void* target, void* const* values) {
    return invokeWith(target, values, std::index_sequence_for<Type...>());
  }

  static Function function(const char* name) {
    return {
        name, {kParameters, sizeof...(Type)}, quorvelj::kCountParameter<kFunction>, &invoke, &real};
  }

  static int handle(const char* name, Type... arguments) {
    void* const values[] = {valueAt(arguments)..., nullptr};
    return call(function(name), values);
  }
};

}  // namespace recorder
