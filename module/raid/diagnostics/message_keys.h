#pragma once

// The keys of the host's translation files that the RAID tests use.

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

inline constexpr char kLogicalDriveOffline[] = "LOGICAL_DRIVE_OFFLINE";
inline constexpr char kLogicalDrivePartiallyDegraded[] = "LOGICAL_DRIVE_PARTIALLY_DEGRADED";

inline constexpr char kCannotGetEnclosures[] = "CANT_GET_ENCLOSURES_INFO";
inline constexpr char kNoEnclosures[] = "NO_ENCLOSURES_FOUND";
inline constexpr char kFaultyEnclosure[] = "FAULTY_ENCLOSURE";
inline constexpr char kFaultyEnclosureFound[] = "FAULTY_ENCLOSURE_FOUND";

inline constexpr char kCannotCheckBatterySupport[] = "CANT_CHECK_BATTERY_BACKUP_UNIT_API_SUPPORT";
inline constexpr char kBatteryNotSupported[] = "BATTERY_BACKUP_UNIT_NOT_SUPPORTED";
inline constexpr char kCannotGetBatteryStatus[] = "CANT_GET_BATTERY_STATUS";
inline constexpr char kBatteryNotPresent[] = "BATTERY_BACKUP_UNIT_NOT_PRESENT";
inline constexpr char kBatteryPackMissing[] = "BATTERY_PACK_MISSING";
inline constexpr char kBatteryTemperatureHigh[] = "BATTERY_TEMPERATURE_HIGH";
inline constexpr char kLowBatteryVoltage[] = "LOW_BATTERY_VOLTAGE";

inline constexpr char kControllerFailed[] = "RAID_CONTROLLER_HAS_FAILED";
inline constexpr char kControllerOffline[] = "RAID_CONTROLLER_IS_OFFLINE";
inline constexpr char kControllerPoweredOff[] = "RAID_CONTROLLER_IS_POWERED_OFF";

inline constexpr char kCheckAlreadyInProgress[] = "CHECK_CONSISTENCY_ALREADY_IN_PROGRESS";
inline constexpr char kCancelAndStartQuestion[] = "CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION";
inline constexpr char kCannotRetrieveController[] = "CANNOT_RETRIEVE_CONTROLLER_INFO";
inline constexpr char kCannotVerifyAllDrives[] = "CANT_VERIFY_STATUS_OF_ALL_LOGICAL_DRIVES";
inline constexpr char kCancellingCheck[] = "CANCELLING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE";
inline constexpr char kCannotCancelCheck[] = "CANT_CANCEL_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE";
inline constexpr char kIgnoringRunningCheck[] = "IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING";
inline constexpr char kRunningCheck[] = "RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE";
inline constexpr char kErrorRetrievingProgress[] = "ERROR_RETRIEVING_PROGRESS";
inline constexpr char kCannotGetCheckResult[] = "CANNOT_GET_CONSISTENCY_CHECK_RESULT";
inline constexpr char kInconsistentDrive[] = "INCONSISTENT_LOGICAL_DRIVE";
inline constexpr char kConsistentDrive[] = "CONSISTENT_LOGICAL_DRIVE";
inline constexpr char kNoTestableDrive[] = "NO_TESTABLE_LOGICAL_DRIVE_FOUND";
inline constexpr char kFailedToSendCommand[] = "FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE";
inline constexpr char kSkippedInitialization[] = "LOGICAL_DRIVE_SKIPPED_INITIALIZATION_IN_PROGRESS";
inline constexpr char kNotInOptimalState[] = "LOGICAL_DRIVE_NOT_IN_OPTIMAL_STATE";
inline constexpr char kSkippedReconstruction[] = "LOGICAL_DRIVE_SKIPPED_RECONSTRUCTION_IN_PROGRESS";
inline constexpr char kRaidNotSupported[] = "RAID_NOT_SUPPORTED_LOGICAL_DRIVE_WILL_BE_SKIPPED";
inline constexpr char kSkippedReserved[] = "LOGICAL_DRIVE_SKIPPED_RESERVED_BY_SCSI_PEER";

}  // namespace orvik::module::raid::message
