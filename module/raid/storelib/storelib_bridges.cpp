#include "module/raid/storelib/storelib_bridges.h"

#include <bit>
#include <utility>

#include "module/raid/storelib/storelib_frames.h"

namespace orvik::module::raid {

namespace {

namespace status = storage::status;

HANDLE AsHandle(std::uint32_t controllerId) {
  return std::bit_cast<HANDLE>(std::uintptr_t{controllerId});
}

std::uint32_t ControllerIdOf(HANDLE handle) {
  return static_cast<std::uint32_t>(std::bit_cast<std::uintptr_t>(handle));
}

}  // namespace

LsiSspBridge::LsiSspBridge(std::uint32_t controllerId, std::uint16_t driveId,
                           std::shared_ptr<LsiSender> librarySender)
    : ScsiBridge(AsHandle(controllerId)), deviceId(driveId), sender(std::move(librarySender)) {}

storage::Status LsiSspBridge::Send(storage::ScsiCmd& command) {
  if (sender == nullptr) return status::kFailure;
  LsiCommand frame = FrameScsiCommand(ControllerIdOf(GetHandle()), deviceId, command);
  const bool failed = sender->SendCommand(frame) != 0;
  TakeScsiReply(frame, failed, command);
  return failed ? status::kFailure : status::kSuccess;
}

LsiStpBridge::LsiStpBridge(std::uint32_t controllerId, std::uint8_t driveId, std::shared_ptr<LsiSender> librarySender)
    : AtaBridge(AsHandle(controllerId)), deviceId(driveId), sender(std::move(librarySender)) {}

storage::Status LsiStpBridge::Send(storage::AtaCmd& command) {
  if (sender == nullptr) return status::kFailure;
  LsiCommand frame = FrameAtaCommand(ControllerIdOf(GetHandle()), deviceId, command);
  if (sender->SendCommand(frame) != 0 || !IsCompleted(frame)) return status::kIoctlFailed;
  TakeAtaReply(frame, command);
  return status::kSuccess;
}

}  // namespace orvik::module::raid
