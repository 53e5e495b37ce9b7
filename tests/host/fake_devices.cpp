#include <stdexcept>

#include "module/raid/device_records.h"
#include "tests/host/fake_module.h"

namespace orvik::tests {
namespace {

using module::raid::ControllerInfo;
using module::raid::DriveProtocol;
using module::raid::LogicalDrive;
using module::raid::LogicalDriveState;
using module::raid::PhysicalDrive;
using module::raid::StorageDeviceEntry;

constexpr std::uint32_t kSlotStatus = 66;

class FakeDevice final : public module::raid::RaidDevice {
 public:
  FakeDevice(std::string id, std::string name) : id_(std::move(id)), name_(std::move(name)) {}

  std::string GetId() const override { return id_; }
  std::string GetName() const override { return name_; }
  bool HasUdi() const override { return true; }
  std::string GetUdi() const override { return name_ + "-" + id_; }
  core::KeyValueList GetExtraProperties() const override { return {}; }
  std::vector<std::string> GetTags() const override { return {"fake"}; }
  bool IsTestable() const override { return true; }
  void Refresh() override {}

  std::uint32_t GetControllerInfo(ControllerInfo& info) override {
    if (IsInMood("slots-fail")) return kSlotStatus;
    info.model = name_;
    info.logicalDriveCount = 1;
    info.supportedRaidLevels = {"RAID 1"};
    return 0;
  }

  std::uint32_t GetLogicalDrives(std::vector<LogicalDrive>& drives) override {
    if (IsInMood("slots-fail")) throw std::runtime_error("the cable\nis loose");
    LogicalDrive drive;
    drive.name = "7";
    drive.raidLevel = "RAID 1";
    drive.state = LogicalDriveState::Degraded;
    drive.memberCount = 2;
    drive.sizeBytes = 9007199254740993;  // the first whole number that a double cannot hold
    drive.failedMembers = {"DISK B   - S2\xFF  "};
    drives.push_back(drive);
    return 0;
  }

  std::uint32_t GetPhysicalDrives(std::vector<PhysicalDrive>& drives) override {
    if (IsInMood("slots-fail")) return kSlotStatus;
    PhysicalDrive drive;
    drive.protocol = DriveProtocol::Nvme;
    drive.manufacturer = "ACME    ";
    drive.model = std::string("DISK A\0\0", 8);
    drive.serial = "S1\x1B[31m";
    drive.sizeBytes = 1000;
    drives.push_back(drive);
    return 0;
  }

  std::uint32_t GetStorageDevices(std::vector<StorageDeviceEntry>& devices) override {
    if (id_ == "A77F") {
      devices.push_back({"d-0", DriveProtocol::Ata, MakeFakeDrive(FakeDrive::Ata), nullptr});
      devices.push_back({"d-1", DriveProtocol::Scsi, MakeFakeDrive(FakeDrive::Silent), nullptr});
      devices.push_back({"d-2", DriveProtocol::Nvme, MakeFakeDrive(FakeDrive::Nvme), nullptr});
    } else {
      devices.push_back({"d-0", DriveProtocol::Ata, MakeFakeDrive(FakeDrive::Scsi), MakeFakeDrive(FakeDrive::Ata)});
      devices.push_back({"d-4", DriveProtocol::Scsi, MakeFakeDrive(FakeDrive::Scsi), nullptr});
      devices.push_back(
          {"r-260", DriveProtocol::Ata, MakeFakeDrive(FakeDrive::Scsi), MakeFakeDrive(FakeDrive::OtherAta)});
    }
    return IsInMood("slots-fail") ? kSlotStatus : 0;
  }

 private:
  std::string id_;
  std::string name_;
};

class FakeScanner final : public core::DeviceScanner {
 public:
  void Scan(std::shared_ptr<core::ScanListener> listener) override {
    if (IsInMood("scan-throws")) throw std::runtime_error("no bus");
    devices_.clear();
    if (!IsInMood("empty")) {
      devices_.push_back(std::make_shared<FakeDevice>("A77F", "First\xC3\x28"));
      devices_.push_back(std::make_shared<FakeDevice>("0", "Second"));
    }
    for (const auto& device : devices_) listener->OnDeviceFound(Describe(*device));
    listener->OnScanFinished();
  }

  void CheckPresence(std::shared_ptr<core::ScanListener> listener) override {
    listener->OnPresenceChecked(!IsInMood("empty"));
  }

  std::weak_ptr<core::Device> FindDevice(std::string id) const override {
    for (const auto& device : devices_) {
      if (device->GetId() == id) return device;
    }
    return {};
  }

  std::vector<std::weak_ptr<core::Device>> GetDevices() const override { return {devices_.begin(), devices_.end()}; }

 private:
  static core::DeviceDescription Describe(const core::Device& device) {
    core::DeviceDescription description;
    description.id = device.GetId();
    description.udi = device.GetUdi();
    description.name = device.GetName();
    description.properties = {{"MODEL", device.GetName()}, {"SERIAL", "  \x07 77 "}};
    description.resources = {
        {{"RESOURCE_TYPE", "LOGICAL_DISK"},
         {"INDEX", "0"},
         {"RAID_LEVEL", "RAID 1"},
         {"NUM_PHYSICAL_DEVICES", "2"},
         {"SIZE", "9.01 PB"}},
        {{"RESOURCE_TYPE", "PHYSICAL_DISK"}, {"INDEX", "1"}, {"MODEL", "DISK A"}, {"SIZE", "1 kB"}}};
    description.tags = device.GetTags();
    description.testable = device.IsTestable();
    return description;
  }

  std::vector<std::shared_ptr<core::Device>> devices_;
};

}  // namespace

std::shared_ptr<core::DeviceScanner> MakeFakeScanner() {
  return std::make_shared<FakeScanner>();
}

}  // namespace orvik::tests
