#pragma once

#include <QString>
#include <optional>

namespace orvik::host {

/// Opens a simulated machine, so that a module loaded afterwards finds its controllers. Returns nothing when it is
/// open, otherwise one line that says what is wrong.
std::optional<QString> OpenSimulatedMachine(const QString& machineFile);

}  // namespace orvik::host
