#pragma once

#include <array>
#include <cstdint>

#include "module/storage/transfer.h"

namespace orvik::module::storage {

/// An NVMe command: the dwords of its submission queue entry (NVM Express 1.4, 4.2) and where its data goes. Data is
/// only ever taken from the device. The buffer belongs to the caller.
class NvmeCmd {
 public:
  NvmeCmd() = default;
  NvmeCmd(const NvmeCmd&) = default;
  NvmeCmd& operator=(const NvmeCmd&) = default;
  virtual ~NvmeCmd() = default;

  std::uint32_t commandDword0 = 0;  ///< opcode in bits 0 to 7
  std::uint32_t namespaceId = 0;
  std::array<std::uint32_t, 2> commandDwords2To3{};
  std::uint64_t metadataPointer = 0;
  std::uint8_t* buffer = nullptr;
  std::uint64_t reserved = 0;
  std::array<std::uint32_t, 6> commandDwords10To15{};
  std::uint64_t length = 0;  ///< bytes to transfer
  std::uint32_t timeout = kDefaultTimeoutSeconds;
  std::array<std::uint32_t, 3> reservedDwords{};
  std::uint8_t pathId = 0;
  std::uint8_t ioCommand = 0;  ///< 1: NVM command set, 0: admin

 protected:
  void TakeIn(std::uint8_t* data, std::uint64_t size) {
    buffer = data;
    length = size;
  }
};

}  // namespace orvik::module::storage
