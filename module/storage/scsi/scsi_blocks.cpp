// Reads and writes of a SCSI drive: the longest CDB first, shorter ones for drives that refuse it.

#include <limits>
#include <memory>

#include "module/storage/scsi/scsi_protocol.h"
#include "module/storage/scsi/sense_data.h"

namespace orvik::module::storage {

namespace {

constexpr std::uint32_t kSmallestSectorSize = 512;
constexpr std::uint64_t kSectors32 = std::uint64_t{1} << 32;

constexpr std::uint8_t kParityQualifiers = 6;  // qualifiers 0 to 5 are about the link

/// A shorter CDB would address another sector than the one that is meant.
bool IsBeyondShortCdb(std::uint64_t lba) {
  return lba >= kSectors32;
}

/// What became of a transfer whose send gave `sent`. The drive's word on the medium or the link outweighs it; a
/// transfer that the drive didn't end well is never a success.
Status ReadVerdict(const ScsiCmd& command, Status sent) {
  SenseData sense;
  const bool decoded = command.senseLength != 0 && sense.Decode(utils::ByteView(command.sense)) == status::kSuccess;
  if (decoded) {
    using namespace sense_code;
    if (sense.additionalSenseCode == kParityError && sense.additionalSenseCodeQualifier < kParityQualifiers) {
      return status::kInterfaceError;
    }
    if (sense.senseKey == sense_key::kMediumError || sense.senseKey == sense_key::kHardwareError ||
        sense.senseKey == sense_key::kMiscompare || sense.additionalSenseCode == kUnrecoveredReadError) {
      return status::kMediumError;
    }
  }
  return sent;
}

/// A send that worked, of a command that the drive ended otherwise than well.
Status GoodOrFailed(const ScsiCmd& command, Status sent) {
  if (sent != status::kSuccess || command.status == kScsiStatusGood) return sent;
  SenseData sense;
  const bool recovered = command.senseLength != 0 &&
                         sense.Decode(utils::ByteView(command.sense)) == status::kSuccess &&
                         sense.senseKey <= sense_key::kRecoveredError;
  return recovered ? status::kSuccess : status::kScsiStatusNotGood;
}

}  // namespace

std::unique_ptr<storage::Read> ScsiProtocol::MakeRead(std::uint8_t* buffer, std::uint64_t lba,
                                                      std::uint16_t count) const {
  const std::uint32_t size = properties_->logicalSectorSize;
  switch (readCdb_) {
    case ReadCdb::kRead16: return std::make_unique<Read16>(buffer, lba, count, size);
    case ReadCdb::kRead12: return std::make_unique<Read12>(buffer, lba, count, size);
    case ReadCdb::kRead10: break;
  }
  return std::make_unique<Read10>(buffer, lba, count, size);
}

Status ScsiProtocol::Read(std::uint64_t lba, std::uint16_t count, std::uint32_t /*timeout*/, std::uint8_t* buffer,
                          std::uint32_t /*length*/) {
  const std::uint32_t size = properties_->logicalSectorSize;
  if (size < kSmallestSectorSize || !IsTransferable(buffer, std::uint64_t{count} * size)) return status::kBadArgument;
  for (;;) {
    if (readCdb_ != ReadCdb::kRead16 && IsBeyondShortCdb(lba)) return status::kDriveTooLarge;
    const auto command = MakeRead(buffer, lba, count);
    const Status sent = Send(*command);
    if (sent == status::kSuccess || readCdb_ == ReadCdb::kRead10) {
      return ReadVerdict(*command, GoodOrFailed(*command, sent));
    }
    const bool tooLarge = properties_->sectorCount > kSectors32 || IsBeyondShortCdb(lba);
    if (readCdb_ == ReadCdb::kRead16 && tooLarge) return status::kDriveTooLarge;
    readCdb_ = readCdb_ == ReadCdb::kRead16 ? ReadCdb::kRead12 : ReadCdb::kRead10;
  }
}

Status ScsiProtocol::Write(std::uint64_t lba, std::uint16_t count, std::uint64_t /*ignored*/, std::uint8_t* buffer) {
  const std::uint32_t size = properties_->logicalSectorSize;
  if (size < kSmallestSectorSize || size > std::numeric_limits<std::uint16_t>::max()) return status::kBadArgument;
  if (!IsTransferable(buffer, std::uint64_t{count} * size)) return status::kBadArgument;
  const auto sectorSize = static_cast<std::uint16_t>(size);

  Write16 write16(buffer, lba, count, sectorSize);
  if (const Status sent = Send(write16); sent == status::kSuccess) return GoodOrFailed(write16, sent);
  if (properties_->sectorCount > kSectors32 || IsBeyondShortCdb(lba)) return status::kDriveTooLarge;
  Write12 write12(buffer, lba, count, sectorSize);
  if (const Status sent = Send(write12); sent == status::kSuccess) return GoodOrFailed(write12, sent);
  Write10 write10(buffer, lba, count, sectorSize);
  const Status sent = Send(write10);
  return GoodOrFailed(write10, sent);
}

}  // namespace orvik::module::storage
