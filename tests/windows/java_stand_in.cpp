// Stands in for java.exe where there is no JVM for Windows: answers what kind of JVM it is, and
// looks whether what a command line names is there. The libraries are found and loaded as a JVM
// does, and each says its version. STAND_IN_ARCH and STAND_IN_STATUS are what it says and returns.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

bool exists(const std::string& file) {
  return GetFileAttributesA(file.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::vector<std::string> split(const std::string& path) {
  std::vector<std::string> parts{""};
  for (char c : path) {
    if (c == ';') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

bool allExist(const std::string& path) {
  for (const std::string& file : split(path)) {
    if (!exists(file)) {
      std::printf("missing: %s\n", file.c_str());
      return false;
    }
  }
  return true;
}

/// What the properties of the file show under this name.
std::string property(const std::string& file, const std::string& name) {
  std::vector<char> block(GetFileVersionInfoSizeA(file.c_str(), nullptr));
  void* text = nullptr;
  UINT length = 0;
  if (block.empty() ||
      !GetFileVersionInfoA(file.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) ||
      !VerQueryValueA(block.data(), ("\\StringFileInfo\\040904B0\\" + name).c_str(), &text,
                      &length)) {
    return "nothing";
  }
  return static_cast<const char*>(text);
}

bool load(const std::string& name, const std::string& path) {
  for (const std::string& directory : split(path)) {
    char file[MAX_PATH];
    GetFullPathNameA((directory + "\\" + name).c_str(), MAX_PATH, file, nullptr);
    if (exists(file)) {
      const bool loaded = LoadLibraryA(file) != nullptr;
      std::printf("%s %s: %s, %s\n", loaded ? "loaded" : "not loaded", name.c_str(),
                  property(file, "FileVersion").c_str(), property(file, "FileDescription").c_str());
      return loaded;
    }
  }
  std::printf("not in %s: %s\n", path.c_str(), name.c_str());
  return false;
}

std::string setting(const char* name, const char* otherwise) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : otherwise;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string library_path = "-Djava.library.path=";
  bool sound = true;
  for (int index = 1; index < count; ++index) {
    const std::string argument = arguments[index];
    if (argument == "-XshowSettings:properties") {
      std::fprintf(stderr, "Property settings:\n    java.version = 1.8.0\n    os.arch = %s\n",
                   setting("STAND_IN_ARCH", "x86").c_str());
      return 0;
    }
    std::printf("argument %s\n", argument.c_str());
    if (argument.compare(0, library_path.size(), library_path) == 0) {
      const std::string path = argument.substr(library_path.size());
      sound = load("quorvel.dll", path) && load("quorvelj.dll", path) && sound;
    } else if (index + 1 < count && (argument == "-cp" || argument == "-jar" ||
                                     argument == "--classes" || argument == "--natives")) {
      sound = allExist(arguments[index + 1]) && sound;
    }
  }
  return sound ? std::atoi(setting("STAND_IN_STATUS", "0").c_str()) : 9;
}
