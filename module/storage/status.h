#pragma once

#include <cstdint>

namespace orvik::module::storage {

/// What every operation returns that talks to a device: 0, or why it failed. Outputs are written only on success.
using Status = std::uint32_t;

namespace status {

inline constexpr Status kSuccess = 0;
inline constexpr Status kFailure = 1;             ///< generic: no bridge, a failed library command, a bad reply
inline constexpr Status kAtaError = 32;           ///< the ATA status register has its error bit set
inline constexpr Status kScsiStatusNotGood = 33;  ///< a SCSI status other than GOOD where GOOD is required
inline constexpr Status kIoctlFailed = 34;        ///< `DeviceIoControl` failed
inline constexpr Status kCsmiReturnCode = 66;     ///< a CSMI packet came back with a non-zero ReturnCode
inline constexpr Status kNoVendorDriver = 128;    ///< no SCSI adapter driver of a provider other than "Microsoft"

}  // namespace status

/// Which way a command's data goes, seen from the host.
enum class Direction : std::uint32_t { kNone = 0, kIn = 1, kOut = 2 };

inline constexpr std::uint32_t kDefaultTimeoutSeconds = 30;

}  // namespace orvik::module::storage
