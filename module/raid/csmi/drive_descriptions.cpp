#include "module/raid/csmi/drive_descriptions.h"

#include <array>
#include <string>

#include "module/raid/family/pass_through.h"
#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/identify_data.h"
#include "module/storage/scsi/inquiry_data.h"
#include "module/storage/scsi/scsi_commands.h"
#include "utils/text/string_handler.h"

namespace orvik::module::raid {

namespace {

using storage::Status;

namespace status = storage::status;

constexpr std::uint64_t kBytesPerMebibyte = 1'048'576;

std::string RaidLevel(std::uint8_t type) {
  static constexpr std::array<const char*, 10> kLevels = {"SINGLE_DRIVE_RAID_SET",
                                                          "RAID 0",
                                                          "RAID 1",
                                                          "RAID 10",
                                                          "RAID 5",
                                                          "RAID 15",
                                                          "RAID 6",
                                                          "RAID 50",
                                                          "UNKNOWN",
                                                          "RAID 10"};
  return type < kLevels.size() ? kLevels.at(type) : "UNKNOWN";
}

LogicalDriveState State(std::uint8_t status) {
  switch (status) {
    case 0: return LogicalDriveState::Optimal;
    case csmi::raid_configuration::kStatusDegraded: return LogicalDriveState::Degraded;
    case 2: return LogicalDriveState::Rebuilding;
    case 3: return LogicalDriveState::Failed;
    default: return LogicalDriveState::Unknown;
  }
}

}  // namespace

Status IdentifySataDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive) {
  std::array<std::uint8_t, storage::IdentifyDevice::kDataSize> data{};
  StpPassThroughPacket packet(storage::IdentifyDevice(data.data()), phyEntry);
  if (const Status sent = ExchangeCsmiPacket(port, packet); !sent.Ok()) return sent;
  if ((packet.StatusFis().Get(status_fis::kStatus) & storage::kAtaStatusError) != 0) return status::kAtaError;

  const utils::ByteView identify = packet.Data();
  drive.model = storage::IdentifyModel(identify);
  drive.manufacturer = storage::VendorFromModel(drive.model);
  drive.sizeBytes = storage::CapacityInBytes(identify);
  drive.protocol = DriveProtocol::Ata;
  return status::kSuccess;
}

Status IdentifySasDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive) {
  std::array<std::uint8_t, storage::inquiry_data::kMinimumSize> inquiryData{};
  SspPassThroughPacket inquiry(storage::Inquiry(inquiryData.data(), storage::inquiry_data::kMinimumSize, false, 0),
                               phyEntry);
  if (const Status sent = ExchangeCsmiPacket(port, inquiry); !sent.Ok()) return sent;
  if (inquiry.View().Get(csmi::ssp::kScsiStatus) != storage::kScsiStatusGood) return status::kScsiStatusNotGood;

  std::array<std::uint8_t, storage::ReadCapacity16::kDataSize> capacityData{};
  SspPassThroughPacket capacity(storage::ReadCapacity16(capacityData.data()), phyEntry);
  if (const Status sent = ExchangeCsmiPacket(port, capacity); !sent.Ok()) return sent;
  // For this command the status of the SSP transport decides, not the SCSI status.
  if (capacity.View().Get(csmi::ssp::kSspStatus) != 0) return status::kScsiStatusNotGood;

  drive.manufacturer = inquiry.Data().Text(storage::inquiry_data::kVendor);
  drive.model = inquiry.Data().Text(storage::inquiry_data::kProduct);
  drive.sizeBytes = (capacity.Data().Get(storage::read_capacity16_data::kLastLba) + 1) *
                    capacity.Data().Get(storage::read_capacity16_data::kBlockLength);
  drive.protocol = DriveProtocol::Scsi;
  return status::kSuccess;
}

LogicalDrive DescribeRaidSet(std::uint32_t index, const RaidConfigurationPacket& set) {
  using namespace csmi::raid_configuration;
  const utils::ByteView reply = set.View();
  LogicalDrive drive;
  drive.memberCount = reply.Get(kDriveCount);
  drive.raidLevel = RaidLevel(reply.Get(kRaidType));
  drive.sizeBytes = reply.Get(kCapacity) * kBytesPerMebibyte;
  drive.name = std::to_string(index);
  drive.state = State(reply.Get(kStatus));
  if (drive.state == LogicalDriveState::Degraded) {
    // Entries beyond the drive count are zero bytes, not a drive.
    const auto members = set.Drives();
    const std::size_t number = reply.Get(kInformation);
    if (number < members.size()) {
      const utils::ByteView failed = members[number];
      drive.failedMembers.push_back(failed.Text(csmi::raid_drive::kModel) + " - " +
                                    failed.Text(csmi::raid_drive::kSerialNumber));
    }
  }
  return drive;
}

bool IsNvmeMember(utils::ByteView driveEntry) {
  std::string model = driveEntry.Text(csmi::raid_drive::kModel);
  OwnStringHandler()->ToLower(model);
  return model.find("nvme") != std::string::npos;
}

}  // namespace orvik::module::raid
