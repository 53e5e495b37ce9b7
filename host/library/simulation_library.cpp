#include "host/library/simulation_library.h"

#include <QCoreApplication>
#include <QLibrary>

#include "host/library/simulation_folder.h"

namespace orvik::host {
namespace {

using OpenFunction = const char*(const char* utf8Path);

}  // namespace

std::optional<QString> OpenSimulatedMachine(const QString& machineFile) {
  const QDir folder = SimulationFolder();
  SearchLibrariesIn(folder);
  QLibrary library(folder.filePath(QStringLiteral("orvik_simulation")));
  auto* const open = reinterpret_cast<OpenFunction*>(library.resolve("OrvikSimulationOpen"));
  if (open == nullptr) {
    return QCoreApplication::translate("orvik-diag", "Simulated machines are not available in this installation: %1")
        .arg(library.errorString().simplified());
  }

  const char* const problem = open(machineFile.toUtf8().constData());
  if (problem == nullptr) return std::nullopt;
  return QString::fromUtf8(problem).simplified();
}

}  // namespace orvik::host
