#include "simulation/json/load_machine.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <algorithm>

#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

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

std::variant<std::shared_ptr<Machine>, std::string> LoadMachine(const std::string& path) {
  Complaint complaint(path);
  const auto description = Describe(path, complaint);
  if (!description) return path + ": " + complaint.Text();
  return std::make_shared<Machine>(*description);
}

}  // namespace orvik::simulation
