#pragma once

#include <QString>
#include <optional>

#include "host/run/run.h"
#include "host/terminal/palette.h"
#include "module/raid/device_records.h"

namespace orvik::host {

/// One value of an enumeration in words: `stable` for programs, the same in every language and version; `shown` for
/// people.
struct Word {
  const char* stable;
  QString shown;
  Colour colour = Colour::Plain;
};

Word WordFor(const RunOutcome& outcome);
Word WordFor(core::MessageType type);
Word WordFor(module::raid::LogicalDriveState state);
Word WordFor(module::raid::DriveProtocol protocol);

}  // namespace orvik::host
