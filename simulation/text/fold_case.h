#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace orvik::simulation {

/// `text` with ASCII capitals turned small: what names, keys and paths of the machine are compared by.
inline std::string FoldCase(std::string_view text) {
  std::string folded(text);
  std::ranges::transform(folded, folded.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return folded;
}

}  // namespace orvik::simulation
