<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en">
<context>
    <name>RAID</name>
    <message>
        <source>UDI</source>
        <translation>Unique identifier</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>PLATFORM</source>
        <translation>Platform</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>NUM_LOGICAL_DEVICES</source>
        <translation>Logical drives</translation>
    </message>
    <message>
        <source>SUPPORTED_INTERFACES</source>
        <translation>Supported interfaces</translation>
    </message>
    <message>
        <source>SUPPORTED_RAID_LEVELS</source>
        <translation>Supported RAID levels</translation>
    </message>
    <message>
        <source>NUM_PHYSICAL_DEVICES</source>
        <translation>Physical drives</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Driver version</translation>
    </message>
    <message>
        <source>RESOURCE_TYPE</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>LOGICAL_DISK</source>
        <translation>Logical drive</translation>
    </message>
    <message>
        <source>PHYSICAL_DISK</source>
        <translation>Physical drive</translation>
    </message>
    <message>
        <source>INDEX</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>RAID_LEVEL</source>
        <translation>RAID level</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>MANUFACTURER</source>
        <translation>Manufacturer</translation>
    </message>
    <message>
        <source>SINGLE_DRIVE_RAID_SET</source>
        <translation>Single-drive RAID set</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>Unknown RAID level</translation>
    </message>
    <message>
        <source>QUICK_RAID</source>
        <translation>Quick RAID tests</translation>
    </message>
    <message>
        <source>QUICK_RAID_TESTS_TOOLTIP</source>
        <translation>Quick RAID tests</translation>
    </message>
    <message>
        <source>EXTENDED_RAID_TESTS_TOOLTIP</source>
        <translation>Extended RAID tests</translation>
    </message>
    <message>
        <source>BATTERY_STATUS_TEST</source>
        <translation>Battery backup unit status test</translation>
    </message>
    <message>
        <source>BATTERY_STATUS_TEST_TOOLTIP</source>
        <translation>Checks presence, temperature and voltage of the battery backup unit</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST</source>
        <translation>Enclosure status test</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST_TOOLTIP</source>
        <translation>Checks for enclosures that report a fault</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVES_STATUS_TEST</source>
        <translation>Logical drive status test</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVES_STATUS_TEST_TOOLTIP</source>
        <translation>Checks the state of every logical drive</translation>
    </message>
    <message>
        <source>CHECK_CONSISTENCY_TEST</source>
        <translation>Consistency check</translation>
    </message>
    <message>
        <source>CHECK_CONSISTENCY_TEST_TOOLTIP</source>
        <translation>Runs the controller's consistency check on every logical drive; this can take hours</translation>
    </message>
    <message>
        <source>RAID_STATUS_TEST</source>
        <translation>RAID status test</translation>
    </message>
    <message>
        <source>RAID_STATUS_TEST_TOOLTIP</source>
        <translation>Checks the RAID controller and the state of its logical drives</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_STATUS_TEST</source>
        <translation>RAID controller status test</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_STATUS_TEST_TOOLTIP</source>
        <translation>Checks that the RAID controller is operational, online and powered on</translation>
    </message>
    <message>
        <source>TEST_ABORTED_BECAUSE_A_SYSTEM_EVENT_THAT_COULD_COMPROMISE_THE_OUTCOME_HAS_HAPPENED</source>
        <translation>Test aborted: a system event could have affected the result</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Test not possible: the device could not be identified or has been disconnected</translation>
    </message>
    <message>
        <source>UNABLE_TO_RETRIEVE_DEVICE_PROPERTIES</source>
        <translation>Could not read the device properties</translation>
    </message>
    <message>
        <source>UNABLE_TO_COMMUNICATE_WITH_INTEL_C600_CONTROLLER</source>
        <translation>Could not communicate with the Intel C600 controller</translation>
    </message>
    <message>
        <source>RAID_MAYBE_THE_SATA_MODE_IS_NOT_SET_TO_RAID</source>
        <translation>The SATA mode may not be set to RAID</translation>
    </message>
    <message>
        <source>CANT_GET_LOGICAL_DRIVES_INFO</source>
        <translation>Could not read the logical drives</translation>
    </message>
    <message>
        <source>NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST</source>
        <translation>No logical drive found, skipping the test</translation>
    </message>
    <message>
        <source>UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE</source>
        <translation>Unsupported RAID level in logical drive</translation>
    </message>
    <message>
        <source>TEST_DOESNT_SUPPORT_RAID_LEVEL</source>
        <translation>RAID level not supported by this test</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_OPTIMAL</source>
        <translation>Logical drive is optimal</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_DEGRADED</source>
        <translation>Logical drive is degraded</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_PARTIALLY_DEGRADED</source>
        <translation>Logical drive is partially degraded</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_OFFLINE</source>
        <translation>Logical drive is offline</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_UNABLE_TO_READ_WRITE</source>
        <translation>Logical drive cannot be read or written</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_REBUILDING</source>
        <translation>Logical drive is rebuilding</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_UNKNOWN_STATUS</source>
        <translation>Unknown status of logical drive</translation>
    </message>
    <message>
        <source>DRIVE_DOWN</source>
        <translation>Drive is down</translation>
    </message>
    <message>
        <source>CANNOT_RETRIEVE_CONTROLLER_INFO</source>
        <translation>Could not read the controller information</translation>
    </message>
    <message>
        <source>CANT_VERIFY_STATUS_OF_ALL_LOGICAL_DRIVES</source>
        <translation>Could not verify the status of all logical drives</translation>
    </message>
    <message>
        <source>CHECK_CONSISTENCY_ALREADY_IN_PROGRESS</source>
        <translation>Consistency check already in progress</translation>
    </message>
    <message>
        <source>CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION</source>
        <translation>A consistency check is already running on at least one logical drive. Cancel it and start a new one?</translation>
    </message>
    <message>
        <source>CANCELLING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Cancelling the consistency check on logical drive</translation>
    </message>
    <message>
        <source>CANT_CANCEL_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Could not cancel the consistency check on logical drive</translation>
    </message>
    <message>
        <source>IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING</source>
        <translation>Consistency check already running, skipping logical drive</translation>
    </message>
    <message>
        <source>RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Running the consistency check on logical drive</translation>
    </message>
    <message>
        <source>ERROR_RETRIEVING_PROGRESS</source>
        <translation>Could not read the progress</translation>
    </message>
    <message>
        <source>FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE</source>
        <translation>Could not send a command to logical drive</translation>
    </message>
    <message>
        <source>NO_TESTABLE_LOGICAL_DRIVE_FOUND</source>
        <translation>No testable logical drive found</translation>
    </message>
    <message>
        <source>CANNOT_GET_CONSISTENCY_CHECK_RESULT</source>
        <translation>Could not read the consistency check result of logical drive</translation>
    </message>
    <message>
        <source>INCONSISTENT_LOGICAL_DRIVE</source>
        <translation>Logical drive is inconsistent</translation>
    </message>
    <message>
        <source>CONSISTENT_LOGICAL_DRIVE</source>
        <translation>Logical drive is consistent</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_INITIALIZATION_IN_PROGRESS</source>
        <translation>Initialisation in progress, skipping logical drive</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_NOT_IN_OPTIMAL_STATE</source>
        <translation>Logical drive is not optimal</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RECONSTRUCTION_IN_PROGRESS</source>
        <translation>Reconstruction in progress, skipping logical drive</translation>
    </message>
    <message>
        <source>RAID_NOT_SUPPORTED_LOGICAL_DRIVE_WILL_BE_SKIPPED</source>
        <translation>RAID level not supported, skipping logical drive</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RESERVED_BY_SCSI_PEER</source>
        <translation>Reserved by another SCSI system, skipping logical drive</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_HAS_FAILED</source>
        <translation>The RAID controller has failed</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_IS_OFFLINE</source>
        <translation>The RAID controller is offline</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_IS_POWERED_OFF</source>
        <translation>The RAID controller is powered off</translation>
    </message>
    <message>
        <source>CANT_GET_ENCLOSURES_INFO</source>
        <translation>Could not read the enclosures</translation>
    </message>
    <message>
        <source>NO_ENCLOSURES_FOUND</source>
        <translation>No enclosure found</translation>
    </message>
    <message>
        <source>FAULTY_ENCLOSURE</source>
        <translation>Faulty enclosure</translation>
    </message>
    <message>
        <source>FAULTY_ENCLOSURE_FOUND</source>
        <translation>At least one enclosure is faulty</translation>
    </message>
    <message>
        <source>CANT_CHECK_BATTERY_BACKUP_UNIT_API_SUPPORT</source>
        <translation>Could not determine whether a battery backup unit is supported</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_SUPPORTED</source>
        <translation>The controller does not support a battery backup unit</translation>
    </message>
    <message>
        <source>CANT_GET_BATTERY_STATUS</source>
        <translation>Could not read the battery status</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_PRESENT</source>
        <translation>No battery backup unit present</translation>
    </message>
    <message>
        <source>BATTERY_PACK_MISSING</source>
        <translation>Battery pack missing</translation>
    </message>
    <message>
        <source>BATTERY_TEMPERATURE_HIGH</source>
        <translation>Battery temperature is high</translation>
    </message>
    <message>
        <source>LOW_BATTERY_VOLTAGE</source>
        <translation>Battery voltage is low</translation>
    </message>
</context>
<context>
    <name>QT_SERVER_APP</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Orvik Diagnostics</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>CLOSE_POP_UP</source>
        <translation>Close the message</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Yes</translation>
    </message>
</context>
<context>
    <name>orvik-diag</name>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>%1 bytes physical</source>
        <translation>%1 bytes physical</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 of %2 bytes</translation>
    </message>
    <message>
        <source>%1 rpm</source>
        <translation>%1 rpm</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message numerus="yes">
        <source>%n RAID controller(s)</source>
        <translation>
            <numerusform>%n RAID controller</numerusform>
            <numerusform>%n RAID controllers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drive(s)</source>
        <translation>
            <numerusform>%n drive</numerusform>
            <numerusform>%n drives</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n member(s)</source>
        <translation>
            <numerusform>%n member</numerusform>
            <numerusform>%n members</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n run(s): %1</source>
        <translation>
            <numerusform>%n run: %1</numerusform>
            <numerusform>%n runs: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(required)</translation>
    </message>
    <message>
        <source>(see %1 --help)</source>
        <translation>(see %1 --help)</translation>
    </message>
    <message>
        <source>48-bit addressing</source>
        <translation>48-bit addressing</translation>
    </message>
    <message>
        <source>A self-test is already running; use --abort to stop it</source>
        <translation>A self-test is already running; use --abort to stop it</translation>
    </message>
    <message>
        <source>ATA error</source>
        <translation>ATA error</translation>
    </message>
    <message>
        <source>Abort command accepted</source>
        <translation>Abort command accepted</translation>
    </message>
    <message>
        <source>Abort the running self-test</source>
        <translation>Abort the running self-test</translation>
    </message>
    <message>
        <source>Answer questions of tests with this button</source>
        <translation>Answer questions of tests with this button</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Arguments</translation>
    </message>
    <message>
        <source>BUTTON</source>
        <translation>BUTTON</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>CODE</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMMAND</translation>
    </message>
    <message>
        <source>Cache size (as reported)</source>
        <translation>Cache size (as reported)</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacity</translation>
    </message>
    <message>
        <source>Check for a RAID controller without a full scan</source>
        <translation>Check for a RAID controller without a full scan</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>Could not abort the self-test: %1</source>
        <translation>Could not abort the self-test: %1</translation>
    </message>
    <message>
        <source>Could not identify the drive (%1)</source>
        <translation>Could not identify the drive (%1)</translation>
    </message>
    <message>
        <source>Could not load the module %1: %2</source>
        <translation>Could not load the module %1: %2</translation>
    </message>
    <message>
        <source>Could not read all drives of the controller (%1)</source>
        <translation>Could not read all drives of the controller (%1)</translation>
    </message>
    <message>
        <source>Could not read the controller's logical drives (%1)</source>
        <translation>Could not read the controller's logical drives (%1)</translation>
    </message>
    <message>
        <source>Could not read the controller's physical drives (%1)</source>
        <translation>Could not read the controller's physical drives (%1)</translation>
    </message>
    <message>
        <source>Could not read the controller's properties (%1)</source>
        <translation>Could not read the controller's properties (%1)</translation>
    </message>
    <message>
        <source>Could not read the progress of the self-test: %1</source>
        <translation>Could not read the progress of the self-test: %1</translation>
    </message>
    <message>
        <source>Could not read the result of the self-test: %1</source>
        <translation>Could not read the result of the self-test: %1</translation>
    </message>
    <message>
        <source>Could not start the self-test: %1</source>
        <translation>Could not start the self-test: %1</translation>
    </message>
    <message>
        <source>Could not start: %1</source>
        <translation>Could not start: %1</translation>
    </message>
    <message>
        <source>Could not write the output</source>
        <translation>Could not write the output</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>DEVICE</translation>
    </message>
    <message>
        <source>DRIVE</source>
        <translation>DRIVE</translation>
    </message>
    <message>
        <source>Device %1, %2: %3</source>
        <translation>Device %1, %2: %3</translation>
    </message>
    <message>
        <source>Device %1: %2</source>
        <translation>Device %1: %2</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Drive %1: self-test</source>
        <translation>Drive %1: self-test</translation>
    </message>
    <message>
        <source>Drive ID, or the indexes DEVICE:DRIVE</source>
        <translation>Drive ID, or the indexes DEVICE:DRIVE</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>Exclusive</translation>
    </message>
    <message>
        <source>Extended self-test</source>
        <translation>Extended self-test</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Finds and tests RAID controllers.</source>
        <translation>Finds and tests RAID controllers.</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>First failing LBA</source>
        <translation>First failing LBA</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Health</translation>
    </message>
    <message>
        <source>I/O request failed</source>
        <translation>I/O request failed</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>ID %1</source>
        <translation>ID %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrupted</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Language of the output, for example de</source>
        <translation>Language of the output, for example de</translation>
    </message>
    <message>
        <source>Latest self-test</source>
        <translation>Latest self-test</translation>
    </message>
    <message>
        <source>List RAID controllers and their drives</source>
        <translation>List RAID controllers and their drives</translation>
    </message>
    <message>
        <source>List the tests and the devices they apply to</source>
        <translation>List the tests and the devices they apply to</translation>
    </message>
    <message>
        <source>Logical drives</source>
        <translation>Logical drives</translation>
    </message>
    <message>
        <source>Mask serial numbers and drive labels with X</source>
        <translation>Mask serial numbers and drive labels with X</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No RAID controller found.</source>
        <translation>No RAID controller found.</translation>
    </message>
    <message>
        <source>No applicable tests.</source>
        <translation>No applicable tests.</translation>
    </message>
    <message>
        <source>No command given</source>
        <translation>No command given</translation>
    </message>
    <message>
        <source>No device "%1"</source>
        <translation>No device "%1"</translation>
    </message>
    <message>
        <source>No drive "%1"</source>
        <translation>No drive "%1"</translation>
    </message>
    <message>
        <source>No test "%1"</source>
        <translation>No test "%1"</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Not read</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Physical drives</source>
        <translation>Physical drives</translation>
    </message>
    <message>
        <source>Power mode</source>
        <translation>Power mode</translation>
    </message>
    <message>
        <source>Print output as JSON</source>
        <translation>Print output as JSON</translation>
    </message>
    <message>
        <source>RAID controller found.</source>
        <translation>RAID controller found.</translation>
    </message>
    <message>
        <source>Remaining life</source>
        <translation>Remaining life</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Result: %1</translation>
    </message>
    <message>
        <source>Rotation rate</source>
        <translation>Rotation rate</translation>
    </message>
    <message>
        <source>Run %1 --help for the common options</source>
        <translation>Run %1 --help for the common options</translation>
    </message>
    <message>
        <source>Run a short self-test (default)</source>
        <translation>Run a short self-test (default)</translation>
    </message>
    <message>
        <source>Run an extended self-test</source>
        <translation>Run an extended self-test</translation>
    </message>
    <message>
        <source>Run only the test with this ID, key or name</source>
        <translation>Run only the test with this ID, key or name</translation>
    </message>
    <message>
        <source>Run tests; by default every test on every device</source>
        <translation>Run tests; by default every test on every device</translation>
    </message>
    <message>
        <source>SCSI status not GOOD</source>
        <translation>SCSI status not GOOD</translation>
    </message>
    <message>
        <source>SMART</source>
        <translation>SMART</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectors</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Security</translation>
    </message>
    <message>
        <source>Self-tests</source>
        <translation>Self-tests</translation>
    </message>
    <message>
        <source>Self-tests are not supported on NVMe drives</source>
        <translation>Self-tests are not supported on NVMe drives</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Several drives match "%1"</source>
        <translation>Several drives match "%1"</translation>
    </message>
    <message>
        <source>Short self-test</source>
        <translation>Short self-test</translation>
    </message>
    <message>
        <source>Show identity and health of the member drives</source>
        <translation>Show identity and health of the member drives</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Show the version</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Show this help</translation>
    </message>
    <message>
        <source>Simulated machines are not available in this installation: %1</source>
        <translation>Simulated machines are not available in this installation: %1</translation>
    </message>
    <message>
        <source>Standard version</source>
        <translation>Standard version</translation>
    </message>
    <message>
        <source>Standards</source>
        <translation>Standards</translation>
    </message>
    <message>
        <source>Start or abort a self-test on a member drive</source>
        <translation>Start or abort a self-test on a member drive</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>The device is no longer available</source>
        <translation>The device is no longer available</translation>
    </message>
    <message>
        <source>The module did not execute the task</source>
        <translation>The module did not execute the task</translation>
    </message>
    <message>
        <source>The module lists test %1 but does not create it</source>
        <translation>The module lists test %1 but does not create it</translation>
    </message>
    <message>
        <source>The presence check failed: %1</source>
        <translation>The presence check failed: %1</translation>
    </message>
    <message>
        <source>The presence check returned no result</source>
        <translation>The presence check returned no result</translation>
    </message>
    <message>
        <source>The scan did not finish</source>
        <translation>The scan did not finish</translation>
    </message>
    <message>
        <source>The scan failed: %1</source>
        <translation>The scan failed: %1</translation>
    </message>
    <message>
        <source>The self-test ended without a result: %1</source>
        <translation>The self-test ended without a result: %1</translation>
    </message>
    <message>
        <source>The self-test was aborted</source>
        <translation>The self-test was aborted</translation>
    </message>
    <message>
        <source>Unexpected error: %1</source>
        <translation>Unexpected error: %1</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>Use only devices with this ID or index</source>
        <translation>Use only devices with this ID or index</translation>
    </message>
    <message>
        <source>Use the simulated machine described in this file</source>
        <translation>Use the simulated machine described in this file</translation>
    </message>
    <message>
        <source>Use this module library instead of the installed one</source>
        <translation>Use this module library instead of the installed one</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Vendor</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>aborted</translation>
    </message>
    <message>
        <source>aborted by the host</source>
        <translation>aborted by the host</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>access denied</translation>
    </message>
    <message>
        <source>active or idle</source>
        <translation>active or idle</translation>
    </message>
    <message>
        <source>address too large or unknown sense data</source>
        <translation>address too large or unknown sense data</translation>
    </message>
    <message>
        <source>available: %1</source>
        <translation>available: %1</translation>
    </message>
    <message>
        <source>command rejected</source>
        <translation>command rejected</translation>
    </message>
    <message>
        <source>completed without error</source>
        <translation>completed without error</translation>
    </message>
    <message>
        <source>completed without error, or never run</source>
        <translation>completed without error, or never run</translation>
    </message>
    <message>
        <source>conveyance</source>
        <translation>conveyance</translation>
    </message>
    <message>
        <source>could not be read (%1)</source>
        <translation>could not be read (%1)</translation>
    </message>
    <message>
        <source>degraded</source>
        <translation>degraded</translation>
    </message>
    <message>
        <source>device error</source>
        <translation>device error</translation>
    </message>
    <message>
        <source>device unavailable</source>
        <translation>device unavailable</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>disabled</translation>
    </message>
    <message>
        <source>drives</source>
        <translation>drives</translation>
    </message>
    <message>
        <source>electrical failure</source>
        <translation>electrical failure</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>enabled</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>failed</translation>
    </message>
    <message>
        <source>failed</source>
        <comment>a logical disk</comment>
        <translation>failed</translation>
    </message>
    <message>
        <source>failed in a test segment</source>
        <translation>failed in a test segment</translation>
    </message>
    <message>
        <source>failed member: %1</source>
        <translation>failed member: %1</translation>
    </message>
    <message>
        <source>failure predicted</source>
        <translation>failure predicted</translation>
    </message>
    <message>
        <source>fatal or unknown error</source>
        <translation>fatal or unknown error</translation>
    </message>
    <message>
        <source>first failing LBA %1</source>
        <translation>first failing LBA %1</translation>
    </message>
    <message>
        <source>general failure</source>
        <translation>general failure</translation>
    </message>
    <message>
        <source>handling damage suspected</source>
        <translation>handling damage suspected</translation>
    </message>
    <message>
        <source>healthy</source>
        <translation>healthy</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>idle</translation>
    </message>
    <message>
        <source>in progress</source>
        <translation>in progress</translation>
    </message>
    <message>
        <source>info</source>
        <translation>info</translation>
    </message>
    <message>
        <source>interface error</source>
        <translation>interface error</translation>
    </message>
    <message>
        <source>interrupted by a reset</source>
        <translation>interrupted by a reset</translation>
    </message>
    <message>
        <source>invalid argument</source>
        <translation>invalid argument</translation>
    </message>
    <message>
        <source>invalid data</source>
        <translation>invalid data</translation>
    </message>
    <message>
        <source>it did not create a module instance</source>
        <translation>it did not create a module instance</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>locked</translation>
    </message>
    <message>
        <source>logical drive %1</source>
        <translation>logical drive %1</translation>
    </message>
    <message>
        <source>medium error</source>
        <translation>medium error</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>no data transferred</source>
        <translation>no data transferred</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>no such file</translation>
    </message>
    <message>
        <source>no vendor driver installed</source>
        <translation>no vendor driver installed</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>none available</source>
        <translation>none available</translation>
    </message>
    <message>
        <source>not answered</source>
        <translation>not answered</translation>
    </message>
    <message>
        <source>not applicable</source>
        <translation>not applicable</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>not available</translation>
    </message>
    <message>
        <source>not locked</source>
        <translation>not locked</translation>
    </message>
    <message>
        <source>not reported</source>
        <translation>not reported</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>not supported</translation>
    </message>
    <message>
        <source>not with</source>
        <translation>not with</translation>
    </message>
    <message>
        <source>notice</source>
        <translation>notice</translation>
    </message>
    <message>
        <source>offline data collection</source>
        <translation>offline data collection</translation>
    </message>
    <message>
        <source>offline data collection aborts on new command</source>
        <translation>offline data collection aborts on new command</translation>
    </message>
    <message>
        <source>optimal</source>
        <translation>optimal</translation>
    </message>
    <message>
        <source>other</source>
        <translation>other</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>passed</translation>
    </message>
    <message>
        <source>question: %1 %2 (%3)</source>
        <translation>question: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>read failure</source>
        <translation>read failure</translation>
    </message>
    <message>
        <source>rebuilding</source>
        <translation>rebuilding</translation>
    </message>
    <message>
        <source>rejected by the controller</source>
        <translation>rejected by the controller</translation>
    </message>
    <message>
        <source>self-test command aborted</source>
        <translation>self-test command aborted</translation>
    </message>
    <message>
        <source>self-test command rejected</source>
        <translation>self-test command rejected</translation>
    </message>
    <message>
        <source>serial number %1</source>
        <translation>serial number %1</translation>
    </message>
    <message>
        <source>servo or seek failure</source>
        <translation>servo or seek failure</translation>
    </message>
    <message>
        <source>short and extended</source>
        <translation>short and extended</translation>
    </message>
    <message>
        <source>solid-state device</source>
        <translation>solid-state device</translation>
    </message>
    <message>
        <source>standby</source>
        <translation>standby</translation>
    </message>
    <message>
        <source>state unknown</source>
        <translation>state unknown</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>status %1</translation>
    </message>
    <message>
        <source>success</source>
        <translation>success</translation>
    </message>
    <message>
        <source>the library does not export %1</source>
        <translation>the library does not export %1</translation>
    </message>
    <message>
        <source>the module keeps the device reserved</source>
        <translation>the module keeps the device reserved</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>unknown exception</source>
        <translation>unknown exception</translation>
    </message>
    <message>
        <source>unknown failure</source>
        <translation>unknown failure</translation>
    </message>
    <message>
        <source>unknown protocol</source>
        <translation>unknown protocol</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>warning</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Note: %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 takes no value</translation>
    </message>
    <message>
        <source>the simulated machine</source>
        <translation>the simulated machine</translation>
    </message>
    <message>
        <source>Vendor library %1 not found in %2: controllers that need it are not listed</source>
        <translation>Vendor library %1 not found in %2: controllers that need it are not listed</translation>
    </message>
    <message>
        <source>The question has no button &quot;%1&quot;</source>
        <translation>The question has no button &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Could not open a window for the question (%1)</source>
        <translation>Could not open a window for the question (%1)</translation>
    </message>
    <message>
        <source>ATA commands reach a drive with another serial number; only SCSI is used</source>
        <translation>ATA commands reach a drive with another serial number; only SCSI is used</translation>
    </message>
</context>
</TS>
