#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace orvik::platform::windows {

using WideString = std::basic_string<WCHAR>;
using WideView = std::basic_string_view<WCHAR>;

/// UTF-8 of `wide`; each surrogate without its partner becomes U+FFFD.
std::string ToUtf8(WideView wide);
/// UTF-16 of `utf8`; each byte that belongs to no character becomes U+FFFD.
WideString ToWide(std::string_view utf8);

}  // namespace orvik::platform::windows
