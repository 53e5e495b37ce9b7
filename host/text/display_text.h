#pragma once

#include <QString>
#include <string_view>

namespace orvik::host {

/// Text from a device for people: padding taken out, control characters spelt out, invalid UTF-8 replaced.
QString DisplayText(std::string_view text);

/// Text from a device for programs: as it stands, only invalid UTF-8 replaced.
QString RawText(std::string_view text);

}  // namespace orvik::host
