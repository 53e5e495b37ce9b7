// A whole machine whose controllers and drives answer with whatever comes: scan, the member drives, the six tests.

#include "fuzz/faults_from_input.h"
#include "fuzz/host.h"
#include "module/raid/device_scanner.h"
#include "simulation/machine/current_machine.h"

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
  const auto machine = std::make_shared<simulation::Machine>(fuzz::WholeMachine());
  machine->Faults().AskForEach(fuzz::FaultsFrom(input));
  simulation::InstallMachine(machine);
  {
    module::raid::DeviceScanner scanner;
    const auto listener = std::make_shared<Listener>();
    scanner.CheckPresence(listener);
    scanner.Scan(listener);
    for (const auto& device : scanner.GetDevices()) {
      fuzz::UseDevice(std::dynamic_pointer_cast<module::raid::RaidDevice>(device.lock()));
    }
  }
  fuzz::Demand(machine->Ledger().OutstandingTotal() == 0);
  fuzz::Demand(machine->Ledger().InvalidReleases() == 0);
  return 0;
}
