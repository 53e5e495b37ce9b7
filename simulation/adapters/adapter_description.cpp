#include "simulation/adapters/adapter_description.h"

#include <algorithm>

#include "simulation/text/fold_case.h"

namespace orvik::simulation {

AdapterDescription PciRaidAdapter(std::string_view deviceId, unsigned unit) {
  const std::string device(deviceId);
  const std::string number = std::to_string(unit);
  const std::string place = "3&11583659&0&f" + number;
  AdapterDescription adapter;
  adapter.instanceId = "PCI\\VEN_8086&DEV_" + device + "&SUBSYS_86941043&REV_04\\" + place;
  adapter.description = "Chipset SATA RAID Controller";
  adapter.driver = {.key = "{4d36e97b-e325-11ce-bfc1-08002be10318}\\" +
                           std::string(4 - std::min<std::size_t>(number.size(), 4), '0') + number,
                    .provider = "Orvik Storage",
                    .version = "17.9.1.1009"};
  adapter.interfaces = {{.path = R"(\\?\pci#ven_8086&dev_)" + FoldCase(device) + "&subsys_86941043&rev_04#" + place +
                                 "#{2accfe60-c130-11d2-b082-00a0c91efb8b}"}};
  return adapter;
}

}  // namespace orvik::simulation
