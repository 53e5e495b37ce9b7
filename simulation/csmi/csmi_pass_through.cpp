// The pass-through packets of a CSMI controller: SCSI commands in SSP, ATA commands in STP.

#include <algorithm>
#include <array>

#include "simulation/csmi/csmi_controller.h"
#include "simulation/csmi/csmi_layout.h"
#include "simulation/drives/ata/ata_registers.h"

namespace orvik::simulation {

namespace {

// Chipset controllers report kSspEnded for every exchange that ended; only the SCSI status shows the outcome.
constexpr std::uint8_t kSspEnded = 0;
constexpr std::uint8_t kSspFatalError = 3;

constexpr std::uint8_t kNoData = 0;
constexpr std::uint8_t kSenseData = 2;

constexpr std::uint32_t kLinkUpAt6Gbit = 0x133;
constexpr std::uint32_t kNoPowerTransitions = 0x300;

// The part of the packet that the drive reads or fills. Empty when the request and the command disagree on the
// direction.
std::span<std::uint8_t> DataArea(std::span<std::uint8_t> packet, Block area, std::uint32_t flags,
                                 DataDirection direction) {
  const std::uint32_t wanted = direction == DataDirection::In ? pass_through::kRead : pass_through::kWrite;
  if (direction == DataDirection::None || (flags & wanted) == 0) return {};
  return Inside(packet, area);
}

void WriteScsiCompletion(std::span<std::uint8_t> packet, const ScsiCompletion& completion) {
  const bool hasSense = !completion.sense.empty();
  Set(packet, ssp_pass_through::kSspStatus, kSspEnded);
  Set(packet, ssp_pass_through::kDataPresent, hasSense ? kSenseData : kNoData);
  Set(packet, ssp_pass_through::kStatus, completion.status);
  Set(packet, ssp_pass_through::kResponseLength, static_cast<std::uint16_t>(completion.sense.size()));
  SetBytes(packet, ssp_pass_through::kResponse, completion.sense);
  Set(packet, ssp_pass_through::kDataBytes, static_cast<std::uint32_t>(completion.transferred));
}

}  // namespace

std::uint32_t CsmiController::SspPassThrough(std::span<std::uint8_t> packet) {
  const Block area{ssp_pass_through::kData, Get(packet, ssp_pass_through::kDataLength)};
  const std::size_t cdbLength = Get(packet, ssp_pass_through::kCdbLength);
  if (!Holds(packet.size(), area) || cdbLength > ssp_pass_through::kCdb.size) return kCsmiInvalidParameter;
  const CsmiConnection connection = phys_.Connect(packet);
  Set(packet, ssp_pass_through::kConnectionStatus, connection.status);
  if (connection.drive == nullptr) {
    Set(packet, ssp_pass_through::kSspStatus, kSspFatalError);
    return connection.returnCode;
  }

  const auto* drive = std::get_if<std::shared_ptr<ScsiDrive>>(connection.drive);
  std::optional<ScsiCompletion> completion;
  if (drive != nullptr) {
    const auto cdb = Inside(packet, {ssp_pass_through::kCdb.offset, cdbLength});
    const std::uint32_t flags = Get(packet, ssp_pass_through::kFlags);
    completion = (*drive)->Execute(cdb, DataArea(packet, area, flags, ScsiDrive::DirectionOf(cdb)));
  }
  if (!completion) {
    Set(packet, ssp_pass_through::kConnectionStatus,
        drive == nullptr ? kOpenRejectProtocolNotSupported : kOpenRejectNoDestination);
    Set(packet, ssp_pass_through::kSspStatus, kSspFatalError);
    return kCsmiConnectionFailed;
  }
  WriteScsiCompletion(packet, *completion);
  return kCsmiSuccess;
}

std::uint32_t CsmiController::StpPassThrough(std::span<std::uint8_t> packet) {
  const Block area{stp_pass_through::kData, Get(packet, stp_pass_through::kDataLength)};
  const auto command = ReadCommandFis(Inside(packet, stp_pass_through::kCommandFis));
  if (!Holds(packet.size(), area) || !command) return kCsmiInvalidParameter;
  const CsmiConnection connection = phys_.Connect(packet);
  Set(packet, stp_pass_through::kConnectionStatus, connection.status);
  if (connection.drive == nullptr) return connection.returnCode;

  const auto* drive = std::get_if<std::shared_ptr<AtaDrive>>(connection.drive);
  if (drive == nullptr) {
    Set(packet, stp_pass_through::kConnectionStatus, kOpenRejectProtocolNotSupported);
    return kCsmiNoSataDevice;
  }
  const std::uint32_t flags = Get(packet, stp_pass_through::kFlags);
  const auto data = DataArea(packet, area, flags, AtaDrive::DirectionOf(*command));
  const auto completion = (*drive)->Execute(*command, data);
  if (!completion) {
    Set(packet, stp_pass_through::kConnectionStatus, kOpenRejectNoDestination);
    return kCsmiConnectionFailed;
  }
  WriteStatusFis(Inside(packet, stp_pass_through::kStatusFis), *completion);
  Set(packet, stp_pass_through::kSStatus, kLinkUpAt6Gbit);
  Set(packet, stp_pass_through::kSControl, kNoPowerTransitions);
  Set(packet, stp_pass_through::kDataBytes, static_cast<std::uint32_t>(completion->transferred));
  return kCsmiSuccess;
}

}  // namespace orvik::simulation
