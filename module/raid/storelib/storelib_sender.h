#pragma once

#include <cstdint>

#include "module/raid/storelib/storelib_command.h"

namespace orvik::module::raid {

/// The vendor's library: loaded and initialised for as long as the sender lives, and closed with it. Shared by
/// everything that talks to a storelib controller. Holds no lock; commands may be sent from several threads.
class LsiSender {
 public:
  /// Throws `std::runtime_error` when the library can't be loaded, lacks its entry point or can't be initialised;
  /// nothing stays loaded then.
  LsiSender();
  LsiSender(const LsiSender&) = delete;
  LsiSender& operator=(const LsiSender&) = delete;
  ~LsiSender();

  /// The library's status as it is, 0 for success.
  std::uint32_t SendCommand(LsiCommand& command) const;

 private:
  using ProcessLibCommand = std::uint32_t(void* packet);

  ProcessLibCommand* processLibCommand = nullptr;
  void* libraryHandle = nullptr;
};

}  // namespace orvik::module::raid
