#include "module/raid/csmi/raid_set.h"

#include <array>

#include "utils/text/string_handler.h"

namespace orvik::module::raid {

namespace {

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
    const utils::ByteView failed = reply.Sub(kDrives.At(reply.Get(kInformation)));
    if (failed.Size() != 0) {
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
