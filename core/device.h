#pragma once

#include <string>
#include <utility>
#include <vector>

namespace orvik::core {

/// An ordered list of (upper-case key, value) texts: device properties, or one resource of a device.
using KeyValueList = std::vector<std::pair<std::string, std::string>>;

/// A device that a module found. Its slots are a binary contract: never reorder, insert or overload.
class Device {
 public:
  Device() = default;
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;

  virtual ~Device() = default;                           // slot 0
  virtual std::string GetId() const = 0;                 // slot 1: the id that `FindDevice` takes
  virtual std::string GetName() const = 0;               // slot 2: display name
  virtual bool HasUdi() const = 0;                       // slot 3: `GetUdi` is not empty
  virtual std::string GetUdi() const = 0;                // slot 4: unique device identifier
  virtual KeyValueList GetExtraProperties() const = 0;   // slot 5
  virtual std::vector<std::string> GetTags() const = 0;  // slot 6
  virtual bool IsTestable() const = 0;                   // slot 7
  virtual void Refresh() = 0;                            // slot 8
};

}  // namespace orvik::core
