#include <iostream>
#include <type_traits>

#include "tests/host/fake_module.h"

// Defined here because the host's tests do not link the module's library.
namespace orvik::module::storage {
Protocol::Protocol() : properties_(std::make_shared<ProtocolProperties>()) {}
Protocol::~Protocol() = default;
bool Protocol::IsSupported() {
  return true;
}
}  // namespace orvik::module::storage

namespace orvik::tests {
namespace {

using namespace module::storage;

class Drive final : public Protocol {
 public:
  explicit Drive(FakeDrive kind) : kind_(kind) {}

  Status GetProperties(ProtocolProperties* properties) override {
    if (kind_ == FakeDrive::Silent) return status::kDeviceError;
    properties->protocolName = kind_ == FakeDrive::Nvme ? "NVMe" : kind_ == FakeDrive::Scsi ? "SCSI" : "ATA";
    properties->serialNumber = kind_ == FakeDrive::OtherAta ? "SER-2" : "SER-1";
    if (kind_ == FakeDrive::Scsi) return status::kScsiStatusNotGood;
    properties->sectorCount = 17592186044417;  // times 512: a whole number that a double cannot hold
    properties->logicalSectorSize = 512;
    return status::kSuccess;
  }

  Status StartSelfTest(std::uint8_t code, std::uint8_t /*count*/) override {
    Log("self-test " + std::to_string(code) + (IsAta() ? " by ATA" : " by SCSI"));
    if (IsInMood("endless")) std::cerr << "waiting\nwaiting\n" << std::flush;
    return kind_ == FakeDrive::Silent ? status::kDeviceError : status::kSuccess;
  }

  Status GetSelfTestProgress(std::uint8_t& percent) override {
    return ++looks_, Report(percent, 50, kind_ == FakeDrive::Ata);
  }

  Status GetSelfTestResult(std::uint8_t& result) override {
    if (looks_ == 0) return Report(result, 7, kind_ == FakeDrive::Ata);
    if (isAborted_) return Report(result, 1, true);
    const bool isOver = looks_ > 1 && !IsInMood("endless");
    return Report(result, isOver ? static_cast<std::uint8_t>(Environment(kSelfTestEnvironment)[0] - '0') : 15, true);
  }

  Status AbortSelfTest() override {
    Log("self-test aborted");
    isAborted_ = true;
    return status::kSuccess;
  }
  Status GetSelfTestFailingLba(std::uint64_t& lba) override { return Report(lba, 1234, true); }
  Status GetTemperature(std::uint8_t& degrees) override { return Report(degrees, 33, IsAta()); }
  Status GetHealthStatus(std::uint8_t& healthy) override { return Report(healthy, 0, IsAta()); }
  Status GetLifeRemaining(std::uint32_t& percent) override {
    return Report(percent, kind_ == FakeDrive::Nvme ? 97 : 101, kind_ != FakeDrive::Scsi);
  }
  Status GetPowerMode(std::uint32_t& mode) override { return Report(mode, 2, kind_ == FakeDrive::Ata); }

  void* GetHandle() const override { return nullptr; }
  Status Read(std::uint64_t, std::uint16_t, std::uint32_t, std::uint8_t*, std::uint32_t) override { return 0; }
  Status SetSmartEnabled(std::uint8_t) override { return 0; }
  Status WriteUncorrectable(std::uint64_t) override { return 0; }
  Status Write(std::uint64_t, std::uint16_t, std::uint64_t, std::uint8_t*) override { return 0; }
  Status Idle() override { return 0; }

 private:
  bool IsAta() const { return kind_ == FakeDrive::Ata || kind_ == FakeDrive::OtherAta; }

  // A missing operation fails on SCSI drives and leaves the output untouched on NVMe drives.
  template <typename Value>
  Status Report(Value& output, std::type_identity_t<Value> value, bool isKnown) const {
    if (isKnown) output = value;
    return isKnown || kind_ == FakeDrive::Nvme ? status::kSuccess : status::kFailure;
  }

  FakeDrive kind_;
  int looks_ = 0;
  bool isAborted_ = false;
};

}  // namespace

std::shared_ptr<module::storage::Protocol> MakeFakeDrive(FakeDrive kind) {
  return std::make_shared<Drive>(kind);
}

}  // namespace orvik::tests
