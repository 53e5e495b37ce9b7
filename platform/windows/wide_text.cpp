#include "platform/windows/wide_text.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace orvik::platform::windows {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto tail = [&](unsigned shift) { return static_cast<char>(0x80U | ((character >> shift) & 0x3FU)); };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += {static_cast<char>(0xC0U | (character >> 6)), tail(0)};
  } else if (character < 0x10000) {
    text += {static_cast<char>(0xE0U | (character >> 12)), tail(6), tail(0)};
  } else {
    text += {static_cast<char>(0xF0U | (character >> 18)), tail(12), tail(6), tail(0)};
  }
}

void AppendWide(WideString& text, char32_t character) {
  if (character < 0x10000) {
    text += static_cast<WCHAR>(character);
    return;
  }
  text += static_cast<WCHAR>(0xD800 + ((character - 0x10000) >> 10));
  text += static_cast<WCHAR>(0xDC00 + ((character - 0x10000) & 0x3FF));
}

struct Decoded {
  char32_t character;
  std::size_t size;
};

// The form of a UTF-8 sequence by its first byte.
struct Form {
  std::size_t size;
  char32_t least;
  std::uint8_t mask;
  std::uint8_t lead;
};

constexpr Form kForms[] = {
    {1, 0, 0x80, 0x00}, {2, 0x80, 0xE0, 0xC0}, {3, 0x800, 0xF0, 0xE0}, {4, 0x10000, 0xF8, 0xF0}};

std::optional<Decoded> Decode(std::string_view utf8, const Form& form) {
  if (utf8.size() < form.size) return std::nullopt;
  char32_t character = static_cast<std::uint8_t>(utf8[0]) & static_cast<std::uint8_t>(~form.mask);
  for (std::size_t i = 1; i < form.size; ++i) {
    const auto byte = static_cast<std::uint8_t>(utf8[i]);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    character = (character << 6) | (byte & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < form.least || character > 0x10FFFF || surrogate) return std::nullopt;
  return Decoded{character, form.size};
}

Decoded DecodeFirst(std::string_view utf8) {
  const auto first = static_cast<std::uint8_t>(utf8[0]);
  for (const Form& form : kForms) {
    if ((first & form.mask) == form.lead) return Decode(utf8, form).value_or(Decoded{kReplacement, 1});
  }
  return {kReplacement, 1};
}

}  // namespace

std::string ToUtf8(WideView wide) {
  std::string text;
  for (std::size_t i = 0; i < wide.size(); ++i) {
    char32_t character = wide[i];
    if (IsHighSurrogate(character) && i + 1 < wide.size() && IsLowSurrogate(wide[i + 1])) {
      character = 0x10000 + ((character - 0xD800) << 10) + (wide[i + 1] - 0xDC00U);
      ++i;
    } else if (IsHighSurrogate(character) || IsLowSurrogate(character)) {
      character = kReplacement;
    }
    AppendUtf8(text, character);
  }
  return text;
}

WideString ToWide(std::string_view utf8) {
  WideString text;
  while (!utf8.empty()) {
    const Decoded decoded = DecodeFirst(utf8);
    AppendWide(text, decoded.character);
    utf8.remove_prefix(decoded.size);
  }
  return text;
}

}  // namespace orvik::platform::windows
