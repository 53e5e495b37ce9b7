#pragma once

#include <QString>
#include <string_view>

namespace orvik::host {

/// A message taken apart: its upper-case key, what joins key and value (": ", one space, or nothing), its value.
struct MessageParts {
  std::string_view key;
  std::string_view separator;
  std::string_view value;
};

/// Parts of `text`; a text that does not begin with a key is all key.
MessageParts SplitMessage(std::string_view text);

/// The module's key in the user's language; an unknown key as it stands.
QString TranslateKey(std::string_view key);

/// The whole message in the user's language: the key translated, the value kept.
QString TranslateMessage(std::string_view text);

}  // namespace orvik::host
