#pragma once

#include <algorithm>
#include <vector>

// Which JNI calls a field costs, and where among all calls they come.
namespace quorvelj::testing::mini {

/// A JNI function that one field calls, `depth` arrays inside the field's value: where it is called
/// first, where last, and where last for the first array that it lies in; 0 where there is none.
struct Calls {
  const char* function;
  int depth;
  int first;
  int last;
  int lastElement = 0;
};
using CallList = std::vector<Calls>;

/// Adds calls of one function.
inline void addCalls(CallList& list, const Calls& calls) {
  for (Calls& known : list) {
    if (known.function == calls.function && known.depth == calls.depth) {
      known.first = std::min(known.first, calls.first);
      known.last = std::max(known.last, calls.last);
      return;
    }
  }
  list.push_back(calls);
}

/// The same for a whole list, which lies `deeper` arrays further in.
inline void mergeCalls(CallList& list, const CallList& others, int deeper) {
  for (const Calls& calls : others) {
    addCalls(list, {calls.function, calls.depth + deeper, calls.first, calls.last});
  }
}

}  // namespace quorvelj::testing::mini
