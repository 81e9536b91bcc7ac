// Loads the DLLs of its arguments one after the other, each by its full path, as a JVM does. Prints
// the first that cannot be loaded, with the system's error, and returns 1.
#include <windows.h>

#include <cstdio>

int main(int count, char** arguments) {
  for (int index = 1; index < count; ++index) {
    if (LoadLibraryA(arguments[index]) == nullptr) {
      std::printf("error %lu: %s\n", GetLastError(), arguments[index]);
      return 1;
    }
  }
  return 0;
}
