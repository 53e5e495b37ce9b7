#pragma once

// A RAID controller that speaks the Common Storage Management Interface: it answers packets from their bytes.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "simulation/csmi/csmi_description.h"
#include "simulation/csmi/csmi_phys.h"
#include "simulation/csmi/nvme_paths.h"
#include "simulation/drives/drive.h"

namespace orvik::simulation {

/// Thread-safe.
class CsmiController {
 public:
  /// Throws std::out_of_range when a phy or RAID member names a drive that is not in the list.
  explicit CsmiController(const CsmiControllerDescription& description,
                          const std::shared_ptr<const Clock>& clock = std::make_shared<const Clock>(1));

  /// The name of the packet with this header ("CC_CSMI_SAS_GET_PHY_INFO"); empty for other packets.
  static std::string_view PacketName(std::span<const std::uint8_t> packet);
  /// True when a packet has this name.
  static bool HasPacket(std::string_view name);
  /// True when the packet's signature is one of this interface, whatever its control code.
  static bool Recognises(std::span<const std::uint8_t> packet);

  /// Executes `packet` (header included) in place and sets its ReturnCode.
  void Answer(std::span<std::uint8_t> packet);
  /// The NVMe drives, which have requests of their own.
  const NvmePaths& Nvme() const { return nvmePaths_; }

 private:
  // A packet's control code, its least size and its handler.
  struct Packet {
    std::string_view name;
    std::string_view signature;
    std::uint32_t controlCode;
    std::size_t size;
    std::uint32_t (CsmiController::*answer)(std::span<std::uint8_t>);
  };

  static std::span<const Packet> Packets();
  static const Packet* Find(std::span<const std::uint8_t> packet);

  std::uint32_t GetControllerConfig(std::span<std::uint8_t> packet);
  std::uint32_t GetControllerStatus(std::span<std::uint8_t> packet);
  std::uint32_t GetPhyInfo(std::span<std::uint8_t> packet);
  std::uint32_t GetRaidInfo(std::span<std::uint8_t> packet);
  std::uint32_t GetRaidConfig(std::span<std::uint8_t> packet);
  std::uint32_t SspPassThrough(std::span<std::uint8_t> packet);
  std::uint32_t StpPassThrough(std::span<std::uint8_t> packet);

  void FillRaidDrive(const CsmiRaidMemberDescription& member, std::span<std::uint8_t> entry) const;

  CsmiControllerDescription description_;
  std::vector<Drive> drives_;
  CsmiPhys phys_;
  NvmePaths nvmePaths_;
};

}  // namespace orvik::simulation
