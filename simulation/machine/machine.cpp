#include "simulation/machine/machine.h"

#include <algorithm>

#include "simulation/csmi/csmi_layout.h"
#include "simulation/faults/fault.h"
#include "simulation/identifiers.h"

namespace orvik::simulation {

Machine::Machine(const MachineDescription& description)
    : name_(description.name),
      clock_(std::make_shared<simulation::Clock>(description.speed)),
      storelib_(description.storelib, clock_),
      desktop_(description.desktop) {
  for (const AdapterDescription& adapter : description.adapters) {
    adapters_.push_back(std::make_shared<Adapter>(adapter, clock_));
    RegisterDriver(adapter);
  }
  for (const PhysicalDriveDescription& drive : description.physicalDrives) {
    physicalDrives_.push_back(std::make_shared<PhysicalDrive>(drive, clock_));
  }
  for (const RegistryValue& value : description.registry) registry_.Set(value);
  for (const FaultRule& fault : description.faults) faults_.Add(fault);
}

void Machine::RegisterDriver(const AdapterDescription& adapter) {
  const DriverDescription& driver = adapter.driver;
  if (!driver.key) return;
  registry_.Set({R"(SYSTEM\CurrentControlSet\Enum\)" + adapter.instanceId, "Driver", *driver.key});
  const std::string key = R"(SYSTEM\CurrentControlSet\Control\Class\)" + *driver.key;
  if (driver.provider) registry_.Set({key, "ProviderName", *driver.provider});
  if (driver.version) registry_.Set({key, "DriverVersion", *driver.version});
}

std::shared_ptr<IoDevice> Machine::Find(std::string_view fileName) const {
  const std::string wanted = FoldCase(fileName);
  for (const std::shared_ptr<Adapter>& adapter : adapters_) {
    if (!adapter->Description().present) continue;
    const auto& interfaces = adapter->Description().interfaces;
    if (std::ranges::any_of(interfaces, [&](const auto& each) { return FoldCase(each.path) == wanted; })) {
      return adapter;
    }
  }
  for (std::size_t i = 0; i < physicalDrives_.size(); ++i) {
    if (FoldCase(R"(\\.\PhysicalDrive)" + std::to_string(i)) == wanted) return physicalDrives_[i];
  }
  return nullptr;
}

IoResult Machine::Control(IoDevice& device, std::uint32_t controlCode, std::span<std::uint8_t> buffer,
                          std::size_t inputSize, std::size_t outputSize) {
  const std::string_view packet = device.PacketName(controlCode, buffer.first(inputSize));
  const FaultEffects effects = OnCall({"DeviceIoControl", packet});
  if (effects.error) return {.error = *effects.error};

  const std::vector<std::uint8_t> request(buffer.begin(), buffer.end());
  IoResult result;
  if (effects.returnCode) {
    Set(buffer, srb_io_control::kReturnCode, *effects.returnCode);
    result.returned = outputSize;
  } else {
    result = device.Control(controlCode, buffer, inputSize, outputSize);
  }
  if (result.error == 0) Distort(effects, srb_io_control::kSize, request, buffer, result.returned);
  return result;
}

std::uint32_t Machine::ProcessLibCommand(std::span<std::uint8_t> packet, std::span<std::uint8_t> data) {
  const FaultEffects effects = OnCall({"ProcessLibCommand", Storelib::CommandName(packet)});
  if (effects.error) return *effects.error;

  std::vector<std::uint8_t> before;
  if (effects.truncateTo) before.assign(data.begin(), data.end());
  const std::uint32_t status = effects.returnCode ? *effects.returnCode : storelib_.Execute(packet, data);
  std::size_t returned = data.size();
  Distort(effects, 0, before, data, returned);
  return status;
}

FaultEffects Machine::OnCall(std::initializer_list<std::string_view> names) {
  FaultEffects effects = faults_.OnCall(names);
  clock_->Advance(effects.delayMilliseconds.value_or(0));
  return effects;
}

}  // namespace orvik::simulation
