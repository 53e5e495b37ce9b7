#pragma once

#include <cstdint>

namespace orvik::module::storage {

/// What every operation returns that talks to a device: success, or why it failed. Outputs are written only on
/// success. Hosts see the raw 32-bit code, at virtual slots and in records.
class [[nodiscard]] Status {
 public:
  constexpr Status() = default;
  constexpr Status(std::uint32_t code) : code_(code) {}  // NOLINT(google-explicit-constructor)
  constexpr operator std::uint32_t() const { return code_; }

  constexpr bool Ok() const { return code_ == 0; }
  constexpr std::uint32_t Code() const { return code_; }

 private:
  std::uint32_t code_ = 0;
};

/// For a call whose failure changes nothing; the comment beside it says why.
constexpr void Ignore(Status) {}

namespace status {

inline constexpr Status kSuccess{0};
inline constexpr Status kFailure{1};             ///< generic: no bridge, a failed library command, a bad reply
inline constexpr Status kBadArgument{2};         ///< or a state that can't be used: a sector size below 512
inline constexpr Status kNotAvailable{4};        ///< the protocol has no such operation
inline constexpr Status kAtaError{32};           ///< the ATA status register has its error bit set
inline constexpr Status kScsiStatusNotGood{33};  ///< a SCSI status other than GOOD where GOOD is required
inline constexpr Status kIoctlFailed{34};        ///< `DeviceIoControl` failed
inline constexpr Status kInvalidData{35};        ///< identification or mode data that is invalid or too short
inline constexpr Status kCsmiReturnCode{66};     ///< a CSMI packet came back with a non-zero ReturnCode
inline constexpr Status kInterfaceError{74};     ///< CRC or parity error between host and drive
inline constexpr Status kMediumError{75};        ///< data that the drive can't read any more
inline constexpr Status kCommandRefused{78};     ///< SCSI: ILLEGAL REQUEST, DATA PROTECT, or no bridge
inline constexpr Status kDriveTooLarge{79};      ///< SCSI: beyond what the next shorter CDB can address
inline constexpr Status kUndecodableSense{79};   ///< SCSI: sense data of an unknown response code
inline constexpr Status kDeviceError{88};        ///< the device reported an error
inline constexpr Status kNoDataTransferred{89};  ///< a data-in command ended without any data
inline constexpr Status kSelfTestAborted{108};   ///< ATA: the self-test was not started (ABRT)
inline constexpr Status kSelfTestRejected{109};  ///< ATA: the self-test was not started (IDNF)
inline constexpr Status kAccessDenied{125};      ///< the operating system denied access to the device
inline constexpr Status kNoVendorDriver{128};    ///< no SCSI adapter driver of a provider other than "Microsoft"

}  // namespace status

}  // namespace orvik::module::storage
