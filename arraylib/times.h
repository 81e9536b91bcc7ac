#pragma once

#include "arraylib/record.h"

// Points in time, which many records hold.

/// A calendar time: the fields of the C `struct tm`, as the library gives them (month 0 to 11, year
/// since 1900).
struct QVTime {
  std::int32_t tm_sec;
  std::int32_t tm_min;
  std::int32_t tm_hour;
  std::int32_t tm_mday;
  std::int32_t tm_mon;
  std::int32_t tm_year;
  std::int32_t tm_wday;
  std::int32_t tm_yday;
  std::int32_t tm_isdst;
};
QUORVEL_RECORD(QVTime, 36);

/// A date and a time of day.
struct DateTime {
  std::int32_t year;
  std::int32_t month;
  std::int32_t day;
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t second;
};
QUORVEL_RECORD(DateTime, 24);

/// When a copy pair was created.
struct PairCreateTime {
  std::int32_t year;
  std::int32_t month;
  std::int32_t day;
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t second;
};
QUORVEL_RECORD(PairCreateTime, 24);

/// A span of time.
struct QVApiTime {
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t second;
};
QUORVEL_RECORD(QVApiTime, 12);
