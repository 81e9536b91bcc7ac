// The functions of the library, each handed to `recorder::call`.
#ifdef _WIN32
#define QUORVEL_API extern "C"
#else
#define QUORVEL_API extern "C" __attribute__((visibility("default")))
#endif
#include "arraylib/prototype.h"
#include "record_headers.inc"
#include "recorder/function.h"

// NOLINTBEGIN(bugprone-macro-parentheses): a template argument
#define FUNCTION_ENTRY(header, function, count)                                     \
  int function(QUORVEL_PARAMETERS_##count(function)) {                              \
    return recorder::Known<&function>::handle(#function QUORVEL_ARGUMENTS_##count); \
  }
// NOLINTEND(bugprone-macro-parentheses)
#include "function_entries.inc"
#undef FUNCTION_ENTRY
