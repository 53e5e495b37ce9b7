#include "module/raid/storelib/storelib_sender.h"

#include <hostkit.h>

#include <bit>
#include <stdexcept>
#include <string>
#include <utility>

namespace orvik::module::raid {

namespace {

// The loader takes a mode that knows only this value.
constexpr std::int32_t kLoadMode = 1;

/// Unloads a library that the construction does not get to use.
class LoadedLibrary {
 public:
  explicit LoadedLibrary(void* handle) : handle_(handle) {}
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  ~LoadedLibrary() {
    if (handle_ != nullptr) get_module()->Unload(handle_);
  }

  void* Get() const { return handle_; }
  void* Release() { return std::exchange(handle_, nullptr); }

 private:
  void* handle_;
};

}  // namespace

LsiSender::LsiSender() {
  const std::string path = std::string(get_filesystem()->LibraryDirectory()) + "\\storelib.dll";
  LoadedLibrary library(get_module()->Load(path.c_str(), kLoadMode));
  if (library.Get() == nullptr) throw std::runtime_error("Failed to open the library handle.");
  void* const entry = get_module()->FindSymbol(library.Get(), "ProcessLibCommand");
  if (entry == nullptr) throw std::runtime_error("Failed to obtain the function pointer.");
  processLibCommand = std::bit_cast<ProcessLibCommand*>(entry);
  LsiCommand initialise(lsi::code::kInitialise);
  if (SendCommand(initialise) != 0) throw std::runtime_error("Failed to execute the LSI Init command.");
  libraryHandle = library.Release();
}

LsiSender::~LsiSender() {
  LsiCommand close(lsi::code::kClose);
  SendCommand(close);
  get_module()->Unload(libraryHandle);
}

std::uint32_t LsiSender::SendCommand(LsiCommand& command) const {
  return processLibCommand(command.Packet().data());
}

}  // namespace orvik::module::raid
