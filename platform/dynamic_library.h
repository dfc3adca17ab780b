// Libraries of functions that the program loads by name while it runs.
#pragma once

#include <memory>
#include <string>

namespace veritane::platform {

// A function of unknown shape; the caller casts it to the one that it expects.
using FunctionAddress = void (*)();

// A loaded library; it is let go with the object.
class DynamicLibrary {
public:
  virtual ~DynamicLibrary() = default;
  // The name of its file, without a folder.
  virtual const std::string& FileName() const = 0;
  // Error 53, naming file and function, when the library has no such function.
  virtual FunctionAddress Function(const std::string& name) const = 0;
};

class DynamicLibraries {
public:
  virtual ~DynamicLibraries() = default;
  // Loads the library of this base name, by the system's custom of naming files: "ABC" is ABC.DLL on Windows
  // and libabc.so elsewhere. It is looked for beside the program, then where the system looks. Error 53 with
  // the file's name and the reason when it cannot be loaded.
  virtual std::unique_ptr<DynamicLibrary> Load(const std::string& base_name) const = 0;
  // A Windows path in the form in which functions of such a library take paths. A path that names nothing on
  // this system is handed on as it is, for the library to refuse.
  virtual std::string NativePath(const std::string& windows_path) const = 0;
};

}  // namespace veritane::platform
