#include "tests/support/drawing.h"

#include "simulator/control.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/test_runtime.h"

namespace quorvelj::testing {

std::vector<std::size_t> recordBytes() {
  std::vector<std::size_t> bytes;
  for (const NativeMethod& method : nativeMethods()) {
    constexpr int kRefusal = 1234;
    MiniJvm jvm;
    quorvelSimForceResult("*", kRefusal, 1);
    resetTestRuntime();
    method.invoke(jvm.env(), jvm.newArguments(method));
    bytes.push_back(testRuntime().mostBytes);
  }
  resetTestRuntime();
  return bytes;
}

std::discrete_distribution<std::size_t> drawingByCost(const std::vector<std::size_t>& recordBytes) {
  constexpr double kOrdinaryBytes = 10'000;
  std::vector<double> weights;
  for (const std::size_t bytes : recordBytes) {
    weights.push_back(1 / (1 + static_cast<double>(bytes) / kOrdinaryBytes));
  }
  return {weights.begin(), weights.end()};
}

}  // namespace quorvelj::testing
