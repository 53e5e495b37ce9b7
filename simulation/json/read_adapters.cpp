#include "simulation/json/node.h"
#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

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

}  // namespace

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

}  // namespace orvik::simulation
