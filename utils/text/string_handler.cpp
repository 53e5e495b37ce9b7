#include "utils/text/string_handler.h"

#include <algorithm>
#include <string_view>

void StringHandler::CopyUntilZero(std::string& output, const std::string& text) const {
  output = text.substr(0, text.find('\0'));
}

char* StringHandler::CopyPrintable(char* output, std::int32_t outputSize, const char* input,
                                   std::int32_t inputLength) const {
  if (output == nullptr || outputSize < 1) return output;
  std::string_view text;
  if (input != nullptr && inputLength > 0) text = {input, static_cast<std::size_t>(inputLength)};
  text = text.substr(0, text.find('\0'));
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  text = text.substr(0, text.find_last_not_of(' ') + 1);
  text = text.substr(0, static_cast<std::size_t>(outputSize) - 1);
  char* const end = std::transform(text.begin(), text.end(), output, [](char character) {
    return character < 0x20 || character > 0x7E ? '?' : character;
  });
  *end = '\0';
  return output;
}
