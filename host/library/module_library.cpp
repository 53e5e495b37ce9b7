#include "host/library/module_library.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <exception>

#include "host/library/simulation_folder.h"

namespace orvik::host {
namespace {

#ifdef Q_OS_WIN
constexpr QLatin1String kSuffix(".dll");
#else
constexpr QLatin1String kSuffix(".so");
#endif
constexpr QLatin1String kInstalledModule("ovk_module_raid");
constexpr QLatin1String kSimulatedModule("ovk_module_raid_simulated");

// Without a folder of its own a name would be looked for along the system's library path.
QString LibraryPath(const QString& file, bool simulated) {
  if (!file.isEmpty()) return QFileInfo(file).absoluteFilePath();
  const QDir simulation = SimulationFolder();
  const QString variant = kSimulatedModule + kSuffix;
  if (simulated && simulation.exists(variant)) return simulation.filePath(variant);
  return QDir(QCoreApplication::applicationDirPath()).filePath(kInstalledModule + kSuffix);
}

QString Problem(const QString& path, const QString& found) {
  return QCoreApplication::translate("orvik-diag", "%1: expected a diagnostics module library, found %2")
      .arg(QDir::toNativeSeparators(path), found.simplified());
}

}  // namespace

std::unique_ptr<ModuleLibrary> ModuleLibrary::Open(const QString& file, bool simulated, QString& error) {
  const QString path = LibraryPath(file, simulated);
  // A module stays loaded until the program ends: what it handed out may hold on to code in it to the last.
  QLibrary library(path);
  if (!library.load()) {
    const QFileInfo info(path);
    if (info.isDir()) {
      error = Problem(path, QCoreApplication::translate("orvik-diag", "a folder"));
    } else if (!info.exists()) {
      error = Problem(path, QCoreApplication::translate("orvik-diag", "no such file"));
    } else {
      error = Problem(
          path, QCoreApplication::translate("orvik-diag", "none that can be loaded (%1)").arg(library.errorString()));
    }
    return nullptr;
  }

  auto* const create = reinterpret_cast<CreateModuleInstanceFunction*>(library.resolve("CreateModuleInstance"));
  auto* const destroy = reinterpret_cast<DestroyModuleInstanceFunction*>(library.resolve("DestroyModuleInstance"));
  if (create == nullptr || destroy == nullptr) {
    const QString missing = QLatin1String(create == nullptr ? "CreateModuleInstance" : "DestroyModuleInstance");
    error = Problem(path, QCoreApplication::translate("orvik-diag", "a library without %1").arg(missing));
    return nullptr;
  }

  core::Module* module = nullptr;
  QString reason = QCoreApplication::translate("orvik-diag", "it made none");
  try {
    module = create();
  } catch (const std::exception& exception) {
    reason = QString::fromUtf8(exception.what());
  }
  if (module == nullptr) {
    error = Problem(path, QCoreApplication::translate("orvik-diag", "one that could not start (%1)").arg(reason));
    return nullptr;
  }
  return std::unique_ptr<ModuleLibrary>(new ModuleLibrary(module, destroy));
}

ModuleLibrary::ModuleLibrary(core::Module* module, DestroyModuleInstanceFunction* destroy)
    : module_(module), destroy_(destroy) {}

ModuleLibrary::~ModuleLibrary() {
  destroy_(module_);
}

}  // namespace orvik::host
