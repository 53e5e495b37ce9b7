#pragma once

#include <cstdint>

#include "module/storage/ata/ata_cmd.h"

// The ATA commands that this layer sends (ACS-4, 7). LBAs count logical sectors, sector sizes and lengths bytes.

namespace orvik::module::storage {

/// A log page, a SMART data structure and identify data are each this long.
inline constexpr std::uint32_t kAtaPageSize = 512;

/// IDENTIFY DEVICE (ACS-4, 7.13): 512 bytes in.
class IdentifyDevice final : public AtaCmd {
 public:
  static constexpr std::uint64_t kDataSize = kAtaPageSize;

  explicit IdentifyDevice(std::uint8_t* data);
};

/// READ SECTOR(S): 28-bit LBA.
class ReadSectors final : public AtaCmd {
 public:
  ReadSectors(std::uint64_t lba, std::uint8_t count, std::uint32_t sectorSize, std::uint8_t* data,
              std::uint32_t seconds);
};

/// READ SECTOR(S) EXT: 48-bit LBA.
class ReadSectorsExt final : public AtaCmd {
 public:
  ReadSectorsExt(std::uint64_t lba, std::uint16_t count, std::uint32_t sectorSize, std::uint8_t* data,
                 std::uint32_t seconds);
};

/// WRITE SECTOR(S): 28-bit LBA.
class WriteSectors final : public AtaCmd {
 public:
  WriteSectors(std::uint64_t lba, std::uint8_t count, std::uint32_t sectorSize, std::uint8_t* data);
};

/// WRITE SECTOR(S) EXT: 48-bit LBA.
class WriteSectorsExt final : public AtaCmd {
 public:
  WriteSectorsExt(std::uint64_t lba, std::uint16_t count, std::uint32_t sectorSize, std::uint8_t* data);
};

/// WRITE UNCORRECTABLE EXT: pseudo-uncorrectable sectors with logging, or flagged ones without.
class WriteUncorrectableExt final : public AtaCmd {
 public:
  WriteUncorrectableExt(std::uint64_t lba, std::uint16_t count, bool pseudo);
};

/// READ LOG EXT: `pageCount` pages from `page` on.
class ReadLogExt final : public AtaCmd {
 public:
  ReadLogExt(std::uint8_t logAddress, std::uint16_t pageCount, std::uint8_t* data, std::uint16_t page);
};

/// SMART READ DATA: 512 bytes in.
class SmartReadData final : public AtaCmd {
 public:
  explicit SmartReadData(std::uint8_t* data);
};

/// SMART READ LOG.
class SmartReadLog final : public AtaCmd {
 public:
  SmartReadLog(std::uint8_t logAddress, std::uint8_t count, std::uint8_t* data);
};

/// SMART RETURN STATUS: the verdict comes back in the LBA registers.
class SmartReturnStatus final : public AtaCmd {
 public:
  SmartReturnStatus();
};

/// SMART ENABLE OPERATIONS, or for 0 SMART DISABLE OPERATIONS.
class SmartEnable final : public AtaCmd {
 public:
  explicit SmartEnable(std::uint8_t enable);
};

/// SMART EXECUTE OFF-LINE IMMEDIATE.
class SmartExecuteOffline final : public AtaCmd {
 public:
  SmartExecuteOffline(std::uint8_t subcommand, std::uint8_t count);
};

/// CHECK POWER MODE: the mode comes back in the count register.
class AtaCheckPowerMode final : public AtaCmd {
 public:
  AtaCheckPowerMode();
};

/// IDLE IMMEDIATE.
class AtaIdleImmediate final : public AtaCmd {
 public:
  AtaIdleImmediate();
};

/// The command uses the previous (high) bytes of its registers.
bool Is48BitCommand(std::uint8_t command);

/// SMART READ LOG, by command and feature.
bool IsSmartReadLog(const AtaCmd& command);

}  // namespace orvik::module::storage
