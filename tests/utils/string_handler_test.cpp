#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>

#include "utils/text/string_handler.h"
#include "utils/text/text_conversion.h"

namespace {

StringHandler& Handler() {
  return *OwnStringHandler();
}

TEST(StringHandlerTest, Trims) {
  for (const auto& [text, expected] : std::vector<std::pair<std::string, std::string>>{
           {"   ", ""}, {"", ""}, {"  XY Z  ", "XY Z"}, {"\t X", "\t X"}, {"X", "X"}}) {
    std::string trimmed = text;
    Handler().Trim(trimmed);
    EXPECT_EQ(trimmed, expected);
  }
  WideString wide = TEXT("  a b ");
  Handler().TrimWide(wide);
  EXPECT_TRUE(wide == TEXT("a b"));
}

TEST(StringHandlerTest, JudgesTexts) {
  EXPECT_TRUE(Handler().IsNumeric("", 8));
  EXPECT_TRUE(Handler().IsNumeric(nullptr, 8));
  EXPECT_TRUE(Handler().IsNumeric("12a", 2));
  EXPECT_FALSE(Handler().IsNumeric("12a", 3));
  EXPECT_FALSE(Handler().IsUpperCase(""));
  EXPECT_TRUE(Handler().IsUpperCase("AB 1"));
  EXPECT_FALSE(Handler().IsUpperCase("Ab"));
  EXPECT_TRUE(Handler().StartsWith("NVMe drive", "NVMe"));
  EXPECT_FALSE(Handler().StartsWith("NVM", "NVMe"));
  EXPECT_LT(Handler().CompareN("abc", "abd", 3), 0);
  EXPECT_EQ(Handler().CompareN("abc", "abd", 2), 0);
  EXPECT_EQ(Handler().BoundedLength("abc", 2), 2U);
  constexpr auto kNoLimit = std::numeric_limits<std::size_t>::max();
  for (const std::size_t maximum : {std::size_t{3}, std::size_t{9}, kNoLimit - 1, kNoLimit}) {
    EXPECT_EQ(Handler().BoundedLength("abc", maximum), 3U) << maximum;
    EXPECT_EQ(Handler().BoundedWideLength(TEXT("abc"), maximum), 3U) << maximum;
    EXPECT_TRUE(Handler().IsNumeric("123", maximum)) << maximum;
    std::array<char, 4> copy{};
    EXPECT_EQ(Handler().CopyBounded(copy.data(), copy.size(), "abc", maximum), 0U) << maximum;
    EXPECT_STREQ(copy.data(), "abc") << maximum;
  }
  EXPECT_EQ(Handler().BoundedLength(nullptr, 9), 0U);
  EXPECT_EQ(Handler().BoundedWideLength(TEXT("ab"), 9), 2U);
}

TEST(StringHandlerTest, FiltersInto) {
  std::string output = "<";
  Handler().RemoveBlanks(" a b\tc ", output);
  EXPECT_EQ(output, "<ab\tc");
  Handler().KeepPrintable("\x1F \x7E\x7F\xE9", output);
  EXPECT_EQ(output, "<ab\tc \x7E");
  Handler().RemoveCharacters("", "abc", output);
  Handler().RemoveCharacters("abc", "", output);
  EXPECT_EQ(output, "<ab\tc \x7E");
  Handler().RemoveCharacters("ac", "abcabc", output);
  EXPECT_EQ(output, "bb");
  Handler().FromBytes(output, "a\0b", 3);
  EXPECT_EQ(output, std::string("a\0b", 3));
  Handler().CopyUntilZero(output, std::string("xy\0z", 4));
  EXPECT_EQ(output, "xy");
  Handler().ToLower(output = "aBC1");
  EXPECT_EQ(output, "abc1");
  Handler().ToUpper(output);
  EXPECT_EQ(output, "ABC1");
}

TEST(StringHandlerTest, CutsSuffixes) {
  for (const auto& [text, suffix, expected] : std::vector<std::array<std::string, 3>>{
           {"abc\n", "\r\n", "ab"}, {"abc", "\r\n", "abc"}, {"\n", "\r\n", "\n"}, {"ab", "", "ab"}, {"", "x", ""}}) {
    std::string cut = text;
    Handler().CutSuffix(cut, suffix);
    EXPECT_EQ(cut, expected);
  }
}

TEST(StringHandlerTest, TakesApart) {
  std::vector<std::string> pieces;
  Handler().Split(pieces, "a,,b,", ',');
  EXPECT_EQ(pieces, (std::vector<std::string>{"a", "", "b"}));
  pieces.clear();
  Handler().Tokenize(pieces, ",a;;b,", ",;");
  EXPECT_EQ(pieces, (std::vector<std::string>{"a", "b"}));
}

TEST(StringHandlerTest, CopiesWithinBounds) {
  std::array<char, 8> buffer{};
  EXPECT_EQ(Handler().CopyBounded(buffer.data(), buffer.size(), "1234567", 99), 0U);
  EXPECT_STREQ(buffer.data(), "1234567");
  EXPECT_EQ(Handler().CopyBounded(buffer.data(), buffer.size(), "12345678", 99), StringHandler::kError);
  EXPECT_EQ(Handler().CopyBounded(buffer.data(), 0, "1", 1), StringHandler::kError);
  EXPECT_EQ(Handler().CopyBounded(nullptr, 8, "1", 1), StringHandler::kError);
  EXPECT_EQ(Handler().CopyBounded(buffer.data(), 4, buffer.data() + 2, 2), StringHandler::kError);
  EXPECT_EQ(Handler().CopyN(buffer.data(), buffer.size(), "abc", 2), 0);
  EXPECT_EQ(Handler().AppendN(buffer.data(), buffer.size(), "xyz", 1), 0);
  EXPECT_STREQ(buffer.data(), "abx");
}

TEST(StringHandlerTest, CopiesPrintable) {
  struct Case {
    const char* input;
    std::int32_t size;
    const char* expected;
  };
  for (const Case& row : {Case{"  X\x01Y  ", 64, "X?Y"}, Case{"abcdef", 4, "abc"}, Case{"ab  ", 3, "ab"},
                          Case{"    ", 64, ""}, Case{"a\xE9", 64, "a?"}, Case{"x", 1, ""}}) {
    std::array<char, 64> output;
    output.fill('#');
    EXPECT_EQ(Handler().CopyPrintable(output.data(), row.size, row.input,
                                      static_cast<std::int32_t>(std::strlen(row.input))),
              output.data());
    EXPECT_STREQ(output.data(), row.expected) << row.input;
  }
}

TEST(StringHandlerTest, FormatsWithinBounds) {
  std::array<char, 4> buffer{};
  EXPECT_EQ(Handler().FormatBounded(buffer.data(), buffer.size(), "%d", 123), 3U);
  EXPECT_EQ(Handler().FormatBounded(buffer.data(), buffer.size(), "%d", 1234), StringHandler::kError);
  EXPECT_EQ(Handler().Format(buffer.data(), buffer.size(), "%s", "abc"), 3U);
  EXPECT_EQ(Handler().Format(buffer.data(), buffer.size(), "%s", "abcd"), StringHandler::kError);
  EXPECT_STREQ(buffer.data(), "abc");
}

TEST(StringHandlerTest, Converts) {
  std::array<char, 8> narrow{};
  std::array<WCHAR, 8> wide{};
  std::size_t converted = 0;
  EXPECT_EQ(Handler().WideToMultiByte(&converted, narrow.data(), narrow.size(), TEXT("ab"), 7), 0);
  EXPECT_STREQ(narrow.data(), "ab");
  EXPECT_EQ(converted, 3U);
  EXPECT_EQ(Handler().MultiByteToWide(&converted, wide.data(), wide.size(), "cd", 7), 0);
  EXPECT_TRUE(WideString(wide.data()) == TEXT("cd"));
  WideString widened;
  Handler().ToWide(widened, "a\xE9");
  EXPECT_EQ(widened.size(), 2U);
  EXPECT_EQ(static_cast<unsigned>(widened[1]), 0xE9U);
  std::tm time{};
  EXPECT_EQ(Handler().LocalTime(&time, 31536000), 0);
  EXPECT_EQ(time.tm_year, 71);
}

TEST(TextConversionTest, TurnsUtf16IntoUtf8) {
  EXPECT_EQ(ToUtf8(TEXT("Gr\u00FC\u00DFe \u20AC")), "Gr\u00FC\u00DFe \u20AC");
  EXPECT_EQ(ToUtf8(TEXT("")), "");
  std::array<char, 6> buffer{};
  EXPECT_TRUE(ToUtf8(TEXT("ab"), buffer));
  EXPECT_STREQ(buffer.data(), "ab");
  // Three units of three bytes each don't fit into the six bytes that the units themselves take.
  EXPECT_FALSE(ToUtf8(TEXT("\u20AC\u20AC\u20AC"), buffer));
  EXPECT_FALSE(ToUtf8(TEXT("ab"), std::span<char>()));
}

}  // namespace
