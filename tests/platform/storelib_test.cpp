#include <windows.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <string>
#include <tuple>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

using simulation::StorelibInstallation;
using Wide = std::basic_string<WCHAR>;
using ProcessLibCommand = std::uint32_t (*)(void*);

// The folder of the shared library that the Windows functions live in, where the vendor's library is too.
Wide OwnFolder() {
  HMODULE own = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     std::bit_cast<LPCWSTR>(&GetTickCount64), &own);
  std::array<WCHAR, 4096> buffer{};
  Wide path(buffer.data(), GetModuleFileNameW(own, buffer.data(), 4096));
  return path.substr(0, path.find_last_of(Wide(TEXT("/\\"))) + 1);
}

// Sends a library command with a 260-byte block by the addresses of both.
std::uint32_t Send(ProcessLibCommand process, std::uint8_t command, std::array<std::uint8_t, 260>& block) {
  std::array<std::uint8_t, 40> packet{};
  packet[1] = command;
  packet[28] = 4;
  packet[29] = 1;
  auto address = std::bit_cast<std::uint64_t>(block.data());
  for (std::size_t i = 32; i < 40; ++i, address >>= 8) packet.at(i) = static_cast<std::uint8_t>(address);
  return process(packet.data());
}

TEST(VendorLibrary, IsAsMuchThereAsTheMachineSays) {
  using Row = std::tuple<StorelibInstallation, LPCWSTR, const char*, DWORD>;
  for (const auto& [installation, name, fault, error] :
       {Row{StorelibInstallation::Installed, TEXT("storelib.dll"), "", 0},
        Row{StorelibInstallation::FailingInit, TEXT("storelib.dll"), "", 0},
        Row{StorelibInstallation::Missing, TEXT("StoreLib.DLL"), "", ERROR_MOD_NOT_FOUND},
        Row{StorelibInstallation::WithoutEntryPoint, TEXT("storelib.dll"), "", ERROR_PROC_NOT_FOUND},
        Row{StorelibInstallation::Installed, TEXT("storelib.dll"), "GetProcAddress", ERROR_GEN_FAILURE}}) {
    SCOPED_TRACE(error);
    const auto machine = std::make_shared<simulation::Machine>(simulation::MachineDescription{
        .storelib = {.installation = installation, .controllers = {{.controllerId = 9}}}});
    machine->Faults().FailEvery(fault, error);
    simulation::InstallMachine(machine);
    HMODULE library = LoadLibraryW((OwnFolder() + name).c_str());
    ASSERT_EQ(library == nullptr, installation == StorelibInstallation::Missing);
    const FARPROC found = library == nullptr ? nullptr : GetProcAddress(library, "ProcessLibCommand");
    ASSERT_EQ(found == nullptr, error != 0);
    if (found == nullptr) {
      EXPECT_EQ(GetLastError(), error);
    } else {
      const auto process = std::bit_cast<ProcessLibCommand>(found);
      const bool initialises = installation == StorelibInstallation::Installed;
      std::array<std::uint8_t, 260> block{};
      EXPECT_EQ(Send(process, 0, block) == 0, initialises);
      EXPECT_EQ(machine->Storelib().Sessions(), initialises ? 1U : 0U);
      EXPECT_EQ(Send(process, 3, block), 0U);
      EXPECT_EQ(block[4], 9);
      EXPECT_EQ(Send(process, 9, block) == 0, initialises);
      EXPECT_EQ(machine->Storelib().Sessions(), 0U);
    }
    if (library != nullptr) FreeLibrary(library);
    EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  }
}

}  // namespace
}  // namespace orvik::platform::windows
