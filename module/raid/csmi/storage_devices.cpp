// The protocol objects that reach the member drives of a CSMI controller.

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "module/raid/csmi/csmi_bridges.h"
#include "module/raid/csmi/csmi_device.h"
#include "module/raid/csmi/drive_descriptions.h"
#include "module/raid/family/pass_through.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/nvme/nvme_protocol.h"
#include "module/storage/nvme/path_scan.h"
#include "module/storage/scsi/scsi_protocol.h"

namespace orvik::module::raid {

namespace {

using storage::Status;

// Path ids are one byte, so further members cannot exist, and each search sends up to this many commands.
constexpr std::size_t kMaximumNvmeSearches = 256;

/// A bridge together with the port that it sends on.
template <typename Bridge>
struct BridgeOnPort {
  template <typename... Arguments>
  explicit BridgeOnPort(SharedPort onPort, const Arguments&... arguments)
      : port(std::move(onPort)), bridge(port->Get(), arguments...) {}

  SharedPort port;
  Bridge bridge;
};

template <typename Bridge, typename... Arguments>
std::shared_ptr<Bridge> MakeBridge(const SharedPort& port, const Arguments&... arguments) {
  const auto owner = std::make_shared<BridgeOnPort<Bridge>>(port, arguments...);
  return {owner, &owner->bridge};
}

StorageDeviceEntry AttachedDrive(const SharedPort& port, utils::ByteView phyEntry) {
  StorageDeviceEntry entry;
  if (IsSasDrive(phyEntry)) {
    entry.protocol = DriveProtocol::Scsi;
    entry.protocolObject = MakeProtocol<storage::ScsiProtocol>(storage::interface_kind::kScsi,
                                                               MakeBridge<CsmiSspBridge>(port, phyEntry));
  } else {
    entry.protocol = DriveProtocol::Ata;
    entry.protocolObject =
        MakeProtocol<storage::AtaProtocol>(storage::interface_kind::kAta, MakeBridge<CsmiStpBridge>(port, phyEntry));
  }
  return entry;
}

}  // namespace

std::uint32_t CsmiDevice::GetStorageDevices(std::vector<StorageDeviceEntry>& devices) {
  PhyInformationPacket information;
  if (const Status sent = ExchangeCsmiPacket(port_->Get(), information); !sent.Ok()) return sent.Code();
  for (const utils::ByteView entry : information.PhysWithDrives()) devices.push_back(AttachedDrive(port_, entry));
  const Status result = AddNvmeStorageDevices(devices);
  for (std::size_t number = 0; number < devices.size(); ++number) {
    devices[number].id = "r" + identifier_ + "-" + std::to_string(number);
  }
  return result.Code();
}

Status CsmiDevice::AddNvmeStorageDevices(std::vector<StorageDeviceEntry>& devices) {
  // The ReturnCode is not examined: the count is used as returned.
  RaidInformationPacket information;
  if (const Status sent = SendCsmiPacket(port_->Get(), information); !sent.Ok()) return sent;
  std::vector<std::string> serials;
  std::size_t searches = 0;
  return VisitRaidSets(information, [&](std::uint32_t, const RaidConfigurationPacket& set) {
    for (std::size_t member = 0; member < set.Drives().size() && searches < kMaximumNvmeSearches; ++member) {
      ++searches;
      auto bridge = MakeBridge<storage::NvmeIntelBridge>(port_);
      storage::NvmePath path;
      if (!storage::FindNvmePath(*bridge, serials, path)) continue;
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
