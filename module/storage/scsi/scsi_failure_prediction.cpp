// Failure prediction of a SCSI drive: informational exceptions, asked for and switched.

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include "module/storage/scsi/scsi_pages.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "module/storage/scsi/sense_data.h"

namespace orvik::module::storage {

namespace {

using utils::ByteView;
using utils::MutableByteView;
using utils::U8;
using namespace informational_exceptions_control;

constexpr std::uint8_t kReplySize = 252;
using ReplyBuffer = std::array<std::uint8_t, kReplySize>;

/// The informational exceptions control page as 6-byte commands carry it: behind a header of 4 bytes.
struct ShortForm {
  using Sense = ModeSense6IECPage;
  using Select = ModeSelect6IecPage;
  static constexpr std::uint8_t kSize = Select::kDataSize;
  static constexpr U8 kFlags{6};
  static constexpr U8 kMethod{7};
};

/// The same page as 10-byte commands carry it: behind a header of 8 bytes.
struct LongForm {
  using Sense = ModeSense10IECPage;
  using Select = ModeSelect10IecPage;
  static constexpr std::uint8_t kSize = Select::kDataSize;
  static constexpr U8 kFlags{10};
  static constexpr U8 kMethod{11};
};

template <typename Form>
bool IsEnabled(ByteView data) {
  return (data.Get(Form::kMethod) & ~kReportMethod) == 0 && (data.Get(Form::kFlags) & kDisabled) == 0;
}

std::size_t WholeSize(ByteView page) {
  return page.Get(log_page::kPageLength) + log_page::kHeaderSize;
}

}  // namespace

template <typename Form>
Status ScsiProtocol::ReadIecPage(std::array<std::uint8_t, Form::kSize>& data) {
  typename Form::Sense command(data.data(), Form::kSize);
  ByteView reply;
  if (const Status fetched = Fetch(command, reply); fetched != status::kSuccess) return fetched;
  return reply.Size() < Form::kSize ? status::kInvalidData : status::kSuccess;
}

void ScsiProtocol::ProbeFailurePrediction() {
  std::array<std::uint8_t, ShortForm::kSize> shortData{};
  std::array<std::uint8_t, LongForm::kSize> longData{};
  if (ReadIecPage<ShortForm>(shortData) == status::kSuccess) {
    properties_->smartEnabled = IsEnabled<ShortForm>(ByteView(shortData));
  } else if (ReadIecPage<LongForm>(longData) == status::kSuccess) {
    properties_->smartEnabled = IsEnabled<LongForm>(ByteView(longData));
  } else {
    return;
  }
  properties_->smartSupported = true;
}

template <typename Form>
Status ScsiProtocol::ChangeIecPage(bool enable) {
  std::array<std::uint8_t, Form::kSize> data{};
  if (const Status read = ReadIecPage<Form>(data); read != status::kSuccess) return read;
  const MutableByteView page(data);
  const std::uint8_t method = ByteView(page).Get(Form::kMethod);
  const std::uint8_t flags = ByteView(page).Get(Form::kFlags);
  if (iecUnsaved_) savedIec_ = {.reportMethod = method, .flags = flags};
  page.Put(Form::kMethod, enable ? method | kReportMethod : savedIec_.reportMethod);
  page.Put(Form::kFlags, enable ? static_cast<std::uint8_t>(flags & ~kDisabled) : savedIec_.flags);

  typename Form::Select command(data.data());
  if (const Status sent = Send(command); sent != status::kSuccess) return sent;
  return command.status == kScsiStatusGood ? status::kSuccess : status::kFailure;
}

Status ScsiProtocol::SetSmartEnabled(std::uint8_t enable) {
  Status changed = ChangeIecPage<ShortForm>(enable != 0);
  if (changed != status::kSuccess) changed = ChangeIecPage<LongForm>(enable != 0);
  // Only a first call saves, however it ends: what a later one finds may already be what this one set.
  iecUnsaved_ = false;
  return changed;
}

Status ScsiProtocol::GetHealthStatus(std::uint8_t& healthy) {
  if (bridges_.IsEmpty()) return ScsiSendRule::kNoBridge;
  bool good = true;
  Status asked = AskExceptionsPage(good);
  if (good) asked = AskSense(good);
  if (asked != status::kSuccess) return QueryPredictFailure(healthy);
  healthy = good ? 1 : 0;
  return status::kSuccess;
}

Status ScsiProtocol::AskExceptionsPage(bool& healthy) {
  using namespace informational_exceptions_page;
  ReplyBuffer data{};
  LogSenseIECPage command(data.data(), kReplySize);
  ByteView page;
  if (const Status fetched = Fetch(command, page); fetched != status::kSuccess) return fetched;

  std::vector<std::uint8_t> whole;
  if (WholeSize(page) > kReplySize) {
    whole.resize(std::min<std::size_t>(WholeSize(page), std::numeric_limits<std::uint16_t>::max()));
    LogSenseIECPage again(whole.data(), static_cast<std::uint16_t>(whole.size()));
    if (const Status sent = Send(again); sent != status::kSuccess) return sent;
    if (again.status != kScsiStatusGood) return status::kFailure;
    page = ByteView(DataOf(again));
  }
  if (page.Get(log_page::kPageLength) < kMinimumPageLength || !page.Holds({kAdditionalSenseCode.offset, 1}) ||
      page.Get(kParameterCode) != 0) {
    return status::kFailure;
  }
  healthy = page.Get(kAdditionalSenseCode) != sense_code::kFailurePredictionExceeded;
  return status::kSuccess;
}

Status ScsiProtocol::AskSense(bool& healthy) {
  ReplyBuffer data{};
  RequestSense command(data.data(), kReplySize);
  if (const Status sent = Send(command); sent != status::kSuccess) return sent;
  SenseData sense;
  if (command.status != kScsiStatusGood || command.length < kReplySize ||
      sense.Decode(ByteView(data)) != status::kSuccess) {
    return status::kFailure;
  }
  healthy = sense.additionalSenseCode != sense_code::kFailurePredictionExceeded;
  return status::kSuccess;
}

}  // namespace orvik::module::storage
