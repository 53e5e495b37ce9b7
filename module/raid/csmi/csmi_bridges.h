#pragma once

#include <array>
#include <cstdint>

#include <windows.h>

#include "module/raid/csmi/csmi_layout.h"
#include "module/raid/csmi/csmi_packet.h"
#include "module/storage/ata/ata_bridge.h"
#include "module/storage/scsi/scsi_bridge.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::raid {

/// A drive's 64-byte entry of the phy information: its address behind the controller.
using PhyEntry = std::array<std::uint8_t, csmi::phy_information::kPhys.stride>;

/// Carries SCSI commands to the SAS drive on a phy. The port handle is the controller's and must outlive the bridge.
class CsmiSspBridge final : public storage::ScsiBridge {
 public:
  CsmiSspBridge(HANDLE port, utils::ByteView phyEntry);

  /// 0, or 34 when the packet could not be sent. What the drive says is in the command's status and sense data, also
  /// after a failure; `length` stays what was asked for.
  storage::Status Send(storage::ScsiCmd& command) override;

 private:
  PhyEntry phyEntry_{};
};

/// Carries ATA commands to the SATA drive on a phy. The port handle is the controller's and must outlive the bridge.
class CsmiStpBridge final : public storage::AtaBridge {
 public:
  CsmiStpBridge(HANDLE port, utils::ByteView phyEntry);

  /// 0, or 34 when the packet could not be sent. What the drive says is in the command's registers, also after a
  /// failure; `length` stays what was asked for.
  storage::Status Send(storage::AtaCmd& command) override;

 private:
  PhyEntry phyEntry_{};
};

/// Takes SCSI status and sense data of a returned packet, at most as many sense bytes as the command holds.
void TakeScsiStatus(utils::ByteView packet, storage::ScsiCmd& command);

/// Takes the register FIS of a returned packet (20 bytes) into the command's registers.
void TakeRegisters(utils::ByteView statusFis, storage::AtaCmd& command);

}  // namespace orvik::module::raid
