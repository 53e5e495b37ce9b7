#include "module/storage/scsi/sense_data.h"

#include <algorithm>

namespace orvik::module::storage {

namespace {

using utils::Block;
using utils::ByteView;
using utils::U8;

constexpr U8 kResponseCode{0};
constexpr std::uint8_t kFixedCurrent = 0x70;
constexpr std::uint8_t kFixedDeferred = 0x71;
constexpr std::uint8_t kDescriptorCurrent = 0x72;
constexpr std::uint8_t kDescriptorDeferred = 0x73;

namespace fixed {
constexpr U8 kSenseKey{2};
constexpr U8 kCode{12};
constexpr U8 kQualifier{13};
constexpr Block kKeySpecific{15, 3};
}  // namespace fixed

namespace descriptor {
constexpr U8 kSenseKey{1};
constexpr U8 kCode{2};
constexpr U8 kQualifier{3};
constexpr U8 kAdditionalLength{7};
constexpr std::size_t kFirst = 8;
// Within one descriptor.
constexpr U8 kType{0};
constexpr U8 kLength{1};
constexpr std::size_t kHeader = 2;
constexpr Block kKeySpecific{4, 3};
}  // namespace descriptor

constexpr std::uint8_t Key(std::uint8_t byte) {
  return byte & 0x0F;
}

}  // namespace

Status SenseData::Decode(ByteView sense) {
  *this = {};
  responseCode = sense.Get(kResponseCode) & 0x7F;
  switch (responseCode) {
    case kFixedCurrent:
    case kFixedDeferred: DecodeFixed(sense); return status::kSuccess;
    case kDescriptorCurrent:
    case kDescriptorDeferred: DecodeDescriptors(sense); return status::kSuccess;
    default: return status::kUndecodableSense;
  }
}

void SenseData::DecodeFixed(ByteView sense) {
  senseKey = Key(sense.Get(fixed::kSenseKey));
  additionalSenseCode = sense.Get(fixed::kCode);
  additionalSenseCodeQualifier = sense.Get(fixed::kQualifier);
  StoreKeySpecific(sense.Sub(fixed::kKeySpecific));
}

void SenseData::DecodeDescriptors(ByteView sense) {
  senseKey = Key(sense.Get(descriptor::kSenseKey));
  additionalSenseCode = sense.Get(descriptor::kCode);
  additionalSenseCodeQualifier = sense.Get(descriptor::kQualifier);
  const std::size_t end =
      std::min<std::size_t>(descriptor::kFirst + sense.Get(descriptor::kAdditionalLength), sense.Size());
  for (std::size_t offset = descriptor::kFirst; offset + descriptor::kHeader <= end;) {
    const std::size_t size = descriptor::kHeader + sense.Get(U8{offset + descriptor::kLength.offset});
    if (size > end - offset) return;
    const ByteView entry = sense.Sub({offset, size});
    if (entry.Get(descriptor::kType) == kSenseKeySpecific) {
      StoreKeySpecific(entry.Sub(descriptor::kKeySpecific));
      return;
    }
    offset += size;
  }
}

void SenseData::StoreKeySpecific(ByteView bytes) {
  if (bytes.Size() == 0) return;
  auto& value = descriptors[kSenseKeySpecific];
  std::copy_n(bytes.Bytes().begin(), std::min(bytes.Size(), value.size()), value.begin());
}

}  // namespace orvik::module::storage
