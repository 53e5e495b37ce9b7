#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <utility>

#include "module/storage/ata/ata_bridge.h"
#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/ata_logs.h"
#include "module/storage/bridge_list.h"
#include "module/storage/protocol.h"

namespace orvik::module::storage {

/// A drive that speaks ATA.
class AtaProtocol final : public Protocol {
 public:
  AtaProtocol() : logs_(bridges_) {}

  /// Appends a bridge unless it is there already; true when it was appended.
  bool AddBridge(std::shared_ptr<AtaBridge> bridge) { return bridges_.Add(std::move(bridge)); }

  void* GetHandle() const override { return bridges_.FirstHandle(); }
  Status GetProperties(ProtocolProperties* properties) override;
  Status Read(std::uint64_t lba, std::uint16_t count, std::uint32_t timeout, std::uint8_t* buffer,
              std::uint32_t length) override;
  Status GetTemperature(std::uint8_t& degrees) override;
  Status StartSelfTest(std::uint8_t code, std::uint8_t count) override;
  Status GetSelfTestProgress(std::uint8_t& percent) override;
  Status GetSelfTestResult(std::uint8_t& result) override;
  Status AbortSelfTest() override;
  Status GetSelfTestFailingLba(std::uint64_t& lba) override;
  Status GetHealthStatus(std::uint8_t& healthy) override;
  Status SetSmartEnabled(std::uint8_t enable) override;
  Status WriteUncorrectable(std::uint64_t lba) override;
  Status Write(std::uint64_t lba, std::uint16_t count, std::uint64_t ignored, std::uint8_t* buffer) override;
  Status GetLifeRemaining(std::uint32_t& percent) override;
  Status GetPowerMode(std::uint32_t& mode) override;
  Status Idle() override;

 private:
  using Page = std::array<std::uint8_t, kAtaPageSize>;

  /// Sends; a command that the drive ended with an error gives 88.
  Status Execute(AtaCmd& command);
  Status ReadSmartData(Page& data);
  Status IdentifyInto(ProtocolProperties& properties);
  /// The sectors fit the drive's way of addressing and a pass-through packet.
  bool CanTransfer(std::uint64_t lba, std::uint16_t count, const std::uint8_t* buffer) const;
  Status ReadExtendedSelfTestLog(std::uint16_t pages, std::uint64_t& lba);

  BridgeList<AtaSendRule> bridges_;
  AtaLogs logs_;
};

}  // namespace orvik::module::storage
