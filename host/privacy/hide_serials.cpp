#include "host/privacy/hide_serials.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace orvik::host {
namespace {

constexpr std::string_view kSerialKey = "SERIAL";
constexpr std::string_view kBeforeSerial = " - ";  // between a model and its serial number

void Hide(std::string& serial) {
  serial.assign(serial.size(), 'X');
}

// The serial number of "model - serial", including its padding.
void HideLastPart(std::string& text) {
  const std::size_t place = text.rfind(kBeforeSerial);
  if (place == std::string::npos) return;
  const std::size_t begin = place + kBeforeSerial.size();
  text.replace(begin, std::string::npos, text.size() - begin, 'X');
}

void HideWithin(std::string& text, const std::string& serial) {
  if (serial.empty()) return;
  for (std::size_t at = text.find(serial); at != std::string::npos; at = text.find(serial, at + serial.size())) {
    text.replace(at, serial.size(), serial.size(), 'X');
  }
}

std::string WithoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

// Device identifiers contain the controller's serial number without its blanks.
void HideInIdentifier(std::string& identifier, const std::string& serial) {
  HideWithin(identifier, serial);
  HideWithin(identifier, WithoutBlanks(serial));
}

void HideValues(core::KeyValueList& list, const std::string& controllerSerial) {
  for (auto& [key, value] : list) {
    if (key == kSerialKey) {
      Hide(value);
    } else if (key == "UDI") {
      HideInIdentifier(value, controllerSerial);
    }
  }
}

}  // namespace

void HideSerials(core::DeviceDescription& description) {
  const auto serial = std::find_if(description.properties.begin(), description.properties.end(),
                                   [](const auto& property) { return property.first == kSerialKey; });
  const std::string own = serial == description.properties.end() ? std::string() : serial->second;
  HideWithin(description.name, own);
  HideInIdentifier(description.udi, own);
  HideValues(description.properties, own);
  HideValues(description.extraProperties, own);
  for (core::KeyValueList& resource : description.resources) HideValues(resource, own);
}

void HideSerials(ControllerDetails& details) {
  if (details.info) {
    HideInIdentifier(details.info->udi, details.info->serial);
    Hide(details.info->serial);
  }
  for (LogicalDisk& disk : details.logicalDisks)
    std::for_each(disk.failedMembers.begin(), disk.failedMembers.end(), HideLastPart);
  for (PhysicalDisk& disk : details.physicalDisks) Hide(disk.serial);
}

void HideSerials(std::vector<core::TestMessage>& messages) {
  for (core::TestMessage& message : messages) HideLastPart(message.text);
}

void HideSerials(Drive& drive) {
  Hide(drive.properties.serialNumber);
  Hide(drive.properties.labelText);  // identifies the individual drive, as a serial number does
}

}  // namespace orvik::host
