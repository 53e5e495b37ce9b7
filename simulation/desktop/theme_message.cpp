// How a theme change reaches a program: as a message of the system, which Qt shows to native event filters.

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QMetaObject>
#include <cstdint>

#include "simulation/desktop/desktop.h"

namespace orvik::simulation {

namespace {

constexpr std::uint32_t kThemeChanged = 0x031A;  // WM_THEMECHANGED

// A message as the system hands it to a window, with its natural alignment.
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

void Desktop::AnnounceTheme() {
  auto* application = QCoreApplication::instance();
  if (application != nullptr)
    QMetaObject::invokeMethod(
        application, [] { ShowToFilters(); }, Qt::QueuedConnection);
}

}  // namespace orvik::simulation
