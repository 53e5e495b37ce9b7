#include <windows.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <string>
#include <thread>
#include <tuple>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

using Wide = std::basic_string<WCHAR>;

class System : public testing::Test {
 protected:
  System() { simulation::InstallMachine(machine); }

  std::shared_ptr<simulation::Machine> machine = std::make_shared<simulation::Machine>(
      simulation::MachineDescription{.registry = {{R"(SYSTEM\Key)", "Name", "caf\xC3\xA9"}}});
};

TEST_F(System, CountsTheLibrariesThatItLoads) {
  // The shared library that these functions live in.
  HMODULE own = nullptr;
  ASSERT_TRUE(
      GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         std::bit_cast<LPCWSTR>(&GetTickCount64), &own));
  std::array<WCHAR, 4096> buffer{};
  Wide path(buffer.data(), GetModuleFileNameW(own, buffer.data(), 4096));
  for (WCHAR& c : path) c = c == '/' ? WCHAR{'\\'} : c;
  HMODULE library = LoadLibraryW(path.c_str());
  ASSERT_EQ(library, own);
  EXPECT_EQ(GetProcAddress(library, "GetTickCount64"), std::bit_cast<FARPROC>(&GetTickCount64));
  EXPECT_EQ(GetProcAddress(library, "ProcessLibCommand"), nullptr);
  EXPECT_EQ(GetLastError(), ERROR_PROC_NOT_FOUND);
  EXPECT_EQ(machine->Ledger().Outstanding(simulation::Resource::Library), 1U);
  EXPECT_TRUE(FreeLibrary(library));
  EXPECT_FALSE(FreeLibrary(library));
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 1U);
  EXPECT_EQ(LoadLibraryW(TEXT("C:\\nowhere\\none.dll")), nullptr);
  EXPECT_EQ(GetLastError(), ERROR_MOD_NOT_FOUND);
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
}

TEST_F(System, ReadsTheRegistryWithTheDocumentedCodes) {
  using Row = std::tuple<HKEY, LPCWSTR, DWORD, DWORD, DWORD, LSTATUS>;
  for (auto [key, name, flags, size, sizeAfter, status] :
       {Row{HKEY_LOCAL_MACHINE, TEXT("nAME"), RRF_RT_REG_SZ, 16, 10, ERROR_SUCCESS},
        Row{HKEY_LOCAL_MACHINE, TEXT("Name"), RRF_RT_REG_SZ, 9, 10, ERROR_MORE_DATA},
        Row{HKEY_LOCAL_MACHINE, TEXT("Nam"), RRF_RT_REG_SZ, 16, 16, ERROR_FILE_NOT_FOUND},
        Row{HKEY_LOCAL_MACHINE, TEXT("Name"), 0x10, 16, 16, ERROR_UNSUPPORTED_TYPE},
        Row{nullptr, TEXT("Name"), RRF_RT_REG_SZ, 16, 16, ERROR_INVALID_HANDLE}}) {
    std::array<WCHAR, 8> text{};
    EXPECT_EQ(RegGetValueW(key, TEXT("system\\KEY"), name, flags, nullptr, text.data(), &size), status);
    EXPECT_EQ(text.data(), status == ERROR_SUCCESS ? Wide(TEXT("caf\u00E9")) : Wide());
    EXPECT_EQ(size, sizeAfter);
  }
}

TEST_F(System, RunsThreadsOnTheProcessorsOfTheMask) {
  const DWORD_PTR beyond = DWORD_PTR{1} << 63;
  DWORD_PTR lowest = 1;
  std::thread([&] {
    while (lowest != beyond && SetThreadAffinityMask(GetCurrentThread(), lowest) == 0) lowest <<= 1;
    EXPECT_EQ(SetThreadAffinityMask(GetCurrentThread(), beyond), 0U);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(SetThreadAffinityMask(GetCurrentThread(), lowest), lowest);
    EXPECT_EQ(SetThreadAffinityMask(nullptr, lowest), 0U);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
  }).join();
  EXPECT_EQ(machine->Ledger().AffinityRequests().back(), lowest);
}

}  // namespace
}  // namespace orvik::platform::windows
