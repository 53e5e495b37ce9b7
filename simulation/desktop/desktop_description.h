#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace orvik::simulation {

/// The user's session on the machine: how it looks, who helps the user to read it, and where it keeps its files.
struct DesktopDescription {
  bool highContrast = false;
  /// System colours (0xRRGGBB) by their index, in place of those of the normal or the high-contrast palette.
  std::map<std::uint32_t, std::uint32_t> colors{};
  /// What the system itself says about a screen reader.
  bool screenReader = false;
  /// The system's own screen reader, which is known by its mutex.
  bool narrator = false;
  /// Of the only monitor.
  std::uint32_t dpi = 96;
  /// Whether the system has the library that tells the monitor's DPI.
  bool dpiLibrary = true;
  /// Folder of the data of all users, in this platform's own notation; empty: one under the temporary folder.
  std::string programData{};
  std::string userName = "operator";

  friend bool operator==(const DesktopDescription&, const DesktopDescription&) = default;
};

}  // namespace orvik::simulation
