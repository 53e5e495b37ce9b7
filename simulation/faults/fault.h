#pragma once

// The faults that can be injected into calls of the machine.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orvik::simulation {

/// Bytes that overwrite a reply at `offset`, counted from the start of its header.
struct BytePatch {
  std::size_t offset{};
  std::vector<std::uint8_t> bytes{};
};

/// The effects on one call. Everything but `delayMilliseconds` and `error` is for packets only; of a command to the
/// vendor's library they change the data block, and `error` and `returnCode` are the status that it answers.
struct FaultEffects {
  /// The call returns this much later by the machine's clock.
  std::optional<std::uint32_t> delayMilliseconds{};
  /// The call fails with this Windows error code and changes nothing.
  std::optional<std::uint32_t> error{};
  /// The packet comes back unexecuted with this ReturnCode.
  std::optional<std::uint32_t> returnCode{};
  /// What follows the packet's header is replaced by bytes that depend on this seed only.
  std::optional<std::uint32_t> garbleSeed{};
  std::vector<BytePatch> patches{};
  /// Only this many bytes come back; the rest stays as it was sent.
  std::optional<std::size_t> truncateTo{};
};

/// `operation` is a Windows function ("DeviceIoControl"), a packet ("CC_CSMI_SAS_GET_PHY_INFO", "STORELIB_INIT") or
/// "*" for every outside call that can fail. `call` is the number of the affected call, counted from 1 since the rule
/// was added; without it, every call.
struct FaultRule {
  std::string operation{};
  std::optional<std::uint64_t> call{};
  FaultEffects effects{};
};

/// Applies `effects` to `reply`, the answer to `request`: first garbles all but the first `headerSize` bytes, then
/// patches, then truncates. `returned` is the count of bytes that come back.
void Distort(const FaultEffects& effects, std::size_t headerSize, std::span<const std::uint8_t> request,
             std::span<std::uint8_t> reply, std::size_t& returned);

}  // namespace orvik::simulation
