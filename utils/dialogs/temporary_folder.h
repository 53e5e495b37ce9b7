#pragma once

#include <cstdint>
#include <string>

namespace orvik::utils {

/// The folders that the framework has a name for; all but the temporary one are those of its other tools.
enum class FolderKind : std::uint32_t { Temporary = 9 };

/// UTF-8 path of a folder of the current user, with a backslash at its end; empty when the system does not tell. The
/// folder need not exist.
std::string FolderPath(FolderKind kind);

}  // namespace orvik::utils
