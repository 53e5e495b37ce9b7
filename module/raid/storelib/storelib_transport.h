#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "module/raid/storelib/storelib_layout.h"
#include "utils/bytes/byte_view.h"

namespace orvik::module::raid {

/// One request to the vendor's library: the packet and the zeroed data block that it points to. The library changes
/// both in place.
class LsiCommand {
 public:
  explicit LsiCommand(const lsi::Code& code) : LsiCommand(code, code.dataSize) {}
  LsiCommand(const lsi::Code& code, std::size_t dataSize);
  LsiCommand(LsiCommand&&) = default;
  LsiCommand& operator=(LsiCommand&&) = delete;
  LsiCommand(const LsiCommand&) = delete;
  LsiCommand& operator=(const LsiCommand&) = delete;
  ~LsiCommand() = default;

  std::array<std::uint8_t, lsi::packet::kSize>& Packet() { return packet_; }
  utils::MutableByteView Writer() { return {packet_}; }

  utils::ByteView Data() const { return {data_}; }
  utils::MutableByteView DataWriter() { return {data_}; }
  /// The data size in the packet: the size of the block, or the value that the library replaced it with.
  std::uint32_t DataSize() const { return utils::ByteView(packet_).Get(lsi::packet::kDataSize); }

 private:
  std::array<std::uint8_t, lsi::packet::kSize> packet_{};
  std::vector<std::uint8_t> data_;
};

LsiCommand ControllerCommand(const lsi::Code& code, std::uint32_t controllerId);

/// A command about a physical drive.
LsiCommand DriveCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint16_t deviceId);

/// `sequenceNumber` is 0 for commands that take none.
LsiCommand LogicalDriveCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint8_t targetId,
                               std::uint16_t sequenceNumber = 0);

/// `frameSize` counts the frame with its data.
LsiCommand PassThroughCommand(const lsi::Code& code, std::uint32_t controllerId, std::uint16_t deviceId,
                              std::size_t frameSize);

/// A library loaded through the host's loader; unloaded by the destructor. Null when loading failed.
class LoadedLibrary {
 public:
  explicit LoadedLibrary(const std::string& path);
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;
  ~LoadedLibrary();

  void* Get() const { return handle_; }

 private:
  void* handle_;
};

/// The vendor's library: loaded and initialised by the constructor, closed and unloaded by the destructor. Devices
/// and bridges share one sender, so the library stays loaded until the last of them is destroyed. Takes no lock;
/// commands may be sent from several threads.
class LsiSender {
 public:
  /// Throws `std::runtime_error`, as the contract requires, when the library cannot be loaded, lacks its entry point
  /// or fails to initialise; the library is unloaded again.
  LsiSender();
  LsiSender(const LsiSender&) = delete;
  LsiSender& operator=(const LsiSender&) = delete;
  ~LsiSender();

  /// Returns the library's own status, 0 for success.
  [[nodiscard]] std::uint32_t SendCommand(LsiCommand& command) const;

 private:
  using ProcessLibCommand = std::uint32_t(void* packet);

  LoadedLibrary library_;
  ProcessLibCommand* processLibCommand_ = nullptr;
};

}  // namespace orvik::module::raid
