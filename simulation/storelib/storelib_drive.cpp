#include "simulation/storelib/storelib_drive.h"

#include <algorithm>
#include <array>
#include <string>

#include "simulation/drives/ata/ata_registers.h"

namespace orvik::simulation {

namespace {

constexpr std::uint8_t kLbaMode = 0x40;  // of the device register
constexpr std::uint32_t kBlockSize = 512;
constexpr std::uint8_t kInquiry = 0x12;
constexpr std::uint8_t kAtaErrorBit = 0x01;

// The last four characters of an ATA revision, unless they are blank.
std::string ScsiRevision(std::string firmware) {
  firmware.resize(8, ' ');
  const std::string last = firmware.substr(4);
  return last == "    " ? firmware.substr(0, 4) : last;
}

// The operation codes that the controller translates for SATA drives: TEST UNIT READY, INQUIRY and READ CAPACITY.
std::vector<std::uint8_t> UntranslatedOpcodes() {
  constexpr std::array<std::uint8_t, 4> kTranslated = {0x00, 0x12, 0x25, 0x9E};
  std::vector<std::uint8_t> opcodes;
  for (unsigned opcode = 0; opcode <= 0xFF; ++opcode) {
    if (std::ranges::find(kTranslated, opcode) == kTranslated.end()) {
      opcodes.push_back(static_cast<std::uint8_t>(opcode));
    }
  }
  return opcodes;
}

SasDriveDescription Translated(const AtaDrive& drive) {
  const SataDriveDescription& sata = drive.Description();
  return {.vendor = "ATA",
          .product = sata.model.substr(0, 16),
          .revision = ScsiRevision(sata.firmware),
          .serial = sata.serial,
          .sectors = sata.sectors,
          .sectorSize = sata.sectorSize,
          .physicalSectorSize = sata.physicalSectorSize,
          .rotationRate = sata.rotationRate,
          .silent = sata.silent,
          .unsupportedOpcodes = UntranslatedOpcodes(),
          .commandMilliseconds = sata.commandMilliseconds};
}

std::shared_ptr<ScsiDrive> ScsiSide(const Drive& drive, const std::shared_ptr<const Clock>& clock) {
  if (const auto* sas = std::get_if<std::shared_ptr<ScsiDrive>>(&drive)) return *sas;
  const auto* sata = std::get_if<std::shared_ptr<AtaDrive>>(&drive);
  return sata == nullptr ? nullptr : std::make_shared<ScsiDrive>(Translated(**sata), clock);
}

std::uint8_t InterfaceOf(const Drive& drive) {
  if (std::holds_alternative<std::shared_ptr<ScsiDrive>>(drive)) return physical_drive_info::kSas;
  if (std::holds_alternative<std::shared_ptr<AtaDrive>>(drive)) return physical_drive_info::kSata;
  return physical_drive_info::kUnknown;
}

// The bytes of the frame that the drive reads or fills. Empty when the frame and the command disagree on the
// direction.
std::span<std::uint8_t> DataArea(std::span<std::uint8_t> frame, Block area, std::uint8_t wanted,
                                 DataDirection direction) {
  const std::uint8_t own = direction == DataDirection::In ? frame_direction::kIn : frame_direction::kOut;
  if (direction == DataDirection::None || wanted != own) return {};
  return Inside(frame, area);
}

// The frame gives the data direction twice: in a byte and in the flags.
bool DirectionsAgree(std::span<const std::uint8_t> frame) {
  constexpr std::array<std::uint32_t, 3> kFlagOf = {sata_frame::kNone, sata_frame::kOut, sata_frame::kIn};
  const std::uint8_t direction = Get(frame, sata_frame::kDirection);
  const std::uint32_t flags = Get(frame, sata_frame::kFlags) & sata_frame::kDirections;
  return direction < kFlagOf.size() && flags == kFlagOf.at(direction);
}

}  // namespace

StorelibDrive::StorelibDrive(const StorelibPhysicalDriveDescription& description,
                             const std::shared_ptr<const Clock>& clock)
    : deviceId_(description.deviceId),
      scsiDeviceType_(description.scsiDeviceType),
      drive_(MakeDrive(description.drive, clock)),
      interface_(description.interfaceByte.value_or(InterfaceOf(drive_))),
      scsi_(ScsiSide(drive_, clock)) {}

void StorelibDrive::FillInformation(std::span<std::uint8_t> block) const {
  Set(block, physical_drive_info::kDeviceId, deviceId_);
  Set(block, physical_drive_info::kScsiDeviceType, scsiDeviceType_);
  Set(block, physical_drive_info::kInterface, interface_);
  if (scsi_ == nullptr) return;
  const SasDriveDescription& drive = scsi_->Description();
  SetText(block, physical_drive_info::kVendor, drive.vendor, ' ');
  SetText(block, physical_drive_info::kProduct, drive.product, ' ');
  SetText(block, physical_drive_info::kRevision, drive.revision, ' ');
  if (scsiDeviceType_ == kScsiDisk) {
    Set(block, physical_drive_info::kBlocks, drive.sectors * (drive.sectorSize / kBlockSize));
  }
}

std::optional<ScsiCompletion> StorelibDrive::Execute(std::span<const std::uint8_t> cdb,
                                                     std::span<std::uint8_t> data) const {
  auto completion = scsi_->Execute(cdb, data);
  const bool isDisk = scsiDeviceType_ == kScsiDisk;
  if (!isDisk && completion && completion->transferred != 0 && Get(cdb, U8{0}) == kInquiry) {
    data.front() = scsiDeviceType_;
  }
  return completion;
}

StorelibStatus StorelibDrive::ScsiPassThrough(const StorelibRequest& request) const {
  const auto frame = request.data;
  const Block area{scsi_frame::kData, Get(frame, scsi_frame::kDataLength)};
  const std::size_t cdbLength = Get(frame, scsi_frame::kCdbLength);
  const bool wellFormed = Get(frame, scsi_frame::kDeviceId) == deviceId_ && cdbLength != 0 &&
                          cdbLength <= scsi_frame::kCdb.size && Holds(frame.size(), area) &&
                          Get(frame, scsi_frame::kDirection) <= frame_direction::kIn;
  if (!wellFormed) return StorelibStatus::BadParameter;
  if (scsi_ == nullptr) return StorelibStatus::WrongKindOfDevice;
  const auto cdb = Inside(frame, {scsi_frame::kCdb.offset, cdbLength});
  const auto data = DataArea(frame, area, Get(frame, scsi_frame::kDirection), ScsiDrive::DirectionOf(cdb));
  const auto completion = Execute(cdb, data);
  if (!completion) return StorelibStatus::DeviceDoesNotAnswer;

  const auto transferred = static_cast<std::uint32_t>(completion->transferred);
  Set(frame, scsi_frame::kScsiStatus, completion->status);
  SetBytes(frame, scsi_frame::kSense, completion->sense);
  Set(frame, scsi_frame::kDataLength, transferred);
  return completion->status == kScsiGood ? StorelibStatus::Success : StorelibStatus::ScsiCommandFailed;
}

StorelibStatus StorelibDrive::SataPassThrough(const StorelibRequest& request) const {
  const auto frame = request.data;
  const Block area{sata_frame::kData, Get(frame, sata_frame::kDataLength)};
  auto command = ReadCommandFis(Inside(frame, sata_frame::kCommandFis));
  const bool wellFormed = command && Get(frame, sata_frame::kDeviceId) == deviceId_ && DirectionsAgree(frame) &&
                          Get(frame, sata_frame::kFisLength) == sata_frame::kStatusFis.size &&
                          Holds(frame.size(), area);
  if (!wellFormed) return StorelibStatus::BadParameter;
  const auto* drive = std::get_if<std::shared_ptr<AtaDrive>>(&drive_);
  if (drive == nullptr || scsiDeviceType_ != kScsiDisk) return StorelibStatus::WrongKindOfDevice;
  // The controller replaces the host's device register: it addresses by LBA.
  command->device = kLbaMode;
  const auto data = DataArea(frame, area, Get(frame, sata_frame::kDirection), AtaDrive::DirectionOf(*command));
  const auto completion = (*drive)->Execute(*command, data);
  if (!completion) return StorelibStatus::DeviceDoesNotAnswer;

  const bool failed = (completion->status & kAtaErrorBit) != 0;
  const auto transferred = static_cast<std::uint32_t>(completion->transferred);
  WriteStatusFis(Inside(frame, sata_frame::kStatusFis), *completion);
  Set(frame, sata_frame::kCompletionStatus, failed ? sata_frame::kDeviceError : 0);
  Set(frame, sata_frame::kDataLength, transferred);
  return StorelibStatus::Success;
}

}  // namespace orvik::simulation
