#include <QFile>
#include <QtPlugin>
#ifdef Q_OS_WIN
#include <windows.h>

#include <bit>
#endif

#include <skinkit.h>

Q_IMPORT_PLUGIN(SvgIconPlugin)

#ifdef Q_OS_WIN
namespace {

// Qt can't unregister plug-ins, so this library must stay loaded when its last user is unloaded.
void PinLibrary() {
  static constexpr char kInThisLibrary = 0;
  constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS;
  HMODULE library = nullptr;
  GetModuleHandleExW(kFlags, std::bit_cast<LPCWSTR>(&kInThisLibrary), &library);
}
Q_CONSTRUCTOR_FUNCTION(PinLibrary)

}  // namespace
#endif

// Never destroyed: a caller may hold it until the process ends.
StyleManager* StyleManager::instance() {
  static auto* const manager = new StyleManager;
  return manager;
}

StyleManager::StyleManager() {
  QFile file(QStringLiteral(":/skinkit/dialog.qss"));
  if (file.open(QIODevice::ReadOnly)) styleSheet_ = QString::fromUtf8(file.readAll());
}

QString StyleManager::Stylesheet() const {
  return styleSheet_;
}
