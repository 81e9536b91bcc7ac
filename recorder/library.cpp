#include "recorder/library.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <set>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace recorder {

namespace {

#ifdef _WIN32
constexpr char kRealName[] = "quorvel_real.dll";

std::string ownPath() {
  HMODULE self = nullptr;
  char path[MAX_PATH] = "";
  GetModuleHandleExA(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<const char*>(&complain), &self);
  GetModuleFileNameA(self, path, sizeof path);
  return path;
}

/// Opens a library; `why` says why it cannot be.
void* open(const std::string& path, std::string& why) {
  HMODULE const library = LoadLibraryExA(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (library == nullptr) {
    why = path + ": error " + std::to_string(GetLastError());
  }
  return library;
}

void* find(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}
#else
constexpr char kRealName[] = "libquorvel_real.so";

std::string ownPath() {
  Dl_info self{};
  return dladdr(reinterpret_cast<const void*>(&complain), &self) != 0 ? self.dli_fname : "";
}

void* open(const std::string& path, std::string& why) {
  void* const library = dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL);
  if (library == nullptr) {
    why = dlerror();
  }
  return library;
}

void* find(void* library, const char* name) { return dlsym(library, name); }
#endif

void* realLibrary() {
  static std::string why;
  static void* const library = [] {
    std::string path = setting("QUORVEL_REAL");
    if (path.empty()) {
      const std::string own = ownPath();
      path = own.substr(0, own.find_last_of("/\\") + 1) + kRealName;
    }
    return open(path, why);
  }();
  static const bool complained = [] {
    if (library == nullptr) {
      complain("the real library cannot be loaded: " + why);
    }
    return true;
  }();
  static_cast<void>(complained);
  return library;
}

}  // namespace

void* realFunction(const char* name) {
  void* const library = realLibrary();
  if (library == nullptr) {
    return nullptr;
  }
  void* const function = find(library, name);
  if (function == nullptr) {
    static std::mutex mutex;
    static auto* const missing = new std::set<std::string>;
    const std::lock_guard lock(mutex);
    if (missing->insert(name).second) {
      complain(std::string("the real library has no ") + name);
    }
  }
  return function;
}

void complain(const std::string& line) {
  // One write for a line: other threads may have something to say.
  const std::string text = "quorvel recorder: " + line + '\n';
  static_cast<void>(std::fputs(text.c_str(), stderr));
  static_cast<void>(std::fflush(stderr));
}

std::string setting(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace recorder
