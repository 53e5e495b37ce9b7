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

/// Carries SCSI commands to the SAS drive on a phy. The port handle must outlive the bridge.
class CsmiSspBridge final : public storage::ScsiBridge {
 public:
  CsmiSspBridge(HANDLE port, utils::ByteView phyEntry);

  /// Returns kIoctlFailed when the packet could not be sent. The command holds the drive's status and sense data,
  /// also after a failure; its `length` does not change.
  storage::Status Send(storage::ScsiCmd& command) override;

 private:
  PhyEntry phyEntry_{};
};

/// Carries ATA commands to the SATA drive on a phy. The port handle must outlive the bridge.
class CsmiStpBridge final : public storage::AtaBridge {
 public:
  CsmiStpBridge(HANDLE port, utils::ByteView phyEntry);

  /// Returns kIoctlFailed when the packet could not be sent. The command holds the drive's registers, also after a
  /// failure; its `length` does not change.
  storage::Status Send(storage::AtaCmd& command) override;

 private:
  PhyEntry phyEntry_{};
};

/// Takes the SCSI status and the sense data of a returned packet, limited to the sense bytes that the command holds.
void TakeScsiStatus(utils::ByteView packet, storage::ScsiCmd& command);

}  // namespace orvik::module::raid
