#include "module/storage/scsi/block_commands.h"

namespace orvik::module::storage {

namespace {

using utils::Be16;
using utils::Be32;
using utils::Be64;
using utils::MutableByteView;
using utils::U8;

constexpr U8 kFlags{1};
constexpr std::uint8_t kForceUnitAccess = 0x08;  // FUA
constexpr std::uint8_t kDisablePageOut = 0x10;   // DPO
constexpr std::uint8_t kReadFlags = kDisablePageOut | kForceUnitAccess;

constexpr std::uint32_t kWrite10TimeoutSeconds = 180;

/// The CDBs of 10, 12 and 16 bytes: where LBA and count are.
void Fill10(MutableByteView cdb, std::uint8_t flags, std::uint64_t lba, std::uint32_t count) {
  cdb.Put(kFlags, flags);
  cdb.Put(Be32{2}, static_cast<std::uint32_t>(lba));
  cdb.Put(Be16{7}, static_cast<std::uint16_t>(count));
}

void Fill12(MutableByteView cdb, std::uint8_t flags, std::uint64_t lba, std::uint32_t count) {
  cdb.Put(kFlags, flags);
  cdb.Put(Be32{2}, static_cast<std::uint32_t>(lba));
  cdb.Put(Be32{6}, count);
}

void Fill16(MutableByteView cdb, std::uint8_t flags, std::uint64_t lba, std::uint32_t count) {
  cdb.Put(kFlags, flags);
  cdb.Put(Be64{2}, lba);
  cdb.Put(Be32{10}, count);
}

}  // namespace

Read10::Read10(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) {
  Read10::Prepare(data, lba, count, sectorSize);
}

void Read10::Prepare(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) {
  Fill10(StartCdb(0x28, 10), kReadFlags, lba, count);
  TakeIn(data, std::uint64_t{count} * sectorSize);
}

Read12::Read12(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) {
  Read12::Prepare(data, lba, count, sectorSize);
}

void Read12::Prepare(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) {
  Fill12(StartCdb(0xA8, 12), kReadFlags, lba, count);
  Transfer(Direction::kIn, data, std::uint64_t{count} * sectorSize);
}

Read16::Read16(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) {
  Read16::Prepare(data, lba, count, sectorSize);
}

void Read16::Prepare(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint32_t sectorSize) {
  Fill16(StartCdb(0x88, 16), kReadFlags, lba, count);
  Transfer(Direction::kIn, data, std::uint64_t{count} * sectorSize);
}

Write10::Write10(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint16_t sectorSize) {
  Fill10(StartCdb(0x2A, 10), kForceUnitAccess, lba, count);
  Transfer(Direction::kOut, data, std::uint64_t{count} * sectorSize);
  timeout = kWrite10TimeoutSeconds;
}

Write12::Write12(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint16_t sectorSize) {
  Fill12(StartCdb(0xAA, 12), kForceUnitAccess, lba, count);
  Transfer(Direction::kOut, data, std::uint64_t{count} * sectorSize);
}

Write16::Write16(std::uint8_t* data, std::uint64_t lba, std::uint32_t count, std::uint16_t sectorSize) {
  Fill16(StartCdb(0x8A, 16), kForceUnitAccess, lba, count);
  Transfer(Direction::kOut, data, std::uint64_t{count} * sectorSize);
}

}  // namespace orvik::module::storage
