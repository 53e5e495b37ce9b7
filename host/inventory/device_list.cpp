#include "host/inventory/device_list.h"

#include <QCoreApplication>
#include <exception>

namespace orvik::host {
namespace {

class Collector final : public core::ScanListener {
 public:
  void OnDeviceFound(const core::DeviceDescription& description) override { descriptions.push_back(description); }
  void OnScanFinished() override { finished = true; }
  void OnPresenceChecked(bool isPresent) override { present = isPresent; }

  std::vector<core::DeviceDescription> descriptions;
  bool finished = false;
  std::optional<bool> present;
};

}  // namespace

bool ScanDevices(core::DeviceScanner& scanner, std::vector<ListedDevice>& devices, QString& error) {
  const auto collector = std::make_shared<Collector>();
  try {
    scanner.Scan(collector);
  } catch (const std::exception& exception) {
    error = QCoreApplication::translate("orvik-diag", "The scan broke off: %1")
                .arg(QString::fromUtf8(exception.what()).simplified());
    return false;
  }
  if (!collector->finished) {
    error = QCoreApplication::translate("orvik-diag", "The scan broke off: its end was not reported");
    return false;
  }

  const std::vector<std::weak_ptr<core::Device>> found = scanner.GetDevices();
  devices.clear();
  for (core::DeviceDescription& description : collector->descriptions) {
    const std::size_t place = devices.size();
    std::weak_ptr<core::Device> device = place < found.size() ? found[place] : scanner.FindDevice(description.id);
    devices.push_back({static_cast<int>(place), std::move(description), std::move(device)});
  }
  return true;
}

std::optional<bool> CheckPresence(core::DeviceScanner& scanner, QString& error) {
  const auto collector = std::make_shared<Collector>();
  try {
    scanner.CheckPresence(collector);
  } catch (const std::exception& exception) {
    error = QCoreApplication::translate("orvik-diag", "The presence check broke off: %1")
                .arg(QString::fromUtf8(exception.what()).simplified());
    return std::nullopt;
  }
  if (!collector->present) {
    error = QCoreApplication::translate("orvik-diag", "The presence check ended without an answer");
  }
  return collector->present;
}

}  // namespace orvik::host
