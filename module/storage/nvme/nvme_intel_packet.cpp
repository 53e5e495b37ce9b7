#include "module/storage/nvme/nvme_intel_packet.h"

#include <string_view>

#include "utils/bytes/byte_view.h"

namespace orvik::module::storage {

namespace {

using utils::Block;
using utils::ByteView;
using utils::Le32;
using utils::Le64;
using utils::MutableByteView;
using utils::U8;

/// SRB_IO_CONTROL.
namespace header {
constexpr Le32 kHeaderLength{0};
constexpr Block kSignature{4, 8};
constexpr Le32 kTimeout{12};  // seconds
constexpr Le32 kControlCode{16};
constexpr Le32 kLength{24};  // what follows the header
constexpr std::uint32_t kSize = 28;
}  // namespace header

constexpr std::string_view kSignature = "IntelNvm";
constexpr std::uint32_t kPassThroughCode = 0xF000'2808;

/// The pass-through behind the header; offsets from the start of the packet.
namespace pass_through {
constexpr U8 kVersion{28};
constexpr std::uint8_t kExpectedVersion = 1;
constexpr U8 kPathId{29};
constexpr Block kSubmissionEntry{32, 64};
constexpr U8 kIoCommand{96};
constexpr Le32 kDataOffset{116};
constexpr Le32 kDataLength{120};
constexpr std::uint32_t kData = 168;
}  // namespace pass_through

/// Submission queue entry (NVM Express 1.4, 4.2).
namespace submission_entry {
constexpr Le32 kCommandDword0{0};
constexpr std::uint32_t kOpcodeMask = 0xFF;  // fused operation and command id are the driver's
constexpr Le32 kNamespaceId{4};
constexpr Le64 kMetadataPointer{16};
constexpr std::size_t kCommandDword10 = 40;
constexpr Le32 CommandDword(std::size_t number) {
  return {kCommandDword10 + 4 * (number - 10)};
}
}  // namespace submission_entry

}  // namespace

NvmeIntelPacket::NvmeIntelPacket(const NvmeCmd& command)
    : buffer_(pass_through::kData + static_cast<std::size_t>(command.length)) {
  const MutableByteView view(buffer_);
  view.Put(header::kHeaderLength, header::kSize);
  view.PutBytes(header::kSignature, utils::BytesOf(kSignature));
  view.Put(header::kTimeout, command.timeout);
  view.Put(header::kControlCode, kPassThroughCode);
  view.Put(header::kLength, static_cast<std::uint32_t>(buffer_.size()) - header::kSize);

  view.Put(pass_through::kVersion, pass_through::kExpectedVersion);
  view.Put(pass_through::kPathId, command.pathId);
  view.Put(pass_through::kIoCommand, command.ioCommand);
  view.Put(pass_through::kDataOffset, pass_through::kData);
  view.Put(pass_through::kDataLength, static_cast<std::uint32_t>(command.length));

  const MutableByteView entry = view.Sub(pass_through::kSubmissionEntry);
  entry.Put(submission_entry::kCommandDword0, command.commandDword0 & submission_entry::kOpcodeMask);
  entry.Put(submission_entry::kNamespaceId, command.namespaceId);
  entry.Put(submission_entry::kMetadataPointer, command.metadataPointer);
  std::size_t number = 10;
  for (const std::uint32_t dword : command.commandDwords10To15) {
    entry.Put(submission_entry::CommandDword(number++), dword);
  }
}

void NvmeIntelPacket::TakeReply(const NvmeCmd& command) const {
  DeliverData(command, ByteView(buffer_).Sub({pass_through::kData, buffer_.size() - pass_through::kData}));
}

}  // namespace orvik::module::storage
