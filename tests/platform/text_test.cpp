#include <windows.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

namespace orvik::platform::windows {
namespace {

std::string Convert(const std::basic_string<WCHAR>& wide) {
  std::array<char, 32> narrow{};
  const int length = static_cast<int>(wide.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, narrow.data(), 32, nullptr, nullptr);
  EXPECT_EQ(size, WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr));
  return {narrow.data(), static_cast<std::size_t>(size)};
}

TEST(WideCharToMultiByte, WritesUtf8) {
  const WCHAR high = 0xD83D;
  const WCHAR low = 0xDCBE;
  const std::pair<std::basic_string<WCHAR>, std::string> rows[] = {
      {TEXT("RAID"), "RAID"},
      {TEXT("\u007F\u0080\u07FF\u0800\uFFFF"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"},
      {{high, low}, "\xF0\x9F\x92\xBE"},
      {{high, 'a'},
       "\xEF\xBF\xBD"
       "a"},
      {{low, high}, "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {{'a', 0, 'b'}, std::string("a\0b", 3)},
  };
  for (const auto& [wide, narrow] : rows) EXPECT_EQ(Convert(wide), narrow);
}

TEST(WideCharToMultiByte, CountsTheTerminatingZeroOfALengthOfMinusOne) {
  std::array<char, 4> narrow = {'x', 'x', 'x', 'x'};
  EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, TEXT("abc"), -1, nullptr, 0, nullptr, nullptr), 4);
  EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, TEXT("abc"), -1, narrow.data(), 4, nullptr, nullptr), 4);
  EXPECT_EQ(narrow, (std::array<char, 4>{'a', 'b', 'c', 0}));
  EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, TEXT("abc"), -1, narrow.data(), 3, nullptr, nullptr), 0);
  EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
}

}  // namespace
}  // namespace orvik::platform::windows
