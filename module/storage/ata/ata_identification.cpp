// What the ATA protocol reads in several steps: identification and the self-test logs.

#include <array>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <utility>

#include "module/storage/ata/ata_protocol.h"
#include "module/storage/ata/identify_data.h"
#include "module/storage/ata/self_test_log.h"
#include "module/storage/ata/smart_data.h"

namespace orvik::module::storage {

namespace {

using utils::ByteView;

/// The vendor log page with the label.
namespace label_page {
constexpr utils::Block kSignature{0, 3};
constexpr utils::Block kKind{20, 2};
constexpr utils::Block kLabel{110, 30};
}  // namespace label_page

std::string LabelOf(ByteView page) {
  if (page.Text(label_page::kSignature) != "CRV" || page.Text(label_page::kKind) != "8S") return {};
  return page.Text(label_page::kLabel);
}

}  // namespace

Status AtaProtocol::GetProperties(ProtocolProperties* properties) {
  if (properties == nullptr) return status::kBadArgument;
  ProtocolProperties identified;
  if (const Status result = IdentifyInto(identified); result != status::kSuccess) return result;
  *properties_ = std::move(identified);
  CopyProperties(*properties);
  return status::kSuccess;
}

Status AtaProtocol::IdentifyInto(ProtocolProperties& properties) {
  Page data{};
  IdentifyDevice command(data.data());
  if (const Status sent = bridges_.Send(command); sent != status::kSuccess) return sent;
  if (!IsValidIdentifyData(ByteView(data))) return status::kInvalidData;
  properties.protocolName = "ATA";
  DescribeIdentifyData(ByteView(data), properties);

  // The label page doesn't look like a good log page, so it is never counted; the last reply is in the buffer still.
  Page label{};
  std::uint16_t pagesRead = 0;
  if (logs_.ReadPages(ata_log::kVendorLabel, 1, label.data(), &pagesRead) == status::kSuccess) {
    properties.labelText = LabelOf(ByteView(label));
  }

  if (properties.smartSupported) {
    Page smart{};
    SmartReadData readData(smart.data());
    properties.smartDataValid = bridges_.Send(readData) == status::kSuccess;
    if (properties.smartDataValid) SmartData(ByteView(smart)).DescribeCapabilities(properties);
  }
  return status::kSuccess;
}

Status AtaProtocol::GetSelfTestFailingLba(std::uint64_t& lba) {
  if (const std::uint16_t pages = logs_.SizeOf(ata_log::kExtendedSelfTest); pages > 0) {
    return ReadExtendedSelfTestLog(pages, lba);
  }
  // A self-test log of any other size is not one that this layout describes.
  if (logs_.SizeOf(ata_log::kSelfTest) != 1) return status::kFailure;
  Page sector{};
  SmartReadLog command(ata_log::kSelfTest, 1, sector.data());
  if (bridges_.Send(command) != status::kSuccess) return status::kFailure;
  const auto failing = FailingLbaOfSelfTestLog(ByteView(sector));
  if (!failing) return status::kFailure;
  lba = *failing;
  return status::kSuccess;
}

Status AtaProtocol::ReadExtendedSelfTestLog(std::uint16_t pages, std::uint64_t& lba) {
  const std::size_t size = std::size_t{pages} * kAtaPageSize;
  const std::unique_ptr<std::uint8_t[]> log(new (std::nothrow) std::uint8_t[size]());
  if (log == nullptr) return status::kBadArgument;
  // Without all of its pages the log is of no use, and a drive may claim tens of thousands.
  std::uint16_t pagesRead = 0;
  const Status read =
      logs_.ReadPages(ata_log::kExtendedSelfTest, pages, log.get(), &pagesRead, AtaLogs::OnBadPage::kStop);
  if (read != status::kSuccess || pagesRead != pages) return status::kFailure;
  const auto failing = FailingLbaOfExtendedSelfTestLog(ByteView({log.get(), size}));
  if (!failing) return status::kFailure;
  lba = *failing;
  return status::kSuccess;
}

}  // namespace orvik::module::storage
