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
        <translation>Logical disk</translation>
    </message>
    <message>
        <source>PHYSICAL_DISK</source>
        <translation>Physical disk</translation>
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
        <translation>Checks that the battery backup unit is present, cool enough and charged</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST</source>
        <translation>Enclosures status test</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST_TOOLTIP</source>
        <translation>Looks for enclosures that signal a fault</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVES_STATUS_TEST</source>
        <translation>Logical drives status test</translation>
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
        <translation>Lets the controller check that the data of every logical drive is consistent; this can take hours</translation>
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
        <translation>Checks that the RAID controller works, is online and powered on</translation>
    </message>
    <message>
        <source>TEST_ABORTED_BECAUSE_A_SYSTEM_EVENT_THAT_COULD_COMPROMISE_THE_OUTCOME_HAS_HAPPENED</source>
        <translation>Test aborted: a system event has happened that could compromise its outcome</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>This test cannot be performed: the device could not be identified or has been disconnected</translation>
    </message>
    <message>
        <source>UNABLE_TO_RETRIEVE_DEVICE_PROPERTIES</source>
        <translation>The properties of the device could not be read</translation>
    </message>
    <message>
        <source>UNABLE_TO_COMMUNICATE_WITH_INTEL_C600_CONTROLLER</source>
        <translation>The Intel C600 controller could not be reached</translation>
    </message>
    <message>
        <source>RAID_MAYBE_THE_SATA_MODE_IS_NOT_SET_TO_RAID</source>
        <translation>The SATA mode may not be set to RAID</translation>
    </message>
    <message>
        <source>CANT_GET_LOGICAL_DRIVES_INFO</source>
        <translation>The logical drives could not be read</translation>
    </message>
    <message>
        <source>NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST</source>
        <translation>No logical drive found, the test is skipped</translation>
    </message>
    <message>
        <source>UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE</source>
        <translation>RAID level not supported in logical drive</translation>
    </message>
    <message>
        <source>TEST_DOESNT_SUPPORT_RAID_LEVEL</source>
        <translation>The test does not support RAID level</translation>
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
        <translation>Logical drive is being rebuilt</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_UNKNOWN_STATUS</source>
        <translation>Status of logical drive is unknown</translation>
    </message>
    <message>
        <source>DRIVE_DOWN</source>
        <translation>Drive is down</translation>
    </message>
    <message>
        <source>CANNOT_RETRIEVE_CONTROLLER_INFO</source>
        <translation>The controller information could not be read</translation>
    </message>
    <message>
        <source>CANT_VERIFY_STATUS_OF_ALL_LOGICAL_DRIVES</source>
        <translation>The status of some logical drives could not be verified</translation>
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
        <translation>Cancelling the consistency check of logical drive</translation>
    </message>
    <message>
        <source>CANT_CANCEL_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>The consistency check could not be cancelled on logical drive</translation>
    </message>
    <message>
        <source>IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING</source>
        <translation>Skipped because a consistency check is already running: logical drive</translation>
    </message>
    <message>
        <source>RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Running the consistency check on logical drive</translation>
    </message>
    <message>
        <source>ERROR_RETRIEVING_PROGRESS</source>
        <translation>The progress could not be read</translation>
    </message>
    <message>
        <source>FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE</source>
        <translation>A command could not be sent to logical drive</translation>
    </message>
    <message>
        <source>NO_TESTABLE_LOGICAL_DRIVE_FOUND</source>
        <translation>No logical drive found that can be tested</translation>
    </message>
    <message>
        <source>CANNOT_GET_CONSISTENCY_CHECK_RESULT</source>
        <translation>The result of the consistency check could not be read for logical drive</translation>
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
        <translation>Skipped because it is being initialised: logical drive</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_NOT_IN_OPTIMAL_STATE</source>
        <translation>Logical drive is not in optimal state</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RECONSTRUCTION_IN_PROGRESS</source>
        <translation>Skipped because it is being reconstructed: logical drive</translation>
    </message>
    <message>
        <source>RAID_NOT_SUPPORTED_LOGICAL_DRIVE_WILL_BE_SKIPPED</source>
        <translation>The logical drive is skipped, its RAID level is not supported</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RESERVED_BY_SCSI_PEER</source>
        <translation>Skipped because another SCSI system has reserved it: logical drive</translation>
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
        <translation>The enclosures could not be read</translation>
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
        <translation>It could not be found out whether there can be a battery backup unit</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_SUPPORTED</source>
        <translation>The controller does not support a battery backup unit</translation>
    </message>
    <message>
        <source>CANT_GET_BATTERY_STATUS</source>
        <translation>The status of the battery could not be read</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_PRESENT</source>
        <translation>There is no battery backup unit</translation>
    </message>
    <message>
        <source>BATTERY_PACK_MISSING</source>
        <translation>The battery pack is missing</translation>
    </message>
    <message>
        <source>BATTERY_TEMPERATURE_HIGH</source>
        <translation>The temperature of the battery is high</translation>
    </message>
    <message>
        <source>LOW_BATTERY_VOLTAGE</source>
        <translation>The voltage of the battery is low</translation>
    </message>
</context>
<context>
    <name>QT_SERVER_APP</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Orvik Diagnostics</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>CLOSE_POP_UP</source>
        <translation>Close the message</translation>
    </message>
</context>
<context>
    <name>orvik-diag</name>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>%1 degrees Celsius</source>
        <translation>%1 degrees Celsius</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 of %2 bytes</translation>
    </message>
    <message>
        <source>%1 revolutions per minute</source>
        <translation>%1 revolutions per minute</translation>
    </message>
    <message>
        <source>%1: expected a diagnostics module library, found %2</source>
        <translation>%1: expected a diagnostics module library, found %2</translation>
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
        <source>48-bit addresses</source>
        <translation>48-bit addresses</translation>
    </message>
    <message>
        <source>A self-test is under way already; --abort ends it</source>
        <translation>A self-test is under way already; --abort ends it</translation>
    </message>
    <message>
        <source>A short self-test; what is done without an option</source>
        <translation>A short self-test; what is done without an option</translation>
    </message>
    <message>
        <source>ATA error</source>
        <translation>ATA error</translation>
    </message>
    <message>
        <source>Abort the self-test under way</source>
        <translation>Abort the self-test under way</translation>
    </message>
    <message>
        <source>An extended self-test</source>
        <translation>An extended self-test</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Arguments</translation>
    </message>
    <message>
        <source>Ask the member drives for their identification and condition</source>
        <translation>Ask the member drives for their identification and condition</translation>
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
        <source>Cache (the drive's own figure)</source>
        <translation>Cache (the drive's own figure)</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacity</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commands</translation>
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
        <source>Diagnose the simulated machine that this file describes</source>
        <translation>Diagnose the simulated machine that this file describes</translation>
    </message>
    <message>
        <source>Drive %1: self-test</source>
        <translation>Drive %1: self-test</translation>
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
        <source>Failure prediction (SMART)</source>
        <translation>Failure prediction (SMART)</translation>
    </message>
    <message>
        <source>Finds RAID controllers and tests them.</source>
        <translation>Finds RAID controllers and tests them.</translation>
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
        <source>For the options of all commands see %1 --help</source>
        <translation>For the options of all commands see %1 --help</translation>
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
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Id of the drive, or DEVICE:DRIVE by their indexes</source>
        <translation>Id of the drive, or DEVICE:DRIVE by their indexes</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrupted</translation>
    </message>
    <message>
        <source>It broke off: %1</source>
        <translation>It broke off: %1</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Language of the texts, for example de</source>
        <translation>Language of the texts, for example de</translation>
    </message>
    <message>
        <source>Latest self-test</source>
        <translation>Latest self-test</translation>
    </message>
    <message>
        <source>Let a member drive test itself, or abort what it has begun</source>
        <translation>Let a member drive test itself, or abort what it has begun</translation>
    </message>
    <message>
        <source>List the RAID controllers with their disks</source>
        <translation>List the RAID controllers with their disks</translation>
    </message>
    <message>
        <source>List the tests and the devices that each applies to</source>
        <translation>List the tests and the devices that each applies to</translation>
    </message>
    <message>
        <source>Logical disks</source>
        <translation>Logical disks</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>NVMe drives offer no self-tests here</source>
        <translation>NVMe drives offer no self-tests here</translation>
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
        <source>No command was given</source>
        <translation>No command was given</translation>
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
        <source>No identification (%1)</source>
        <translation>No identification (%1)</translation>
    </message>
    <message>
        <source>No test "%1"</source>
        <translation>No test "%1"</translation>
    </message>
    <message>
        <source>Not asked</source>
        <translation>Not asked</translation>
    </message>
    <message>
        <source>Nothing to test: no test applies.</source>
        <translation>Nothing to test: no test applies.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>Only devices with this id, or the one with this index</source>
        <translation>Only devices with this id, or the one with this index</translation>
    </message>
    <message>
        <source>Only the test with this id, key or name</source>
        <translation>Only the test with this id, key or name</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Physical disks</source>
        <translation>Physical disks</translation>
    </message>
    <message>
        <source>Power mode</source>
        <translation>Power mode</translation>
    </message>
    <message>
        <source>Press this button when a test asks a question</source>
        <translation>Press this button when a test asks a question</translation>
    </message>
    <message>
        <source>Print one JSON document</source>
        <translation>Print one JSON document</translation>
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
        <source>Run tests: every test on every device, or those chosen</source>
        <translation>Run tests: every test on every device, or those chosen</translation>
    </message>
    <message>
        <source>SCSI status not good</source>
        <translation>SCSI status not good</translation>
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
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Several drives are called "%1"</source>
        <translation>Several drives are called "%1"</translation>
    </message>
    <message>
        <source>Short self-test</source>
        <translation>Short self-test</translation>
    </message>
    <message>
        <source>Show an X for each character of a serial number</source>
        <translation>Show an X for each character of a serial number</translation>
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
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>Tell whether there is a RAID controller, without a scan</source>
        <translation>Tell whether there is a RAID controller, without a scan</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>The controller did not tell all its drives (%1)</source>
        <translation>The controller did not tell all its drives (%1)</translation>
    </message>
    <message>
        <source>The controller did not tell its logical disks (%1)</source>
        <translation>The controller did not tell its logical disks (%1)</translation>
    </message>
    <message>
        <source>The controller did not tell its physical disks (%1)</source>
        <translation>The controller did not tell its physical disks (%1)</translation>
    </message>
    <message>
        <source>The controller did not tell its properties (%1)</source>
        <translation>The controller did not tell its properties (%1)</translation>
    </message>
    <message>
        <source>The device has gone since the scan</source>
        <translation>The device has gone since the scan</translation>
    </message>
    <message>
        <source>The drive does not tell how its self-test ended: %1</source>
        <translation>The drive does not tell how its self-test ended: %1</translation>
    </message>
    <message>
        <source>The drive does not tell how its self-test goes: %1</source>
        <translation>The drive does not tell how its self-test goes: %1</translation>
    </message>
    <message>
        <source>The drive was told to abort its self-test</source>
        <translation>The drive was told to abort its self-test</translation>
    </message>
    <message>
        <source>The module could not start it: %1</source>
        <translation>The module could not start it: %1</translation>
    </message>
    <message>
        <source>The module did not run it</source>
        <translation>The module did not run it</translation>
    </message>
    <message>
        <source>The module lists test %1 but does not make it</source>
        <translation>The module lists test %1 but does not make it</translation>
    </message>
    <message>
        <source>The output could not be written</source>
        <translation>The output could not be written</translation>
    </message>
    <message>
        <source>The presence check broke off: %1</source>
        <translation>The presence check broke off: %1</translation>
    </message>
    <message>
        <source>The presence check ended without an answer</source>
        <translation>The presence check ended without an answer</translation>
    </message>
    <message>
        <source>The scan broke off: %1</source>
        <translation>The scan broke off: %1</translation>
    </message>
    <message>
        <source>The scan broke off: its end was not reported</source>
        <translation>The scan broke off: its end was not reported</translation>
    </message>
    <message>
        <source>The self-test came to no verdict: %1</source>
        <translation>The self-test came to no verdict: %1</translation>
    </message>
    <message>
        <source>The self-test could not be aborted: %1</source>
        <translation>The self-test could not be aborted: %1</translation>
    </message>
    <message>
        <source>The self-test could not be started: %1</source>
        <translation>The self-test could not be started: %1</translation>
    </message>
    <message>
        <source>The self-test was aborted</source>
        <translation>The self-test was aborted</translation>
    </message>
    <message>
        <source>There is a RAID controller.</source>
        <translation>There is a RAID controller.</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Usage</translation>
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
        <source>a folder</source>
        <translation>a folder</translation>
    </message>
    <message>
        <source>a library without %1</source>
        <translation>a library without %1</translation>
    </message>
    <message>
        <source>a segment failed</source>
        <translation>a segment failed</translation>
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
        <source>an element failed</source>
        <translation>an element failed</translation>
    </message>
    <message>
        <source>an unknown error</source>
        <translation>an unknown error</translation>
    </message>
    <message>
        <source>bad argument</source>
        <translation>bad argument</translation>
    </message>
    <message>
        <source>broken off by a fatal error</source>
        <translation>broken off by a fatal error</translation>
    </message>
    <message>
        <source>command refused</source>
        <translation>command refused</translation>
    </message>
    <message>
        <source>completed without error</source>
        <translation>completed without error</translation>
    </message>
    <message>
        <source>completed without error, or none so far</source>
        <translation>completed without error, or none so far</translation>
    </message>
    <message>
        <source>conveyance</source>
        <translation>conveyance</translation>
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
        <source>device gone</source>
        <translation>device gone</translation>
    </message>
    <message>
        <source>drive too large or sense data unknown</source>
        <translation>drive too large or sense data unknown</translation>
    </message>
    <message>
        <source>drives</source>
        <translation>drives</translation>
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
        <source>failed member: %1</source>
        <translation>failed member: %1</translation>
    </message>
    <message>
        <source>failure predicted</source>
        <translation>failure predicted</translation>
    </message>
    <message>
        <source>first failing LBA %1</source>
        <translation>first failing LBA %1</translation>
    </message>
    <message>
        <source>healthy</source>
        <translation>healthy</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>id %1</translation>
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
        <source>interrupted by a reset or the like</source>
        <translation>interrupted by a reset or the like</translation>
    </message>
    <message>
        <source>invalid data</source>
        <translation>invalid data</translation>
    </message>
    <message>
        <source>it keeps the device reserved</source>
        <translation>it keeps the device reserved</translation>
    </message>
    <message>
        <source>it made none</source>
        <translation>it made none</translation>
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
        <source>no usable answer</source>
        <translation>no usable answer</translation>
    </message>
    <message>
        <source>no vendor driver</source>
        <translation>no vendor driver</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>none that can be loaded (%1)</source>
        <translation>none that can be loaded (%1)</translation>
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
        <source>not told (%1)</source>
        <translation>not told (%1)</translation>
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
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>off-line data collection</source>
        <translation>off-line data collection</translation>
    </message>
    <message>
        <source>off-line data collection ends at a command</source>
        <translation>off-line data collection ends at a command</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>one that could not start (%1)</source>
        <translation>one that could not start (%1)</translation>
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
        <source>physically %1 bytes</source>
        <translation>physically %1 bytes</translation>
    </message>
    <message>
        <source>question: %1 %2 (%3)</source>
        <translation>question: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>rebuilding</source>
        <translation>rebuilding</translation>
    </message>
    <message>
        <source>refused by the controller</source>
        <translation>refused by the controller</translation>
    </message>
    <message>
        <source>request to the system failed</source>
        <translation>request to the system failed</translation>
    </message>
    <message>
        <source>self-test not accepted</source>
        <translation>self-test not accepted</translation>
    </message>
    <message>
        <source>self-test not known</source>
        <translation>self-test not known</translation>
    </message>
    <message>
        <source>serial number %1</source>
        <translation>serial number %1</translation>
    </message>
    <message>
        <source>short and extended</source>
        <translation>short and extended</translation>
    </message>
    <message>
        <source>solid state</source>
        <translation>solid state</translation>
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
        <source>suspected handling damage</source>
        <translation>suspected handling damage</translation>
    </message>
    <message>
        <source>the electrical element failed</source>
        <translation>the electrical element failed</translation>
    </message>
    <message>
        <source>the read element failed</source>
        <translation>the read element failed</translation>
    </message>
    <message>
        <source>the servo or seek element failed</source>
        <translation>the servo or seek element failed</translation>
    </message>
    <message>
        <source>there are: %1</source>
        <translation>there are: %1</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>there is none</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
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
</context>
</TS>
