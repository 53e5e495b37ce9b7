#include <gtest/gtest.h>

#include "host/terminal/progress_bars.h"
#include "host/text/text.h"

using namespace std::string_literals;

namespace orvik::host {
namespace {

TEST(DisplayText, IsSafeToShow) {
  const struct {
    std::string device;
    const char16_t* shown;
  } cases[] = {
      {"DISK A  ", u"DISK A"},
      {"  \0\0DISK\0A\0 \0"s, u"DISK\\x00A"},
      {"a\x1B[2Jb", u"a\\x1b[2Jb"},
      {"line\nline\r", u"line\\x0aline"},
      {"caf\xC3\xA9", u"caf\u00E9"},
      {"bad\xC3(\xFF", u"bad\uFFFD(\uFFFD"},
      {"zero\xE2\x80\x8Bwidth", u"zero\\u{200b}width"},
      {"\xF0\x9F\x92\xBE", u"\U0001F4BE"},
      {"   ", u""},
      {"DISK B   - S2  ", u"DISK B - S2"},
      {"100 %1 %n", u"100 %1 %n"},
  };
  for (const auto& each : cases) EXPECT_EQ(DisplayText(each.device), QString::fromUtf16(each.shown)) << each.device;
}

TEST(Message, SplitsIntoKeyAndValue) {
  const struct {
    const char* text;
    const char* key;
    const char* separator;
    const char* value;
  } cases[] = {
      {"LOGICAL_DRIVE_OPTIMAL", "LOGICAL_DRIVE_OPTIMAL", "", ""},
      {"LOGICAL_DRIVE_OPTIMAL: 0", "LOGICAL_DRIVE_OPTIMAL", ": ", "0"},
      {"DRIVE_DOWN: A: B", "DRIVE_DOWN", ": ", "A: B"},
      {"DRIVE_DOWN: ", "DRIVE_DOWN", ": ", ""},
      {"FAULTY_ENCLOSURE 3", "FAULTY_ENCLOSURE", " ", "3"},
      {"free text: of a test", "free text: of a test", "", ""},
      {"NOT_A_KEY-AT_ALL: 1", "NOT_A_KEY-AT_ALL: 1", "", ""},
      {"", "", "", ""},
  };
  for (const auto& each : cases) {
    const MessageParts parts = SplitMessage(each.text);
    EXPECT_EQ(parts.key, each.key);
    EXPECT_EQ(parts.separator, each.separator);
    EXPECT_EQ(parts.value, each.value);
  }
}

TEST(ProgressLine, HasExactlyTheRequestedWidth) {
  for (const int columns : {100, 79, 40, 20}) {
    for (const int percent : {0, 1, 50, 99, 100}) {
      EXPECT_EQ(ProgressLine(QString(60, 'x'), percent, columns).size(), columns);
    }
    EXPECT_FALSE(ProgressLine("x", 0, columns).contains('#'));
    EXPECT_FALSE(ProgressLine("x", 100, columns).contains('-'));
  }
}

}  // namespace
}  // namespace orvik::host
