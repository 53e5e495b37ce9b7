// Self-tests of a SCSI drive, and REQUEST SENSE.

#include "simulation/drives/scsi/scsi_drive.h"

namespace orvik::simulation {

namespace {

namespace send_diagnostic_cdb {
constexpr U8 kFlags{1};
constexpr Be16 kParameterListLength{3};
constexpr std::uint8_t kSelfTest = 0x04;
constexpr unsigned kCodeShift = 5;
constexpr std::uint8_t kNoCode = 0;
constexpr std::uint8_t kAbort = 4;
}  // namespace send_diagnostic_cdb

namespace request_sense_cdb {
constexpr U8 kFlags{1};
constexpr U8 kAllocationLength{4};
constexpr std::uint8_t kDescriptorFormat = 0x01;
}  // namespace request_sense_cdb

}  // namespace

// The default self-test is short and completes before the command does.
ScsiCompletion ScsiDrive::DefaultSelfTest() {
  if (selfTests_.Fails()) return Refuse({.code = kSelfTestFailed});
  return {};
}

ScsiCompletion ScsiDrive::StartBackgroundTest(SelfTestKind kind) {
  if (selfTests_.Minutes(kind) == 0) return RefuseField(send_diagnostic_cdb::kFlags);
  if (selfTests_.Running()) return Refuse(PendingSense());
  selfTests_.Start(kind);
  return {};
}

// Foreground tests, which block all other commands until they end, are not supported.
ScsiCompletion ScsiDrive::SendDiagnostic(Cdb cdb, Data /*data*/) {
  using namespace send_diagnostic_cdb;
  const std::uint8_t flags = Get(cdb, kFlags);
  const auto code = static_cast<std::uint8_t>(flags >> kCodeShift);
  const bool defaultTest = (flags & kSelfTest) != 0;
  if (Get(cdb, kParameterListLength) != 0) return RefuseField(U8{kParameterListLength.offset});
  if (defaultTest) return code == kNoCode ? DefaultSelfTest() : RefuseField(kFlags);
  if (code == ScsiSelfTestCode(SelfTestKind::Short)) return StartBackgroundTest(SelfTestKind::Short);
  if (code == ScsiSelfTestCode(SelfTestKind::Extended)) return StartBackgroundTest(SelfTestKind::Extended);
  if (code == kNoCode || (code == kAbort && selfTests_.Abort())) return {};
  return RefuseField(kFlags);
}

Sense ScsiDrive::PendingSense() {
  if (const auto running = selfTests_.Running()) {
    return {.code = kSelfTestInProgress, .progress = static_cast<std::uint16_t>(running->done * 65536)};
  }
  if (description_.failing && exceptions_.ReportsInSense()) return {.code = kFailurePredicted};
  return {.code = kNoSense};
}

ScsiCompletion ScsiDrive::RequestSense(Cdb cdb, Data data) {
  const bool asked = (Get(cdb, request_sense_cdb::kFlags) & request_sense_cdb::kDescriptorFormat) != 0;
  const bool descriptors = asked || description_.descriptorSense;
  const auto reply = MakeSenseData(PendingSense(), descriptors ? SenseFormat::Descriptor : SenseFormat::Fixed);
  return Deliver(reply, Get(cdb, request_sense_cdb::kAllocationLength), data);
}

}  // namespace orvik::simulation
