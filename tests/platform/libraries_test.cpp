#include <windows.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <string>

#include "simulation/machine/current_machine.h"

namespace orvik::platform::windows {
namespace {

using Wide = std::basic_string<WCHAR>;

Wide FileOf(HMODULE library) {
  std::array<WCHAR, 4096> path{};
  const DWORD length = GetModuleFileNameW(library, path.data(), 4096);
  return {path.data(), length};
}

class Libraries : public testing::Test {
 protected:
  Libraries() { simulation::InstallMachine(machine); }

  // The shared library that these functions live in.
  static HMODULE Own() {
    HMODULE library = nullptr;
    const auto address = std::bit_cast<LPCWSTR>(&GetTickCount64);
    EXPECT_TRUE(GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, address, &library));
    return library;
  }

  std::shared_ptr<simulation::Machine> machine = std::make_shared<simulation::Machine>();
};

TEST_F(Libraries, AreLoadedByAPathWithEitherSeparator) {
  Wide path = FileOf(Own());
  EXPECT_NE(path.find(TEXT("orvik_windows")), Wide::npos);
  for (WCHAR& c : path) c = c == '/' ? WCHAR{'\\'} : c;
  HMODULE library = LoadLibraryW(path.c_str());
  ASSERT_NE(library, nullptr);
  EXPECT_EQ(library, Own());
  EXPECT_EQ(GetProcAddress(library, "GetTickCount64"), std::bit_cast<FARPROC>(&GetTickCount64));
  EXPECT_EQ(GetProcAddress(library, "ProcessLibCommand"), nullptr);
  EXPECT_EQ(GetLastError(), ERROR_PROC_NOT_FOUND);
  EXPECT_EQ(machine->Ledger().Outstanding(simulation::Resource::Library), 1U);
  EXPECT_TRUE(FreeLibrary(library));
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
  EXPECT_FALSE(FreeLibrary(library));
  EXPECT_EQ(machine->Ledger().InvalidReleases(), 1U);
}

TEST_F(Libraries, ThatAreNotThereAreRefused) {
  EXPECT_EQ(LoadLibraryW(TEXT("C:\\nowhere\\none.dll")), nullptr);
  EXPECT_EQ(GetLastError(), ERROR_MOD_NOT_FOUND);
  EXPECT_EQ(LoadLibraryW(TEXT("")), nullptr);
  HMODULE library = nullptr;
  EXPECT_FALSE(GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, nullptr, &library));
  EXPECT_EQ(machine->Ledger().OutstandingTotal(), 0U);
}

}  // namespace
}  // namespace orvik::platform::windows
