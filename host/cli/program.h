#pragma once

#include <QStringList>

namespace orvik::host {

/// The whole program behind `main`, which has made the application object: takes the arguments (without the program's
/// own name) and returns the exit code.
int RunProgram(const QStringList& arguments);

}  // namespace orvik::host
