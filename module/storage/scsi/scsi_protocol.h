#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <utility>

#include "module/storage/bridge_list.h"
#include "module/storage/protocol.h"
#include "module/storage/scsi/block_commands.h"
#include "module/storage/scsi/scsi_bridge.h"
#include "module/storage/scsi/scsi_commands.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

/// A drive that speaks SCSI (SAS).
class ScsiProtocol final : public Protocol {
 public:
  ScsiProtocol() = default;

  /// Appends a bridge unless it is there already; true when it was appended.
  bool AddBridge(std::shared_ptr<ScsiBridge> bridge) { return bridges_.Add(std::move(bridge)); }

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
  Status WriteUncorrectable(std::uint64_t /*lba*/) override { return status::kSuccess; }
  Status Write(std::uint64_t lba, std::uint16_t count, std::uint64_t ignored, std::uint8_t* buffer) override;
  Status GetLifeRemaining(std::uint32_t& /*percent*/) override { return status::kSuccess; }
  Status GetPowerMode(std::uint32_t& /*mode*/) override { return status::kSuccess; }
  Status Idle() override { return status::kSuccess; }

  /// SCSI status of the last self-test start.
  std::uint8_t LastSelfTestStatus() const { return lastSelfTestStatus_; }

 private:
  /// The shortest CDB that reads still have to try; never goes back.
  enum class ReadCdb : std::uint32_t { kRead16 = 0, kRead12 = 1, kRead10 = 2 };

  /// The bytes of the informational exceptions control page that `SetSmartEnabled` changes.
  struct IecBytes {
    std::uint8_t reportMethod = 0;
    std::uint8_t flags = 0;
  };

  /// Sends; sense data that refuses the command gives 78, undecodable sense data 79. The SCSI status is not looked
  /// at.
  Status Send(ScsiCmd& command);
  /// Sends; a SCSI status other than GOOD gives 33. `reply`: the received bytes in the command's buffer.
  Status Fetch(ScsiCmd& command, utils::ByteView& reply);

  void ReadInquiry();
  void ReadSerialNumber();
  Status ReadCapacity();
  bool TakeCapacity16();
  void ReadRotationRate();
  void ProbeFailurePrediction();

  std::unique_ptr<storage::Read> MakeRead(std::uint8_t* buffer, std::uint64_t lba, std::uint16_t count) const;

  Status FetchSelfTestPage(ScsiCmd& command, utils::ByteView& page);
  Status AskExceptionsPage(bool& healthy);
  Status AskSense(bool& healthy);
  template <typename Form>
  Status ReadIecPage(std::array<std::uint8_t, Form::kSize>& data);
  template <typename Form>
  Status ChangeIecPage(bool enable);

  BridgeList<ScsiSendRule> bridges_;
  IecBytes savedIec_;
  std::uint8_t lastSelfTestStatus_ = 0;
  bool iecUnsaved_ = true;
  ReadCdb readCdb_ = ReadCdb::kRead16;
};

}  // namespace orvik::module::storage
