#include "simulation/machine/load_machine.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <algorithm>

#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

constexpr double kSlowest = 0.001;
constexpr double kFastest = 1000000;

RegistryValue ReadRegistryValue(const Node& node) {
  RegistryValue value;
  ObjectReader object(node);
  object.Required("key", "a text").Read(value.key);
  object.Required("name", "a text").Read(value.name);
  object.Required("text", "a text").Read(value.text);
  object.End();
  return value;
}

std::string LineAndColumn(const QByteArray& text, qsizetype offset) {
  const QByteArray before = text.left(std::max<qsizetype>(offset, 0));
  const qsizetype lineStart = before.lastIndexOf('\n') + 1;
  return std::to_string(before.count('\n') + 1) + ":" + std::to_string(before.size() - lineStart + 1);
}

std::optional<QByteArray> ReadFile(const std::string& path, Complaint& complaint) {
  QFile file(QString::fromStdString(path));
  if (file.open(QIODevice::ReadOnly)) return file.readAll();
  complaint.Add("document", "a readable file", "\"" + file.errorString().toStdString() + "\"");
  return std::nullopt;
}

std::optional<MachineDescription> Describe(const std::string& path, Complaint& complaint) {
  const auto text = ReadFile(path, complaint);
  if (!text) return std::nullopt;
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(*text, &error);
  if (error.error != QJsonParseError::NoError) {
    complaint.Add(LineAndColumn(*text, error.offset), "JSON", "\"" + error.errorString().toStdString() + "\"");
    return std::nullopt;
  }
  const QJsonValue root = document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
  MachineDescription machine = ReadMachine(Node(root, "", complaint));
  if (complaint.Made()) return std::nullopt;
  return machine;
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

std::variant<std::shared_ptr<Machine>, std::string> LoadMachine(const std::string& path) {
  Complaint complaint(path);
  const auto description = Describe(path, complaint);
  if (!description) return path + ": " + complaint.Text();
  return std::make_shared<Machine>(*description);
}

}  // namespace orvik::simulation
