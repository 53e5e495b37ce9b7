#include "simulation/desktop/desktop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QMetaObject>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <utility>

namespace orvik::simulation {

namespace {

// By index: scroll bar, background, active caption, inactive caption, menu, window, window frame, menu text, window
// text, caption text, active border, inactive border, application workspace, highlight, highlight text, button face,
// button shadow, gray text, button text, inactive caption text, button highlight, 3D dark shadow, 3D light, info
// text, info background, (25 is none), hot light, gradients of active and inactive caption, menu highlight, menu bar.
constexpr std::size_t kColors = 31;
using Palette = std::array<std::uint32_t, kColors>;

constexpr Palette kNormal = {0xC8C8C8, 0x000000, 0x99B4D1, 0xBFCDDB, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000,
                             0x000000, 0x000000, 0xB4B4B4, 0xF4F7FC, 0xABABAB, 0x0078D7, 0xFFFFFF, 0xF0F0F0,
                             0xA0A0A0, 0x6D6D6D, 0x000000, 0x000000, 0xFFFFFF, 0x696969, 0xE3E3E3, 0x000000,
                             0xFFFFE1, 0x000000, 0x0066CC, 0xB9D1EA, 0xD7E4F2, 0x0078D7, 0xF0F0F0};
constexpr Palette kHighContrast = {0x000000, 0x000000, 0x000000, 0x000000, 0x000000, 0x000000, 0xFFFFFF, 0xFFFFFF,
                                   0xFFFFFF, 0xFFFFFF, 0x1AEBFF, 0xFFFFFF, 0x000000, 0x1AEBFF, 0x000000, 0x000000,
                                   0xFFFFFF, 0x3FF23F, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                   0x000000, 0x000000, 0xFFFF00, 0x000000, 0x000000, 0x1AEBFF, 0x000000};

// The account's name, which keeps its folder apart from those of other accounts.
std::string AccountName() {
  for (const char* variable : {"USER", "USERNAME", "LOGNAME"}) {
    const char* value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): nobody here changes the environment
    if (value != nullptr && *value != '\0') return value;
  }
  return "user";
}

constexpr std::uint32_t kThemeChanged = 0x031A;  // WM_THEMECHANGED

// A window message with the system's layout.
struct WindowMessage {
  std::uint64_t window{};
  std::uint32_t message{};
  std::uint64_t wordParameter{};
  std::uint64_t longParameter{};
  std::uint32_t time{};
  std::int32_t pointX{};
  std::int32_t pointY{};
};
static_assert(sizeof(WindowMessage) == 48);

void ShowToFilters() {
  WindowMessage message{.message = kThemeChanged};
  qintptr result = 0;
  if (auto* dispatcher = QAbstractEventDispatcher::instance(); dispatcher != nullptr)
    dispatcher->filterNativeEvent(QByteArrayLiteral("windows_generic_MSG"), &message, &result);
}

}  // namespace

DesktopDescription Desktop::State() const {
  const std::scoped_lock lock(mutex_);
  return state_;
}

void Desktop::Change(DesktopDescription state) {
  bool looksDifferent = false;
  {
    const std::scoped_lock lock(mutex_);
    looksDifferent = state.highContrast != state_.highContrast || state.colors != state_.colors;
    state_ = std::move(state);
  }
  if (looksDifferent) AnnounceTheme();
}

std::uint32_t Desktop::Color(std::uint32_t index) const {
  const std::scoped_lock lock(mutex_);
  if (const auto found = state_.colors.find(index); found != state_.colors.end()) return found->second;
  return index < kColors ? (state_.highContrast ? kHighContrast : kNormal).at(index) : 0;
}

std::string Desktop::ProgramDataFolder() const {
  if (std::string folder = State().programData; !folder.empty()) return folder;
  std::error_code error;
  const auto folder = std::filesystem::temp_directory_path(error) / ("orvik-program-data-" + AccountName());
  const std::u8string text = folder.u8string();
  return {text.begin(), text.end()};
}

void Desktop::RecordKey(const SyntheticKey& key) {
  const std::scoped_lock lock(mutex_);
  keys_.push_back(key);
}

void Desktop::RecordForeground(std::uint64_t window) {
  const std::scoped_lock lock(mutex_);
  foreground_.push_back(window);
}

void Desktop::RecordDpiAwareness(std::uint32_t awareness) {
  const std::scoped_lock lock(mutex_);
  awareness_.push_back(awareness);
}

std::vector<SyntheticKey> Desktop::Keys() const {
  const std::scoped_lock lock(mutex_);
  return keys_;
}

std::vector<std::uint64_t> Desktop::ForegroundWindows() const {
  const std::scoped_lock lock(mutex_);
  return foreground_;
}

std::vector<std::uint32_t> Desktop::DpiAwareness() const {
  const std::scoped_lock lock(mutex_);
  return awareness_;
}

void Desktop::AnnounceTheme() {
  auto* application = QCoreApplication::instance();
  if (application != nullptr)
    QMetaObject::invokeMethod(
        application, [] { ShowToFilters(); }, Qt::QueuedConnection);
}

}  // namespace orvik::simulation
