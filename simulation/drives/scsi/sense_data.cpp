#include "simulation/drives/scsi/sense_data.h"

#include <array>
#include <limits>

#include "simulation/bytes.h"

namespace orvik::simulation {

namespace {

namespace fixed_sense {
constexpr std::size_t kSize = 18;
constexpr U8 kResponseCode{0};
constexpr U8 kSenseKey{2};
constexpr Be32 kInformation{3};
constexpr U8 kAdditionalLength{7};
constexpr U8 kAsc{12};
constexpr U8 kAscq{13};
constexpr Block kSenseKeySpecific{15, 3};
}  // namespace fixed_sense

namespace descriptor_sense {
constexpr std::size_t kHeaderSize = 8;
constexpr U8 kResponseCode{0};
constexpr U8 kSenseKey{1};
constexpr U8 kAsc{2};
constexpr U8 kAscq{3};
constexpr U8 kAdditionalLength{7};
}  // namespace descriptor_sense

namespace information_descriptor {
constexpr std::size_t kSize = 12;
constexpr U8 kType{0};
constexpr U8 kLength{1};
constexpr U8 kFlags{2};
constexpr Be64 kInformation{4};
}  // namespace information_descriptor

namespace sense_key_descriptor {
constexpr std::size_t kSize = 8;
constexpr U8 kType{0};
constexpr U8 kLength{1};
constexpr Block kSenseKeySpecific{4, 3};
}  // namespace sense_key_descriptor

constexpr std::uint8_t kCurrentFixed = 0x70;
constexpr std::uint8_t kCurrentDescriptor = 0x72;
constexpr std::uint8_t kInformationValid = 0x80;
constexpr std::uint8_t kSenseKeySpecificType = 2;

// The first of the three sense-key specific bytes.
constexpr std::uint8_t kSpecificValid = 0x80;
constexpr std::uint8_t kFieldInCdb = 0x40;

std::optional<std::array<std::uint8_t, 3>> SenseKeySpecific(const Sense& sense) {
  const auto value = sense.progress ? sense.progress : sense.field;
  if (!value) return std::nullopt;
  const bool inCdb = sense.field && sense.code.asc != kInvalidFieldInParameters.asc;
  const auto flags = static_cast<std::uint8_t>(inCdb ? kSpecificValid | kFieldInCdb : kSpecificValid);
  return std::array{flags, static_cast<std::uint8_t>(*value >> 8), static_cast<std::uint8_t>(*value)};
}

// A sector number beyond 32 bits has no room in this format.
std::vector<std::uint8_t> MakeFixed(const Sense& sense) {
  std::vector<std::uint8_t> bytes(fixed_sense::kSize);
  Set(bytes, fixed_sense::kResponseCode, kCurrentFixed);
  Set(bytes, fixed_sense::kSenseKey, sense.code.key);
  Set(bytes, fixed_sense::kAdditionalLength, fixed_sense::kSize - 8);
  Set(bytes, fixed_sense::kAsc, sense.code.asc);
  Set(bytes, fixed_sense::kAscq, sense.code.ascq);
  if (sense.lba && *sense.lba <= std::numeric_limits<std::uint32_t>::max()) {
    Set(bytes, fixed_sense::kResponseCode, kCurrentFixed | kInformationValid);
    Set(bytes, fixed_sense::kInformation, static_cast<std::uint32_t>(*sense.lba));
  }
  if (const auto specific = SenseKeySpecific(sense)) SetBytes(bytes, fixed_sense::kSenseKeySpecific, *specific);
  return bytes;
}

std::span<std::uint8_t> Append(std::vector<std::uint8_t>& bytes, std::size_t size) {
  bytes.resize(bytes.size() + size);
  return std::span(bytes).last(size);
}

std::vector<std::uint8_t> MakeWithDescriptors(const Sense& sense) {
  std::vector<std::uint8_t> bytes(descriptor_sense::kHeaderSize);
  Set(bytes, descriptor_sense::kResponseCode, kCurrentDescriptor);
  Set(bytes, descriptor_sense::kSenseKey, sense.code.key);
  Set(bytes, descriptor_sense::kAsc, sense.code.asc);
  Set(bytes, descriptor_sense::kAscq, sense.code.ascq);
  if (sense.lba) {
    const auto descriptor = Append(bytes, information_descriptor::kSize);
    Set(descriptor, information_descriptor::kType, 0);
    Set(descriptor, information_descriptor::kLength, information_descriptor::kSize - 2);
    Set(descriptor, information_descriptor::kFlags, kInformationValid);
    Set(descriptor, information_descriptor::kInformation, *sense.lba);
  }
  if (const auto specific = SenseKeySpecific(sense)) {
    const auto descriptor = Append(bytes, sense_key_descriptor::kSize);
    Set(descriptor, sense_key_descriptor::kType, kSenseKeySpecificType);
    Set(descriptor, sense_key_descriptor::kLength, sense_key_descriptor::kSize - 2);
    SetBytes(descriptor, sense_key_descriptor::kSenseKeySpecific, *specific);
  }
  const std::size_t additional = bytes.size() - descriptor_sense::kHeaderSize;
  Set(bytes, descriptor_sense::kAdditionalLength, static_cast<std::uint8_t>(additional));
  return bytes;
}

}  // namespace

std::vector<std::uint8_t> MakeSenseData(const Sense& sense, SenseFormat format) {
  return format == SenseFormat::Fixed ? MakeFixed(sense) : MakeWithDescriptors(sense);
}

}  // namespace orvik::simulation
