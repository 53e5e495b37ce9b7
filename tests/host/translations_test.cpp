// Completeness of the translations: every text of the module and the program in every language.

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
      EXPECT_FALSE(texts.contains(key.join('/'))) << "duplicate: " << key[1].toStdString();
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

// The texts that the program's sources translate.
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

// The keys that the module returns untranslated.
QSet<QString> ModuleKeys() {
  QFile file(QStringLiteral(TRANSLATIONS_FOLDER "/keys.txt"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QSet<QString> keys;
  for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
    if (!line.startsWith('#')) keys.insert(line.trimmed() + '/');
  }
  EXPECT_GT(keys.size(), 80);
  return keys;
}

class TranslationsTest : public testing::TestWithParam<const char*> {};

TEST_P(TranslationsTest, AreCompleteAndHaveNoUnusedTexts) {
  const QSet<QString> wanted = ProgramTexts() + ModuleKeys();
  const Texts texts = ReadTexts(GetParam());
  const QSet<QString> present(texts.keyBegin(), texts.keyEnd());
  for (const QString& key : wanted - present) ADD_FAILURE() << "missing: " << key.toStdString();
  for (const QString& key : present - wanted) ADD_FAILURE() << "unused: " << key.toStdString();
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    const QString joined = text.value().join(' ');
    EXPECT_FALSE(joined.isEmpty()) << text.key().toStdString();
    EXPECT_EQ(Placeholders(text.key()), Placeholders(joined)) << text.key().toStdString();
    EXPECT_FALSE(joined.contains('_')) << "a key instead of a text: " << text.key().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationsTest, testing::Values("en", "de"));

}  // namespace
}  // namespace orvik::tests
