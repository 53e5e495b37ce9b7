#include "module/storage/ata/ata_commands.h"

#include <algorithm>
#include <array>

namespace orvik::module::storage {

namespace {

namespace opcode {
constexpr std::uint8_t kReadSectors = 0x20;
constexpr std::uint8_t kReadSectorsExt = 0x24;
constexpr std::uint8_t kReadDmaExt = 0x25;
constexpr std::uint8_t kReadDmaQueuedExt = 0x26;
constexpr std::uint8_t kReadLogExt = 0x2F;
constexpr std::uint8_t kWriteSectors = 0x30;
constexpr std::uint8_t kWriteSectorsExt = 0x34;
constexpr std::uint8_t kWriteDmaExt = 0x35;
constexpr std::uint8_t kWriteDmaQueuedExt = 0x36;
constexpr std::uint8_t kReadVerifySectorsExt = 0x42;
constexpr std::uint8_t kWriteUncorrectableExt = 0x45;
constexpr std::uint8_t kSmart = 0xB0;
constexpr std::uint8_t kIdleImmediate = 0xE1;
constexpr std::uint8_t kCheckPowerMode = 0xE5;
constexpr std::uint8_t kIdentifyDevice = 0xEC;
}  // namespace opcode

namespace smart_feature {
constexpr std::uint8_t kReadData = 0xD0;
constexpr std::uint8_t kExecuteOffline = 0xD4;
constexpr std::uint8_t kReadLog = 0xD5;
constexpr std::uint8_t kEnable = 0xD8;
constexpr std::uint8_t kDisable = 0xD9;
constexpr std::uint8_t kReturnStatus = 0xDA;
}  // namespace smart_feature

constexpr std::array<std::uint8_t, 9> k48BitCommands = {
    opcode::kReadSectorsExt,    opcode::kReadDmaExt,           opcode::kReadDmaQueuedExt,
    opcode::kReadLogExt,        opcode::kWriteSectorsExt,      opcode::kWriteDmaExt,
    opcode::kWriteDmaQueuedExt, opcode::kReadVerifySectorsExt, opcode::kWriteUncorrectableExt};

constexpr std::uint8_t kLbaMode = 0x40;  // DEVICE register: the LBA registers hold an LBA
constexpr std::uint16_t kPseudoUncorrectable = 0x55;
constexpr std::uint16_t kFlaggedUncorrectable = 0xAA;

constexpr std::uint8_t Byte(std::uint64_t value, unsigned index) {
  return static_cast<std::uint8_t>(value >> (8 * index) & 0xFF);
}

void Address28(AtaCmd& command, std::uint64_t lba) {
  command.lbaLow = Byte(lba, 0);
  command.lbaMid = Byte(lba, 1);
  command.lbaHigh = Byte(lba, 2);
  command.device = static_cast<std::uint8_t>(kLbaMode | (Byte(lba, 3) & 0x0F));
}

void Address48(AtaCmd& command, std::uint64_t lba) {
  command.lbaLow = Register(Byte(lba, 0), Byte(lba, 3));
  command.lbaMid = Register(Byte(lba, 1), Byte(lba, 4));
  command.lbaHigh = Register(Byte(lba, 2), Byte(lba, 5));
  command.device = kLbaMode;
}

void MakeSmart(AtaCmd& command, std::uint8_t feature) {
  command.command = opcode::kSmart;
  command.features = feature;
  command.lbaMid = 0x4F;  // the signature that makes a SMART command one
  command.lbaHigh = 0xC2;
}

}  // namespace

IdentifyDevice::IdentifyDevice(std::uint8_t* data) {
  command = opcode::kIdentifyDevice;
  sectorCount = 1;
  Transfer(Direction::kIn, data, kDataSize);
}

ReadSectors::ReadSectors(std::uint64_t lba, std::uint8_t count, std::uint32_t sectorSize, std::uint8_t* data,
                         std::uint32_t seconds) {
  command = opcode::kReadSectors;
  sectorCount = count;
  timeout = seconds;
  Address28(*this, lba);
  Transfer(Direction::kIn, data, std::uint64_t{count} * sectorSize);
}

ReadSectorsExt::ReadSectorsExt(std::uint64_t lba, std::uint16_t count, std::uint32_t sectorSize, std::uint8_t* data,
                               std::uint32_t seconds) {
  command = opcode::kReadSectorsExt;
  sectorCount = count;
  timeout = seconds;
  Address48(*this, lba);
  Transfer(Direction::kIn, data, std::uint64_t{count} * sectorSize);
}

WriteSectors::WriteSectors(std::uint64_t lba, std::uint8_t count, std::uint32_t sectorSize, std::uint8_t* data) {
  command = opcode::kWriteSectors;
  sectorCount = count;
  Address28(*this, lba);
  Transfer(Direction::kOut, data, std::uint64_t{count} * sectorSize);
}

WriteSectorsExt::WriteSectorsExt(std::uint64_t lba, std::uint16_t count, std::uint32_t sectorSize,
                                 std::uint8_t* data) {
  command = opcode::kWriteSectorsExt;
  sectorCount = count;
  Address48(*this, lba);
  Transfer(Direction::kOut, data, std::uint64_t{count} * sectorSize);
}

WriteUncorrectableExt::WriteUncorrectableExt(std::uint64_t lba, std::uint16_t count, bool pseudo) {
  command = opcode::kWriteUncorrectableExt;
  features = pseudo ? kPseudoUncorrectable : kFlaggedUncorrectable;
  sectorCount = count;
  Address48(*this, lba);
}

ReadLogExt::ReadLogExt(std::uint8_t logAddress, std::uint16_t pageCount, std::uint8_t* data, std::uint16_t page) {
  command = opcode::kReadLogExt;
  sectorCount = pageCount;
  lbaLow = logAddress;
  lbaMid = page;
  Transfer(Direction::kIn, data, std::uint64_t{pageCount} * kAtaPageSize);
}

SmartReadData::SmartReadData(std::uint8_t* data) {
  MakeSmart(*this, smart_feature::kReadData);
  sectorCount = 1;
  Transfer(Direction::kIn, data, kAtaPageSize);
}

SmartReadLog::SmartReadLog(std::uint8_t logAddress, std::uint8_t count, std::uint8_t* data) {
  MakeSmart(*this, smart_feature::kReadLog);
  sectorCount = count;
  lbaLow = logAddress;
  Transfer(Direction::kIn, data, std::uint64_t{count} * kAtaPageSize);
}

SmartReturnStatus::SmartReturnStatus() {
  MakeSmart(*this, smart_feature::kReturnStatus);
}

SmartEnable::SmartEnable(std::uint8_t enable) {
  MakeSmart(*this, enable != 0 ? smart_feature::kEnable : smart_feature::kDisable);
}

SmartExecuteOffline::SmartExecuteOffline(std::uint8_t subcommand, std::uint8_t count) {
  MakeSmart(*this, smart_feature::kExecuteOffline);
  sectorCount = count;
  lbaLow = subcommand;
}

AtaCheckPowerMode::AtaCheckPowerMode() {
  command = opcode::kCheckPowerMode;
}

AtaIdleImmediate::AtaIdleImmediate() {
  command = opcode::kIdleImmediate;
}

bool Is48BitCommand(std::uint8_t command) {
  return std::ranges::find(k48BitCommands, command) != k48BitCommands.end();
}

bool IsSmartReadLog(const AtaCmd& command) {
  return command.command == opcode::kSmart && Current(command.features) == smart_feature::kReadLog;
}

}  // namespace orvik::module::storage
