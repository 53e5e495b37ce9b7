#pragma once

// The user's session: what programs ask of it, and what they do to it.

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace orvik::simulation {

/// The user's session on the machine: its look, screen readers and folders.
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
  /// Whether the system has the library that reports the monitor's DPI.
  bool dpiLibrary = true;
  /// Folder of the data of all users, in this platform's own notation; empty: one under the temporary folder.
  std::string programData{};
  std::string userName = "operator";

  friend bool operator==(const DesktopDescription&, const DesktopDescription&) = default;
};

/// A key press or release that a program synthesised.
struct SyntheticKey {
  std::uint16_t virtualKey{};
  std::uint16_t scanCode{};
  std::uint32_t flags{};

  friend bool operator==(const SyntheticKey&, const SyntheticKey&) = default;
};

/// Thread-safe.
class Desktop {
 public:
  explicit Desktop(DesktopDescription description) : state_(std::move(description)) {}

  DesktopDescription State() const;
  /// Changes the session and calls `AnnounceTheme` when its look has changed.
  void Change(DesktopDescription state);
  /// Sends WM_THEMECHANGED to the native event filters of this process's Qt application, on its own thread. Nothing
  /// happens in a process without one.
  static void AnnounceTheme();

  /// A system colour as 0xRRGGBB; 0 for an index that has none.
  std::uint32_t Color(std::uint32_t index) const;
  /// The folder of the data of all users.
  std::string ProgramDataFolder() const;

  void RecordKey(const SyntheticKey& key);
  void RecordForeground(std::uint64_t window);
  void RecordDpiAwareness(std::uint32_t awareness);
  std::vector<SyntheticKey> Keys() const;
  /// The windows that were brought forward, in order.
  std::vector<std::uint64_t> ForegroundWindows() const;
  std::vector<std::uint32_t> DpiAwareness() const;

 private:
  mutable std::mutex mutex_;
  DesktopDescription state_;
  std::vector<SyntheticKey> keys_;
  std::vector<std::uint64_t> foreground_;
  std::vector<std::uint32_t> awareness_;
};

}  // namespace orvik::simulation
