#pragma once

// The host's service library. Each function returns a process-wide object that the library owns; callers never free
// it. Slots up to the highest one in use are declared, the host's own as reserved operations.

#include <cstdint>
#include <string>

#include "utils/text/string_handler.h"

namespace hostkit {

/// Formats numbers for people.
class NumberHandler {
 public:
  NumberHandler() = default;
  NumberHandler(const NumberHandler&) = delete;
  NumberHandler& operator=(const NumberHandler&) = delete;

  virtual ~NumberHandler() = default;  // slot 0
  virtual void ReservedSlot1() {}
  virtual void ReservedSlot2() {}
  virtual void ReservedSlot3() {}
  virtual void ReservedSlot4() {}
  virtual void ReservedSlot5() {}
  virtual void ReservedSlot6() {}
  virtual void ReservedSlot7() {}
  virtual void ReservedSlot8() {}
  virtual void NumberText(std::string& output, std::uint16_t number) const = 0;  // slot 9: decimal
  virtual void ReservedSlot10() {}
  virtual void ReservedSlot11() {}
  virtual void ReservedSlot12() {}
  virtual void ReservedSlot13() {}
  virtual void SizeText(std::string& output, std::uint64_t bytes) const = 0;  // slot 14: as in "4.00 TB"
};

/// The machine's clock.
class Timer {
 public:
  Timer() = default;
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  virtual ~Timer() = default;  // slot 0
  virtual void ReservedSlot1() {}
  virtual double Elapsed(std::uint32_t start, std::uint32_t end) const = 0;  // slot 2: seconds
  virtual std::uint32_t Now() const = 0;                                     // slot 3: milliseconds, wraps
};

/// The installation's folders.
class FileSystem {
 public:
  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;

  virtual ~FileSystem() = default;  // slot 0
  virtual void ReservedSlot1() {}
  virtual void ReservedSlot2() {}
  virtual void ReservedSlot3() {}
  virtual const char* LibraryDirectory() const = 0;  // slot 4: zero-terminated UTF-8, no separator at its end
};

/// Loads libraries.
class LibraryLoader {
 public:
  LibraryLoader() = default;
  LibraryLoader(const LibraryLoader&) = delete;
  LibraryLoader& operator=(const LibraryLoader&) = delete;

  virtual ~LibraryLoader() = default;                             // slot 0
  virtual void* Load(const char* path, std::int32_t mode) = 0;    // slot 1: null on failure
  virtual void* FindSymbol(void* library, const char* name) = 0;  // slot 2: null if not found
  virtual void Unload(void* library) = 0;                         // slot 3
};

}  // namespace hostkit

extern "C" {

StringHandler* get_string_handler();
hostkit::NumberHandler* get_number_handler();
hostkit::Timer* get_timer();
hostkit::FileSystem* get_filesystem();
hostkit::LibraryLoader* get_module();

/// Zero-terminated UTF-8 path of the folder for temporary files; empty if unknown.
const char* get_temporary_path();
}
