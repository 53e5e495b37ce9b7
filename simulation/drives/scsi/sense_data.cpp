#include "simulation/drives/scsi/sense_data.h"

#include "simulation/bytes/bytes.h"

namespace orvik::simulation {

namespace {

// Fixed-format sense data (SPC-4).
namespace fixed_sense {
constexpr std::size_t kSize = 18;
constexpr U8 kResponseCode{0};
constexpr U8 kSenseKey{2};
constexpr U8 kAdditionalLength{7};
constexpr U8 kAsc{12};
constexpr U8 kAscq{13};
constexpr U8 kFieldFlags{15};
constexpr Be16 kFieldPointer{16};
}  // namespace fixed_sense

constexpr std::uint8_t kCurrentFixed = 0x70;
constexpr std::uint8_t kFieldInCdb = 0xC0;

}  // namespace

std::vector<std::uint8_t> MakeFixedSense(SenseCode code, std::optional<std::uint16_t> field) {
  std::vector<std::uint8_t> sense(fixed_sense::kSize);
  Set(sense, fixed_sense::kResponseCode, kCurrentFixed);
  Set(sense, fixed_sense::kSenseKey, code.key);
  Set(sense, fixed_sense::kAdditionalLength, fixed_sense::kSize - 8);
  Set(sense, fixed_sense::kAsc, code.asc);
  Set(sense, fixed_sense::kAscq, code.ascq);
  if (field) {
    Set(sense, fixed_sense::kFieldFlags, kFieldInCdb);
    Set(sense, fixed_sense::kFieldPointer, *field);
  }
  return sense;
}

}  // namespace orvik::simulation
