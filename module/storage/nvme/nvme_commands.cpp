#include "module/storage/nvme/nvme_commands.h"

namespace orvik::module::storage {

namespace {

namespace opcode {
constexpr std::uint32_t kGetLogPage = 0x02;  // admin
constexpr std::uint32_t kIdentify = 0x06;    // admin
constexpr std::uint32_t kRead = 0x02;        // NVM command set
}  // namespace opcode

constexpr std::uint32_t kForceUnitAccess = 1U << 30;

}  // namespace

NvmeGetLog::NvmeGetLog(std::uint8_t* data, std::uint32_t size, std::uint8_t logPage) {
  const std::uint32_t lastDword = size / 4 - 1;  // NUMD, a 0's based count in two halves
  commandDword0 = opcode::kGetLogPage;
  namespaceId = kAllNamespaces;
  commandDwords10To15[0] = (lastDword & 0xFFFF) << 16 | logPage;
  commandDwords10To15[1] = lastDword >> 16;
  TakeIn(data, size);
}

NvmeIdentifyDevice::NvmeIdentifyDevice(std::uint8_t* data, IdentifyTarget target, std::uint32_t namespaceNumber) {
  commandDword0 = opcode::kIdentify;
  namespaceId = namespaceNumber;
  commandDwords10To15[0] = static_cast<std::uint32_t>(target);
  TakeIn(data, kDataSize);
}

NvmeRead::NvmeRead(std::uint8_t* data, std::uint64_t lba, std::uint16_t count, std::uint32_t namespaceNumber,
                   bool forceUnitAccess) {
  commandDword0 = opcode::kRead;
  namespaceId = namespaceNumber;
  commandDwords10To15[0] = static_cast<std::uint32_t>(lba);
  commandDwords10To15[1] = static_cast<std::uint32_t>(lba >> 32);
  commandDwords10To15[2] = static_cast<std::uint16_t>(count - 1U) | (forceUnitAccess ? kForceUnitAccess : 0);
  buffer = data;
  ioCommand = 1;
}

}  // namespace orvik::module::storage
