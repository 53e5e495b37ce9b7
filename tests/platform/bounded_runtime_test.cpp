#include <windows.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace orvik::platform::windows {
namespace {

TEST(BoundedRuntime, CopiesWhatFits) {
  struct Row {
    const char* source;
    std::size_t size, count;
    errno_t result;
    std::string text;
  };
  const Row rows[] = {
      {"abc", 4, 3, 0, "abc"},         {"abc", 4, 9, 0, "abc"},
      {"abcdef", 4, 3, 0, "abc"},      {"abcdef", 4, 4, ERANGE, ""},
      {"abc", 3, 3, ERANGE, ""},       {"abcdef", 4, _TRUNCATE, STRUNCATE, "abc"},
      {"abc", 4, _TRUNCATE, 0, "abc"}, {nullptr, 4, 3, EINVAL, ""},
      {nullptr, 4, 0, 0, ""},          {"", 1, 1, 0, ""},
  };
  for (const Row& row : rows) {
    std::vector<char> destination(row.size, 'x');
    EXPECT_EQ(strncpy_s(destination.data(), row.size, row.source, row.count), row.result);
    EXPECT_EQ(std::string(destination.data()), row.text);
  }
  EXPECT_EQ(strncpy_s(nullptr, 0, nullptr, 0), 0);
  EXPECT_EQ(strncpy_s(nullptr, 4, "a", 1), EINVAL);
}

TEST(BoundedRuntime, AppendsWhatFits) {
  struct Row {
    const char* source;
    std::size_t count;
    errno_t result;
    std::string text;
  };
  const Row rows[] = {{"cd", 2, 0, "abcd"},     {"cdefg", 3, 0, "abcde"},
                      {"cdef", 4, ERANGE, ""},  {"cdef", _TRUNCATE, STRUNCATE, "abcde"},
                      {nullptr, 1, EINVAL, ""}, {nullptr, 0, 0, "ab"}};
  for (const Row& row : rows) {
    std::array<char, 6> destination = {'a', 'b', 0, 'x', 'x', 'x'};
    EXPECT_EQ(strncat_s(destination.data(), 6, row.source, row.count), row.result);
    EXPECT_EQ(std::string(destination.data()), row.text);
  }
  std::array<char, 2> unterminated = {'a', 'b'};
  EXPECT_EQ(strncat_s(unterminated.data(), 2, "c", 1), EINVAL);
  EXPECT_EQ(unterminated[0], 0);
}

TEST(BoundedRuntime, NarrowsWideText) {
  constexpr errno_t kIllegalSequence = 42;
  struct Row {
    const WCHAR* source;
    std::size_t size, count;
    errno_t result;
    std::string text;
    std::size_t converted;
  };
  const Row rows[] = {
      {TEXT("abc"), 4, 3, 0, "abc", 4},
      {TEXT("abc"), 4, 4, 0, "abc", 4},
      {TEXT("abcdef"), 4, 2, 0, "ab", 3},
      {TEXT("abcdef"), 4, 6, ERANGE, "", 0},
      {TEXT("abcdef"), 4, _TRUNCATE, STRUNCATE, "abc", 4},
      {TEXT("a\u00E9"), 4, 3, 0, "a\xE9", 3},
      {TEXT("a\u0100"), 4, 3, kIllegalSequence, "", 0},
      {nullptr, 4, 3, EINVAL, "", 0},
  };
  for (const Row& row : rows) {
    std::size_t converted = 99;
    std::vector<char> destination(row.size, 'x');
    EXPECT_EQ(wcstombs_s(&converted, destination.data(), row.size, row.source, row.count), row.result);
    EXPECT_EQ(std::string(destination.data()), row.text);
    EXPECT_EQ(converted, row.converted);
  }
  std::size_t needed = 0;
  EXPECT_EQ(wcstombs_s(&needed, nullptr, 0, TEXT("abc"), 0), 0);
  EXPECT_EQ(needed, 4U);
  EXPECT_EQ(wcstombs_s(&needed, nullptr, 4, TEXT("abc"), 3), EINVAL);
}

TEST(BoundedRuntime, TellsTheLocalTimeOfItsRange) {
  const __time64_t time = 86400;
  std::tm local{};
  EXPECT_EQ(_localtime64_s(&local, &time), 0);
  const std::time_t same = 86400;
  const std::tm* expected = std::localtime(&same);
  EXPECT_EQ(local.tm_hour, expected->tm_hour);
  EXPECT_EQ(local.tm_yday, expected->tm_yday);
  for (const __time64_t bad : {__time64_t{-1}, std::numeric_limits<__time64_t>::max()}) {
    EXPECT_EQ(_localtime64_s(&local, &bad), EINVAL);
    EXPECT_EQ(local.tm_year, -1);
  }
  EXPECT_EQ(_localtime64_s(nullptr, &time), EINVAL);
}

}  // namespace
}  // namespace orvik::platform::windows
