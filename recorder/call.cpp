#include "recorder/function.h"
#include "recorder/library.h"
#include "recorder/recording.h"
#include "recorder/replay.h"

namespace recorder {

namespace {

// Both stay to the end of the process: a call may come as late.
Replay* replay() {
  static auto* const made =
      setting("QUORVEL_REPLAY").empty() ? nullptr : new Replay(setting("QUORVEL_REPLAY"));
  return made;
}

Recording* recording() {
  static auto* const made =
      setting("QUORVEL_RECORD").empty() ? nullptr : new Recording(setting("QUORVEL_RECORD"));
  return made;
}

}  // namespace

int call(const Function& function, void* const* values) {
  if (replay() != nullptr) {
    return replay()->call(function, values);
  }
  void* real = function.real->load();
  if (real == nullptr) {
    real = realFunction(function.name);
    function.real->store(real);
  }
  if (real == nullptr) {
    return kNoLibrary;
  }
  return recording() != nullptr && recording()->isOpen() ? recording()->call(function, real, values)
                                                         : function.invoke(real, values);
}

}  // namespace recorder
