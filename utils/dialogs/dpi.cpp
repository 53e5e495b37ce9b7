#include "utils/dialogs/dpi.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>
#include <array>
#include <bit>
#include <optional>

#include <windows.h>

#include <hostkit.h>
#include <shellscalingapi.h>

namespace {

// The DPI and the screen that unscaled sizes are designed for.
constexpr int kUnscaledDpi = 96;
constexpr QSize kReference(800, 600);

/// The system's library for monitor DPI, loaded while it is in use.
class ScalingLibrary {
 public:
  ScalingLibrary() : library_(get_module()->Load("shcore.dll", 1)) {}
  ScalingLibrary(const ScalingLibrary&) = delete;
  ScalingLibrary& operator=(const ScalingLibrary&) = delete;
  ~ScalingLibrary() {
    if (library_ != nullptr) get_module()->Unload(library_);
  }

  /// Null when the library or the function is missing. The second argument gives the function's type.
  template <typename Function>
  Function* Find(const char* name, Function* /*type*/) const {
    return library_ == nullptr ? nullptr : std::bit_cast<Function*>(get_module()->FindSymbol(library_, name));
  }

 private:
  void* library_;
};

using SetAwareness = HRESULT WINAPI(PROCESS_DPI_AWARENESS awareness);
using GetMonitorDpi = HRESULT WINAPI(HMONITOR monitor, MONITOR_DPI_TYPE type, UINT* dpiX, UINT* dpiY);

std::optional<QSize> MonitorDpi() {
  const ScalingLibrary library;
  if (auto* const set = library.Find("SetProcessDpiAwareness", static_cast<SetAwareness*>(nullptr)); set != nullptr)
    set(PROCESS_PER_MONITOR_DPI_AWARE);
  auto* const get = library.Find("GetDpiForMonitor", static_cast<GetMonitorDpi*>(nullptr));
  if (get == nullptr) return std::nullopt;
  HMONITOR monitor = MonitorFromWindow(GetDesktopWindow(), MONITOR_DEFAULTTOPRIMARY);
  UINT x = 0;
  UINT y = 0;
  if (get(monitor, MDT_EFFECTIVE_DPI, &x, &y) != S_OK || x == 0 || y == 0) return std::nullopt;
  return QSize(static_cast<int>(x), static_cast<int>(y));
}

}  // namespace

QSize Dpi::Detected() {
  if (const auto dpi = MonitorDpi()) return *dpi;
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {kUnscaledDpi, kUnscaledDpi};
  return {static_cast<int>(screen->logicalDotsPerInchX()), static_cast<int>(screen->logicalDotsPerInchY())};
}

const Dpi* Dpi::Instance() {
  const QWidgetList topLevel = QApplication::topLevelWidgets();
  if (instance_ == nullptr && !topLevel.isEmpty()) {
    static const QSize dpi = Detected();
    instance_ = new Dpi(topLevel.first(), {Step(dpi.width()), Step(dpi.height())});
  }
  return instance_;
}

void Dpi::Release() {
  delete instance_;
}

Dpi::Dpi(QWidget* parent, QSize dpi) : QWidget(parent), horizontal_(dpi.width()), vertical_(dpi.height()) {
  // Shown with its parent it would cover what is below it.
  hide();
}

// Its parent may delete it.
Dpi::~Dpi() {
  instance_ = nullptr;
}

int Dpi::Step(int dpi) {
  struct Row {
    int below;
    int step;
  };
  static constexpr std::array<Row, 4> kSteps = {{{120, 96}, {144, 120}, {168, 144}, {192, 168}}};
  const auto* const row = std::ranges::find_if(kSteps, [dpi](const Row& each) { return dpi < each.below; });
  return row == kSteps.end() ? 192 : row->step;
}

QSize Dpi::Scaled(QSize size, int dpi, QSize screen) {
  const double factor = static_cast<double>(dpi) / kUnscaledDpi;
  const QSize room = screen.expandedTo(kReference);
  const double width = std::min<double>(kReference.width() * factor, room.width());
  const double height = std::min<double>(width * kReference.height() / kReference.width(), room.height());
  const auto scaled = [](int length, double reference, int unscaled) {
    return static_cast<int>(std::min<double>(length * reference / unscaled, QWIDGETSIZE_MAX));
  };
  return {scaled(size.width(), width, kReference.width()), scaled(size.height(), height, kReference.height())};
}

QSize Dpi::Scaled(QSize size) const {
  const QList<QScreen*> screens = QGuiApplication::screens();
  return Scaled(size, horizontal_, screens.isEmpty() ? kReference : screens.first()->size());
}

int Dpi::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY: return horizontal_;
    default: return QWidget::metric(metric);
  }
}
