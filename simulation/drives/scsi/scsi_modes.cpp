// MODE SENSE and MODE SELECT of a SCSI drive in their forms of 6 and 10 bytes (SPC-4).

#include "simulation/drives/scsi/scsi_drive.h"

namespace orvik::simulation {

namespace {

constexpr U8 kFlags{1};
constexpr U8 kPage{2};
constexpr U8 kSubpage{3};

constexpr std::uint8_t kNoBlockDescriptor = 0x08;  // MODE SENSE
constexpr std::uint8_t kPageFormat = 0x10;         // MODE SELECT
constexpr std::uint8_t kSavePages = 0x01;          // MODE SELECT

constexpr std::uint8_t kPageBits = 0x3F;
constexpr std::uint8_t kEveryPage = 0x3F;
constexpr unsigned kValuesShift = 6;

constexpr std::uint8_t kForceUnitAccess = 0x10;  // device-specific parameter

// The differences between the 6-byte and 10-byte forms: the length in the CDB and the mode data's header.
struct Form {
  bool isLong;
  std::size_t headerSize;
  U8 deviceSpecific;

  std::size_t LengthIn(std::span<const std::uint8_t> cdb) const {
    return isLong ? Get(cdb, Be16{7}) : Get(cdb, U8{4});
  }
  std::size_t BlockDescriptorLength(std::span<const std::uint8_t> header) const {
    return isLong ? Get(header, Be16{6}) : Get(header, U8{3});
  }
  void SetLengths(std::span<std::uint8_t> data, std::size_t blockDescriptor) const {
    if (isLong) {
      Set(data, Be16{0}, static_cast<std::uint16_t>(data.size() - 2));
      Set(data, Be16{6}, static_cast<std::uint16_t>(blockDescriptor));
    } else {
      Set(data, U8{0}, static_cast<std::uint8_t>(data.size() - 1));
      Set(data, U8{3}, static_cast<std::uint8_t>(blockDescriptor));
    }
  }
};

Form FormOf(std::span<const std::uint8_t> cdb) {
  constexpr std::uint8_t kFirstOfTenBytes = 0x20;
  if (Get(cdb, U8{0}) >= kFirstOfTenBytes) return {.isLong = true, .headerSize = 8, .deviceSpecific = {3}};
  return {.isLong = false, .headerSize = 4, .deviceSpecific = {2}};
}

namespace block_descriptor {
constexpr std::size_t kSize = 8;
constexpr Be32 kBlocks{0};
constexpr Be32 kBlockLength{4};  // its first byte is always 0
}  // namespace block_descriptor

}  // namespace

ScsiCompletion ScsiDrive::ModeSense(Cdb cdb, Data data) {
  const std::uint8_t page = Get(cdb, kPage) & kPageBits;
  if (!HasExceptions() || (page != ExceptionsPage::kCode && page != kEveryPage)) return RefuseField(kPage);
  if (Get(cdb, kSubpage) != 0) return RefuseField(kSubpage);
  const Form form = FormOf(cdb);
  const bool noDescriptor = (Get(cdb, kFlags) & kNoBlockDescriptor) != 0;
  const std::size_t descriptor = noDescriptor ? 0 : block_descriptor::kSize;

  std::vector<std::uint8_t> reply(form.headerSize + descriptor);
  if (!noDescriptor) {
    const auto bytes = std::span(reply).last(descriptor);
    Set(bytes, block_descriptor::kBlocks,
        static_cast<std::uint32_t>(std::min<std::uint64_t>(description_.sectors, 0xFFFFFFFF)));
    Set(bytes, block_descriptor::kBlockLength, description_.sectorSize);
  }
  const auto values = static_cast<ExceptionsPage::Values>(Get(cdb, kPage) >> kValuesShift);
  const auto content = exceptions_.Read(values);
  reply.insert(reply.end(), content.begin(), content.end());
  Set(reply, form.deviceSpecific, kForceUnitAccess);
  form.SetLengths(reply, descriptor);
  return Deliver(reply, form.LengthIn(cdb), data);
}

ScsiCompletion ScsiDrive::ModeSelect(Cdb cdb, Data data) {
  const Form form = FormOf(cdb);
  const std::size_t length = form.LengthIn(cdb);
  if ((Get(cdb, kFlags) & kPageFormat) == 0) return RefuseField(kFlags);
  if (data.size() < length) return Refuse({.code = kDataPhaseError});
  if (length == 0) return {};  // nothing to change

  const Cdb list = data.first(length);
  const std::size_t start = form.headerSize + form.BlockDescriptorLength(list);
  if (length < start) return Refuse({.code = kParameterListLengthError});
  if (length == start) return {.transferred = length};
  if (length != start + ExceptionsPage::kSize) return Refuse({.code = kParameterListLengthError});
  const bool save = (Get(cdb, kFlags) & kSavePages) != 0;
  auto refused = HasExceptions() ? exceptions_.Write(list.subspan(start), save) : std::uint16_t{0};
  if (refused) {
    const auto field = static_cast<std::uint16_t>(start + *refused);
    return Refuse({.code = kInvalidFieldInParameters, .field = field});
  }
  return {.transferred = length};
}

}  // namespace orvik::simulation
