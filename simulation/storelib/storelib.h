#pragma once

// The vendor's library: it takes command packets and hands them to the controllers that it manages.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <string_view>
#include <vector>

#include "simulation/storelib/storelib_controller.h"
#include "simulation/storelib/storelib_description.h"
#include "simulation/storelib/storelib_request.h"

namespace orvik::simulation {

/// Thread-safe.
class Storelib {
 public:
  Storelib(const StorelibDescription& description, const std::shared_ptr<const Clock>& clock);

  /// The name of the command in a packet ("STORELIB_CONTROLLER_INFO"); empty for unknown commands.
  static std::string_view CommandName(std::span<const std::uint8_t> packet);
  /// True when a command has this name.
  static bool HasCommand(std::string_view name);

  /// Executes the command in `packet` on `data`, the block that the packet names; both are changed in place. 0 is
  /// success.
  std::uint32_t Execute(std::span<std::uint8_t> packet, std::span<std::uint8_t> data);

  StorelibInstallation Installation() const { return installation_; }
  /// Initialisations that have not been closed.
  std::size_t Sessions() const;
  /// Null when no controller has this id.
  StorelibController* FindController(std::uint32_t controllerId) const;

 private:
  // Answered by the library itself or by the controller that the packet names.
  struct Command {
    std::string_view name;
    std::uint8_t type;
    std::uint8_t command;
    std::size_t leastData;
    StorelibStatus (Storelib::*own)(const StorelibRequest&);
    StorelibStatus (StorelibController::*ofController)(const StorelibRequest&);
  };
  static std::span<const Command> Commands();
  static const Command* Find(std::span<const std::uint8_t> packet);

  StorelibStatus Initialise(const StorelibRequest& request);
  StorelibStatus ListControllers(const StorelibRequest& request);
  StorelibStatus Close(const StorelibRequest& request);

  std::vector<std::unique_ptr<StorelibController>> controllers_;
  StorelibInstallation installation_;
  mutable std::mutex mutex_;
  std::size_t sessions_ = 0;
};

}  // namespace orvik::simulation
