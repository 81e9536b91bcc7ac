#pragma once

#include <string>

// The real library, and what the system must be asked for.
namespace recorder {

/// What a call returns that the recorder itself cannot carry out.
inline constexpr int kNoLibrary = 29001;
inline constexpr int kNotRecorded = 29002;

/// The address of a function of the real library, which is QUORVEL_REAL, or `quorvel_real` beside
/// the recorder. Null where there is none; a line on standard error says why, once for each reason.
void* realFunction(const char* name);

/// Prints one line on standard error.
void complain(const std::string& line);

/// The value of an environment variable; "" where it is not set.
std::string setting(const char* name);

}  // namespace recorder
