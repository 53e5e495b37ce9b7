#pragma once

#include <cstdint>
#include <map>

#include "module/storage/ata/ata_bridge.h"
#include "module/storage/bridge_list.h"
#include "module/storage/status.h"

namespace orvik::module::storage {

namespace ata_log {
inline constexpr std::uint8_t kDirectory = 0x00;
inline constexpr std::uint8_t kSelfTest = 0x06;
inline constexpr std::uint8_t kExtendedSelfTest = 0x07;
inline constexpr std::uint8_t kVendorLabel = 0xDF;
}  // namespace ata_log

/// Reads the logs of a drive. Log sizes are looked up once and remembered.
class AtaLogs {
 public:
  /// What becomes of a read when a page stays bad.
  enum class OnBadPage { kLeaveOut, kStop };

  /// The bridges must outlive this object.
  explicit AtaLogs(BridgeList<AtaSendRule>& bridges) : bridges_(bridges) {}

  /// Reads pages 0 to `count` - 1 of a log, one by one, into a buffer of `count` x 512 bytes. A page whose bytes
  /// don't add up to 0 (the first page: or doesn't begin with 1) is asked for five times and then left out: the next
  /// page takes its place, or the read ends there; `pagesRead` counts the good ones. 0, 2 for a null argument, or the
  /// status of a failed send.
  Status ReadPages(std::uint8_t logAddress, std::uint16_t count, std::uint8_t* buffer, std::uint16_t* pagesRead,
                   OnBadPage onBadPage = OnBadPage::kLeaveOut);

  /// Size of a log in pages, by the drive's log directory; 0 for a log that it doesn't list.
  std::uint16_t SizeOf(std::uint8_t logAddress);

 private:
  void ReadDirectory();

  BridgeList<AtaSendRule>& bridges_;
  std::map<std::uint8_t, std::uint16_t> directory_;
};

}  // namespace orvik::module::storage
