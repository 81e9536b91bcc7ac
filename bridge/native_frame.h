#pragma once

#include <jni.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <tuple>
#include <type_traits>
#include <utility>

#include "bridge/class_map.h"
#include "bridge/departure.h"
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
//   const Record*       an object: read into a new record; the call goes on where that fails
//   std::int32_t        an int, by value
//
// and the parameter behind the Java arguments is the function's output:
//
//   Record*             built into an object       (`query`)
//   Record (*)[N]       built into an array of N   (`query`, `partialQuery`)
//   std::int32_t*       returned                   (`value`)
//
// Standard output is flushed on entry and on success. A method that departs from its frame states
// how, by `DEPARTS`, and is written out from `LibraryCall` beside its family.
namespace quorvelj {

/// Opens the definition of the native method `QV_<Operation>`. The Java class declares it, and the
/// generated header with it: a signature that differs from Java's does not compile.
#define NATIVE_METHOD(Result, Operation, ...)                                          \
  extern "C" {                                                                         \
  extern const quorvelj::Departure departureOf_QV_1##Operation;                        \
  }                                                                                    \
  constinit const quorvelj::Departure departureOf_QV_1##Operation =                    \
      quorvelj::kDepartureOf<struct Operation##_>;                                     \
  static Result native##Operation(quorvelj::Env env __VA_OPT__(, ) __VA_ARGS__);       \
  extern "C" JNIEXPORT Result JNICALL                                                  \
      Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1##Operation(                  \
          JNIEnv* jni, jobject __VA_OPT__(, ) __VA_ARGS__) {                           \
    quorvelj::NativeCall call(jni);                                                    \
    return native##Operation(                                                          \
        call.env() __VA_OPT__(, QUORVELJ_FOR_EACH(QUORVELJ_ARGUMENT, , __VA_ARGS__))); \
  }                                                                                    \
  static Result native##Operation(quorvelj::Env env __VA_OPT__(, ) __VA_ARGS__)

// The name of a parameter: its declaration without the type.
#define QUORVELJ_ARGUMENT(unused, parameter) QUORVELJ_PASTE(QUORVELJ_NAME_, parameter)
#define QUORVELJ_NAME_jbyteArray
#define QUORVELJ_NAME_jint
#define QUORVELJ_NAME_jintArray
#define QUORVELJ_NAME_jobject
#define QUORVELJ_NAME_jobjectArray
#define QUORVELJ_NAME_jstring

/// Allocates an uninitialised record with its spare bytes, or returns null.
template <class Record>
Record* allocate() {
  return static_cast<Record*>(allocateRecord(sizeof(Record) + kSpareBytes<Record>));
}

/// A new uninitialised record that is released at the end of its scope; null where there is no
/// memory for it.
template <class Record>
class OwnRecord {
 public:
  OwnRecord() = default;
  ~OwnRecord() { releaseRecord(record_); }
  OwnRecord(const OwnRecord&) = delete;
  OwnRecord& operator=(const OwnRecord&) = delete;
  explicit operator bool() const { return record_ != nullptr; }
  Record* get() const { return record_; }
  Record& operator*() const { return *record_; }

 private:
  Record* record_ = allocate<Record>();
};

/// Copies a text argument, or throws 258 and returns false where it is null.
bool copyRequiredText(Env env, jstring text, char* buffer, std::size_t length);

/// Copies a text argument. A null text, and one whose characters cannot be had, is an empty one.
template <std::size_t N>
void copyOptionalText(Env env, jstring text, char (&buffer)[N]) {
  buffer[0] = '\0';
  copyJavaStringToBuffer(env, text, buffer, N);
}

/// Ends a query: throws what the library returned, or builds the object from `record`, and throws
/// 2817 where that fails. Releases the record. Returns the object with standard output flushed, or
/// null with the exception.
jobject finishQuery(Env env, int result, const ClassMap& map, void* record);
template <class Record>
jobject finishQuery(Env env, int result, Record* record) {
  return finishQuery(env, result, ClassOf<Record>::kMap, record);
}

/// The same for `length` records of `recordBytes` each.
jobjectArray finishArrayQuery(Env env, int result, const ClassMap& map, void* records, jsize length,
                              std::size_t recordBytes);
template <class Record, std::size_t N>
jobjectArray finishQuery(Env env, int result, Record (*records)[N]) {
  return finishArrayQuery(env, result, ClassOf<Record>::kMap, records, static_cast<jsize>(N),
                          sizeof(Record));
}

/// Stores an object built from `record` at `index`; false where it cannot be built. No exception is
/// tested for or thrown.
bool storeBuilt(Env env, jobjectArray array, jsize index, const ClassMap& map, const void* record);

/// The same for `length` records from the first element on. Stops at the first that cannot be built
/// and leaves the rest null.
void fillPartialArray(Env env, jobjectArray array, const ClassMap& map, const void* records,
                      jsize length, std::size_t recordBytes);

/// Ends a query whose array is returned as far as its elements can be built: throws what the
/// library returned, or fills a new array. Releases the records. Returns the array with standard
/// output flushed; null with the exception, or where the array itself cannot be made.
jobjectArray finishPartialArrayQuery(Env env, int result, const ClassMap& map, void* records,
                                     jsize length, std::size_t recordBytes);

/// One parameter of a library function, made from the Java argument in its place. A Java argument
/// that needs other steps is wrapped in a class of its own, which names a class `Argument` with
/// these five.
template <class Parameter>
class Argument;

template <>
class Argument<std::int32_t> {
 public:
  explicit Argument(jint value) : value_(value) {}
  bool accept(Env) { return true; }
  bool allocate() { return true; }
  int read(Env) { return kOk; }
  void release() {}
  std::int32_t get() { return value_; }

 private:
  std::int32_t value_;
};

template <std::size_t N>
class Argument<const char (*)[N]> {
 public:
  // Characters that cannot be had leave the buffer as it is: an empty text.
  explicit Argument(jstring text) : text_(text) { buffer_[0] = '\0'; }
  bool accept(Env env) { return copyRequiredText(env, text_, buffer_, N); }
  bool allocate() { return true; }
  int read(Env) { return kOk; }
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
  bool accept(Env) { return true; }
  bool allocate() {
    record_ = quorvelj::allocate<Record>();
    return record_ != nullptr;
  }
  /// A null object leaves the record as it is.
  int read(Env env) {
    return object_ == nullptr ? kOk : quorvelj::read(env, ClassOf<Record>::kMap, object_, record_);
  }
  void release() { releaseRecord(record_); }
  const Record* get() { return record_; }

 private:
  jobject object_;
  Record* record_ = nullptr;
};

/// What makes a parameter of a Java argument: `Argument`, or what the argument's class names so.
template <class Parameter, class Java>
struct ArgumentFor {
  using Type = Argument<Parameter>;
};
template <class Parameter, class Java>
requires requires { typename Java::Argument; }
struct ArgumentFor<Parameter, Java> {
  using Type = typename Java::Argument;
};

/// One call of a library function. Its first parameters, the inputs, are made from the Java
/// arguments, one each and in their order; the others are its outputs.
template <class Function, class... Java>
class LibraryCall {
  template <class Positions, class Parameters>
  struct Split;
  template <std::size_t... Position, class... Parameter>
  struct Split<std::index_sequence<Position...>, int (*)(Parameter...)> {
    using All = std::tuple<Parameter...>;
    using Inputs =
        std::tuple<typename ArgumentFor<std::tuple_element_t<Position, All>, Java>::Type...>;
    template <std::size_t Index>
    using Output = std::tuple_element_t<sizeof...(Java) + Index, All>;
  };
  using Parameters = Split<std::index_sequence_for<Java...>, Function>;

 public:
  /// The type of an output, a pointer.
  template <std::size_t Index = 0>
  using Output = typename Parameters::template Output<Index>;

  LibraryCall(Env env, Function function, Java... java)
      : env_(env), function_(function), inputs_(java...) {}

  /// Flushes standard output and copies the texts; false with 258 thrown at the first that is null.
  bool enter() {
    flushOutput();
    return each([this](auto&... input) {
      return (input.accept(env_) && ...);  // GCOV_EXCL_BR_LINE: a number is always accepted.
    });
  }

  /// `enter`, and allocates and reads one record after the other; false with 65535 thrown at the
  /// first that cannot be had.
  bool begin() {
    if (!enter()) {
      return false;
    }
    const bool all = each([this](auto&... input) {
      return ((input.allocate() && (read(input), true)) && ...);  // GCOV_EXCL_BR_LINE: likewise.
    });
    if (!all) {
      throwArrayException(env_, kOutOfMemory);
    }
    return all;
  }

  /// Allocates every record; false, with no exception, where any cannot be had.
  bool allocateInputs() {
    bool all = true;
    each([&all](auto&... input) { ((all = input.allocate() && all), ...); });
    return all;
  }
  /// Allocates one record after the other; false, with no exception, at the first that cannot be
  /// had.
  bool allocateInTurn() {
    return each([](auto&... input) {
      return (input.allocate() && ...);  // GCOV_EXCL_BR_LINE: a number needs no memory.
    });
  }
  void readInputs() {
    each([this](auto&... input) { (read(input), ...); });
  }
  void releaseInputs() {
    each([](auto&... input) { (input.release(), ...); });
  }

  /// Returns a new uninitialised record for an output, or null with 65535 thrown. The inputs stay.
  template <std::size_t Index = 0>
  Output<Index> output() {
    auto* const record = allocate<std::remove_pointer_t<Output<Index>>>();
    if (record == nullptr) {
      throwArrayException(env_, kOutOfMemory);
    }
    return record;
  }

  /// Calls the function and returns its result. The inputs stay.
  template <class... Outputs>
  int callAndKeepInputs(Outputs... outputs) {
    return each([&](auto&... input) { return function_(input.get()..., outputs...); });
  }

  /// Calls the function, releases the inputs, and returns the function's result.
  template <class... Outputs>
  int call(Outputs... outputs) {
    const int result = callAndKeepInputs(outputs...);
    releaseInputs();
    return result;
  }

 private:
  template <class Visit>
  auto each(Visit visit) {
    return std::apply(visit, inputs_);
  }

  /// Reads an input. Once one has left an exception pending, JNI forbids the reading of others.
  template <class Input>
  void read(Input& input) {
    if (!stopped_) {
      stopped_ = input.read(env_) != kOk && exceptionPending(env_);
    }
  }

  Env env_;
  Function function_;
  typename Parameters::Inputs inputs_;
  bool stopped_ = false;
};

/// A method that returns a new object or array. A record that was allocated before one that could
/// not be had is not released.
template <class Function, class... Java>
auto query(Env env, Function function, Java... java) {
  LibraryCall library(env, function, java...);
  using Object = decltype(finishQuery(env, 0, library.output()));
  if (!library.begin()) {
    return Object{};
  }
  const auto output = library.output();
  return output == nullptr ? Object{} : finishQuery(env, library.call(output), output);
}

/// A `query` whose object is built by `map` instead of its class's own.
template <class Function, class... Java>
jobject queryAs(Env env, const ClassMap& map, Function function, Java... java) {
  LibraryCall library(env, function, java...);
  if (!library.begin()) {
    return nullptr;
  }
  const auto output = library.output();
  return output == nullptr ? nullptr : finishQuery(env, library.call(output), map, output);
}

/// How a `partialQuery` departs from its frame.
inline constexpr char kPartialDeparts[] =
    "an element that cannot be built leaves the rest of the array null, and is no failure";

/// A `query` of an array in which an element that cannot be built is no failure: the array is
/// returned with the elements before it, the rest null, and 2817 is not thrown.
template <class Function, class... Java>
jobjectArray partialQuery(Env env, Function function, Java... java) {
  LibraryCall library(env, function, java...);
  if (!library.begin()) {
    return nullptr;
  }
  const auto output = library.output();
  if (output == nullptr) {
    return nullptr;
  }
  using Record = std::remove_reference_t<decltype((*output)[0])>;
  return finishPartialArrayQuery(env, library.call(output), ClassOf<Record>::kMap, output,
                                 static_cast<jsize>(std::size(*output)), sizeof(Record));
}

/// A method that returns the int that the library writes, or 0 with an exception.
template <class Function, class... Java>
jint value(Env env, Function function, Java... java) {
  LibraryCall library(env, function, java...);
  if (!library.begin()) {
    return 0;
  }
  std::int32_t output = 0;
  const int result = library.call(&output);
  if (result != 0) {
    throwArrayException(env, result);
    return 0;
  }
  flushOutput();
  return output;
}

/// Ends a method that returns nothing: throws what the library returned, or flushes standard
/// output.
void finishUpdate(Env env, int result);

/// A method that returns nothing, with records to hand over or without. All of them are allocated
/// before the first is read, and all are released, whichever could not be had.
template <class Function, class... Java>
void update(Env env, Function function, Java... java) {
  LibraryCall library(env, function, java...);
  if (!library.enter()) {
    return;
  }
  if (!library.allocateInputs()) {
    throwArrayException(env, kOutOfMemory);
    library.releaseInputs();
    return;
  }
  library.readInputs();
  finishUpdate(env, library.call());
}

}  // namespace quorvelj
