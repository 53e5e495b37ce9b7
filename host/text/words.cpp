#include "host/text/words.h"

#include <QCoreApplication>

namespace orvik::host {

namespace status = module::storage::status;

Word StatusWord(module::storage::Status status) {
  switch (status.Code()) {
    case status::kSuccess.Code(): return {"success", QCoreApplication::translate("orvik-diag", "success")};
    case status::kFailure.Code(): return {"failure", QCoreApplication::translate("orvik-diag", "general failure")};
    case status::kBadArgument.Code():
      return {"bad-argument", QCoreApplication::translate("orvik-diag", "invalid argument")};
    case status::kNotAvailable.Code():
      return {"not-available", QCoreApplication::translate("orvik-diag", "not available")};
    case status::kAtaError.Code(): return {"ata-error", QCoreApplication::translate("orvik-diag", "ATA error")};
    case status::kScsiStatusNotGood.Code():
      return {"scsi-status", QCoreApplication::translate("orvik-diag", "SCSI status not GOOD")};
    case status::kIoctlFailed.Code():
      return {"request-failed", QCoreApplication::translate("orvik-diag", "I/O request failed")};
    case status::kInvalidData.Code():
      return {"invalid-data", QCoreApplication::translate("orvik-diag", "invalid data")};
    case status::kCsmiReturnCode.Code():
      return {"controller-refused", QCoreApplication::translate("orvik-diag", "rejected by the controller")};
    case status::kInterfaceError.Code():
      return {"interface-error", QCoreApplication::translate("orvik-diag", "interface error")};
    case status::kMediumError.Code():
      return {"medium-error", QCoreApplication::translate("orvik-diag", "medium error")};
    case status::kCommandRefused.Code():
      return {"command-refused", QCoreApplication::translate("orvik-diag", "command rejected")};
    case status::kUndecodableSense.Code():
      return {"too-large-or-unknown-sense",
              QCoreApplication::translate("orvik-diag", "address too large or unknown sense data")};
    case status::kDeviceError.Code():
      return {"device-error", QCoreApplication::translate("orvik-diag", "device error")};
    case status::kNoDataTransferred.Code():
      return {"no-data", QCoreApplication::translate("orvik-diag", "no data transferred")};
    case status::kSelfTestAborted.Code():
      return {"self-test-aborted", QCoreApplication::translate("orvik-diag", "self-test command aborted")};
    case status::kSelfTestRejected.Code():
      return {"self-test-rejected", QCoreApplication::translate("orvik-diag", "self-test command rejected")};
    case status::kAccessDenied.Code():
      return {"access-denied", QCoreApplication::translate("orvik-diag", "access denied")};
    case status::kNoVendorDriver.Code():
      return {"no-vendor-driver", QCoreApplication::translate("orvik-diag", "no vendor driver installed")};
    default: return {"unknown", QCoreApplication::translate("orvik-diag", "unknown")};
  }
}

QString StatusText(module::storage::Status status) {
  return QStringLiteral("%1, %2").arg(StatusWord(status).shown,
                                      QCoreApplication::translate("orvik-diag", "status %1").arg(status.Code()));
}

}  // namespace orvik::host
