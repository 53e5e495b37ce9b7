// Files of the machine: opens device interfaces by path and sends I/O control requests to them. Also opens its only
// mutex, because CloseHandle closes both.

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/windows/handle_table.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "simulation/machine/current_machine.h"

namespace windows = orvik::platform::windows;
namespace simulation = orvik::simulation;

namespace {

// An open file keeps its machine even after another one has been installed. A mutex has no device.
struct File {
  std::shared_ptr<simulation::Machine> machine;
  std::shared_ptr<simulation::IoDevice> device;
};

windows::HandleTable<File>& Files() {
  static auto& files = *new windows::HandleTable<File>(0x5A00000100);
  return files;
}

HANDLE FailToOpen(DWORD error) {
  SetLastError(error);
  return INVALID_HANDLE_VALUE;
}

}  // namespace

HANDLE WINAPI CreateFileW(LPCWSTR name, DWORD /*access*/, DWORD /*share*/, LPSECURITY_ATTRIBUTES /*security*/,
                          DWORD disposition, DWORD /*flags*/, HANDLE /*pattern*/) {
  const auto machine = simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "CreateFileW")) return FailToOpen(*error);
  if (name == nullptr || disposition != OPEN_EXISTING) return FailToOpen(ERROR_INVALID_PARAMETER);
  auto device = machine->Find(windows::ToUtf8(name));
  if (device == nullptr) return FailToOpen(ERROR_FILE_NOT_FOUND);
  machine->Ledger().Take(simulation::Resource::FileHandle);
  return Files().Add(std::make_shared<File>(File{machine, std::move(device)}));
}

HANDLE WINAPI OpenMutexW(DWORD /*access*/, BOOL /*inherit*/, LPCWSTR name) {
  const auto fail = [](DWORD error) -> HANDLE {
    SetLastError(error);
    return nullptr;
  };
  const auto machine = simulation::CurrentMachine();
  if (const auto error = windows::InjectedError(*machine, "OpenMutexW")) return fail(*error);
  if (name == nullptr) return fail(ERROR_INVALID_PARAMETER);
  const bool known = windows::ToUtf8(name) == "NarratorRunning" && machine->Desktop().State().narrator;
  if (!known) return fail(ERROR_FILE_NOT_FOUND);
  machine->Ledger().Take(simulation::Resource::FileHandle);
  return Files().Add(std::make_shared<File>(File{machine, nullptr}));
}

BOOL WINAPI CloseHandle(HANDLE handle) {
  const auto file = Files().Remove(handle);
  if (file == nullptr) {
    if (windows::CloseSystemHandle(handle)) return TRUE;
    simulation::CurrentMachine()->Ledger().InvalidRelease(simulation::Resource::FileHandle);
    return windows::Fail(ERROR_INVALID_HANDLE);
  }
  file->machine->Ledger().Return(simulation::Resource::FileHandle);
  return TRUE;
}

// METHOD_BUFFERED: one system buffer carries the request in and the reply out, so that only returned bytes reach the
// caller's output buffer.
BOOL WINAPI DeviceIoControl(HANDLE device, DWORD code, LPVOID input, DWORD inputSize, LPVOID output, DWORD outputSize,
                            LPDWORD returned, LPOVERLAPPED /*overlapped*/) {
  const auto file = Files().Find(device);
  if (file == nullptr || file->device == nullptr) return windows::Fail(ERROR_INVALID_HANDLE);
  const bool missing = (input == nullptr && inputSize != 0) || (output == nullptr && outputSize != 0);
  if (returned == nullptr || missing) return windows::Fail(ERROR_INVALID_PARAMETER);

  std::vector<std::uint8_t> buffer(std::max(inputSize, outputSize));
  std::copy_n(static_cast<const std::uint8_t*>(input), inputSize, buffer.begin());
  const auto result = file->machine->Control(*file->device, code, buffer, inputSize, outputSize);
  *returned = 0;
  if (result.error != NO_ERROR) return windows::Fail(result.error);
  const std::size_t size = std::min<std::size_t>(result.returned, outputSize);
  std::copy_n(buffer.begin(), size, static_cast<std::uint8_t*>(output));
  *returned = static_cast<DWORD>(size);
  return TRUE;
}
