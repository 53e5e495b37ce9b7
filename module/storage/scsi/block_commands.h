#pragma once

#include <cstdint>

#include "module/storage/scsi/scsi_cmd.h"

// SCSI reads and writes (SBC-3, 5.8 to 5.10 and 5.25 to 5.27). Sector sizes and lengths are in bytes. The longer the
// CDB, the larger the addresses and counts that it holds; what doesn't fit is cut off.

namespace orvik::module::storage {

/// A read of `count` sectors, past the drive's cache.
class Read : public ScsiCmd {
 public:
  /// Fills the command anew.
  virtual void Prepare(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) = 0;
};

/// READ (10): 32-bit LBA, 16-bit count.
class Read10 final : public Read {
 public:
  Read10(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize);
  void Prepare(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) override;
};

/// READ (12): 32-bit LBA, 32-bit count.
class Read12 final : public Read {
 public:
  Read12(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize);
  void Prepare(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) override;
};

/// READ (16): 64-bit LBA, 32-bit count.
class Read16 final : public Read {
 public:
  Read16(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize);
  void Prepare(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) override;
};

/// WRITE (10), forced to the medium.
class Write10 final : public ScsiCmd {
 public:
  Write10(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint16_t sectorSize);
};

/// WRITE (12), forced to the medium.
class Write12 final : public ScsiCmd {
 public:
  Write12(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint16_t sectorSize);
};

/// WRITE (16), forced to the medium.
class Write16 final : public ScsiCmd {
 public:
  Write16(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint16_t sectorSize);
};

}  // namespace orvik::module::storage
