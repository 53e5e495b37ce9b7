#pragma once

// The vocabulary of the host's translation files, as far as the tests of this folder use it.

namespace orvik::module::raid::message {

inline constexpr char kAbortedBySystemEvent[] =
    "TEST_ABORTED_BECAUSE_A_SYSTEM_EVENT_THAT_COULD_COMPROMISE_THE_OUTCOME_HAS_HAPPENED";
inline constexpr char kDeviceNotIdentified[] =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED";

inline constexpr char kUnableToRetrieveProperties[] = "UNABLE_TO_RETRIEVE_DEVICE_PROPERTIES";
inline constexpr char kUnableToCommunicate[] = "UNABLE_TO_COMMUNICATE_WITH_INTEL_C600_CONTROLLER";
inline constexpr char kSataModeNotRaid[] = "RAID_MAYBE_THE_SATA_MODE_IS_NOT_SET_TO_RAID";
inline constexpr char kCannotGetLogicalDrives[] = "CANT_GET_LOGICAL_DRIVES_INFO";
inline constexpr char kNoLogicalDrive[] = "NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST";
inline constexpr char kUnsupportedRaidLevel[] = "UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE";
inline constexpr char kTestDoesNotSupportLevel[] = "TEST_DOESNT_SUPPORT_RAID_LEVEL";
inline constexpr char kLogicalDriveOptimal[] = "LOGICAL_DRIVE_OPTIMAL";
inline constexpr char kLogicalDriveDegraded[] = "LOGICAL_DRIVE_DEGRADED";
inline constexpr char kDriveDown[] = "DRIVE_DOWN";
inline constexpr char kLogicalDriveUnableToReadWrite[] = "LOGICAL_DRIVE_UNABLE_TO_READ_WRITE";
inline constexpr char kLogicalDriveRebuilding[] = "LOGICAL_DRIVE_REBUILDING";
inline constexpr char kLogicalDriveUnknownStatus[] = "LOGICAL_DRIVE_UNKNOWN_STATUS";

inline constexpr char kControllerFailed[] = "RAID_CONTROLLER_HAS_FAILED";
inline constexpr char kControllerOffline[] = "RAID_CONTROLLER_IS_OFFLINE";
inline constexpr char kControllerPoweredOff[] = "RAID_CONTROLLER_IS_POWERED_OFF";

}  // namespace orvik::module::raid::message
