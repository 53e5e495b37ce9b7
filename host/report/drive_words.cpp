#include "host/report/drive_words.h"

#include <QCoreApplication>

namespace orvik::host {
namespace {

namespace status = module::storage::status;

Word AtaSelfTestWord(std::uint8_t code) {
  switch (code) {
    case 3:
      return {"fatal-error", QCoreApplication::translate("orvik-diag", "broken off by a fatal error"), Colour::Red};
    case 4: return {"element-failed", QCoreApplication::translate("orvik-diag", "an element failed"), Colour::Red};
    case 5:
      return {"electrical-element-failed", QCoreApplication::translate("orvik-diag", "the electrical element failed"),
              Colour::Red};
    case 6:
      return {"servo-element-failed", QCoreApplication::translate("orvik-diag", "the servo or seek element failed"),
              Colour::Red};
    case 7:
      return {"read-element-failed", QCoreApplication::translate("orvik-diag", "the read element failed"),
              Colour::Red};
    case 8:
      return {"handling-damage", QCoreApplication::translate("orvik-diag", "suspected handling damage"), Colour::Red};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Plain};
  }
}

Word ScsiSelfTestWord(std::uint8_t code) {
  switch (code) {
    case 3:
      return {"fatal-error", QCoreApplication::translate("orvik-diag", "broken off by a fatal error"), Colour::Red};
    case 4:
    case 5:
    case 6:
    case 7: return {"segment-failed", QCoreApplication::translate("orvik-diag", "a segment failed"), Colour::Red};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown"), Colour::Plain};
  }
}

}  // namespace

Word StatusWord(module::storage::Status status) {
  switch (status) {
    case status::kSuccess: return {"success", QCoreApplication::translate("orvik-diag", "success")};
    case status::kFailure: return {"failure", QCoreApplication::translate("orvik-diag", "no usable answer")};
    case status::kBadArgument: return {"bad-argument", QCoreApplication::translate("orvik-diag", "bad argument")};
    case status::kNotAvailable: return {"not-available", QCoreApplication::translate("orvik-diag", "not available")};
    case status::kAtaError: return {"ata-error", QCoreApplication::translate("orvik-diag", "ATA error")};
    case status::kScsiStatusNotGood:
      return {"scsi-status", QCoreApplication::translate("orvik-diag", "SCSI status not good")};
    case status::kIoctlFailed:
      return {"request-failed", QCoreApplication::translate("orvik-diag", "request to the system failed")};
    case status::kInvalidData: return {"invalid-data", QCoreApplication::translate("orvik-diag", "invalid data")};
    case status::kCsmiReturnCode:
      return {"controller-refused", QCoreApplication::translate("orvik-diag", "refused by the controller")};
    case status::kInterfaceError:
      return {"interface-error", QCoreApplication::translate("orvik-diag", "interface error")};
    case status::kMediumError: return {"medium-error", QCoreApplication::translate("orvik-diag", "medium error")};
    case status::kCommandRefused:
      return {"command-refused", QCoreApplication::translate("orvik-diag", "command refused")};
    case status::kUndecodableSense:
      return {"too-large-or-unknown-sense",
              QCoreApplication::translate("orvik-diag", "drive too large or sense data unknown")};
    case status::kDeviceError: return {"device-error", QCoreApplication::translate("orvik-diag", "device error")};
    case status::kNoDataTransferred:
      return {"no-data", QCoreApplication::translate("orvik-diag", "no data transferred")};
    case status::kSelfTestAborted:
      return {"self-test-aborted", QCoreApplication::translate("orvik-diag", "self-test not accepted")};
    case status::kSelfTestRejected:
      return {"self-test-rejected", QCoreApplication::translate("orvik-diag", "self-test not known")};
    case status::kAccessDenied: return {"access-denied", QCoreApplication::translate("orvik-diag", "access denied")};
    case status::kNoVendorDriver:
      return {"no-vendor-driver", QCoreApplication::translate("orvik-diag", "no vendor driver")};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown")};
  }
}

QString StatusText(module::storage::Status status) {
  return QStringLiteral("%1, %2").arg(StatusWord(status).shown,
                                      QCoreApplication::translate("orvik-diag", "status %1").arg(status));
}

Word HealthWord(std::uint8_t health) {
  switch (health) {
    case 0:
      return {"threshold-exceeded", QCoreApplication::translate("orvik-diag", "failure predicted"), Colour::Red};
    case 1: return {"healthy", QCoreApplication::translate("orvik-diag", "healthy"), Colour::Green};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown")};
  }
}

Word PowerModeWord(std::uint32_t mode) {
  switch (mode) {
    case 0: return {"standby", QCoreApplication::translate("orvik-diag", "standby")};
    case 1: return {"idle", QCoreApplication::translate("orvik-diag", "idle")};
    case 2: return {"active-or-idle", QCoreApplication::translate("orvik-diag", "active or idle")};
    case 3: return {"other", QCoreApplication::translate("orvik-diag", "other")};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown")};
  }
}

Word SelfTestWord(std::uint8_t code, bool isAta) {
  switch (code) {
    case 0: return {"completed", QCoreApplication::translate("orvik-diag", "completed without error"), Colour::Green};
    case 1:
      return {"aborted-by-host", QCoreApplication::translate("orvik-diag", "aborted by the host"), Colour::Yellow};
    case 2:
      return {"interrupted", QCoreApplication::translate("orvik-diag", "interrupted by a reset or the like"),
              Colour::Yellow};
    case 15: return {"in-progress", QCoreApplication::translate("orvik-diag", "in progress"), Colour::Cyan};
    default: return isAta ? AtaSelfTestWord(code) : ScsiSelfTestWord(code);
  }
}

}  // namespace orvik::host
