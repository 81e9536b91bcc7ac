// The classes of points in time; they belong to no method of their own.
#include "arraylib/times.h"

#include "bridge/class_map.h"

QUORVELJ_CLASS(QVTime, tm_sec, tm_min, tm_hour, tm_mday, tm_mon, tm_year, tm_wday, tm_yday,
               tm_isdst);
QUORVELJ_CLASS(DateTime, year, month, day, hour, minute, second);
QUORVELJ_CLASS(PairCreateTime, year, month, day, hour, minute, second);
QUORVELJ_CLASS(QVApiTime, hour, minute, second);
