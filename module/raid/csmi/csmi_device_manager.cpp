#include "module/raid/csmi/csmi_device_manager.h"

#include <hostkit.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "module/raid/csmi/csmi_packet.h"
#include "module/raid/family/driver_version.h"
#include "utils/devices/win_device_interface_scanner.h"

namespace orvik::module::raid {

namespace {

/// GUID_DEVINTERFACE_STORAGEPORT.
constexpr GUID kStoragePortInterface = {0x2ACCFE60, 0xC130, 0x11D2, {0xB0, 0x82, 0x00, 0xA0, 0xC9, 0x1E, 0xFB, 0x8B}};

constexpr std::string_view kSupportedVendor = "8086";
constexpr std::array<std::string_view, 17> kSupportedDevices = {"1D69", "1D02", "3C02", "2826", "1D68", "1D6B",
                                                                "8086", "282A", "2822", "9A0B", "06D7", "43D6",
                                                                "467F", "9364", "936a", "A77F", "2827"};

// Where a path of the form \\?\pci#ven_VVVV&dev_DDDD#... has its ids.
constexpr std::size_t kVendorPosition = 12;
constexpr std::size_t kDevicePosition = 21;
constexpr std::size_t kIdLength = 4;

constexpr std::size_t kMaximumDescription = 256;

bool EqualWithoutCase(std::string_view left, std::string_view right) {
  const auto lower = [](char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
  };
  return std::ranges::equal(left, right, {}, lower, lower);
}

std::optional<std::string> Description(WinDeviceInterfaceScanner& scanner, std::uint32_t index) {
  std::unique_ptr<char[]> text;
  std::size_t size = 0;
  if (scanner.GetDeviceProperty(index, SPDRP_DEVICEDESC, text, size) != 0) return std::nullopt;
  const std::size_t length = get_string_handler()->BoundedLength(text.get(), std::min(size, kMaximumDescription));
  return std::string(text.get(), length);
}

std::optional<CsmiAdapter> OpenAdapter(WinDeviceInterfaceScanner& scanner, std::uint32_t index,
                                       const std::string& path) {
  auto description = Description(scanner, index);
  if (!description || path.size() < kDevicePosition + kIdLength) return std::nullopt;
  HANDLE opened = INVALID_HANDLE_VALUE;
  if (scanner.OpenDevice(path, opened) != 0) return std::nullopt;
  utils::UniqueHandle handle(opened);  // owned before anything else can fail
  return CsmiAdapter{.interfacePath = path,
                     .handle = std::move(handle),
                     .description = *std::move(description),
                     .pciVendorId = path.substr(kVendorPosition, kIdLength),
                     .pciDeviceId = path.substr(kDevicePosition, kIdLength)};
}

bool IsSupported(const CsmiAdapter& adapter) {
  return EqualWithoutCase(adapter.pciVendorId, kSupportedVendor) &&
         std::ranges::any_of(kSupportedDevices,
                             [&adapter](auto id) { return EqualWithoutCase(adapter.pciDeviceId, id); });
}

bool IsRaidCapable(HANDLE port) {
  using namespace csmi::controller_configuration;
  ControllerConfigurationPacket packet;
  return ExchangeCsmiPacket(port, packet).Ok() && (packet.View().Get(kControllerFlags) & (kSasRaid | kSataRaid)) != 0;
}

}  // namespace

std::vector<CsmiAdapter> EnumerateCsmiAdapters() {
  WinDeviceInterfaceScanner scanner;
  DeviceInterfaceScanner::InterfacePaths paths;
  std::vector<CsmiAdapter> adapters;
  if (scanner.EnumerateInterfaces(WinDeviceScanFilter(kStoragePortInterface, kScsiAdapterClass), paths) != 0) {
    return adapters;
  }
  for (const auto& [index, interfaces] : paths) {
    for (const auto& path : interfaces) {
      if (auto adapter = OpenAdapter(scanner, index, path)) adapters.push_back(*std::move(adapter));
    }
  }
  return adapters;
}

bool IsCsmiRaidController(const CsmiAdapter& adapter) {
  return IsSupported(adapter) && IsRaidCapable(adapter.handle.Get());
}

bool CsmiDeviceManager::HasControllers() {
  return std::ranges::any_of(EnumerateCsmiAdapters(), IsCsmiRaidController);
}

void CsmiDeviceManager::RefreshDevices() {
  devices_.clear();
  for (auto& adapter : EnumerateCsmiAdapters()) {
    if (!IsCsmiRaidController(adapter)) continue;
    auto device = std::make_shared<CsmiDevice>(std::move(adapter));
    if (device->BuildProperties().Ok()) devices_.push_back(std::move(device));
  }
}

}  // namespace orvik::module::raid
