// The texts in every language: nothing that the module or the program can say may be left out.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace orvik::tests {
namespace {

using Texts = QMap<QString, QStringList>;  // "context/source/comment" to the translation's forms

Texts ReadTexts(const QString& language) {
  QFile file(QStringLiteral(TRANSLATIONS_FOLDER "/orvik_%1.ts").arg(language));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  Texts texts;
  QString context;
  QStringList key;
  QStringList forms;
  while (!xml.atEnd()) {
    const QXmlStreamReader::TokenType token = xml.readNext();
    const auto name = xml.name();
    if (token == QXmlStreamReader::StartElement) {
      if (name == u"name") context = xml.readElementText();
      if (name == u"message") key = QStringList{context, QString(), QString()}, forms.clear();
      if (name == u"source") key[1] = xml.readElementText();
      if (name == u"comment") key[2] = xml.readElementText();
      if (name == u"translation") {
        EXPECT_FALSE(xml.attributes().hasAttribute("type")) << "unfinished: " << key[1].toStdString();
        forms << xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
      }
    } else if (token == QXmlStreamReader::EndElement && name == u"message") {
      EXPECT_FALSE(texts.contains(key.join('/'))) << "twice: " << key[1].toStdString();
      texts[key.join('/')] = forms;
    }
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return texts;
}

QSet<QString> Placeholders(const QString& text) {
  static const QRegularExpression placeholder(QStringLiteral("%[0-9n]"));
  QSet<QString> found;
  for (auto match = placeholder.globalMatch(text); match.hasNext();) found.insert(match.next().captured());
  return found;
}

// What the program's sources ask to be translated.
QSet<QString> ProgramTexts() {
  static const QRegularExpression call(
      QStringLiteral(R"re(translate\(\s*"orvik-diag",\s*"((?:[^"\\]|\\.)*)"(?:,\s*"([^"]*)")?)re"));
  QSet<QString> keys;
  QDirIterator files(QStringLiteral(HOST_FOLDER), {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    QFile file(files.next());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString source = QString::fromUtf8(file.readAll());
    for (auto match = call.globalMatch(source); match.hasNext();) {
      const QRegularExpressionMatch each = match.next();
      keys.insert("orvik-diag/" + each.captured(1).replace("\\\"", "\"") + '/' + each.captured(2));
    }
  }
  EXPECT_GT(keys.size(), 50);
  return keys;
}

const char* const kModuleKeys[] = {
    "UDI",
    "MODEL",
    "PLATFORM",
    "SERIAL",
    "NUM_LOGICAL_DEVICES",
    "SUPPORTED_INTERFACES",
    "SUPPORTED_RAID_LEVELS",
    "NUM_PHYSICAL_DEVICES",
    "DRIVER_VERSION",
    "RESOURCE_TYPE",
    "LOGICAL_DISK",
    "PHYSICAL_DISK",
    "INDEX",
    "RAID_LEVEL",
    "SIZE",
    "MANUFACTURER",
    "SINGLE_DRIVE_RAID_SET",
    "UNKNOWN",
    "QUICK_RAID",
    "QUICK_RAID_TESTS_TOOLTIP",
    "EXTENDED_RAID_TESTS_TOOLTIP",
    "BATTERY_STATUS_TEST",
    "BATTERY_STATUS_TEST_TOOLTIP",
    "ENCLOSURES_STATUS_TEST",
    "ENCLOSURES_STATUS_TEST_TOOLTIP",
    "LOGICAL_DRIVES_STATUS_TEST",
    "LOGICAL_DRIVES_STATUS_TEST_TOOLTIP",
    "CHECK_CONSISTENCY_TEST",
    "CHECK_CONSISTENCY_TEST_TOOLTIP",
    "RAID_STATUS_TEST",
    "RAID_STATUS_TEST_TOOLTIP",
    "RAID_CONTROLLER_STATUS_TEST",
    "RAID_CONTROLLER_STATUS_TEST_TOOLTIP",
    "TEST_ABORTED_BECAUSE_A_SYSTEM_EVENT_THAT_COULD_COMPROMISE_THE_OUTCOME_HAS_HAPPENED",
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED",
    "UNABLE_TO_RETRIEVE_DEVICE_PROPERTIES",
    "UNABLE_TO_COMMUNICATE_WITH_INTEL_C600_CONTROLLER",
    "RAID_MAYBE_THE_SATA_MODE_IS_NOT_SET_TO_RAID",
    "CANT_GET_LOGICAL_DRIVES_INFO",
    "NO_LOGICAL_DRIVE_FOUND_SKIPPING_TEST",
    "UNSUPPORTED_RAID_LEVEL_IN_LOGICAL_DRIVE",
    "TEST_DOESNT_SUPPORT_RAID_LEVEL",
    "LOGICAL_DRIVE_OPTIMAL",
    "LOGICAL_DRIVE_DEGRADED",
    "LOGICAL_DRIVE_PARTIALLY_DEGRADED",
    "LOGICAL_DRIVE_OFFLINE",
    "LOGICAL_DRIVE_UNABLE_TO_READ_WRITE",
    "LOGICAL_DRIVE_REBUILDING",
    "LOGICAL_DRIVE_UNKNOWN_STATUS",
    "DRIVE_DOWN",
    "CANNOT_RETRIEVE_CONTROLLER_INFO",
    "CANT_VERIFY_STATUS_OF_ALL_LOGICAL_DRIVES",
    "CHECK_CONSISTENCY_ALREADY_IN_PROGRESS",
    "CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION",
    "CANCELLING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE",
    "CANT_CANCEL_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE",
    "IGNORING_LOGICAL_DRIVE_CHECK_CONSISTENCY_ALREADY_RUNNING",
    "RUNNING_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE",
    "ERROR_RETRIEVING_PROGRESS",
    "FAILED_TO_SEND_COMMAND_TO_LOGICAL_DRIVE",
    "NO_TESTABLE_LOGICAL_DRIVE_FOUND",
    "CANNOT_GET_CONSISTENCY_CHECK_RESULT",
    "INCONSISTENT_LOGICAL_DRIVE",
    "CONSISTENT_LOGICAL_DRIVE",
    "LOGICAL_DRIVE_SKIPPED_INITIALIZATION_IN_PROGRESS",
    "LOGICAL_DRIVE_NOT_IN_OPTIMAL_STATE",
    "LOGICAL_DRIVE_SKIPPED_RECONSTRUCTION_IN_PROGRESS",
    "RAID_NOT_SUPPORTED_LOGICAL_DRIVE_WILL_BE_SKIPPED",
    "LOGICAL_DRIVE_SKIPPED_RESERVED_BY_SCSI_PEER",
    "RAID_CONTROLLER_HAS_FAILED",
    "RAID_CONTROLLER_IS_OFFLINE",
    "RAID_CONTROLLER_IS_POWERED_OFF",
    "CANT_GET_ENCLOSURES_INFO",
    "NO_ENCLOSURES_FOUND",
    "FAULTY_ENCLOSURE",
    "FAULTY_ENCLOSURE_FOUND",
    "CANT_CHECK_BATTERY_BACKUP_UNIT_API_SUPPORT",
    "BATTERY_BACKUP_UNIT_NOT_SUPPORTED",
    "CANT_GET_BATTERY_STATUS",
    "BATTERY_BACKUP_UNIT_NOT_PRESENT",
    "BATTERY_PACK_MISSING",
    "BATTERY_TEMPERATURE_HIGH",
    "LOW_BATTERY_VOLTAGE",
};

const char* const kDialogKeys[] = {"APPLICATION_NAME", "OK", "CANCEL", "YES", "NO", "CLOSE_POP_UP"};

class TranslationsTest : public testing::TestWithParam<const char*> {};

TEST_P(TranslationsTest, HaveATextForEverythingAndNothingElse) {
  QSet<QString> wanted = ProgramTexts();
  for (const char* const key : kModuleKeys) wanted.insert(QStringLiteral("RAID/%1/").arg(key));
  for (const char* const key : kDialogKeys) wanted.insert(QStringLiteral("QT_SERVER_APP/%1/").arg(key));

  const Texts texts = ReadTexts(GetParam());
  const QSet<QString> present(texts.keyBegin(), texts.keyEnd());
  for (const QString& key : wanted - present) ADD_FAILURE() << "missing: " << key.toStdString();
  for (const QString& key : present - wanted) ADD_FAILURE() << "of no use: " << key.toStdString();
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    const QString joined = text.value().join(' ');
    EXPECT_FALSE(joined.isEmpty()) << text.key().toStdString();
    EXPECT_EQ(Placeholders(text.key()), Placeholders(joined)) << text.key().toStdString();
    EXPECT_FALSE(joined.contains('_')) << "a key in place of a text: " << text.key().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationsTest, testing::Values("en", "de"));

}  // namespace
}  // namespace orvik::tests
