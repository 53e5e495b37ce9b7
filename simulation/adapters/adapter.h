#pragma once

// An adapter with its driver: the storage port that its interfaces lead to.

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "simulation/adapters/adapter_description.h"
#include "simulation/csmi/csmi_controller.h"
#include "simulation/machine/io_device.h"

namespace orvik::simulation {

class Adapter : public IoDevice {
 public:
  Adapter(AdapterDescription description, const std::shared_ptr<const Clock>& clock);

  const AdapterDescription& Description() const { return description_; }
  /// Null when the adapter has no CSMI controller.
  CsmiController* Csmi() const { return csmi_.get(); }

  std::string_view PacketName(std::uint32_t controlCode, std::span<const std::uint8_t> buffer) const override;
  IoResult Control(std::uint32_t controlCode, std::span<std::uint8_t> buffer, std::size_t inputSize,
                   std::size_t outputSize) override;

 private:
  AdapterDescription description_;
  std::unique_ptr<CsmiController> csmi_;
};

}  // namespace orvik::simulation
