#pragma once

// Register FIS: how ATA registers travel to a drive and back, whatever packet carries them.

#include "module/storage/ata/ata_cmd.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::raid {

/// Register FIS, host to device (Serial ATA 3, 10.5.5).
namespace command_fis {
inline constexpr utils::U8 kType{0};
inline constexpr utils::U8 kFlags{1};
inline constexpr utils::U8 kCommand{2};
inline constexpr utils::U8 kFeatures{3};
inline constexpr utils::U8 kLbaLow{4};
inline constexpr utils::U8 kLbaMid{5};
inline constexpr utils::U8 kLbaHigh{6};
inline constexpr utils::U8 kDevice{7};
inline constexpr utils::U8 kLbaLowExp{8};
inline constexpr utils::U8 kLbaMidExp{9};
inline constexpr utils::U8 kLbaHighExp{10};
inline constexpr utils::U8 kFeaturesExp{11};
inline constexpr utils::U8 kSectorCount{12};
inline constexpr utils::U8 kSectorCountExp{13};
inline constexpr std::uint8_t kHostToDevice = 0x27;
inline constexpr std::uint8_t kIsCommand = 0x80;
}  // namespace command_fis

/// Register FIS, device to host (Serial ATA 3, 10.5.6).
namespace status_fis {
inline constexpr utils::U8 kStatus{2};
inline constexpr utils::U8 kError{3};
inline constexpr utils::U8 kLbaLow{4};
inline constexpr utils::U8 kLbaMid{5};
inline constexpr utils::U8 kLbaHigh{6};
inline constexpr utils::U8 kDevice{7};
inline constexpr utils::U8 kLbaLowExp{8};
inline constexpr utils::U8 kLbaMidExp{9};
inline constexpr utils::U8 kLbaHighExp{10};
inline constexpr utils::U8 kSectorCount{12};
inline constexpr utils::U8 kSectorCountExp{13};
}  // namespace status_fis

/// Writes a command's registers, 20 bytes.
void PutCommandFis(utils::MutableByteView fis, const storage::AtaCmd& command);

}  // namespace orvik::module::raid
