// Machine descriptions that may be anything; a machine that comes of one is scanned.

#include <string>

#include "fuzz/host.h"
#include "fuzz/input.h"
#include "module/raid/entry/device_scanner.h"
#include "simulation/machine/current_machine.h"
#include "simulation/machine/load_machine.h"

namespace {

class Listener final : public orvik::core::ScanListener {
 public:
  void OnDeviceFound(const orvik::core::DeviceDescription& /*description*/) override {}
  void OnScanFinished() override {}
  void OnPresenceChecked(bool /*present*/) override {}
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  orvik::fuzz::KeepVendorLibrary();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  fuzz::Input input(data, size);
  const auto bytes = input.Bytes(size);
  simulation::Complaint complaint("input.json");
  const auto description = simulation::ParseMachine(std::string(bytes.begin(), bytes.end()), complaint);
  if (!description) {
    fuzz::Demand(!complaint.Text().empty() && complaint.Text().find('\n') == std::string::npos);
    return 0;
  }
  const auto machine = std::make_shared<simulation::Machine>(*description);
  simulation::InstallMachine(machine);
  {
    module::raid::DeviceScanner scanner;
    scanner.Scan(std::make_shared<Listener>());
    for (const auto& device : scanner.GetDevices()) {
      std::vector<module::raid::StorageDeviceEntry> members;
      const auto raidDevice = std::dynamic_pointer_cast<module::raid::RaidDevice>(device.lock());
      // A machine may be described whose controllers fail.
      module::storage::Ignore(module::storage::Status{raidDevice->GetStorageDevices(members)});
    }
  }
  fuzz::Demand(machine->Ledger().OutstandingTotal() == 0);
  return 0;
}
