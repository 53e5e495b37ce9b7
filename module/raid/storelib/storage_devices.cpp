// The protocol objects that reach the member drives of a storelib controller.

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "module/raid/family/protocol_object.h"
#include "module/raid/storelib/storelib_bridges.h"
#include "module/raid/storelib/storelib_device.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"

namespace orvik::module::raid {

std::uint32_t LsiDevice::GetStorageDevices(std::vector<StorageDeviceEntry>& devices) {
  std::vector<PhysicalDrive> drives;
  const storage::Status listed = GetPhysicalDrives(drives);
  if (listed != storage::status::kSuccess) return listed;
  for (const PhysicalDrive& drive : drives) devices.push_back(ReachDrive(drive));
  return storage::status::kSuccess;
}

StorageDeviceEntry LsiDevice::ReachDrive(const PhysicalDrive& drive) const {
  StorageDeviceEntry entry;
  entry.id = "r-" + std::to_string(drive.deviceId);
  entry.protocol = drive.protocol;
  entry.protocolObject = MakeProtocol<storage::ScsiProtocol>(
      storage::interface_kind::kScsi, std::make_shared<LsiSspBridge>(controllerId, drive.deviceId, sender));
  // The controller speaks SCSI for a SATA drive too; whether there is one is for the drive to say.
  auto bridge =
      std::make_shared<LsiStpBridge>(controllerId, static_cast<std::uint8_t>(drive.deviceId & 0xFF), sender);
  if (storage::ProbeBridge(*bridge)) {
    entry.ataProtocolObject = MakeProtocol<storage::AtaProtocol>(storage::interface_kind::kAta, std::move(bridge));
  }
  return entry;
}

}  // namespace orvik::module::raid
