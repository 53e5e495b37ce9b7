#include "module/storage/device_control.h"

namespace orvik::module::storage {

bool QueryDevice(HANDLE device, DWORD code, std::span<std::uint8_t> output) {
  DWORD returned = 0;
  return DeviceIoControl(device, code, nullptr, 0, output.data(), static_cast<DWORD>(output.size()), &returned,
                         nullptr) != FALSE;
}

bool ExchangePacket(HANDLE device, DWORD code, std::span<std::uint8_t> packet) {
  const auto size = static_cast<DWORD>(packet.size());
  DWORD returned = 0;
  return DeviceIoControl(device, code, packet.data(), size, packet.data(), size, &returned, nullptr) != FALSE;
}

}  // namespace orvik::module::storage
