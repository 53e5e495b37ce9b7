#include "module/storage/ata/ata_logs.h"

#include <array>
#include <map>
#include <span>

#include "module/storage/ata/ata_commands.h"
#include "module/storage/ata/identify_data.h"

namespace orvik::module::storage {

namespace {

constexpr int kAttemptsPerPage = 5;
constexpr utils::U8 kFirstByte{0};
constexpr std::uint8_t kFirstPageSignature = 1;

// The two directories list different logs: the SMART one 01h, 02h and 06h, the extended one 03h and 07h.
constexpr std::array<std::uint8_t, 3> kSmartLogs = {0x01, 0x02, 0x06};
constexpr std::array<std::uint8_t, 2> kExtendedLogs = {0x03, 0x07};

/// The directory's word of a log: its size in pages.
constexpr utils::Le16 SizeWord(std::uint8_t logAddress) {
  return {std::size_t{2} * logAddress};
}

bool IsGoodPage(utils::ByteView page, std::uint16_t number) {
  return SumsToZero(page) && (number != 0 || page.Get(kFirstByte) == kFirstPageSignature);
}

}  // namespace

Status AtaLogs::ReadPages(std::uint8_t logAddress, std::uint16_t count, std::uint8_t* buffer,
                          std::uint16_t* pagesRead, OnBadPage onBadPage) {
  if (buffer == nullptr || pagesRead == nullptr) return status::kBadArgument;
  *pagesRead = 0;
  const std::span whole(buffer, std::size_t{count} * kAtaPageSize);
  for (std::uint16_t number = 0; number < count; ++number) {
    const auto page = whole.subspan(std::size_t{*pagesRead} * kAtaPageSize, kAtaPageSize);
    bool good = false;
    for (int attempt = 0; attempt < kAttemptsPerPage && !good; ++attempt) {
      ReadLogExt command(logAddress, 1, page.data(), number);
      if (const Status sent = bridges_.Send(command); sent != status::kSuccess) return sent;
      good = command.length == kAtaPageSize && IsGoodPage(utils::ByteView(page), number);
    }
    if (good) {
      ++*pagesRead;
    } else if (onBadPage == OnBadPage::kStop) {
      break;
    }
  }
  return status::kSuccess;
}

std::uint16_t AtaLogs::SizeOf(std::uint8_t logAddress) {
  if (directory_.empty()) ReadDirectory();
  return directory_[logAddress];
}

void AtaLogs::ReadDirectory() {
  // Remembered as a whole: half a directory would be taken for all of it from then on.
  std::map<std::uint8_t, std::uint16_t> directory;
  const auto remember = [&](AtaCmd& command, utils::ByteView data, std::span<const std::uint8_t> logs) {
    if (bridges_.Send(command) != status::kSuccess || (command.command & kAtaStatusError) != 0) return;
    for (const std::uint8_t log : logs) directory[log] = data.Get(SizeWord(log));
  };
  std::array<std::uint8_t, kAtaPageSize> data{};
  SmartReadLog smart(ata_log::kDirectory, 1, data.data());
  remember(smart, utils::ByteView(data), kSmartLogs);
  data.fill(0);
  ReadLogExt extended(ata_log::kDirectory, 1, data.data(), 0);
  remember(extended, utils::ByteView(data), kExtendedLogs);
  directory_.swap(directory);
}

}  // namespace orvik::module::storage
