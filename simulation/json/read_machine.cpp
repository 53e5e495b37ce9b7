#include "simulation/json/object_reader.h"
#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

constexpr double kSlowest = 0.001;
constexpr double kFastest = 1000000;

DriverDescription ReadDriver(const Node& node) {
  DriverDescription driver;
  ObjectReader object(node);
  object.Optional("key").Read(driver.key);
  object.Optional("provider").Read(driver.provider);
  object.Optional("version").Read(driver.version);
  object.End();
  return driver;
}

InterfaceDescription ReadInterface(const Node& node) {
  InterfaceDescription interface;
  ObjectReader object(node);
  object.Required("path", "a text").Read(interface.path);
  object.Optional("class").Read(interface.interfaceClass);
  object.End();
  return interface;
}

AdapterDescription ReadAdapter(const Node& node) {
  AdapterDescription adapter;
  ObjectReader object(node);
  object.Required("instanceId", "a text").Read(adapter.instanceId);
  object.Optional("class").Read(adapter.setupClass);
  object.Optional("description").Read(adapter.description);
  object.Optional("present").Read(adapter.present);
  if (const Node driver = object.Optional("driver"); driver.Present()) adapter.driver = ReadDriver(driver);
  object.Optional("interfaces").ForEach([&](const Node& each) { adapter.interfaces.push_back(ReadInterface(each)); });
  if (const Node csmi = object.Optional("csmi"); csmi.Present()) adapter.csmi = ReadCsmiController(csmi);
  object.End();
  return adapter;
}

RegistryValue ReadRegistryValue(const Node& node) {
  RegistryValue value;
  ObjectReader object(node);
  object.Required("key", "a text").Read(value.key);
  object.Required("name", "a text").Read(value.name);
  object.Required("text", "a text").Read(value.text);
  object.End();
  return value;
}

}  // namespace

MachineDescription ReadMachine(const Node& node) {
  MachineDescription machine;
  ObjectReader object(node);
  int format = 0;
  object.Required("format", "the number 1").Read(format, 1, 1);
  object.Required("name", "a text").Read(machine.name);
  object.Optional("speed").Read(machine.speed, kSlowest, kFastest);
  object.Optional("adapters").ForEach([&](const Node& each) { machine.adapters.push_back(ReadAdapter(each)); });
  object.Optional("physicalDrives").ForEach([&](const Node& each) {
    machine.physicalDrives.push_back(ReadPhysicalDrive(each));
  });
  if (const Node storelib = object.Optional("storelib"); storelib.Present())
    machine.storelib = ReadStorelib(storelib);
  if (const Node desktop = object.Optional("desktop"); desktop.Present()) machine.desktop = ReadDesktop(desktop);
  object.Optional("registry").ForEach([&](const Node& each) { machine.registry.push_back(ReadRegistryValue(each)); });
  object.Optional("faults").ForEach([&](const Node& each) { machine.faults.push_back(ReadFault(each)); });
  object.End();
  return machine;
}

}  // namespace orvik::simulation
