#pragma once

// What can be made to go wrong with a call into the machine.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orvik::simulation {

/// Bytes that take the place of those at `offset` of a packet that comes back (its header included).
struct BytePatch {
  std::size_t offset{};
  std::vector<std::uint8_t> bytes{};
};

/// What happens to one call. Everything but `delayMilliseconds` and `error` is for packets only; of a command to the
/// vendor's library they change the data block, and `error` and `returnCode` are the status that it answers.
struct FaultEffects {
  /// The call answers this much later, by the machine's clock.
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
/// "*" for every call outside that can fail. `call` is the number of the call that is hit, counted from 1 since the
/// rule was added; without it every call is.
struct FaultRule {
  std::string operation{};
  std::optional<std::uint64_t> call{};
  FaultEffects effects{};
};

/// Damages `reply`, the answer to `request`, as `effects` say: first garbles what follows the first `headerSize`
/// bytes, then patches, then truncates. `returned` is the count of bytes that come back.
void Distort(const FaultEffects& effects, std::size_t headerSize, std::span<const std::uint8_t> request,
             std::span<std::uint8_t> reply, std::size_t& returned);

}  // namespace orvik::simulation
