#include "host/library/libraries.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#ifdef Q_OS_WIN
#include <windows.h>

#include <array>
#endif
#include <exception>

#include "host/text/text.h"

namespace orvik::host {
namespace {

using OpenSimulationFunction = const char*(const char* utf8Path);
using HasVendorLibraryFunction = int();

#ifdef Q_OS_WIN
constexpr QLatin1String kSuffix(".dll");
#else
constexpr QLatin1String kSuffix(".so");
#endif
constexpr QLatin1String kInstalledModule("ovk_module_raid");
constexpr QLatin1String kSimulatedModule("ovk_module_raid_simulated");

// Holds the simulated machine and the module variant for it: the folder "simulated" if there is one, otherwise the
// program's own. In a folder of its own a simulated vendor library is not mistaken for the vendor's.
QDir SimulationFolder() {
  QDir folder(QCoreApplication::applicationDirPath());
  // Stays in the program's folder if "simulated" does not exist.
  folder.cd(QStringLiteral("simulated"));
  return folder;
}

// Lets the libraries of the folder find each other when they are loaded.
void AddToSearchPath(const QDir& folder) {
  const QByteArray path = QDir::toNativeSeparators(folder.absolutePath()).toLocal8Bit();
  qputenv("PATH", path + QChar(QDir::listSeparator()).toLatin1() + qgetenv("PATH"));
}

// Always absolute: the system would search its library path for a bare name.
QString ModulePath(const QString& file, bool simulated) {
  if (!file.isEmpty()) return QFileInfo(file).absoluteFilePath();
  const QDir simulation = SimulationFolder();
  const QString variant = kSimulatedModule + kSuffix;
  if (simulated && simulation.exists(variant)) return simulation.filePath(variant);
  return QDir(QCoreApplication::applicationDirPath()).filePath(kInstalledModule + kSuffix);
}

// A simulation without the question has the library.
bool SimulationHasVendorLibrary() {
  QLibrary library(SimulationFolder().filePath(QStringLiteral("orvik_simulation")));
  auto* const has = reinterpret_cast<HasVendorLibraryFunction*>(library.resolve("OrvikSimulationHasVendorLibrary"));
  return has == nullptr || has() != 0;
}

// Where modules look for the vendor's library. Empty where there is none: if no module has loaded hostkit, or where
// only simulated machines exist.
QString HostkitFolder() {
#ifdef Q_OS_WIN
  std::array<wchar_t, 32768> path{};
  const HMODULE hostkit = GetModuleHandleW(L"hostkit.dll");
  if (hostkit != nullptr && GetModuleFileNameW(hostkit, path.data(), static_cast<DWORD>(path.size())) != 0) {
    return QFileInfo(QString::fromWCharArray(path.data())).absolutePath();
  }
#endif
  return {};
}

Error NotLoaded(const QString& path, const QString& cause) {
  return {QCoreApplication::translate("orvik-diag", "Could not load the module %1: %2")
              .arg(QDir::toNativeSeparators(path), cause.simplified())};
}

QString LoadProblem(const QFileInfo& file, const QLibrary& library) {
  if (file.isDir()) return QCoreApplication::translate("orvik-diag", "it is a folder");
  if (!file.exists()) return QCoreApplication::translate("orvik-diag", "no such file");
  return library.errorString();
}

}  // namespace

Result<void> OpenSimulatedMachine(const QString& machineFile) {
  const QDir folder = SimulationFolder();
  AddToSearchPath(folder);
  QLibrary library(folder.filePath(QStringLiteral("orvik_simulation")));
  auto* const open = reinterpret_cast<OpenSimulationFunction*>(library.resolve("OrvikSimulationOpen"));
  if (open == nullptr) {
    return Error{
        QCoreApplication::translate("orvik-diag", "Simulated machines are not available in this installation: %1")
            .arg(library.errorString().simplified())};
  }
  const char* const problem = open(machineFile.toUtf8().constData());
  if (problem != nullptr) return Error{QString::fromUtf8(problem).simplified()};
  return {};
}

QString MissingVendorLibrary(bool simulated) {
  const QString folder =
      simulated ? QCoreApplication::translate("orvik-diag", "the simulated machine") : HostkitFolder();
  const QLatin1String name("storelib.dll");
  const bool isMissing = simulated ? !SimulationHasVendorLibrary() : !folder.isEmpty() && !QDir(folder).exists(name);
  if (!isMissing) return {};
  return QCoreApplication::translate("orvik-diag",
                                     "Vendor library %1 not found in %2: controllers that need it are not listed")
      .arg(name, QDir::toNativeSeparators(folder));
}

Result<std::unique_ptr<ModuleLibrary>> ModuleLibrary::Open(const QString& file, bool simulated) {
  const QString path = ModulePath(file, simulated);
  // Never unloaded: objects from the module may need its code until the program ends.
  QLibrary library(path);
  if (!library.load()) return NotLoaded(path, LoadProblem(QFileInfo(path), library));

  auto* const create = reinterpret_cast<CreateModuleInstanceFunction*>(library.resolve("CreateModuleInstance"));
  auto* const destroy = reinterpret_cast<DestroyModuleInstanceFunction*>(library.resolve("DestroyModuleInstance"));
  if (create == nullptr || destroy == nullptr) {
    const QString missing = QLatin1String(create == nullptr ? "CreateModuleInstance" : "DestroyModuleInstance");
    return NotLoaded(path, QCoreApplication::translate("orvik-diag", "the library does not export %1").arg(missing));
  }

  core::Module* module = nullptr;
  QString cause = QCoreApplication::translate("orvik-diag", "it did not create a module instance");
  try {
    module = create();
  } catch (const std::exception& exception) {
    cause = CauseOf(exception);
  }
  if (module == nullptr) return NotLoaded(path, cause);
  return std::unique_ptr<ModuleLibrary>(new ModuleLibrary(module, destroy));
}

ModuleLibrary::ModuleLibrary(core::Module* module, DestroyModuleInstanceFunction* destroy)
    : module_(module), destroy_(destroy) {}

ModuleLibrary::~ModuleLibrary() {
  destroy_(module_);
}

}  // namespace orvik::host
