<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>RAID</name>
    <message>
        <source>UDI</source>
        <translation>Eindeutige Kennung</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>PLATFORM</source>
        <translation>Plattform</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>NUM_LOGICAL_DEVICES</source>
        <translation>Logische Laufwerke</translation>
    </message>
    <message>
        <source>SUPPORTED_INTERFACES</source>
        <translation>Unterstützte Schnittstellen</translation>
    </message>
    <message>
        <source>SUPPORTED_RAID_LEVELS</source>
        <translation>Unterstützte RAID-Level</translation>
    </message>
    <message>
        <source>NUM_PHYSICAL_DEVICES</source>
        <translation>Physische Laufwerke</translation>
    </message>
    <message>
        <source>DRIVER_VERSION</source>
        <translation>Treiberversion</translation>
    </message>
    <message>
        <source>RESOURCE_TYPE</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>LOGICAL_DISK</source>
        <translation>Logisches Laufwerk</translation>
    </message>
    <message>
        <source>PHYSICAL_DISK</source>
        <translation>Physisches Laufwerk</translation>
    </message>
    <message>
        <source>INDEX</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>RAID_LEVEL</source>
        <translation>RAID-Level</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>MANUFACTURER</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>SINGLE_DRIVE_RAID_SET</source>
        <translation>RAID-Verbund mit einem Laufwerk</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>Unbekannter RAID-Level</translation>
    </message>
    <message>
        <source>QUICK_RAID</source>
        <translation>RAID-Schnelltests</translation>
    </message>
    <message>
        <source>QUICK_RAID_TESTS_TOOLTIP</source>
        <translation>RAID-Schnelltests</translation>
    </message>
    <message>
        <source>EXTENDED_RAID_TESTS_TOOLTIP</source>
        <translation>Erweiterte RAID-Tests</translation>
    </message>
    <message>
        <source>BATTERY_STATUS_TEST</source>
        <translation>Statustest der Pufferbatterie</translation>
    </message>
    <message>
        <source>BATTERY_STATUS_TEST_TOOLTIP</source>
        <translation>Prüft Vorhandensein, Temperatur und Spannung der Pufferbatterie</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST</source>
        <translation>Statustest der Laufwerksgehäuse</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST_TOOLTIP</source>
        <translation>Sucht nach Laufwerksgehäusen, die einen Fehler melden</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVES_STATUS_TEST</source>
        <translation>Statustest der logischen Laufwerke</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVES_STATUS_TEST_TOOLTIP</source>
        <translation>Prüft den Zustand aller logischen Laufwerke</translation>
    </message>
    <message>
        <source>CHECK_CONSISTENCY_TEST</source>
        <translation>Konsistenzprüfung</translation>
    </message>
    <message>
        <source>CHECK_CONSISTENCY_TEST_TOOLTIP</source>
        <translation>Führt die Konsistenzprüfung des Controllers auf allen logischen Laufwerken aus; das kann Stunden dauern</translation>
    </message>
    <message>
        <source>RAID_STATUS_TEST</source>
        <translation>RAID-Statustest</translation>
    </message>
    <message>
        <source>RAID_STATUS_TEST_TOOLTIP</source>
        <translation>Prüft den RAID-Controller und den Zustand seiner logischen Laufwerke</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_STATUS_TEST</source>
        <translation>Statustest des RAID-Controllers</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_STATUS_TEST_TOOLTIP</source>
        <translation>Prüft, ob der RAID-Controller betriebsbereit, online und eingeschaltet ist</translation>
    </message>
    <message>
        <source>TEST_ABORTED_BECAUSE_A_SYSTEM_EVENT_THAT_COULD_COMPROMISE_THE_OUTCOME_HAS_HAPPENED</source>
        <translation>Test abgebrochen: Ein Systemereignis könnte das Ergebnis verfälscht haben</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Test nicht möglich: Das Gerät konnte nicht identifiziert werden oder wurde getrennt</translation>
    </message>
    <message>
        <source>UNABLE_TO_RETRIEVE_DEVICE_PROPERTIES</source>
        <translation>Die Geräteeigenschaften konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>UNABLE_TO_COMMUNICATE_WITH_INTEL_C600_CONTROLLER</source>
        <translation>Keine Kommunikation mit dem Intel-C600-Controller möglich</translation>
    </message>
    <message>
        <source>RAID_MAYBE_THE_SATA_MODE_IS_NOT_SET_TO_RAID</source>
        <translation>Der SATA-Modus ist möglicherweise nicht auf RAID eingestellt</translation>
    </message>
    <message>
        <source>CANT_GET_LOGICAL_DRIVES_INFO</source>
        <translation>Die logischen Laufwerke konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST</source>
        <translation>Kein logisches Laufwerk gefunden, Test wird übersprungen</translation>
    </message>
    <message>
        <source>UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE</source>
        <translation>RAID-Level nicht unterstützt, logisches Laufwerk</translation>
    </message>
    <message>
        <source>TEST_DOESNT_SUPPORT_RAID_LEVEL</source>
        <translation>RAID-Level wird von diesem Test nicht unterstützt</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_OPTIMAL</source>
        <translation>Logisches Laufwerk ist optimal</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_DEGRADED</source>
        <translation>Logisches Laufwerk ist degradiert</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_PARTIALLY_DEGRADED</source>
        <translation>Logisches Laufwerk ist teilweise degradiert</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_OFFLINE</source>
        <translation>Logisches Laufwerk ist offline</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_UNABLE_TO_READ_WRITE</source>
        <translation>Logisches Laufwerk kann weder gelesen noch beschrieben werden</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_REBUILDING</source>
        <translation>Logisches Laufwerk wird wiederhergestellt</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_UNKNOWN_STATUS</source>
        <translation>Status unbekannt, logisches Laufwerk</translation>
    </message>
    <message>
        <source>DRIVE_DOWN</source>
        <translation>Laufwerk ist ausgefallen</translation>
    </message>
    <message>
        <source>CANNOT_RETRIEVE_CONTROLLER_INFO</source>
        <translation>Die Controllerinformationen konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>CANT_VERIFY_STATUS_OF_ALL_LOGICAL_DRIVES</source>
        <translation>Der Status einiger logischer Laufwerke konnte nicht geprüft werden</translation>
    </message>
    <message>
        <source>CHECK_CONSISTENCY_ALREADY_IN_PROGRESS</source>
        <translation>Konsistenzprüfung läuft bereits</translation>
    </message>
    <message>
        <source>CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION</source>
        <translation>Auf mindestens einem logischen Laufwerk läuft bereits eine Konsistenzprüfung. Abbrechen und neu starten?</translation>
    </message>
    <message>
        <source>CANCELLING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Konsistenzprüfung wird abgebrochen, logisches Laufwerk</translation>
    </message>
    <message>
        <source>CANT_CANCEL_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Konsistenzprüfung konnte nicht abgebrochen werden, logisches Laufwerk</translation>
    </message>
    <message>
        <source>IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING</source>
        <translation>Konsistenzprüfung läuft bereits, übersprungenes logisches Laufwerk</translation>
    </message>
    <message>
        <source>RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Konsistenzprüfung läuft, logisches Laufwerk</translation>
    </message>
    <message>
        <source>ERROR_RETRIEVING_PROGRESS</source>
        <translation>Der Fortschritt konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE</source>
        <translation>Befehl konnte nicht gesendet werden, logisches Laufwerk</translation>
    </message>
    <message>
        <source>NO_TESTABLE_LOGICAL_DRIVE_FOUND</source>
        <translation>Kein testbares logisches Laufwerk gefunden</translation>
    </message>
    <message>
        <source>CANNOT_GET_CONSISTENCY_CHECK_RESULT</source>
        <translation>Ergebnis der Konsistenzprüfung nicht lesbar, logisches Laufwerk</translation>
    </message>
    <message>
        <source>INCONSISTENT_LOGICAL_DRIVE</source>
        <translation>Logisches Laufwerk ist inkonsistent</translation>
    </message>
    <message>
        <source>CONSISTENT_LOGICAL_DRIVE</source>
        <translation>Logisches Laufwerk ist konsistent</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_INITIALIZATION_IN_PROGRESS</source>
        <translation>Initialisierung läuft, übersprungenes logisches Laufwerk</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_NOT_IN_OPTIMAL_STATE</source>
        <translation>Logisches Laufwerk ist nicht optimal</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RECONSTRUCTION_IN_PROGRESS</source>
        <translation>Rekonstruktion läuft, übersprungenes logisches Laufwerk</translation>
    </message>
    <message>
        <source>RAID_NOT_SUPPORTED_LOGICAL_DRIVE_WILL_BE_SKIPPED</source>
        <translation>RAID-Level nicht unterstützt, übersprungenes logisches Laufwerk</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RESERVED_BY_SCSI_PEER</source>
        <translation>Von einem anderen SCSI-System reserviert, übersprungenes logisches Laufwerk</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_HAS_FAILED</source>
        <translation>Der RAID-Controller ist ausgefallen</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_IS_OFFLINE</source>
        <translation>Der RAID-Controller ist offline</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_IS_POWERED_OFF</source>
        <translation>Der RAID-Controller ist ausgeschaltet</translation>
    </message>
    <message>
        <source>CANT_GET_ENCLOSURES_INFO</source>
        <translation>Die Laufwerksgehäuse konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>NO_ENCLOSURES_FOUND</source>
        <translation>Kein Laufwerksgehäuse gefunden</translation>
    </message>
    <message>
        <source>FAULTY_ENCLOSURE</source>
        <translation>Fehlerhaftes Laufwerksgehäuse</translation>
    </message>
    <message>
        <source>FAULTY_ENCLOSURE_FOUND</source>
        <translation>Mindestens ein Laufwerksgehäuse ist fehlerhaft</translation>
    </message>
    <message>
        <source>CANT_CHECK_BATTERY_BACKUP_UNIT_API_SUPPORT</source>
        <translation>Es konnte nicht ermittelt werden, ob eine Pufferbatterie unterstützt wird</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_SUPPORTED</source>
        <translation>Der Controller unterstützt keine Pufferbatterie</translation>
    </message>
    <message>
        <source>CANT_GET_BATTERY_STATUS</source>
        <translation>Der Batteriestatus konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_PRESENT</source>
        <translation>Keine Pufferbatterie vorhanden</translation>
    </message>
    <message>
        <source>BATTERY_PACK_MISSING</source>
        <translation>Batteriepack fehlt</translation>
    </message>
    <message>
        <source>BATTERY_TEMPERATURE_HIGH</source>
        <translation>Batterietemperatur ist hoch</translation>
    </message>
    <message>
        <source>LOW_BATTERY_VOLTAGE</source>
        <translation>Batteriespannung ist niedrig</translation>
    </message>
</context>
<context>
    <name>QT_SERVER_APP</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Orvik Diagnose</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>CLOSE_POP_UP</source>
        <translation>Meldung schließen</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Ja</translation>
    </message>
</context>
<context>
    <name>orvik-diag</name>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes physical</source>
        <translation>physisch %1 Byte</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 zu je %2 Byte</translation>
    </message>
    <message>
        <source>%1 rpm</source>
        <translation>%1 U/min</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message numerus="yes">
        <source>%n RAID controller(s)</source>
        <translation>
            <numerusform>%n RAID-Controller</numerusform>
            <numerusform>%n RAID-Controller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drive(s)</source>
        <translation>
            <numerusform>%n Laufwerk</numerusform>
            <numerusform>%n Laufwerke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n member(s)</source>
        <translation>
            <numerusform>%n Mitgliedslaufwerk</numerusform>
            <numerusform>%n Mitgliedslaufwerke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n run(s): %1</source>
        <translation>
            <numerusform>%n Testlauf: %1</numerusform>
            <numerusform>%n Testläufe: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(erforderlich)</translation>
    </message>
    <message>
        <source>(see %1 --help)</source>
        <translation>(siehe %1 --help)</translation>
    </message>
    <message>
        <source>48-bit addressing</source>
        <translation>48-Bit-Adressierung</translation>
    </message>
    <message>
        <source>A self-test is already running; use --abort to stop it</source>
        <translation>Es läuft bereits ein Selbsttest; mit --abort abbrechen</translation>
    </message>
    <message>
        <source>ATA error</source>
        <translation>ATA-Fehler</translation>
    </message>
    <message>
        <source>Abort command accepted</source>
        <translation>Abbruchbefehl angenommen</translation>
    </message>
    <message>
        <source>Abort the running self-test</source>
        <translation>Laufenden Selbsttest abbrechen</translation>
    </message>
    <message>
        <source>Answer questions of tests with this button</source>
        <translation>Fragen von Tests mit dieser Schaltfläche beantworten</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>BUTTON</source>
        <translation>SCHALTFLÄCHE</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>CODE</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <source>Cache size (as reported)</source>
        <translation>Cachegröße (laut Laufwerk)</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Check for a RAID controller without a full scan</source>
        <translation>Ohne vollständige Suche prüfen, ob ein RAID-Controller vorhanden ist</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Could not abort the self-test: %1</source>
        <translation>Der Selbsttest konnte nicht abgebrochen werden: %1</translation>
    </message>
    <message>
        <source>Could not identify the drive (%1)</source>
        <translation>Laufwerk konnte nicht identifiziert werden (%1)</translation>
    </message>
    <message>
        <source>Could not load the module %1: %2</source>
        <translation>Das Modul %1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Could not read all drives of the controller (%1)</source>
        <translation>Nicht alle Laufwerke des Controllers konnten gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Could not read the controller's logical drives (%1)</source>
        <translation>Logische Laufwerke des Controllers konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Could not read the controller's physical drives (%1)</source>
        <translation>Physische Laufwerke des Controllers konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Could not read the controller's properties (%1)</source>
        <translation>Eigenschaften des Controllers konnten nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Could not read the progress of the self-test: %1</source>
        <translation>Der Fortschritt des Selbsttests konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Could not read the result of the self-test: %1</source>
        <translation>Das Ergebnis des Selbsttests konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Could not start the self-test: %1</source>
        <translation>Der Selbsttest konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>Could not start: %1</source>
        <translation>Start nicht möglich: %1</translation>
    </message>
    <message>
        <source>Could not write the output</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>GERÄT</translation>
    </message>
    <message>
        <source>DRIVE</source>
        <translation>LAUFWERK</translation>
    </message>
    <message>
        <source>Device %1, %2: %3</source>
        <translation>Gerät %1, %2: %3</translation>
    </message>
    <message>
        <source>Device %1: %2</source>
        <translation>Gerät %1: %2</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Drive %1: self-test</source>
        <translation>Laufwerk %1: Selbsttest</translation>
    </message>
    <message>
        <source>Drive ID, or the indexes DEVICE:DRIVE</source>
        <translation>Laufwerks-ID oder die Indizes GERÄT:LAUFWERK</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>Exklusiv</translation>
    </message>
    <message>
        <source>Extended self-test</source>
        <translation>Erweiterter Selbsttest</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Finds and tests RAID controllers.</source>
        <translation>Findet und testet RAID-Controller.</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>First failing LBA</source>
        <translation>Erste fehlerhafte LBA</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>I/O request failed</source>
        <translation>E/A-Anforderung fehlgeschlagen</translation>
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
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Language of the output, for example de</source>
        <translation>Sprache der Ausgabe, zum Beispiel de</translation>
    </message>
    <message>
        <source>Latest self-test</source>
        <translation>Letzter Selbsttest</translation>
    </message>
    <message>
        <source>List RAID controllers and their drives</source>
        <translation>RAID-Controller und ihre Laufwerke auflisten</translation>
    </message>
    <message>
        <source>List the tests and the devices they apply to</source>
        <translation>Tests und die Geräte auflisten, für die sie gelten</translation>
    </message>
    <message>
        <source>Logical drives</source>
        <translation>Logische Laufwerke</translation>
    </message>
    <message>
        <source>Mask serial numbers and drive labels with X</source>
        <translation>Seriennummern und Laufwerksetiketten mit X maskieren</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No RAID controller found.</source>
        <translation>Kein RAID-Controller gefunden.</translation>
    </message>
    <message>
        <source>No applicable tests.</source>
        <translation>Keine anwendbaren Tests.</translation>
    </message>
    <message>
        <source>No command given</source>
        <translation>Kein Befehl angegeben</translation>
    </message>
    <message>
        <source>No device "%1"</source>
        <translation>Kein Gerät „%1“</translation>
    </message>
    <message>
        <source>No drive "%1"</source>
        <translation>Kein Laufwerk „%1“</translation>
    </message>
    <message>
        <source>No test "%1"</source>
        <translation>Kein Test „%1“</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Nicht gelesen</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Physical drives</source>
        <translation>Physische Laufwerke</translation>
    </message>
    <message>
        <source>Power mode</source>
        <translation>Energiezustand</translation>
    </message>
    <message>
        <source>Print output as JSON</source>
        <translation>Ausgabe als JSON</translation>
    </message>
    <message>
        <source>RAID controller found.</source>
        <translation>RAID-Controller gefunden.</translation>
    </message>
    <message>
        <source>Remaining life</source>
        <translation>Verbleibende Lebensdauer</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Ergebnis: %1</translation>
    </message>
    <message>
        <source>Rotation rate</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>Run %1 --help for the common options</source>
        <translation>Allgemeine Optionen: %1 --help</translation>
    </message>
    <message>
        <source>Run a short self-test (default)</source>
        <translation>Kurzen Selbsttest ausführen (Standard)</translation>
    </message>
    <message>
        <source>Run an extended self-test</source>
        <translation>Erweiterten Selbsttest ausführen</translation>
    </message>
    <message>
        <source>Run only the test with this ID, key or name</source>
        <translation>Nur den Test mit dieser ID, diesem Schlüssel oder Namen ausführen</translation>
    </message>
    <message>
        <source>Run tests; by default every test on every device</source>
        <translation>Tests ausführen; standardmäßig alle auf allen Geräten</translation>
    </message>
    <message>
        <source>SCSI status not GOOD</source>
        <translation>SCSI-Status nicht GOOD</translation>
    </message>
    <message>
        <source>SMART</source>
        <translation>SMART</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektoren</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Self-tests</source>
        <translation>Selbsttests</translation>
    </message>
    <message>
        <source>Self-tests are not supported on NVMe drives</source>
        <translation>Selbsttests werden auf NVMe-Laufwerken nicht unterstützt</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Several drives match "%1"</source>
        <translation>Mehrere Laufwerke passen zu „%1“</translation>
    </message>
    <message>
        <source>Short self-test</source>
        <translation>Kurzer Selbsttest</translation>
    </message>
    <message>
        <source>Show identity and health of the member drives</source>
        <translation>Identität und Zustand der Mitgliedslaufwerke anzeigen</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Version anzeigen</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Diese Hilfe anzeigen</translation>
    </message>
    <message>
        <source>Simulated machines are not available in this installation: %1</source>
        <translation>Simulierte Rechner sind in dieser Installation nicht verfügbar: %1</translation>
    </message>
    <message>
        <source>Standard version</source>
        <translation>Version des Standards</translation>
    </message>
    <message>
        <source>Standards</source>
        <translation>Standards</translation>
    </message>
    <message>
        <source>Start or abort a self-test on a member drive</source>
        <translation>Selbsttest eines Mitgliedslaufwerks starten oder abbrechen</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>The device is no longer available</source>
        <translation>Das Gerät ist nicht mehr verfügbar</translation>
    </message>
    <message>
        <source>The module did not execute the task</source>
        <translation>Das Modul hat die Aufgabe nicht ausgeführt</translation>
    </message>
    <message>
        <source>The module lists test %1 but does not create it</source>
        <translation>Das Modul führt Test %1 auf, erzeugt ihn aber nicht</translation>
    </message>
    <message>
        <source>The presence check failed: %1</source>
        <translation>Die Prüfung auf Controller ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The presence check returned no result</source>
        <translation>Die Prüfung auf Controller lieferte kein Ergebnis</translation>
    </message>
    <message>
        <source>The scan did not finish</source>
        <translation>Die Suche wurde nicht abgeschlossen</translation>
    </message>
    <message>
        <source>The scan failed: %1</source>
        <translation>Die Suche ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The self-test ended without a result: %1</source>
        <translation>Der Selbsttest endete ohne Ergebnis: %1</translation>
    </message>
    <message>
        <source>The self-test was aborted</source>
        <translation>Der Selbsttest wurde abgebrochen</translation>
    </message>
    <message>
        <source>Unexpected error: %1</source>
        <translation>Unerwarteter Fehler: %1</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Use only devices with this ID or index</source>
        <translation>Nur Geräte mit dieser ID oder diesem Index</translation>
    </message>
    <message>
        <source>Use the simulated machine described in this file</source>
        <translation>Den in dieser Datei beschriebenen simulierten Rechner verwenden</translation>
    </message>
    <message>
        <source>Use this module library instead of the installed one</source>
        <translation>Diese Modulbibliothek statt der installierten verwenden</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>aborted by the host</source>
        <translation>vom Host abgebrochen</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>active or idle</source>
        <translation>aktiv oder im Leerlauf</translation>
    </message>
    <message>
        <source>address too large or unknown sense data</source>
        <translation>Adresse zu groß oder unbekannte Sense-Daten</translation>
    </message>
    <message>
        <source>available: %1</source>
        <translation>verfügbar: %1</translation>
    </message>
    <message>
        <source>command rejected</source>
        <translation>Befehl abgelehnt</translation>
    </message>
    <message>
        <source>completed without error</source>
        <translation>fehlerfrei abgeschlossen</translation>
    </message>
    <message>
        <source>completed without error, or never run</source>
        <translation>fehlerfrei abgeschlossen oder nie ausgeführt</translation>
    </message>
    <message>
        <source>conveyance</source>
        <translation>Transport</translation>
    </message>
    <message>
        <source>could not be read (%1)</source>
        <translation>nicht lesbar (%1)</translation>
    </message>
    <message>
        <source>degraded</source>
        <translation>degradiert</translation>
    </message>
    <message>
        <source>device error</source>
        <translation>Gerätefehler</translation>
    </message>
    <message>
        <source>device unavailable</source>
        <translation>Gerät nicht verfügbar</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>deaktiviert</translation>
    </message>
    <message>
        <source>drives</source>
        <translation>Laufwerke</translation>
    </message>
    <message>
        <source>electrical failure</source>
        <translation>elektrischer Fehler</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>aktiviert</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>nicht bestanden</translation>
    </message>
    <message>
        <source>failed</source>
        <comment>a logical disk</comment>
        <translation>ausgefallen</translation>
    </message>
    <message>
        <source>failed in a test segment</source>
        <translation>in einem Testsegment fehlgeschlagen</translation>
    </message>
    <message>
        <source>failed member: %1</source>
        <translation>ausgefallenes Mitgliedslaufwerk: %1</translation>
    </message>
    <message>
        <source>failure predicted</source>
        <translation>Ausfall vorhergesagt</translation>
    </message>
    <message>
        <source>fatal or unknown error</source>
        <translation>schwerwiegender oder unbekannter Fehler</translation>
    </message>
    <message>
        <source>first failing LBA %1</source>
        <translation>erste fehlerhafte LBA %1</translation>
    </message>
    <message>
        <source>general failure</source>
        <translation>allgemeiner Fehler</translation>
    </message>
    <message>
        <source>handling damage suspected</source>
        <translation>Verdacht auf Handhabungsschaden</translation>
    </message>
    <message>
        <source>healthy</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>Leerlauf</translation>
    </message>
    <message>
        <source>in progress</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>interface error</source>
        <translation>Schnittstellenfehler</translation>
    </message>
    <message>
        <source>interrupted by a reset</source>
        <translation>durch einen Reset unterbrochen</translation>
    </message>
    <message>
        <source>invalid argument</source>
        <translation>ungültiges Argument</translation>
    </message>
    <message>
        <source>invalid data</source>
        <translation>ungültige Daten</translation>
    </message>
    <message>
        <source>it did not create a module instance</source>
        <translation>es hat keine Modulinstanz erzeugt</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>logical drive %1</source>
        <translation>logisches Laufwerk %1</translation>
    </message>
    <message>
        <source>medium error</source>
        <translation>Medienfehler</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>no data transferred</source>
        <translation>keine Daten übertragen</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>no vendor driver installed</source>
        <translation>kein Herstellertreiber installiert</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>none available</source>
        <translation>keine verfügbar</translation>
    </message>
    <message>
        <source>not answered</source>
        <translation>nicht beantwortet</translation>
    </message>
    <message>
        <source>not applicable</source>
        <translation>nicht anwendbar</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <source>not locked</source>
        <translation>nicht gesperrt</translation>
    </message>
    <message>
        <source>not reported</source>
        <translation>nicht gemeldet</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>nicht unterstützt</translation>
    </message>
    <message>
        <source>not with</source>
        <translation>nicht mit</translation>
    </message>
    <message>
        <source>notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>offline data collection</source>
        <translation>Offline-Datenerfassung</translation>
    </message>
    <message>
        <source>offline data collection aborts on new command</source>
        <translation>Offline-Datenerfassung bricht bei neuem Befehl ab</translation>
    </message>
    <message>
        <source>optimal</source>
        <translation>optimal</translation>
    </message>
    <message>
        <source>other</source>
        <translation>anderer</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>question: %1 %2 (%3)</source>
        <translation>Frage: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>read failure</source>
        <translation>Lesefehler</translation>
    </message>
    <message>
        <source>rebuilding</source>
        <translation>Wiederherstellung läuft</translation>
    </message>
    <message>
        <source>rejected by the controller</source>
        <translation>vom Controller abgelehnt</translation>
    </message>
    <message>
        <source>self-test command aborted</source>
        <translation>Selbsttestbefehl abgebrochen</translation>
    </message>
    <message>
        <source>self-test command rejected</source>
        <translation>Selbsttestbefehl abgelehnt</translation>
    </message>
    <message>
        <source>serial number %1</source>
        <translation>Seriennummer %1</translation>
    </message>
    <message>
        <source>servo or seek failure</source>
        <translation>Servo- oder Suchfehler</translation>
    </message>
    <message>
        <source>short and extended</source>
        <translation>kurz und erweitert</translation>
    </message>
    <message>
        <source>solid-state device</source>
        <translation>keine (SSD)</translation>
    </message>
    <message>
        <source>standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>state unknown</source>
        <translation>Zustand unbekannt</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>Status %1</translation>
    </message>
    <message>
        <source>success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>the library does not export %1</source>
        <translation>die Bibliothek exportiert %1 nicht</translation>
    </message>
    <message>
        <source>the module keeps the device reserved</source>
        <translation>das Modul hält das Gerät reserviert</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>unknown exception</source>
        <translation>unbekannte Ausnahme</translation>
    </message>
    <message>
        <source>unknown failure</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>unknown protocol</source>
        <translation>unbekanntes Protokoll</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 erwartet keinen Wert</translation>
    </message>
    <message>
        <source>the simulated machine</source>
        <translation>der simulierten Maschine</translation>
    </message>
    <message>
        <source>Vendor library %1 not found in %2: controllers that need it are not listed</source>
        <translation>Herstellerbibliothek %1 in %2 nicht gefunden: Controller, die sie benötigen, werden nicht aufgelistet</translation>
    </message>
    <message>
        <source>The question has no button &quot;%1&quot;</source>
        <translation>Die Frage hat keine Schaltfläche „%1“</translation>
    </message>
    <message>
        <source>Could not open a window for the question (%1)</source>
        <translation>Für die Frage konnte kein Fenster geöffnet werden (%1)</translation>
    </message>
    <message>
        <source>ATA commands reach a drive with another serial number; only SCSI is used</source>
        <translation>ATA-Befehle erreichen ein Laufwerk mit anderer Seriennummer; nur SCSI wird verwendet</translation>
    </message>
</context>
</TS>
