#pragma once

#include <cstdint>
#include <span>

#include <windows.h>

namespace orvik::module::storage {

/// Sends a control code with no input; the reply fills `output`. False when the call failed (see `GetLastError`).
bool QueryDevice(HANDLE device, DWORD code, std::span<std::uint8_t> output);

/// Sends a packet whose reply comes back in place. False when the call failed (see `GetLastError`).
bool ExchangePacket(HANDLE device, DWORD code, std::span<std::uint8_t> packet);

}  // namespace orvik::module::storage
