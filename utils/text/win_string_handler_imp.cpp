#include <algorithm>
#include <cctype>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iterator>
#include <sstream>

#include <windows.h>

#include "utils/text/string_handler_imp.h"
#include "utils/text/text_conversion.h"

namespace {

template <typename Character>
std::size_t LengthUpTo(const Character* characters, std::size_t maximum) {
  if (characters == nullptr) return 0;
  // Callers pass the largest size for "no limit", so `characters + maximum` may not be computed.
  std::size_t length = 0;
  while (length < maximum && characters[length] != Character{0}) ++length;
  return length;
}

template <typename String>
void TrimBlanks(String& text) {
  constexpr typename String::value_type kBlank = ' ';
  const auto first = text.find_first_not_of(kBlank);
  text = first == String::npos ? String() : text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

char Upper(char character) {
  return static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
}
char Lower(char character) {
  return static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
}

bool Overlap(const char* left, std::size_t leftSize, const char* right, std::size_t rightSize) {
  // std::less also orders pointers into different objects.
  const std::less<> before;
  return before(left, right + rightSize) && before(right, left + leftSize);
}

/// The count of a formatting call, unless it failed or left no room for the terminating zero, which not every runtime
/// library reports as a failure.
std::uint32_t CountOrError(int written, std::size_t size) {
  const bool fits = written >= 0 && static_cast<std::size_t>(written) < size;
  return fits ? static_cast<std::uint32_t>(written) : StringHandler::kError;
}

/// Never destroyed, and owns no memory that an unloaded library would leak.
union NeverDestroyed {
  NeverDestroyed() : object() {}
  NeverDestroyed(const NeverDestroyed&) = delete;
  NeverDestroyed& operator=(const NeverDestroyed&) = delete;
  ~NeverDestroyed() {}  // NOLINT(modernize-use-equals-default): a default would be deleted

  WinStringHandlerImp object;
};

}  // namespace

StringHandler* OwnStringHandler() {
  static NeverDestroyed handler;
  return &handler.object;
}

bool WinStringHandlerImp::IsNumeric(const char* characters, std::size_t maximum) const {
  const std::size_t length = OwnStringHandler()->BoundedLength(characters, maximum);
  return std::all_of(characters, characters + length,
                     [](unsigned char character) { return std::isdigit(character); });
}

void WinStringHandlerImp::RemoveBlanks(const std::string& text, std::string& output) const {
  std::remove_copy(text.begin(), text.end(), std::back_inserter(output), ' ');
}

void WinStringHandlerImp::KeepPrintable(const std::string& text, std::string& output) const {
  std::copy_if(text.begin(), text.end(), std::back_inserter(output),
               [](char character) { return character >= 0x20 && character <= 0x7E; });
}

void WinStringHandlerImp::RemoveCharacters(const std::string& set, const std::string& text,
                                           std::string& output) const {
  if (set.empty() || text.empty()) return;
  std::string kept;
  std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
               [&set](char character) { return set.find(character) == std::string::npos; });
  output = std::move(kept);
}

void WinStringHandlerImp::Trim(std::string& text) const {
  TrimBlanks(text);
}

void WinStringHandlerImp::TrimWide(WideString& text) const {
  TrimBlanks(text);
}

bool WinStringHandlerImp::IsUpperCase(std::string text) const {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](char character) { return Upper(character) == character; });
}

void WinStringHandlerImp::ToUpper(std::string& text) const {
  std::transform(text.begin(), text.end(), text.begin(), Upper);
}

void WinStringHandlerImp::ToLower(std::string& text) const {
  std::transform(text.begin(), text.end(), text.begin(), Lower);
}

bool WinStringHandlerImp::StartsWith(const std::string& text, const std::string& prefix) const {
  return text.starts_with(prefix);
}

void WinStringHandlerImp::Split(std::vector<std::string>& output, const std::string& text, char delimiter) const {
  std::istringstream stream(text);
  for (std::string piece; std::getline(stream, piece, delimiter);) output.push_back(piece);
}

int WinStringHandlerImp::CompareN(const char* left, const char* right, std::size_t count) const {
  return std::strncmp(left, right, count);
}

std::uint32_t WinStringHandlerImp::FormatBounded(char* buffer, std::size_t size, const char* format, ...) const {
  std::va_list arguments;
  va_start(arguments, format);
  const int written = vsprintf_s(buffer, size, format, arguments);
  va_end(arguments);
  return CountOrError(written, size);
}

int WinStringHandlerImp::CopyN(char* destination, std::size_t size, const char* source, std::size_t count) const {
  return strncpy_s(destination, size, source, count);
}

std::uint32_t WinStringHandlerImp::CopyBounded(char* destination, std::size_t size, const char* source,
                                               std::size_t maximum) const {
  if (destination == nullptr || source == nullptr || size == 0) return kError;
  const std::size_t length = BoundedLength(source, maximum);
  if (length >= size || Overlap(destination, size, source, length)) return kError;
  std::copy_n(source, length, destination);
  destination[length] = '\0';
  return 0;
}

std::size_t WinStringHandlerImp::BoundedLength(const char* characters, std::size_t maximum) const {
  return LengthUpTo(characters, maximum);
}

int WinStringHandlerImp::AppendN(char* destination, std::size_t size, const char* source, std::size_t count) const {
  return strncat_s(destination, size, source, count);
}

int WinStringHandlerImp::WideToMultiByte(std::size_t* converted, char* destination, std::size_t size,
                                         const WCHAR* source, std::size_t count) const {
  return wcstombs_s(converted, destination, size, source, count);
}

int WinStringHandlerImp::MultiByteToWide(std::size_t* converted, WCHAR* destination, std::size_t size,
                                         const char* source, std::size_t count) const {
  return mbstowcs_s(converted, destination, size, source, count);
}

std::size_t WinStringHandlerImp::BoundedWideLength(const WCHAR* characters, std::size_t maximum) const {
  return LengthUpTo(characters, maximum);
}

int WinStringHandlerImp::LocalTime(std::tm* result, std::int64_t time) const {
  const __time64_t seconds = time;
  return _localtime64_s(result, &seconds);
}

std::uint32_t WinStringHandlerImp::Format(char* buffer, std::size_t count, const char* format, ...) const {
  std::va_list arguments;
  va_start(arguments, format);
  const int written = std::vsnprintf(buffer, count, format, arguments);
  va_end(arguments);
  return CountOrError(written, count);
}

int WinStringHandlerImp::PrintToFile(std::FILE* file, const char* format, ...) const {
  std::va_list arguments;
  va_start(arguments, format);
  const int written = vfprintf_s(file, format, arguments);
  va_end(arguments);
  return written;
}

void WinStringHandlerImp::FromBytes(std::string& output, const void* bytes, std::size_t count) const {
  output.assign(static_cast<const char*>(bytes), count);
}

void WinStringHandlerImp::Tokenize(std::vector<std::string>& output, std::string text, std::string delimiters) const {
  std::vector<char> copy(text.size() + 1);
  if (CopyBounded(copy.data(), copy.size(), text.data(), text.size()) != 0) return;
  char* next = nullptr;
  for (const char* token = strtok_s(copy.data(), delimiters.c_str(), &next); token != nullptr;
       token = strtok_s(nullptr, delimiters.c_str(), &next)) {
    output.emplace_back(token);
  }
}

void WinStringHandlerImp::CutSuffix(std::string& text, std::string suffix) const {
  if (text.empty() || suffix.empty() || text.size() < suffix.size()) return;
  if (suffix.find(text.back()) != std::string::npos) text.resize(text.size() - suffix.size());
}

void WinStringHandlerImp::ToWide(WideString& output, const std::string& text) const {
  output = Widen(text);
}
