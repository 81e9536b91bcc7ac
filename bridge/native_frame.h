#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

#include "bridge/class_map.h"
#include "bridge/jni_toolkit.h"
#include "bridge/runtime.h"

// The call frames: what every native method does around its one library function. A regular method
// names the function and its Java arguments in the function's order:
//
//   NATIVE_METHOD(jobject, GetThreshold, jstring unit, jobject session) {
//     return query(env, QV_GetThreshold, unit, session);
//   }
//
// What becomes of an argument follows from the function's parameter in its place:
//
//   const char (*)[N]   a String: null throws 258, else it is copied into a buffer of N bytes
//   const Record*       an object: read into a new record; the reader's result is ignored
//   std::int32_t        an int, by value
//
// and the last parameter of a function that returns something is its output:
//
//   Record*             built into an object       (`query`)
//   Record (*)[N]       built into an array of N   (`query`)
//   std::int32_t*       returned                   (`value`)
//
// Standard output is flushed on entry and on success. A method that departs from its frame is
// written out beside its family.
namespace quorvelj {

/// Opens the definition of the native method `QV_<Operation>`. The Java class declares it, and the
/// generated header with it: a signature that differs from Java's does not compile.
#define NATIVE_METHOD(Result, Operation, ...)                         \
  extern "C" JNIEXPORT Result JNICALL                                 \
      Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1##Operation( \
          JNIEnv* env, jobject __VA_OPT__(, ) __VA_ARGS__)

/// Allocates an uninitialised record, or returns null.
template <class Record>
Record* allocate() {
  return static_cast<Record*>(allocateRecord(sizeof(Record)));
}

/// Copies a text argument, or throws 258 and returns false where it is null.
bool copyRequiredText(JNIEnv* env, jstring text, char* buffer, std::size_t length);

/// Ends a query: throws what the library returned, or builds the object from `record`, and throws
/// 2817 where that fails. Releases the record. Returns the object, or null with the exception.
jobject finishQuery(JNIEnv* env, int result, const ClassMap& map, void* record);

/// The same for `length` records of `recordBytes` each.
jobjectArray finishArrayQuery(JNIEnv* env, int result, const ClassMap& map, void* records,
                              jsize length, std::size_t recordBytes);

/// Stores an object built from `record` at `index`; false where it cannot be built. No exception is
/// tested for or thrown.
bool storeBuilt(JNIEnv* env, jobjectArray array, jsize index, const ClassMap& map,
                const void* record);

/// The same for `length` records from the first element on. Stops at the first that cannot be built
/// and leaves the rest null.
void fillPartialArray(JNIEnv* env, jobjectArray array, const ClassMap& map, const void* records,
                      jsize length, std::size_t recordBytes);

/// Ends a query whose array is returned as far as its elements can be built: throws what the
/// library returned, or fills a new array. Releases the records. Returns the array; null with the
/// exception, or where the array itself cannot be made.
jobjectArray finishPartialArrayQuery(JNIEnv* env, int result, const ClassMap& map, void* records,
                                     jsize length, std::size_t recordBytes);
template <class Record, std::size_t N>
jobjectArray finishPartialArrayQuery(JNIEnv* env, int result, Record (*records)[N]) {
  return finishPartialArrayQuery(env, result, ClassOf<Record>::kMap, records, static_cast<jsize>(N),
                                 sizeof(Record));
}

/// One parameter of a library function, made from the Java argument in its place.
template <class Parameter>
class Argument;

template <>
class Argument<std::int32_t> {
 public:
  explicit Argument(jint value) : value_(value) {}
  bool accept(JNIEnv*) { return true; }
  bool allocate() { return true; }
  void read(JNIEnv*) {}
  void release() {}
  std::int32_t get() { return value_; }

 private:
  std::int32_t value_;
};

template <std::size_t N>
class Argument<const char (*)[N]> {
 public:
  // Where the characters cannot be had the copy leaves the buffer alone: then the text is empty.
  explicit Argument(jstring text) : text_(text) { buffer_[0] = '\0'; }
  bool accept(JNIEnv* env) { return copyRequiredText(env, text_, buffer_, N); }
  bool allocate() { return true; }
  void read(JNIEnv*) {}
  void release() {}
  const char (*get())[N] { return &buffer_; }

 private:
  jstring text_;
  char buffer_[N];
};

template <class Record>
class Argument<const Record*> {
 public:
  explicit Argument(jobject object) : object_(object) {}
  bool accept(JNIEnv*) { return true; }
  bool allocate() {
    record_ = quorvelj::allocate<Record>();
    return record_ != nullptr;
  }
  void read(JNIEnv* env) { quorvelj::read(env, ClassOf<Record>::kMap, object_, record_); }
  void release() { releaseRecord(record_); }
  const Record* get() { return record_; }

 private:
  jobject object_;
  Record* record_ = nullptr;
};

/// The inputs of one call, in the order of the library function's parameters.
template <class... Parameter>
class Inputs {
 public:
  template <class... Java>
  explicit Inputs(Java... java) : arguments_(java...) {}

  /// Copies the texts; false with 258 thrown at the first that is null.
  bool accept(JNIEnv* env) {
    return each([env](auto&... argument) { return (argument.accept(env) && ...); });
  }
  /// Allocates and reads one record after the other; false at the first that cannot be had.
  bool allocateAndRead(JNIEnv* env) {
    return each([env](auto&... argument) {
      return ((argument.allocate() && (argument.read(env), true)) && ...);
    });
  }
  /// Allocates every record; false where any cannot be had.
  bool allocateAll() {
    bool all = true;
    each([&all](auto&... argument) { ((all = argument.allocate() && all), ...); });
    return all;
  }
  void readAll(JNIEnv* env) {
    each([env](auto&... argument) { (argument.read(env), ...); });
  }
  void releaseAll() {
    each([](auto&... argument) { (argument.release(), ...); });
  }
  template <class... Output>
  int call(int (*function)(Parameter..., Output...), Output... output) {
    return each([&](auto&... argument) { return function(argument.get()..., output...); });
  }

 private:
  template <class Visit>
  auto each(Visit visit) {
    return std::apply(visit, arguments_);
  }

  std::tuple<Argument<Parameter>...> arguments_;
};

/// The inputs of a library function whose last parameter is its output.
template <class Function, class Positions = void>
struct FunctionWithOutput;

template <class... Parameter>
struct FunctionWithOutput<int (*)(Parameter...), void>
    : FunctionWithOutput<int (*)(Parameter...),
                         std::make_index_sequence<sizeof...(Parameter) - 1>> {};

template <class... Parameter, std::size_t... Position>
struct FunctionWithOutput<int (*)(Parameter...), std::index_sequence<Position...>> {
  using All = std::tuple<Parameter...>;
  using InputsOf = Inputs<std::tuple_element_t<Position, All>...>;
  using Output = std::tuple_element_t<sizeof...(Position), All>;
};

/// What `query` makes of an output parameter.
template <class Output>
struct QueryResult;

template <class Record>
struct QueryResult<Record*> {
  using Object = jobject;
  static constexpr const ClassMap& kMap = ClassOf<Record>::kMap;
  static Object finish(JNIEnv* env, int result, const ClassMap& map, Record* record) {
    return finishQuery(env, result, map, record);
  }
};

template <class Record, std::size_t N>
struct QueryResult<Record (*)[N]> {
  using Object = jobjectArray;
  static constexpr const ClassMap& kMap = ClassOf<Record>::kMap;
  static Object finish(JNIEnv* env, int result, const ClassMap& map, Record (*records)[N]) {
    return finishArrayQuery(env, result, map, records, static_cast<jsize>(N), sizeof(Record));
  }
};

template <class Function>
using QueryResultOf = QueryResult<typename FunctionWithOutput<Function>::Output>;

/// A `query` whose result is built by `map` instead of its class's own.
template <class Function, class... Java>
auto queryAs(JNIEnv* env, const ClassMap& map, Function function, Java... java) {
  using Output = typename FunctionWithOutput<Function>::Output;
  using Object = typename QueryResultOf<Function>::Object;

  flushOutput();
  typename FunctionWithOutput<Function>::InputsOf inputs(java...);
  if (!inputs.accept(env)) {
    return Object{};
  }
  Output output = nullptr;
  if (inputs.allocateAndRead(env)) {
    output = allocate<std::remove_pointer_t<Output>>();
  }
  if (output == nullptr) {
    throwArrayException(env, kOutOfMemory);
    return Object{};
  }
  const int result = inputs.call(function, output);
  inputs.releaseAll();
  const Object built = QueryResultOf<Function>::finish(env, result, map, output);
  if (built != nullptr) {
    flushOutput();
  }
  return built;
}

/// A method that returns a new object or array. A record that was allocated before one that could
/// not be had is not released.
template <class Function, class... Java>
auto query(JNIEnv* env, Function function, Java... java) {
  return queryAs(env, QueryResultOf<Function>::kMap, function, java...);
}

/// A method that returns the int that the library writes, or 0 with an exception.
template <class Function, class... Java>
jint value(JNIEnv* env, Function function, Java... java) {
  flushOutput();
  typename FunctionWithOutput<Function>::InputsOf inputs(java...);
  if (!inputs.accept(env)) {
    return 0;
  }
  if (!inputs.allocateAndRead(env)) {
    throwArrayException(env, kOutOfMemory);
    return 0;
  }
  std::int32_t output = 0;
  const int result = inputs.call(function, &output);
  inputs.releaseAll();
  if (result != 0) {
    throwArrayException(env, result);
    return 0;
  }
  flushOutput();
  return output;
}

/// What an update does behind the allocation of its records: reads and hands over all of them,
/// releases them, and throws what the library returned.
template <class... Parameter>
void finishUpdate(JNIEnv* env, Inputs<Parameter...>& inputs, int (*function)(Parameter...)) {
  inputs.readAll(env);
  const int result = inputs.call(function);
  inputs.releaseAll();
  if (result != 0) {
    throwArrayException(env, result);
    return;
  }
  flushOutput();
}

/// A method that returns nothing, with records to hand over or without. All of them are allocated
/// before the first is read, and all are released, whichever could not be had.
template <class... Parameter, class... Java>
void update(JNIEnv* env, int (*function)(Parameter...), Java... java) {
  flushOutput();
  Inputs<Parameter...> inputs(java...);
  if (!inputs.accept(env)) {
    return;
  }
  if (!inputs.allocateAll()) {
    throwArrayException(env, kOutOfMemory);
    inputs.releaseAll();
    return;
  }
  finishUpdate(env, inputs, function);
}

}  // namespace quorvelj
