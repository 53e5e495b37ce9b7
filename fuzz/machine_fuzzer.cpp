// A whole machine whose controllers and drives answer with whatever comes: scan, the member drives, the six tests,
// and the drives of the system.

#include "fuzz/faults_from_input.h"
#include "fuzz/host.h"
#include "module/raid/entry/device_scanner.h"
#include "module/storage/ata/ata_protocol.h"
#include "module/storage/scsi/scsi_protocol.h"
#include "simulation/machine/current_machine.h"
#include "utils/devices/win_device_interface_scanner.h"
#include "utils/windows/unique_handle.h"

namespace {

class Listener final : public orvik::core::ScanListener {
 public:
  void OnDeviceFound(const orvik::core::DeviceDescription& /*description*/) override {}
  void OnScanFinished() override {}
  void OnPresenceChecked(bool /*present*/) override {}
};

void UseControllers() {
  orvik::module::raid::DeviceScanner scanner;
  const auto listener = std::make_shared<Listener>();
  scanner.CheckPresence(listener);
  scanner.Scan(listener);
  for (const auto& device : scanner.GetDevices()) {
    orvik::fuzz::UseDevice(std::dynamic_pointer_cast<orvik::module::raid::RaidDevice>(device.lock()));
  }
}

template <typename ProtocolType, typename Bridge>
void UseSystemDrive(const char* path) {
  HANDLE handle = INVALID_HANDLE_VALUE;
  WinDeviceInterfaceScanner().OpenDevice(path, handle);
  const orvik::utils::UniqueHandle owner(handle);
  ProtocolType drive;
  drive.AddBridge(std::make_shared<Bridge>(handle));
  orvik::fuzz::UseDrive(drive);
}

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
  using namespace module::storage;
  const std::uint8_t leftOut = input.Byte();
  if ((leftOut & 1) == 0) UseControllers();
  if ((leftOut & 2) == 0) UseSystemDrive<AtaProtocol, AtaBridge>(R"(\\.\PhysicalDrive0)");
  if ((leftOut & 4) == 0) UseSystemDrive<ScsiProtocol, ScsiBridge>(R"(\\.\PhysicalDrive1)");
  fuzz::Demand(machine->Ledger().OutstandingTotal() == 0);
  fuzz::Demand(machine->Ledger().InvalidReleases() == 0);
  return 0;
}
