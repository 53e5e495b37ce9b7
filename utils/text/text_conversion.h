#pragma once

#include <span>
#include <string>
#include <string_view>

#include <windows.h>

#include "utils/text/string_handler.h"

/// UTF-8 of a zero-terminated UTF-16 text; empty when there is nothing to convert.
std::string ToUtf8(const WCHAR* text);

/// UTF-8 of `buffer.size() / 2` UTF-16 units into the buffer, a terminating zero included where the units have one;
/// false when the buffer is empty or the result does not fit.
bool ToUtf8(const WCHAR* text, std::span<char> buffer);

/// Each byte widened to one UTF-16 unit.
WideString Widen(std::string_view text);
