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
        <translation>Art</translation>
    </message>
    <message>
        <source>LOGICAL_DISK</source>
        <translation>Logischer Datenträger</translation>
    </message>
    <message>
        <source>PHYSICAL_DISK</source>
        <translation>Physischer Datenträger</translation>
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
        <translation>RAID-Verbund aus einem Laufwerk</translation>
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
        <translation>Ausführliche RAID-Tests</translation>
    </message>
    <message>
        <source>BATTERY_STATUS_TEST</source>
        <translation>Test der Pufferbatterie</translation>
    </message>
    <message>
        <source>BATTERY_STATUS_TEST_TOOLTIP</source>
        <translation>Prüft, ob die Pufferbatterie vorhanden, kühl genug und geladen ist</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST</source>
        <translation>Test der Laufwerksgehäuse</translation>
    </message>
    <message>
        <source>ENCLOSURES_STATUS_TEST_TOOLTIP</source>
        <translation>Sucht nach Gehäusen, die eine Störung melden</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVES_STATUS_TEST</source>
        <translation>Test der logischen Laufwerke</translation>
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
        <translation>Lässt den Controller die Daten aller logischen Laufwerke auf Konsistenz prüfen; das kann Stunden dauern</translation>
    </message>
    <message>
        <source>RAID_STATUS_TEST</source>
        <translation>Test des RAID-Zustands</translation>
    </message>
    <message>
        <source>RAID_STATUS_TEST_TOOLTIP</source>
        <translation>Prüft den RAID-Controller und den Zustand seiner logischen Laufwerke</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_STATUS_TEST</source>
        <translation>Test des RAID-Controllers</translation>
    </message>
    <message>
        <source>RAID_CONTROLLER_STATUS_TEST_TOOLTIP</source>
        <translation>Prüft, ob der RAID-Controller arbeitet, erreichbar und eingeschaltet ist</translation>
    </message>
    <message>
        <source>TEST_ABORTED_BECAUSE_A_SYSTEM_EVENT_THAT_COULD_COMPROMISE_THE_OUTCOME_HAS_HAPPENED</source>
        <translation>Test abgebrochen: Ein Systemereignis könnte das Ergebnis verfälschen</translation>
    </message>
    <message>
        <source>THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED</source>
        <translation>Dieser Test ist nicht möglich: Das Gerät wurde nicht erkannt oder ist nicht mehr angeschlossen</translation>
    </message>
    <message>
        <source>UNABLE_TO_RETRIEVE_DEVICE_PROPERTIES</source>
        <translation>Die Eigenschaften des Geräts konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>UNABLE_TO_COMMUNICATE_WITH_INTEL_C600_CONTROLLER</source>
        <translation>Der Intel-C600-Controller ist nicht erreichbar</translation>
    </message>
    <message>
        <source>RAID_MAYBE_THE_SATA_MODE_IS_NOT_SET_TO_RAID</source>
        <translation>Der SATA-Modus ist vielleicht nicht auf RAID eingestellt</translation>
    </message>
    <message>
        <source>CANT_GET_LOGICAL_DRIVES_INFO</source>
        <translation>Die logischen Laufwerke konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST</source>
        <translation>Kein logisches Laufwerk gefunden, der Test entfällt</translation>
    </message>
    <message>
        <source>UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE</source>
        <translation>RAID-Level nicht unterstützt bei logischem Laufwerk</translation>
    </message>
    <message>
        <source>TEST_DOESNT_SUPPORT_RAID_LEVEL</source>
        <translation>Der Test unterstützt nicht den RAID-Level</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_OPTIMAL</source>
        <translation>Logisches Laufwerk ist in Ordnung</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_DEGRADED</source>
        <translation>Logisches Laufwerk ist beeinträchtigt</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_PARTIALLY_DEGRADED</source>
        <translation>Logisches Laufwerk ist teilweise beeinträchtigt</translation>
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
        <translation>Zustand unbekannt bei logischem Laufwerk</translation>
    </message>
    <message>
        <source>DRIVE_DOWN</source>
        <translation>Laufwerk ist ausgefallen</translation>
    </message>
    <message>
        <source>CANNOT_RETRIEVE_CONTROLLER_INFO</source>
        <translation>Die Angaben des Controllers konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>CANT_VERIFY_STATUS_OF_ALL_LOGICAL_DRIVES</source>
        <translation>Der Zustand einiger logischer Laufwerke konnte nicht geprüft werden</translation>
    </message>
    <message>
        <source>CHECK_CONSISTENCY_ALREADY_IN_PROGRESS</source>
        <translation>Konsistenzprüfung läuft bereits</translation>
    </message>
    <message>
        <source>CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION</source>
        <translation>Auf mindestens einem logischen Laufwerk läuft bereits eine Konsistenzprüfung. Soll sie abgebrochen und neu begonnen werden?</translation>
    </message>
    <message>
        <source>CANCELLING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Konsistenzprüfung wird abgebrochen auf logischem Laufwerk</translation>
    </message>
    <message>
        <source>CANT_CANCEL_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Konsistenzprüfung ließ sich nicht abbrechen auf logischem Laufwerk</translation>
    </message>
    <message>
        <source>IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING</source>
        <translation>Übergangen, weil bereits eine Konsistenzprüfung läuft: logisches Laufwerk</translation>
    </message>
    <message>
        <source>RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE</source>
        <translation>Konsistenzprüfung läuft auf logischem Laufwerk</translation>
    </message>
    <message>
        <source>ERROR_RETRIEVING_PROGRESS</source>
        <translation>Der Fortschritt konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE</source>
        <translation>Ein Befehl ließ sich nicht senden an logisches Laufwerk</translation>
    </message>
    <message>
        <source>NO_TESTABLE_LOGICAL_DRIVE_FOUND</source>
        <translation>Kein logisches Laufwerk gefunden, das sich testen lässt</translation>
    </message>
    <message>
        <source>CANNOT_GET_CONSISTENCY_CHECK_RESULT</source>
        <translation>Ergebnis der Konsistenzprüfung nicht lesbar für logisches Laufwerk</translation>
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
        <translation>Übergangen, weil es initialisiert wird: logisches Laufwerk</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_NOT_IN_OPTIMAL_STATE</source>
        <translation>Nicht in optimalem Zustand: logisches Laufwerk</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RECONSTRUCTION_IN_PROGRESS</source>
        <translation>Übergangen, weil es umgebaut wird: logisches Laufwerk</translation>
    </message>
    <message>
        <source>RAID_NOT_SUPPORTED_LOGICAL_DRIVE_WILL_BE_SKIPPED</source>
        <translation>Das logische Laufwerk wird übergangen, sein RAID-Level wird nicht unterstützt</translation>
    </message>
    <message>
        <source>LOGICAL_DRIVE_SKIPPED_RESERVED_BY_SCSI_PEER</source>
        <translation>Übergangen, weil ein anderes SCSI-System es reserviert hat: logisches Laufwerk</translation>
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
        <translation>Gestörtes Laufwerksgehäuse</translation>
    </message>
    <message>
        <source>FAULTY_ENCLOSURE_FOUND</source>
        <translation>Mindestens ein Laufwerksgehäuse ist gestört</translation>
    </message>
    <message>
        <source>CANT_CHECK_BATTERY_BACKUP_UNIT_API_SUPPORT</source>
        <translation>Es ließ sich nicht feststellen, ob eine Pufferbatterie möglich ist</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_SUPPORTED</source>
        <translation>Der Controller unterstützt keine Pufferbatterie</translation>
    </message>
    <message>
        <source>CANT_GET_BATTERY_STATUS</source>
        <translation>Der Zustand der Batterie konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>BATTERY_BACKUP_UNIT_NOT_PRESENT</source>
        <translation>Es ist keine Pufferbatterie vorhanden</translation>
    </message>
    <message>
        <source>BATTERY_PACK_MISSING</source>
        <translation>Der Batteriesatz fehlt</translation>
    </message>
    <message>
        <source>BATTERY_TEMPERATURE_HIGH</source>
        <translation>Die Temperatur der Batterie ist hoch</translation>
    </message>
    <message>
        <source>LOW_BATTERY_VOLTAGE</source>
        <translation>Die Spannung der Batterie ist niedrig</translation>
    </message>
</context>
<context>
    <name>QT_SERVER_APP</name>
    <message>
        <source>APPLICATION_NAME</source>
        <translation>Orvik Diagnose</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>CLOSE_POP_UP</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>orvik-diag</name>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 degrees Celsius</source>
        <translation>%1 Grad Celsius</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 zu je %2 Byte</translation>
    </message>
    <message>
        <source>%1 revolutions per minute</source>
        <translation>%1 Umdrehungen pro Minute</translation>
    </message>
    <message>
        <source>%1: expected a diagnostics module library, found %2</source>
        <translation>%1: eine Diagnosemodul-Bibliothek wurde erwartet, gefunden: %2</translation>
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
            <numerusform>%n Mitglied</numerusform>
            <numerusform>%n Mitglieder</numerusform>
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
        <translation>(nötig)</translation>
    </message>
    <message>
        <source>(see %1 --help)</source>
        <translation>(siehe %1 --help)</translation>
    </message>
    <message>
        <source>48-bit addresses</source>
        <translation>48-Bit-Adressen</translation>
    </message>
    <message>
        <source>A self-test is under way already; --abort ends it</source>
        <translation>Ein Selbsttest läuft bereits; --abort beendet ihn</translation>
    </message>
    <message>
        <source>A short self-test; what is done without an option</source>
        <translation>Ein kurzer Selbsttest; das geschieht auch ohne Option</translation>
    </message>
    <message>
        <source>ATA error</source>
        <translation>ATA-Fehler</translation>
    </message>
    <message>
        <source>Abort the self-test under way</source>
        <translation>Den laufenden Selbsttest abbrechen</translation>
    </message>
    <message>
        <source>An extended self-test</source>
        <translation>Ein ausführlicher Selbsttest</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Ask the member drives for their identification and condition</source>
        <translation>Die Laufwerke hinter den Controllern nach Kennung und Zustand fragen</translation>
    </message>
    <message>
        <source>BUTTON</source>
        <translation>TASTE</translation>
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
        <source>Cache (the drive's own figure)</source>
        <translation>Cache (Angabe des Laufwerks)</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>KENNUNG</translation>
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
        <source>Diagnose the simulated machine that this file describes</source>
        <translation>Den simulierten Rechner untersuchen, den diese Datei beschreibt</translation>
    </message>
    <message>
        <source>Drive %1: self-test</source>
        <translation>Laufwerk %1: Selbsttest</translation>
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
        <translation>Ausführlicher Selbsttest</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Failure prediction (SMART)</source>
        <translation>Ausfallvorhersage (SMART)</translation>
    </message>
    <message>
        <source>Finds RAID controllers and tests them.</source>
        <translation>Findet RAID-Controller und testet sie.</translation>
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
        <source>For the options of all commands see %1 --help</source>
        <translation>Die Optionen aller Befehle zeigt %1 --help</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Gesundheit</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Id of the drive, or DEVICE:DRIVE by their indexes</source>
        <translation>Kennung des Laufwerks oder GERÄT:LAUFWERK nach ihren Nummern</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>It broke off: %1</source>
        <translation>Unerwartet beendet: %1</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Language of the texts, for example de</source>
        <translation>Sprache der Texte, zum Beispiel de</translation>
    </message>
    <message>
        <source>Latest self-test</source>
        <translation>Letzter Selbsttest</translation>
    </message>
    <message>
        <source>Let a member drive test itself, or abort what it has begun</source>
        <translation>Ein Laufwerk sich selbst testen lassen oder seinen Selbsttest abbrechen</translation>
    </message>
    <message>
        <source>List the RAID controllers with their disks</source>
        <translation>Die RAID-Controller mit ihren Datenträgern auflisten</translation>
    </message>
    <message>
        <source>List the tests and the devices that each applies to</source>
        <translation>Die Tests auflisten und zu jedem die Geräte, für die er gilt</translation>
    </message>
    <message>
        <source>Logical disks</source>
        <translation>Logische Datenträger</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>NVMe drives offer no self-tests here</source>
        <translation>NVMe-Laufwerke bieten hier keine Selbsttests</translation>
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
        <source>No command was given</source>
        <translation>Es wurde kein Befehl angegeben</translation>
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
        <source>No identification (%1)</source>
        <translation>Keine Kennung (%1)</translation>
    </message>
    <message>
        <source>No test "%1"</source>
        <translation>Kein Test „%1“</translation>
    </message>
    <message>
        <source>Not asked</source>
        <translation>Nicht gefragt</translation>
    </message>
    <message>
        <source>Nothing to test: no test applies.</source>
        <translation>Nichts zu testen: Kein Test ist anwendbar.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>Only devices with this id, or the one with this index</source>
        <translation>Nur Geräte mit dieser Kennung oder das mit diesem Index</translation>
    </message>
    <message>
        <source>Only the test with this id, key or name</source>
        <translation>Nur der Test mit dieser Nummer, diesem Schlüssel oder Namen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Physical disks</source>
        <translation>Physische Datenträger</translation>
    </message>
    <message>
        <source>Power mode</source>
        <translation>Energiezustand</translation>
    </message>
    <message>
        <source>Press this button when a test asks a question</source>
        <translation>Diese Schaltfläche drücken, wenn ein Test eine Frage stellt</translation>
    </message>
    <message>
        <source>Print one JSON document</source>
        <translation>Ein JSON-Dokument ausgeben</translation>
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
        <source>Run tests: every test on every device, or those chosen</source>
        <translation>Tests ausführen: alle auf allen Geräten oder die ausgewählten</translation>
    </message>
    <message>
        <source>SCSI status not good</source>
        <translation>SCSI-Status nicht GOOD</translation>
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
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Several drives are called "%1"</source>
        <translation>Mehrere Laufwerke heißen „%1“</translation>
    </message>
    <message>
        <source>Short self-test</source>
        <translation>Kurzer Selbsttest</translation>
    </message>
    <message>
        <source>Show an X for each character of a serial number</source>
        <translation>Für jedes Zeichen einer Seriennummer ein X zeigen</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Die Version anzeigen</translation>
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
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>Tell whether there is a RAID controller, without a scan</source>
        <translation>Sagen, ob es einen RAID-Controller gibt, ohne zu suchen</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>The controller did not tell all its drives (%1)</source>
        <translation>Der Controller hat nicht alle Laufwerke genannt (%1)</translation>
    </message>
    <message>
        <source>The controller did not tell its logical disks (%1)</source>
        <translation>Der Controller nennt seine logischen Datenträger nicht (%1)</translation>
    </message>
    <message>
        <source>The controller did not tell its physical disks (%1)</source>
        <translation>Der Controller nennt seine physischen Datenträger nicht (%1)</translation>
    </message>
    <message>
        <source>The controller did not tell its properties (%1)</source>
        <translation>Der Controller nennt seine Eigenschaften nicht (%1)</translation>
    </message>
    <message>
        <source>The device has gone since the scan</source>
        <translation>Das Gerät ist seit der Suche verschwunden</translation>
    </message>
    <message>
        <source>The drive does not tell how its self-test ended: %1</source>
        <translation>Das Laufwerk sagt nicht, wie sein Selbsttest endete: %1</translation>
    </message>
    <message>
        <source>The drive does not tell how its self-test goes: %1</source>
        <translation>Das Laufwerk sagt nicht, wie weit sein Selbsttest ist: %1</translation>
    </message>
    <message>
        <source>The drive was told to abort its self-test</source>
        <translation>Dem Laufwerk wurde gesagt, seinen Selbsttest abzubrechen</translation>
    </message>
    <message>
        <source>The module could not start it: %1</source>
        <translation>Das Modul konnte nicht damit beginnen: %1</translation>
    </message>
    <message>
        <source>The module did not run it</source>
        <translation>Das Modul hat es nicht ausgeführt</translation>
    </message>
    <message>
        <source>The module lists test %1 but does not make it</source>
        <translation>Das Modul nennt Test %1, erzeugt ihn aber nicht</translation>
    </message>
    <message>
        <source>The output could not be written</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The presence check broke off: %1</source>
        <translation>Die Anwesenheitsprüfung brach ab: %1</translation>
    </message>
    <message>
        <source>The presence check ended without an answer</source>
        <translation>Die Anwesenheitsprüfung endete ohne Antwort</translation>
    </message>
    <message>
        <source>The scan broke off: %1</source>
        <translation>Die Suche brach ab: %1</translation>
    </message>
    <message>
        <source>The scan broke off: its end was not reported</source>
        <translation>Die Suche brach ab: Ihr Ende wurde nicht gemeldet</translation>
    </message>
    <message>
        <source>The self-test came to no verdict: %1</source>
        <translation>Der Selbsttest kam zu keinem Ergebnis: %1</translation>
    </message>
    <message>
        <source>The self-test could not be aborted: %1</source>
        <translation>Der Selbsttest ließ sich nicht abbrechen: %1</translation>
    </message>
    <message>
        <source>The self-test could not be started: %1</source>
        <translation>Der Selbsttest ließ sich nicht starten: %1</translation>
    </message>
    <message>
        <source>The self-test was aborted</source>
        <translation>Der Selbsttest wurde abgebrochen</translation>
    </message>
    <message>
        <source>There is a RAID controller.</source>
        <translation>Es gibt einen RAID-Controller.</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Aufruf</translation>
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
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>a library without %1</source>
        <translation>eine Bibliothek ohne %1</translation>
    </message>
    <message>
        <source>a segment failed</source>
        <translation>ein Abschnitt ist fehlgeschlagen</translation>
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
        <source>an element failed</source>
        <translation>ein Element ist ausgefallen</translation>
    </message>
    <message>
        <source>an unknown error</source>
        <translation>ein unbekannter Fehler</translation>
    </message>
    <message>
        <source>bad argument</source>
        <translation>ungültiges Argument</translation>
    </message>
    <message>
        <source>broken off by a fatal error</source>
        <translation>durch einen schweren Fehler beendet</translation>
    </message>
    <message>
        <source>command refused</source>
        <translation>Befehl abgelehnt</translation>
    </message>
    <message>
        <source>completed without error</source>
        <translation>ohne Fehler beendet</translation>
    </message>
    <message>
        <source>completed without error, or none so far</source>
        <translation>ohne Fehler beendet, oder noch keiner</translation>
    </message>
    <message>
        <source>conveyance</source>
        <translation>Transport</translation>
    </message>
    <message>
        <source>degraded</source>
        <translation>beeinträchtigt</translation>
    </message>
    <message>
        <source>device error</source>
        <translation>Gerätefehler</translation>
    </message>
    <message>
        <source>device gone</source>
        <translation>Gerät verschwunden</translation>
    </message>
    <message>
        <source>drive too large or sense data unknown</source>
        <translation>Laufwerk zu groß oder Sense-Daten unbekannt</translation>
    </message>
    <message>
        <source>drives</source>
        <translation>Laufwerke</translation>
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
        <source>failed member: %1</source>
        <translation>ausgefallenes Mitglied: %1</translation>
    </message>
    <message>
        <source>failure predicted</source>
        <translation>Ausfall vorhergesagt</translation>
    </message>
    <message>
        <source>first failing LBA %1</source>
        <translation>erste fehlerhafte LBA %1</translation>
    </message>
    <message>
        <source>healthy</source>
        <translation>gesund</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>Kennung %1</translation>
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
        <source>interrupted by a reset or the like</source>
        <translation>durch einen Reset oder Ähnliches unterbrochen</translation>
    </message>
    <message>
        <source>invalid data</source>
        <translation>ungültige Daten</translation>
    </message>
    <message>
        <source>it keeps the device reserved</source>
        <translation>es hält das Gerät reserviert</translation>
    </message>
    <message>
        <source>it made none</source>
        <translation>es entstand keins</translation>
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
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>no usable answer</source>
        <translation>keine brauchbare Antwort</translation>
    </message>
    <message>
        <source>no vendor driver</source>
        <translation>kein Treiber des Herstellers</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>none that can be loaded (%1)</source>
        <translation>keine, die sich laden lässt (%1)</translation>
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
        <source>not told (%1)</source>
        <translation>nicht erfahren (%1)</translation>
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
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>off-line data collection</source>
        <translation>Datensammlung im Leerlauf</translation>
    </message>
    <message>
        <source>off-line data collection ends at a command</source>
        <translation>Datensammlung endet bei einem Befehl</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>one that could not start (%1)</source>
        <translation>eine, die nicht starten konnte (%1)</translation>
    </message>
    <message>
        <source>optimal</source>
        <translation>in Ordnung</translation>
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
        <source>physically %1 bytes</source>
        <translation>physisch %1 Byte</translation>
    </message>
    <message>
        <source>question: %1 %2 (%3)</source>
        <translation>Frage: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>rebuilding</source>
        <translation>wird wiederhergestellt</translation>
    </message>
    <message>
        <source>refused by the controller</source>
        <translation>vom Controller abgelehnt</translation>
    </message>
    <message>
        <source>request to the system failed</source>
        <translation>Anfrage an das System fehlgeschlagen</translation>
    </message>
    <message>
        <source>self-test not accepted</source>
        <translation>Selbsttest nicht angenommen</translation>
    </message>
    <message>
        <source>self-test not known</source>
        <translation>Selbsttest nicht bekannt</translation>
    </message>
    <message>
        <source>serial number %1</source>
        <translation>Seriennummer %1</translation>
    </message>
    <message>
        <source>short and extended</source>
        <translation>kurz und ausführlich</translation>
    </message>
    <message>
        <source>solid state</source>
        <translation>Halbleiter</translation>
    </message>
    <message>
        <source>standby</source>
        <translation>Bereitschaft</translation>
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
        <source>suspected handling damage</source>
        <translation>vermutlich durch Handhabung beschädigt</translation>
    </message>
    <message>
        <source>the electrical element failed</source>
        <translation>das elektrische Element ist ausgefallen</translation>
    </message>
    <message>
        <source>the read element failed</source>
        <translation>das Leseelement ist ausgefallen</translation>
    </message>
    <message>
        <source>the servo or seek element failed</source>
        <translation>das Servo- oder Suchelement ist ausgefallen</translation>
    </message>
    <message>
        <source>there are: %1</source>
        <translation>es gibt: %1</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>es gibt keine</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
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
</context>
</TS>
