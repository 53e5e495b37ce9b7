// The protocol objects that reach the member drives of a CSMI controller.

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "module/raid/csmi/csmi_bridges.h"
#include "module/raid/csmi/csmi_device.h"
#include "module/raid/csmi/csmi_layout.h"
#include "module/raid/family/protocol_object.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/nvme/path_scan.h"
#include "module/storage/scsi/scsi_protocol.h"

namespace orvik::module::raid {

namespace {

namespace status = storage::status;

// Path ids are one byte, so a controller that has more drives to show makes them up.
constexpr std::size_t kMaximumNvmeDrives = 256;

StorageDeviceEntry AttachedDrive(HANDLE port, utils::ByteView phyEntry) {
  StorageDeviceEntry entry;
  if (phyEntry.Get(csmi::phy::kAttachedTargetProtocol) == csmi::phy::kTargetSsp) {
    entry.protocol = DriveProtocol::Scsi;
    entry.protocolObject = MakeProtocol<storage::ScsiProtocol>(storage::interface_kind::kScsi,
                                                               std::make_shared<CsmiSspBridge>(port, phyEntry));
  } else {
    entry.protocol = DriveProtocol::Ata;
    entry.protocolObject = MakeProtocol<storage::AtaProtocol>(storage::interface_kind::kAta,
                                                              std::make_shared<CsmiStpBridge>(port, phyEntry));
  }
  return entry;
}

}  // namespace

std::uint32_t CsmiDevice::GetStorageDevices(std::vector<StorageDeviceEntry>& devices) {
  PhyInformationPacket information;
  if (const auto sent = ExchangeCsmiPacket(port_.Get(), information); sent != status::kSuccess) return sent;
  for (const utils::ByteView entry : information.Phys()) {
    if (entry.Get(csmi::phy::kAttachedDeviceType) != csmi::phy::kEndDevice) continue;
    if (entry.Get(csmi::phy::kAttachedTargetProtocol) == csmi::phy::kTargetSmp) continue;
    devices.push_back(AttachedDrive(port_.Get(), entry));
  }
  const storage::Status result = AddNvmeStorageDevices(devices);
  for (std::size_t number = 0; number < devices.size(); ++number) {
    devices[number].id = "r" + identifier + "-" + std::to_string(number);
  }
  return result;
}

storage::Status CsmiDevice::AddNvmeStorageDevices(std::vector<StorageDeviceEntry>& devices) {
  // The count is taken as it came back, whatever the ReturnCode.
  RaidInformationPacket information;
  if (const auto sent = SendCsmiPacket(port_.Get(), information); sent != status::kSuccess) return sent;
  std::vector<std::string> serials;
  bool exhausted = false;  // a search that found nothing would find nothing again
  return VisitRaidSets(information, [&](std::uint32_t, const RaidConfigurationPacket& set) {
    for (std::size_t member = 0; member < set.Drives().size() && !exhausted; ++member) {
      auto bridge = std::make_shared<storage::NvmeIntelBridge>(port_.Get());
      storage::NvmePath path;
      exhausted = serials.size() == kMaximumNvmeDrives || !storage::FindNvmePath(*bridge, serials, path);
      if (exhausted) break;
      auto protocol = MakeProtocol<storage::NvmeProtocol>(storage::interface_kind::kNvme,
                                                          std::shared_ptr<storage::NvmeBridge>(std::move(bridge)));
      protocol->SetPathId(path.pathId);
      serials.push_back(std::move(path.serial));
      devices.push_back({.id = {},
                         .protocol = DriveProtocol::Nvme,
                         .protocolObject = std::move(protocol),
                         .ataProtocolObject = nullptr});
    }
  });
}

}  // namespace orvik::module::raid
