#pragma once

#include <cstddef>
#include <tuple>

// How a function of the library is defined whose declaration alone is known, with the number of its
// parameters:
//
//   int QV_GetUnitCount(QUORVEL_PARAMETERS_1(QV_GetUnitCount)) {
//     return handle(QV_GetUnitCount QUORVEL_ARGUMENTS_1);
//   }
//
// The parameters are p0, p1, …; QUORVEL_ARGUMENTS has a comma before each.
namespace quorvelj {

template <class Function>
struct ParametersOf;
template <class... Parameter>
struct ParametersOf<int(Parameter...)> {
  using All = std::tuple<Parameter...>;
};
template <class Function, std::size_t Index>
using ParameterOf = std::tuple_element_t<Index, typename ParametersOf<Function>::All>;

}  // namespace quorvelj

#define QUORVEL_PARAMETER(function, index) quorvelj::ParameterOf<decltype(function), index> p##index
#define QUORVEL_PARAMETERS_0(function)
#define QUORVEL_PARAMETERS_1(function) QUORVEL_PARAMETER(function, 0)
#define QUORVEL_PARAMETERS_2(function) \
  QUORVEL_PARAMETERS_1(function), QUORVEL_PARAMETER(function, 1)
#define QUORVEL_PARAMETERS_3(function) \
  QUORVEL_PARAMETERS_2(function), QUORVEL_PARAMETER(function, 2)
#define QUORVEL_PARAMETERS_4(function) \
  QUORVEL_PARAMETERS_3(function), QUORVEL_PARAMETER(function, 3)
#define QUORVEL_PARAMETERS_5(function) \
  QUORVEL_PARAMETERS_4(function), QUORVEL_PARAMETER(function, 4)
#define QUORVEL_PARAMETERS_6(function) \
  QUORVEL_PARAMETERS_5(function), QUORVEL_PARAMETER(function, 5)
#define QUORVEL_PARAMETERS_7(function) \
  QUORVEL_PARAMETERS_6(function), QUORVEL_PARAMETER(function, 6)
#define QUORVEL_PARAMETERS_8(function) \
  QUORVEL_PARAMETERS_7(function), QUORVEL_PARAMETER(function, 7)
#define QUORVEL_PARAMETERS_9(function) \
  QUORVEL_PARAMETERS_8(function), QUORVEL_PARAMETER(function, 8)
#define QUORVEL_PARAMETERS_10(function) \
  QUORVEL_PARAMETERS_9(function), QUORVEL_PARAMETER(function, 9)
#define QUORVEL_ARGUMENTS_0
#define QUORVEL_ARGUMENTS_1 , p0
#define QUORVEL_ARGUMENTS_2 QUORVEL_ARGUMENTS_1, p1
#define QUORVEL_ARGUMENTS_3 QUORVEL_ARGUMENTS_2, p2
#define QUORVEL_ARGUMENTS_4 QUORVEL_ARGUMENTS_3, p3
#define QUORVEL_ARGUMENTS_5 QUORVEL_ARGUMENTS_4, p4
#define QUORVEL_ARGUMENTS_6 QUORVEL_ARGUMENTS_5, p5
#define QUORVEL_ARGUMENTS_7 QUORVEL_ARGUMENTS_6, p6
#define QUORVEL_ARGUMENTS_8 QUORVEL_ARGUMENTS_7, p7
#define QUORVEL_ARGUMENTS_9 QUORVEL_ARGUMENTS_8, p8
#define QUORVEL_ARGUMENTS_10 QUORVEL_ARGUMENTS_9, p9
