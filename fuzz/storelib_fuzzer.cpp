// A device of the storelib family over blocks that the vendor's library fills with whatever comes.

#include "fuzz/faults_from_input.h"
#include "fuzz/host.h"
#include "module/raid/storelib/storelib_device.h"
#include "simulation/machine/current_machine.h"

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  orvik::fuzz::KeepVendorLibrary();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvik;
  fuzz::Input input(data, size);
  const auto machine = std::make_shared<simulation::Machine>(fuzz::WholeMachine());
  simulation::InstallMachine(machine);
  const auto device = std::make_shared<module::raid::LsiDevice>(3, std::make_shared<module::raid::LsiSender>());
  machine->Faults().AskForEach(fuzz::FaultsFrom(input));
  static_cast<void>(device->BuildProperties());
  fuzz::UseDevice(device);
  return 0;
}
