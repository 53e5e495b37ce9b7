#include "module/raid/csmi/csmi_packet.h"

#include <algorithm>

#include <winioctl.h>
// Uses macros of the headers above.
#include <ntddscsi.h>

#include "module/raid/family/pass_through.h"

namespace orvik::module::raid {

namespace {

using utils::ByteView;
using utils::MutableByteView;

constexpr std::string_view kSignatureAll = "CSMIALL";
constexpr std::string_view kSignatureSas = "CSMISAS";
constexpr std::string_view kSignatureArray = "CSMIARY";

constexpr std::uint32_t kMaximumDrivesPerSet = 255;

void PutAddress(MutableByteView packet, ByteView phyEntry) {
  packet.Put(csmi::pass_through_address::kPhyIdentifier, phyEntry.Get(csmi::phy::kPhyIdentifier));
  packet.Put(csmi::pass_through_address::kPortIdentifier, phyEntry.Get(csmi::phy::kPortIdentifier));
  packet.PutBytes(csmi::pass_through_address::kDestinationSasAddress,
                  phyEntry.Sub(csmi::phy::kAttachedSasAddress).Bytes());
}

constexpr DirectionCodes kDirectionFlags{
    .in = csmi::pass_through::kRead, .out = csmi::pass_through::kWrite, .none = csmi::pass_through::kUnspecified};

}  // namespace

void CsmiPacket::SetSignature(std::string_view signature) {
  Writer().PutBytes(csmi::header::kSignature, utils::BytesOf(signature));
}

void CsmiPacket::Build(std::span<std::uint8_t> buffer, std::string_view signature, std::uint32_t controlCode) {
  bytes_ = buffer;
  SetHeaderLength(csmi::header::kSize);
  SetLength(static_cast<std::uint32_t>(buffer.size()) - csmi::header::kSize);
  SetControlCode(controlCode);
  SetTimeout(csmi::kTimeoutSeconds);
  SetSignature(signature);
}

ControllerConfigurationPacket::ControllerConfigurationPacket()
    : FixedCsmiPacket(kSignatureAll, csmi::controller_configuration::kControlCode) {}

ControllerStatusPacket::ControllerStatusPacket()
    : FixedCsmiPacket(kSignatureAll, csmi::controller_status::kControlCode) {}

PhyInformationPacket::PhyInformationPacket() : FixedCsmiPacket(kSignatureSas, csmi::phy_information::kControlCode) {}

std::vector<ByteView> PhyInformationPacket::PhysWithDrives() const {
  auto phys = View().Entries(csmi::phy_information::kPhys, View().Get(csmi::phy_information::kNumberOfPhys));
  std::erase_if(phys, [](ByteView phy) {
    return phy.Get(csmi::phy::kAttachedDeviceType) != csmi::phy::kEndDevice ||
           phy.Get(csmi::phy::kAttachedTargetProtocol) == csmi::phy::kTargetSmp;
  });
  return phys;
}

bool IsSasDrive(ByteView phyEntry) {
  return phyEntry.Get(csmi::phy::kAttachedTargetProtocol) == csmi::phy::kTargetSsp;
}

RaidInformationPacket::RaidInformationPacket()
    : FixedCsmiPacket(kSignatureArray, csmi::raid_information::kControlCode) {}

RaidConfigurationPacket::RaidConfigurationPacket(std::uint32_t setIndex, std::uint32_t drivesPerSet)
    : SizedCsmiPacket(csmi::raid_configuration::kDrives.At(std::min(drivesPerSet, kMaximumDrivesPerSet)).offset,
                      kSignatureArray, csmi::raid_configuration::kControlCode) {
  Writer().Put(csmi::raid_configuration::kRaidSetIndex, setIndex);
}

std::vector<ByteView> RaidConfigurationPacket::Drives() const {
  return View().Entries(csmi::raid_configuration::kDrives, View().Get(csmi::raid_configuration::kDriveCount));
}

SspPassThroughPacket::SspPassThroughPacket(const storage::ScsiCmd& command, ByteView phyEntry)
    : SizedCsmiPacket(csmi::ssp::kSizeWithoutData + command.length, kSignatureSas, csmi::ssp::kControlCode) {
  PutAddress(Writer(), phyEntry);
  const std::size_t cdbLength = std::min<std::size_t>(command.cdbLength, command.cdb.size());
  Writer().Put(csmi::ssp::kCdbLength, static_cast<std::uint8_t>(cdbLength));
  Writer().PutBytes(csmi::ssp::kCdb, std::span(command.cdb).first(cdbLength));
  Writer().Put(csmi::ssp::kFlags, kDirectionFlags.Of(command.direction));
  Writer().Put(csmi::ssp::kDataLength, static_cast<std::uint32_t>(command.length));
  PutDataOut(Writer(), csmi::ssp::kData, command);
}

ByteView SspPassThroughPacket::Data() const {
  return View().Sub({csmi::ssp::kData, View().Size() - csmi::ssp::kSizeWithoutData});
}

StpPassThroughPacket::StpPassThroughPacket(const storage::AtaCmd& command, ByteView phyEntry)
    : SizedCsmiPacket(csmi::stp::kSizeWithoutData + command.length, kSignatureSas, csmi::stp::kControlCode) {
  PutAddress(Writer(), phyEntry);
  PutCommandFis(Writer().Sub(csmi::stp::kCommandFis), command);
  Writer().Put(csmi::stp::kFlags, csmi::pass_through::kPio | kDirectionFlags.Of(command.direction));
  Writer().Put(csmi::stp::kDataLength, static_cast<std::uint32_t>(command.length));
  PutDataOut(Writer(), csmi::stp::kData, command);
}

ByteView StpPassThroughPacket::Data() const {
  return View().Sub({csmi::stp::kData, View().Size() - csmi::stp::kSizeWithoutData});
}

storage::Status SendCsmiPacket(HANDLE port, CsmiPacket& packet) {
  const DWORD size = packet.HeaderLength() + packet.Length();
  DWORD returned = 0;
  const BOOL sent =
      DeviceIoControl(port, IOCTL_SCSI_MINIPORT, packet.Buffer(), size, packet.Buffer(), size, &returned, nullptr);
  return sent ? storage::status::kSuccess : storage::status::kIoctlFailed;
}

storage::Status ExchangeCsmiPacket(HANDLE port, CsmiPacket& packet) {
  if (const storage::Status sent = SendCsmiPacket(port, packet); !sent.Ok()) return sent;
  return packet.ReturnCode() == 0 ? storage::status::kSuccess : storage::status::kCsmiReturnCode;
}

}  // namespace orvik::module::raid
