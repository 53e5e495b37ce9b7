// Formatted output, conversion and time as in the Windows runtime library's bounded functions. An invalid call
// returns an error code instead of ending the program.

#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>

namespace {

constexpr errno_t kIllegalSequence = 42;  // EILSEQ as the Windows runtime numbers it
constexpr unsigned kLastSingleByte = 0xFF;
constexpr __time64_t kLastTime = 32535215999;  // 3000-12-31 23:59:59 UTC

errno_t Report(errno_t error) {
  errno = error;
  return error;
}

// The common part of wcstombs_s and mbstowcs_s. In the "C" locale a byte converts to the wide character of the same
// value and back.
template <typename To, typename From>
errno_t Convert(std::size_t* converted, To* destination, std::size_t size, const From* source, std::size_t count) {
  if ((destination == nullptr) != (size == 0)) return Report(EINVAL);
  if (destination != nullptr) *destination = 0;
  if (converted != nullptr) *converted = 0;
  const std::size_t most = std::min(count, size);
  if (most > INT_MAX && count != _TRUNCATE) return Report(EINVAL);
  if (source == nullptr) return Report(EINVAL);

  std::size_t length = 0;
  for (; destination == nullptr || length < most; ++length) {
    if (source[length] == 0) break;
    const auto unit = static_cast<unsigned>(static_cast<std::make_unsigned_t<From>>(source[length]));
    if (unit > kLastSingleByte) {
      if (destination != nullptr) *destination = 0;
      return Report(kIllegalSequence);
    }
    if (destination != nullptr) destination[length] = static_cast<To>(unit);
  }
  errno_t result = 0;
  if (destination != nullptr) {
    if (length + 1 > size) {
      if (count != _TRUNCATE) {
        *destination = 0;
        return Report(ERANGE);
      }
      length = size - 1;
      result = STRUNCATE;
    }
    destination[length] = 0;
  }
  if (converted != nullptr) *converted = length + 1;
  return result;
}

}  // namespace

int vsprintf_s(char* buffer, std::size_t size, const char* format, std::va_list arguments) {
  if (buffer == nullptr || size == 0 || format == nullptr) {
    errno = EINVAL;
    return -1;
  }
  const int length = std::vsnprintf(buffer, size, format, arguments);
  if (length >= 0 && static_cast<std::size_t>(length) < size) return length;
  *buffer = '\0';
  errno = length < 0 ? EINVAL : ERANGE;
  return -1;
}

int vfprintf_s(std::FILE* file, const char* format, std::va_list arguments) {
  if (file == nullptr || format == nullptr) {
    errno = EINVAL;
    return -1;
  }
  return std::vfprintf(file, format, arguments);
}

errno_t wcstombs_s(std::size_t* converted, char* destination, std::size_t size, const WCHAR* source,
                   std::size_t count) {
  return Convert(converted, destination, size, source, count);
}

errno_t mbstowcs_s(std::size_t* converted, WCHAR* destination, std::size_t size, const char* source,
                   std::size_t count) {
  return Convert(converted, destination, size, source, count);
}

errno_t _localtime64_s(std::tm* result, const __time64_t* time) {
  if (result == nullptr) return Report(EINVAL);
  *result = {};
  for (int* field : {&result->tm_sec, &result->tm_min, &result->tm_hour, &result->tm_mday, &result->tm_mon,
                     &result->tm_year, &result->tm_wday, &result->tm_yday, &result->tm_isdst}) {
    *field = -1;
  }
  if (time == nullptr || *time < 0 || *time > kLastTime) return Report(EINVAL);
  const std::time_t seconds = *time;
  return localtime_r(&seconds, result) == nullptr ? Report(EINVAL) : 0;
}
