#include "host/report/device_json.h"

#include "host/report/json_values.h"
#include "host/report/words.h"
#include "host/text/message_text.h"

namespace orvik::host {
namespace {

QJsonArray PropertiesJson(const core::KeyValueList& properties) {
  QJsonArray array;
  for (const auto& [key, value] : properties) {
    array.append(QJsonObject{{"key", RawText(key)}, {"label", TranslateKey(key)}, {"value", RawText(value)}});
  }
  return array;
}

QJsonArray ResourcesJson(const std::vector<core::KeyValueList>& resources) {
  QJsonArray array;
  for (const core::KeyValueList& resource : resources) {
    QJsonArray entries;
    for (const auto& [key, value] : resource) {
      entries.append(QJsonObject{{"key", RawText(key)}, {"value", RawText(value)}});
    }
    array.append(entries);
  }
  return array;
}

QJsonValue ControllerJson(const std::optional<module::raid::ControllerInfo>& info) {
  if (!info) return QJsonValue::Null;
  return QJsonObject{
      {"serial", RawText(info->serial)},
      {"model", RawText(info->model)},
      {"driverVersion", RawText(info->driverVersion)},
      {"platform", RawText(info->platform)},
      {"logicalDriveCount", info->logicalDriveCount < 0 ? QJsonValue(QJsonValue::Null)
                                                        : QJsonValue(static_cast<qint64>(info->logicalDriveCount))},
      {"supportedRaidLevels", JsonTexts(info->supportedRaidLevels)},
      {"supportedInterfaces", JsonTexts(info->supportedInterfaces)},
      {"bbuSupported", info->bbuSupported},
      {"udi", RawText(info->udi)},
  };
}

QJsonObject LogicalDiskJson(const LogicalDisk& disk) {
  return {
      {"index", disk.index},
      {"name", RawText(disk.name)},
      {"raidLevel", RawText(disk.raidLevel)},
      {"state", disk.state ? QJsonValue(WordFor(*disk.state).stable) : QJsonValue(QJsonValue::Null)},
      {"memberCount", static_cast<qint64>(disk.memberCount)},
      {"sizeBytes", JsonNumber(disk.sizeBytes)},
      {"size", RawText(disk.size)},
      {"failedMembers", JsonTexts(disk.failedMembers)},
  };
}

QJsonObject PhysicalDiskJson(const PhysicalDisk& disk) {
  return {
      {"index", disk.index},
      {"protocol", disk.protocol ? QJsonValue(WordFor(*disk.protocol).stable) : QJsonValue(QJsonValue::Null)},
      {"manufacturer", RawText(disk.manufacturer)},
      {"model", RawText(disk.model)},
      {"serial", RawText(disk.serial)},
      {"sizeBytes", JsonNumber(disk.sizeBytes)},
      {"size", RawText(disk.size)},
  };
}

}  // namespace

QJsonObject DeviceJson(const ListedDevice& device) {
  const core::DeviceDescription& description = device.description;
  return {
      {"index", device.index},
      {"id", RawText(description.id)},
      {"udi", RawText(description.udi)},
      {"name", RawText(description.name)},
      {"testable", description.testable},
      {"tags", JsonTexts(description.tags)},
      {"properties", PropertiesJson(description.properties)},
      {"extraProperties", PropertiesJson(description.extraProperties)},
      {"resources", ResourcesJson(description.resources)},
  };
}

QJsonObject DeviceJson(const ListedDevice& device, const ControllerDetails& details) {
  QJsonObject json = DeviceJson(device);
  json["controller"] = ControllerJson(details.info);
  QJsonArray logical;
  for (const LogicalDisk& disk : details.logicalDisks) logical.append(LogicalDiskJson(disk));
  json["logicalDrives"] = logical;
  QJsonArray physical;
  for (const PhysicalDisk& disk : details.physicalDisks) physical.append(PhysicalDiskJson(disk));
  json["physicalDrives"] = physical;
  return json;
}

QJsonArray DevicesJson(const std::vector<ListedDevice>& devices) {
  QJsonArray array;
  for (const ListedDevice& device : devices) array.append(DeviceJson(device));
  return array;
}

}  // namespace orvik::host
