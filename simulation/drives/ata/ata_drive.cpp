#include "simulation/drives/ata/ata_drive.h"

#include <algorithm>
#include <array>
#include <utility>

#include "simulation/drives/ata/identify_data.h"

namespace orvik::simulation {

namespace {

constexpr std::uint8_t kIdentifyDevice = 0xEC;

constexpr std::uint8_t kStatusGood = 0x50;    // DRDY, DSC
constexpr std::uint8_t kStatusFailed = 0x51;  // DRDY, DSC, ERR
constexpr std::uint8_t kErrorAborted = 0x04;  // ABRT

AtaCompletion Completed(const AtaTaskFile& command, std::size_t transferred) {
  return {kStatusGood, 0, command.count, command.lba, command.device, transferred};
}

AtaCompletion Aborted(const AtaTaskFile& command) {
  return {kStatusFailed, kErrorAborted, command.count, command.lba, command.device, 0};
}

AtaCompletion IdentifyDevice(AtaDrive& drive, const AtaTaskFile& command, std::span<std::uint8_t> data) {
  const auto identify = drive.IdentifyData();
  const std::size_t size = std::min(identify.size(), data.size());
  std::copy_n(identify.begin(), size, data.begin());
  return Completed(command, size);
}

}  // namespace

AtaDrive::AtaDrive(SataDriveDescription description)
    : description_(std::move(description)),
      identify_(description_.identify.empty() ? MakeIdentifyData(description_) : description_.identify) {}

std::optional<AtaCompletion> AtaDrive::Execute(const AtaTaskFile& command, std::span<std::uint8_t> data) {
  struct Handler {
    std::uint8_t command;
    AtaCompletion (*execute)(AtaDrive&, const AtaTaskFile&, std::span<std::uint8_t>);
  };
  static constexpr std::array kHandlers = {Handler{kIdentifyDevice, IdentifyDevice}};

  if (description_.silent) return std::nullopt;
  const auto* handler = std::ranges::find(kHandlers, command.command, &Handler::command);
  if (handler == kHandlers.end()) return Aborted(command);
  return handler->execute(*this, command, data);
}

}  // namespace orvik::simulation
