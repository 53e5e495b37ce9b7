// The module's ways into Windows, through the real API of a system whose registry holds the adapters of adapters.reg.

#include <windows.h>

#include <hostkit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "module/raid/csmi/csmi_device_manager.h"
#include "module/raid/family/driver_version.h"
#include "utils/devices/win_device_interface_scanner.h"
#include "utils/dispatcher/thread_pool.h"
#include "utils/text/text_conversion.h"

namespace {

constexpr GUID kStoragePort = {0x2ACCFE60, 0xC130, 0x11D2, {0xB0, 0x82, 0x00, 0xA0, 0xC9, 0x1E, 0xFB, 0x8B}};

constexpr char kPortPath[] =
    R"(\\?\pci#ven_1b36&dev_0008&subsys_00000000&rev_00#3&11583659&0&10#{2accfe60-c130-11d2-b082-00a0c91efb8b})";
constexpr char kRaidPath[] =
    R"(\\?\pci#ven_8086&dev_2822&subsys_00000000&rev_04#3&11583659&0&b8#{2accfe60-c130-11d2-b082-00a0c91efb8b})";

class AdaptersTest : public testing::Test {
 protected:
  void SetUp() override {
    const WinDeviceScanFilter filter(kStoragePort, orvik::module::raid::kScsiAdapterClass);
    ASSERT_EQ(scanner_.EnumerateInterfaces(filter, paths_), 0U);
  }

  std::string Description(std::uint32_t index) {
    std::unique_ptr<char[]> text;
    std::size_t size = 0;
    return scanner_.GetDeviceProperty(index, SPDRP_DEVICEDESC, text, size) == 0 ? text.get() : "(none)";
  }

  WinDeviceInterfaceScanner scanner_;
  DeviceInterfaceScanner::InterfacePaths paths_;
};

TEST_F(AdaptersTest, EnumeratesPresentInterfaces) {
  std::vector<std::string> found;
  for (const auto& [index, interfaces] : paths_) found.insert(found.end(), interfaces.begin(), interfaces.end());
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (std::vector<std::string>{kPortPath, std::string(kPortPath) + "\\1", kRaidPath}));
}

TEST_F(AdaptersTest, ReadsDescriptions) {
  for (const auto& [index, interfaces] : paths_) {
    EXPECT_EQ(Description(index),
              interfaces.front() == kRaidPath ? "Chipset SATA RAID Gr\u00F6\u00DFe" : "Standard Storage Port");
  }
  EXPECT_EQ(Description(1000), "(none)");
}

TEST_F(AdaptersTest, CannotOpenWhatHasNoDriver) {
  HANDLE handle = nullptr;
  EXPECT_EQ(scanner_.OpenDevice(R"(C:\missing.bin)", handle), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
  EXPECT_EQ(handle, INVALID_HANDLE_VALUE);
  EXPECT_NE(scanner_.OpenDevice(kRaidPath, handle), 0U);
  EXPECT_TRUE(orvik::module::raid::EnumerateCsmiAdapters().empty());
}

TEST(DriverVersionTest, PassesOverTheSystemsOwnDrivers) {
  std::string version;
  EXPECT_EQ(orvik::module::raid::ReadDriverVersion(version), 0U);
  EXPECT_EQ(version, "17.9.1.1009");
}

TEST(ThreadsTest, RunOnTheProcessorsOfTheirMask) {
  DWORD_PTR process = 0;
  DWORD_PTR system = 0;
  ASSERT_TRUE(GetProcessAffinityMask(GetCurrentProcess(), &process, &system));
  EXPECT_EQ(SetThreadAffinityMask(GetCurrentThread(), 1), process);
  EXPECT_EQ(SetThreadAffinityMask(GetCurrentThread(), process), 1U);

  ThreadPool pool;
  pool.Start(1);
  // The first worker has mask 2; asking for another one tells the mask that it had.
  DWORD_PTR previous = 0;
  pool.Submit([&] { previous = SetThreadAffinityMask(GetCurrentThread(), process); }).get();
  EXPECT_EQ(previous, (process & 2) != 0 ? 2U : process);
}

TEST(TextTest, ConvertsUtf16) {
  EXPECT_EQ(ToUtf8(L"Gr\u00FC\u00DF\u20AC \U0001F4BE"), "Gr\u00FC\u00DF\u20AC \U0001F4BE");
  EXPECT_EQ(Widen("a\xE9"), L"a\u00E9");
}

TEST(HostkitTest, MeasuresRealTimeAndKnowsItsFolder) {
  hostkit::Timer* const timer = get_timer();
  const std::uint32_t start = timer->Now();
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  const double elapsed = timer->Elapsed(start, timer->Now());
  EXPECT_GT(elapsed, 0.2);
  EXPECT_LT(elapsed, 5.0);

  const std::string own = std::string(get_filesystem()->LibraryDirectory()) + "\\hostkit.dll";
  void* const library = get_module()->Load(own.c_str(), 1);
  ASSERT_NE(library, nullptr);
  EXPECT_NE(get_module()->FindSymbol(library, "get_timer"), nullptr);
  get_module()->Unload(library);
}

}  // namespace
