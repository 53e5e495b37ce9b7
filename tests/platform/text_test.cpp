// The runtime library's bounded functions and the conversions of text.

#include <windows.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <tuple>

namespace orvik::platform::windows {
namespace {

TEST(BoundedRuntime, CopiesAndAppendsWhatFits) {
  using Function = errno_t (*)(char*, std::size_t, const char*, std::size_t);
  using Row = std::tuple<Function, const char*, std::size_t, std::size_t, errno_t, std::string>;
  // The last one appends to a text without an end.
  for (const auto& [function, source, size, count, result, text] :
       {Row{strncpy_s, "abc", 4, 9, 0, "abc"}, Row{strncpy_s, "abcdef", 4, 3, 0, "abc"},
        Row{strncpy_s, "abcdef", 4, 4, ERANGE, ""}, Row{strncpy_s, "abcdef", 4, _TRUNCATE, STRUNCATE, "abc"},
        Row{strncpy_s, nullptr, 4, 3, EINVAL, ""}, Row{strncat_s, "cdefg", 6, 3, 0, "abcde"},
        Row{strncat_s, "cdef", 6, 4, ERANGE, ""}, Row{strncat_s, "cdef", 6, _TRUNCATE, STRUNCATE, "abcde"},
        Row{strncat_s, "c", 2, 1, EINVAL, ""}}) {
    std::string destination("ab\0xxx", 6);
    EXPECT_EQ(function(destination.data(), size, source, count), result);
    EXPECT_EQ(destination.c_str(), text) << size << " " << count;
  }
}

TEST(WideCharToMultiByte, WritesUtf8) {
  const std::pair<std::basic_string<WCHAR>, std::string> rows[] = {
      {TEXT("\u007F\u0080\u07FF\u0800\uFFFF"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"},
      {{0xD83D, 0xDCBE}, "\xF0\x9F\x92\xBE"},
      {{0xDCBE, 0xD83D, '!'}, "\xEF\xBF\xBD\xEF\xBF\xBD!"},
  };
  for (const auto& [wide, expected] : rows) {
    std::string narrow(32, 'x');
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide.c_str(), -1, narrow.data(), 32, nullptr, nullptr);
    EXPECT_EQ(size, static_cast<int>(expected.size() + 1));
    EXPECT_EQ(narrow.c_str(), expected);
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, wide.c_str(), -1, narrow.data(), size - 1, nullptr, nullptr), 0);
    EXPECT_EQ(GetLastError(), ERROR_INSUFFICIENT_BUFFER);
  }
}

}  // namespace
}  // namespace orvik::platform::windows
