#include <filesystem>
#include <string>
#include <system_error>

#include "platform/hostkit/services.h"

// The objects are made on first use and never destroyed: a caller may hold them until the process ends.

StringHandler* get_string_handler() {
  return OwnStringHandler();
}

hostkit::NumberHandler* get_number_handler() {
  static auto* const handler = new hostkit::DecimalNumberHandler;
  return handler;
}

hostkit::Timer* get_timer() {
  static auto* const timer = new hostkit::MachineTimer;
  return timer;
}

hostkit::FileSystem* get_filesystem() {
  static auto* const fileSystem = new hostkit::InstalledFileSystem;
  return fileSystem;
}

hostkit::LibraryLoader* get_module() {
  static auto* const loader = new hostkit::SystemLibraryLoader;
  return loader;
}

const char* get_temporary_path() {
  static const auto* const path = [] {
    std::error_code error;
    const std::u8string folder = std::filesystem::temp_directory_path(error).u8string();
    return new std::string(folder.begin(), folder.end());
  }();
  return path->c_str();
}
