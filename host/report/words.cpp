#include "host/report/words.h"

#include <QCoreApplication>

namespace orvik::host {
namespace {

Word WordFor(core::TestResult result) {
  switch (result) {
    case core::TestResult::Passed:
      return {"passed", QCoreApplication::translate("orvik-diag", "passed"), Colour::Green};
    case core::TestResult::Warning:
      return {"warning", QCoreApplication::translate("orvik-diag", "warning"), Colour::Yellow};
    case core::TestResult::Failed:
      return {"failed", QCoreApplication::translate("orvik-diag", "failed"), Colour::Red};
    case core::TestResult::NotApplicable:
      return {"not-applicable", QCoreApplication::translate("orvik-diag", "not applicable"), Colour::Cyan};
    case core::TestResult::Aborted:
      return {"aborted", QCoreApplication::translate("orvik-diag", "aborted"), Colour::Red};
    case core::TestResult::Invalid:
      return {"invalid", QCoreApplication::translate("orvik-diag", "device gone"), Colour::Red};
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Red};
}

}  // namespace

Word WordFor(const RunOutcome& outcome) {
  if (!outcome.result || !outcome.error.isEmpty()) {
    return {"error", QCoreApplication::translate("orvik-diag", "error"), Colour::Red};
  }
  return WordFor(*outcome.result);
}

Word WordFor(core::MessageType type) {
  switch (type) {
    case core::MessageType::Info: return {"info", QCoreApplication::translate("orvik-diag", "info"), Colour::Plain};
    case core::MessageType::Warning:
      return {"warning", QCoreApplication::translate("orvik-diag", "warning"), Colour::Yellow};
    case core::MessageType::Error: return {"error", QCoreApplication::translate("orvik-diag", "error"), Colour::Red};
    case core::MessageType::Notice:
      return {"notice", QCoreApplication::translate("orvik-diag", "notice"), Colour::Cyan};
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Plain};
}

Word WordFor(module::raid::LogicalDriveState state) {
  using module::raid::LogicalDriveState;
  switch (state) {
    case LogicalDriveState::Optimal:
      return {"optimal", QCoreApplication::translate("orvik-diag", "optimal"), Colour::Green};
    case LogicalDriveState::Degraded:
      return {"degraded", QCoreApplication::translate("orvik-diag", "degraded"), Colour::Yellow};
    case LogicalDriveState::Failed:
      return {"failed", QCoreApplication::translate("orvik-diag", "failed", "a logical disk"), Colour::Red};
    case LogicalDriveState::Rebuilding:
      return {"rebuilding", QCoreApplication::translate("orvik-diag", "rebuilding"), Colour::Yellow};
    case LogicalDriveState::Unknown: break;
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "state unknown"), Colour::Plain};
}

Word WordFor(module::raid::DriveProtocol protocol) {
  using module::raid::DriveProtocol;
  switch (protocol) {
    case DriveProtocol::Ata: return {"ata", QStringLiteral("ATA")};
    case DriveProtocol::Scsi: return {"scsi", QStringLiteral("SCSI")};
    case DriveProtocol::Nvme: return {"nvme", QStringLiteral("NVMe")};
    case DriveProtocol::Unknown: break;
  }
  return {"unknown", QCoreApplication::translate("orvik-diag", "unknown protocol")};
}

}  // namespace orvik::host
