#pragma once

#include <QDir>

namespace orvik::host {

/// Where the simulated machine and the module variant for it lie: in a folder of their own ("simulated") if there is
/// one, beside the program otherwise. There a simulated vendor library is not taken for the vendor's own.
QDir SimulationFolder();

/// Lets libraries of the folder find each other when they are loaded.
void SearchLibrariesIn(const QDir& folder);

}  // namespace orvik::host
