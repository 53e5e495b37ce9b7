#pragma once

// The phys of a CSMI controller: the attached devices, and connections to the drives behind them.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "simulation/csmi/csmi_description.h"
#include "simulation/drives/drive.h"

namespace orvik::simulation {

/// The drive at the end of a connection, or the ReturnCode and connection status that explain why there is none.
struct CsmiConnection {
  const Drive* drive = nullptr;
  std::uint32_t returnCode = 0;
  std::uint8_t status = 0;
};

class CsmiPhys {
 public:
  CsmiPhys(const CsmiControllerDescription& description, const std::vector<Drive>& drives);

  std::size_t Count() const { return phys_.size(); }
  /// Fills the 64 bytes of phy number `number`.
  void FillEntity(std::size_t number, std::span<std::uint8_t> entity) const;
  /// The SAS address of drive number `drive`; 0 without a phy.
  std::uint64_t AddressOf(std::size_t drive) const;
  /// Opens a connection to the destination that a pass-through request names.
  CsmiConnection Connect(std::span<const std::uint8_t> request) const;

 private:
  struct Phy {
    std::uint8_t identifier;
    std::uint8_t port;
    SasDeviceType deviceType;
    SasProtocol protocol;
    std::uint64_t attachedAddress;
    std::optional<std::size_t> driveNumber;
    std::optional<Drive> drive;
  };

  static Phy MakePhy(const CsmiPhyDescription& description, std::size_t number, const std::vector<Drive>& drives,
                     std::uint64_t controllerAddress);
  const Phy* FindByIdentifier(std::uint8_t identifier) const;
  const Phy* FindByPort(std::uint8_t port) const;

  std::uint64_t controllerAddress_;
  std::vector<Phy> phys_;
};

}  // namespace orvik::simulation
