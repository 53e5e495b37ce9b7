#include "module/raid/csmi/drive_identification.h"

#include <array>

#include "module/raid/csmi/csmi_packet.h"
#include "module/raid/family/register_fis.h"
#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/identify_data.h"
#include "module/storage/scsi/inquiry_data.h"
#include "module/storage/scsi/scsi_commands.h"

namespace orvik::module::raid {

namespace status = storage::status;

storage::Status IdentifySataDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive) {
  std::array<std::uint8_t, storage::IdentifyDevice::kDataSize> data{};
  StpPassThroughPacket packet(storage::IdentifyDevice(data.data()), phyEntry);
  const storage::Status sent = ExchangeCsmiPacket(port, packet);
  if (sent != status::kSuccess) return sent;
  if ((packet.StatusFis().Get(status_fis::kStatus) & storage::kAtaStatusError) != 0) return status::kAtaError;

  const utils::ByteView identify = packet.Data();
  drive.model = storage::IdentifyModel(identify);
  drive.manufacturer = storage::VendorFromModel(drive.model);
  drive.sizeBytes = storage::CapacityInBytes(identify);
  drive.protocol = DriveProtocol::Ata;
  return status::kSuccess;
}

storage::Status IdentifySasDrive(HANDLE port, utils::ByteView phyEntry, PhysicalDrive& drive) {
  std::array<std::uint8_t, storage::inquiry_data::kMinimumSize> inquiryData{};
  SspPassThroughPacket inquiry(storage::Inquiry(inquiryData.data(), storage::inquiry_data::kMinimumSize, false, 0),
                               phyEntry);
  storage::Status sent = ExchangeCsmiPacket(port, inquiry);
  if (sent != status::kSuccess) return sent;
  if (inquiry.View().Get(csmi::ssp::kScsiStatus) != storage::kScsiStatusGood) return status::kScsiStatusNotGood;

  std::array<std::uint8_t, storage::ReadCapacity16::kDataSize> capacityData{};
  SspPassThroughPacket capacity(storage::ReadCapacity16(capacityData.data()), phyEntry);
  sent = ExchangeCsmiPacket(port, capacity);
  if (sent != status::kSuccess) return sent;
  // Here the transport's own status decides, not the SCSI status.
  if (capacity.View().Get(csmi::ssp::kSspStatus) != 0) return status::kScsiStatusNotGood;

  drive.manufacturer = inquiry.Data().Text(storage::inquiry_data::kVendor);
  drive.model = inquiry.Data().Text(storage::inquiry_data::kProduct);
  drive.sizeBytes = (capacity.Data().Get(storage::read_capacity16_data::kLastLba) + 1) *
                    capacity.Data().Get(storage::read_capacity16_data::kBlockLength);
  drive.protocol = DriveProtocol::Scsi;
  return status::kSuccess;
}

}  // namespace orvik::module::raid
