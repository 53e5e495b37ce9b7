#include "utils/text/text_conversion.h"

#include <algorithm>

std::string ToUtf8(const WCHAR* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (size < 1) return {};
  std::string utf8(static_cast<std::size_t>(size), '\0');
  if (WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr) < 1) return {};
  utf8.resize(std::min(utf8.find('\0'), utf8.size()));
  return utf8;
}

bool ToUtf8(const WCHAR* text, std::span<char> buffer) {
  if (buffer.empty()) return false;
  const int size = static_cast<int>(buffer.size());
  return WideCharToMultiByte(CP_UTF8, 0, text, size / 2, buffer.data(), size, nullptr, nullptr) > 0;
}

WideString Widen(std::string_view text) {
  WideString wide(text.size(), WCHAR{0});
  std::transform(text.begin(), text.end(), wide.begin(),
                 [](char character) { return static_cast<WCHAR>(static_cast<unsigned char>(character)); });
  return wide;
}
