#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <utility>

#include "module/storage/bridge_list.h"
#include "module/storage/nvme/nvme_bridge.h"
#include "module/storage/nvme/nvme_commands.h"
#include "module/storage/protocol.h"

namespace orvik::module::storage {

/// A drive that speaks NVMe. Self-tests, failure-prediction control, power and write operations have no effect.
class NvmeProtocol final : public Protocol {
 public:
  NvmeProtocol() = default;

  /// Appends a bridge unless it is there already; true when it was appended.
  bool AddBridge(std::shared_ptr<NvmeBridge> bridge) { return bridges_.Add(std::move(bridge)); }

  /// Names the drive behind the bridges (see `FindNvmePath`).
  void SetPathId(std::uint8_t pathId) { pathId_ = pathId; }

  void* GetHandle() const override { return handle_; }
  Status GetProperties(ProtocolProperties* properties) override;
  Status Read(std::uint64_t lba, std::uint16_t count, std::uint32_t timeout, std::uint8_t* buffer,
              std::uint32_t length) override;
  Status GetTemperature(std::uint8_t& degrees) override;
  Status StartSelfTest(std::uint8_t /*code*/, std::uint8_t /*count*/) override { return status::kSuccess; }
  Status GetSelfTestProgress(std::uint8_t& /*percent*/) override { return status::kSuccess; }
  Status GetSelfTestResult(std::uint8_t& /*result*/) override { return status::kSuccess; }
  Status AbortSelfTest() override { return status::kSuccess; }
  Status GetSelfTestFailingLba(std::uint64_t& /*lba*/) override { return status::kSuccess; }
  Status GetHealthStatus(std::uint8_t& /*healthy*/) override { return status::kSuccess; }
  Status SetSmartEnabled(std::uint8_t /*enable*/) override { return status::kSuccess; }
  Status WriteUncorrectable(std::uint64_t /*lba*/) override { return status::kSuccess; }
  Status Write(std::uint64_t /*lba*/, std::uint16_t /*count*/, std::uint64_t /*ignored*/,
               std::uint8_t* /*buffer*/) override {
    return status::kNotAvailable;
  }
  Status GetLifeRemaining(std::uint32_t& percent) override;
  Status GetPowerMode(std::uint32_t& /*mode*/) override { return status::kSuccess; }
  Status Idle() override { return status::kSuccess; }

 private:
  using IdentifyData = std::array<std::uint8_t, NvmeIdentifyDevice::kDataSize>;
  using LogData = std::array<std::uint8_t, nvme_log::kSize>;

  Status Send(NvmeCmd& command);
  /// Gets identify data or a log: 0, or 88.
  Status Identify(IdentifyTarget target, std::uint32_t namespaceNumber, IdentifyData& data);
  Status GetLog(std::uint8_t logPage, LogData& data);

  Status IdentifyDrive();
  Status ReadCapacity(bool managesNamespaces);
  Status TakeNamespace(std::uint32_t namespaceNumber);
  void ReadLabel();

  BridgeList<NvmeSendRule> bridges_;
  void* handle_ = nullptr;
  std::uint8_t pathId_ = 0;
};

}  // namespace orvik::module::storage
