#pragma once

// The parts of pass-through packets that both controller families share.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "module/storage/ata/ata_cmd.h"
#include "module/storage/transfer.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::raid {

/// Register FIS, host to device (Serial ATA 3, 10.5.5).
namespace command_fis {
inline constexpr utils::U8 kType{0};
inline constexpr utils::U8 kFlags{1};
inline constexpr utils::U8 kCommand{2};
inline constexpr utils::U8 kFeatures{3};
inline constexpr utils::U8 kLbaLow{4};
inline constexpr utils::U8 kLbaMid{5};
inline constexpr utils::U8 kLbaHigh{6};
inline constexpr utils::U8 kDevice{7};
inline constexpr utils::U8 kLbaLowExp{8};
inline constexpr utils::U8 kLbaMidExp{9};
inline constexpr utils::U8 kLbaHighExp{10};
inline constexpr utils::U8 kFeaturesExp{11};
inline constexpr utils::U8 kSectorCount{12};
inline constexpr utils::U8 kSectorCountExp{13};
inline constexpr std::uint8_t kHostToDevice = 0x27;
inline constexpr std::uint8_t kIsCommand = 0x80;
}  // namespace command_fis

/// Register FIS, device to host (Serial ATA 3, 10.5.6).
namespace status_fis {
inline constexpr utils::U8 kStatus{2};
inline constexpr utils::U8 kError{3};
inline constexpr utils::U8 kLbaLow{4};
inline constexpr utils::U8 kLbaMid{5};
inline constexpr utils::U8 kLbaHigh{6};
inline constexpr utils::U8 kDevice{7};
inline constexpr utils::U8 kLbaLowExp{8};
inline constexpr utils::U8 kLbaMidExp{9};
inline constexpr utils::U8 kLbaHighExp{10};
inline constexpr utils::U8 kSectorCount{12};
inline constexpr utils::U8 kSectorCountExp{13};
}  // namespace status_fis

/// Writes a command's registers into a 20-byte FIS.
void PutCommandFis(utils::MutableByteView fis, const storage::AtaCmd& command);

/// Takes the current values of the registers from a returned 20-byte FIS; the previous values are unchanged.
void TakeCurrentRegisters(utils::ByteView fis, storage::AtaCmd& command);

/// Takes the current and the previous values of sector count and LBA too, as 48-bit commands return them.
void TakeAllRegisters(utils::ByteView fis, storage::AtaCmd& command);

/// A family's codes for the direction of a transfer.
struct DirectionCodes {
  std::uint32_t in;
  std::uint32_t out;
  std::uint32_t none;

  constexpr std::uint32_t Of(storage::Direction direction) const {
    switch (direction) {
      case storage::Direction::kIn: return in;
      case storage::Direction::kOut: return out;
      case storage::Direction::kNone: break;
    }
    return none;
  }
};

/// Copies the caller's data of a data-out command into its packet.
template <typename Command>
void PutDataOut(utils::MutableByteView packet, std::size_t offset, const Command& command) {
  if (command.direction != storage::Direction::kOut) return;
  const auto data = storage::DataOf(command);
  packet.PutBytes({offset, data.size()}, data);
}

/// A protocol object with its first bridge.
template <typename ProtocolType, typename Bridge>
std::shared_ptr<ProtocolType> MakeProtocol(std::uint32_t interfaceKind, std::shared_ptr<Bridge> bridge) {
  auto protocol = std::make_shared<ProtocolType>();
  protocol->SetInterfaceKind(interfaceKind);
  protocol->AddBridge(std::move(bridge));
  return protocol;
}

}  // namespace orvik::module::raid
