#pragma once

#include <cstdint>

#include "module/storage/nvme/nvme_cmd.h"

// The NVMe commands that this layer sends (NVM Express 1.4, 5 and 6). Sizes are in bytes.

namespace orvik::module::storage {

inline constexpr std::uint32_t kAllNamespaces = 0xFFFF'FFFF;

namespace nvme_log {
inline constexpr std::uint8_t kSmart = 0x02;
inline constexpr std::uint8_t kVendorLabel = 0xDF;
inline constexpr std::uint32_t kSize = 512;
}  // namespace nvme_log

/// What an Identify command is about: its CNS value.
enum class IdentifyTarget : std::uint8_t { kNamespace = 0, kController = 1, kActiveNamespaces = 2 };

/// Get Log Page of the whole device: `size` bytes, a multiple of 4.
class NvmeGetLog final : public NvmeCmd {
 public:
  NvmeGetLog(std::uint8_t* data, std::uint32_t size, std::uint8_t logPage);
};

/// Identify: 4096 bytes.
class NvmeIdentifyDevice final : public NvmeCmd {
 public:
  static constexpr std::uint32_t kDataSize = 4096;

  NvmeIdentifyDevice(std::uint8_t* data, IdentifyTarget target, std::uint32_t namespaceNumber);
};

/// Read of `count` (at least 1) logical blocks; the caller sets length and timeout.
class NvmeRead final : public NvmeCmd {
 public:
  NvmeRead(std::uint8_t* data, std::uint64_t lba, std::uint16_t count, std::uint32_t namespaceNumber,
           bool forceUnitAccess);
};

}  // namespace orvik::module::storage
