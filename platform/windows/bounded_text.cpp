// Copying, appending and splitting of zero-terminated texts as in the Windows runtime library's bounded functions.

#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

errno_t Report(errno_t error) {
  errno = error;
  return error;
}

// Writes at most `count` characters of `source` and a zero byte to position `used` of the destination.
errno_t Put(char* destination, std::size_t size, std::size_t used, const char* source, std::size_t count) {
  const std::size_t room = size - used;
  const std::size_t length = strnlen(source, std::min(count, room));
  if (length < room) {
    std::copy_n(source, length, destination + used);
    destination[used + length] = '\0';
    return 0;
  }
  if (count != _TRUNCATE) {
    *destination = '\0';
    return Report(ERANGE);
  }
  std::copy_n(source, room - 1, destination + used);
  destination[size - 1] = '\0';
  return STRUNCATE;
}

}  // namespace

errno_t strncpy_s(char* destination, std::size_t size, const char* source, std::size_t count) {
  if (count == 0 && destination == nullptr && size == 0) return 0;
  if (destination == nullptr || size == 0) return Report(EINVAL);
  *destination = '\0';
  if (count == 0) return 0;
  if (source == nullptr) return Report(EINVAL);
  return Put(destination, size, 0, source, count);
}

errno_t strncat_s(char* destination, std::size_t size, const char* source, std::size_t count) {
  if (count == 0 && destination == nullptr && size == 0) return 0;
  if (destination == nullptr || size == 0) return Report(EINVAL);
  const std::size_t used = strnlen(destination, size);
  if (used == size || (source == nullptr && count != 0)) {
    *destination = '\0';
    return Report(EINVAL);
  }
  return count == 0 ? 0 : Put(destination, size, used, source, count);
}

char* strtok_s(char* text, const char* delimiters, char** next) {
  if (delimiters == nullptr || next == nullptr || (text == nullptr && *next == nullptr)) {
    errno = EINVAL;
    return nullptr;
  }
  char* token = text == nullptr ? *next : text;
  token += std::strspn(token, delimiters);
  *next = token + std::strcspn(token, delimiters);
  if (*token == '\0') return nullptr;
  if (**next != '\0') *(*next)++ = '\0';
  return token;
}
