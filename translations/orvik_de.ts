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
        <source>(see %1 --help)</source>
        <translation>(siehe %1 --help)</translation>
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
        <source>Commands</source>
        <translation>Befehle</translation>
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
        <source>DEVICE</source>
        <translation>KENNUNG</translation>
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
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>Exklusiv</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Finds RAID controllers and tests them.</source>
        <translation>Findet RAID-Controller und testet sie.</translation>
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
        <source>Id</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Language of the texts, for example de</source>
        <translation>Sprache der Texte, zum Beispiel de</translation>
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
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No command was given</source>
        <translation>Es wurde kein Befehl angegeben</translation>
    </message>
    <message>
        <source>No RAID controller found.</source>
        <translation>Kein RAID-Controller gefunden.</translation>
    </message>
    <message>
        <source>No device "%1"</source>
        <translation>Kein Gerät „%1“</translation>
    </message>
    <message>
        <source>No test "%1"</source>
        <translation>Kein Test „%1“</translation>
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
        <source>Print one JSON document</source>
        <translation>Ein JSON-Dokument ausgeben</translation>
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
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>Tell whether there is a RAID controller, without a scan</source>
        <translation>Sagen, ob es einen RAID-Controller gibt, ohne zu suchen</translation>
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
        <source>The module could not start the test: %1</source>
        <translation>Das Modul konnte den Test nicht starten: %1</translation>
    </message>
    <message>
        <source>The module did not run the test</source>
        <translation>Das Modul hat den Test nicht ausgeführt</translation>
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
        <source>The test broke off: %1</source>
        <translation>Der Test brach ab: %1</translation>
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
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>a library without %1</source>
        <translation>eine Bibliothek ohne %1</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>an unknown error</source>
        <translation>ein unbekannter Fehler</translation>
    </message>
    <message>
        <source>degraded</source>
        <translation>beeinträchtigt</translation>
    </message>
    <message>
        <source>device gone</source>
        <translation>Gerät verschwunden</translation>
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
        <source>id %1</source>
        <translation>Kennung %1</translation>
    </message>
    <message>
        <source>info</source>
        <translation>Info</translation>
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
        <source>logical drive %1</source>
        <translation>logisches Laufwerk %1</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>none that can be loaded (%1)</source>
        <translation>keine, die sich laden lässt (%1)</translation>
    </message>
    <message>
        <source>not applicable</source>
        <translation>nicht anwendbar</translation>
    </message>
    <message>
        <source>notice</source>
        <translation>Hinweis</translation>
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
        <source>passed</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>rebuilding</source>
        <translation>wird wiederhergestellt</translation>
    </message>
    <message>
        <source>serial number %1</source>
        <translation>Seriennummer %1</translation>
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
