#include "simulation/machine/load_machine.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <algorithm>
#include <set>
#include <utility>

#include "simulation/json/readers.h"

namespace orvik::simulation {

namespace {

constexpr double kSlowest = 0.001;
constexpr double kFastest = 1000000;
constexpr std::size_t kMostAdapters = 256;
constexpr std::size_t kMostPhysicalDrives = 256;
constexpr qint64 kMostBytes = 1048576;

RegistryValue ReadRegistryValue(const Node& node) {
  RegistryValue value;
  ObjectReader object(node);
  object.Required("key", "a text").Read(value.key);
  object.Required("name", "a text").Read(value.name);
  object.Required("text", "a text").Read(value.text);
  object.End();
  return value;
}

MachineDescription ReadMachine(const Node& node) {
  MachineDescription machine;
  ObjectReader object(node);
  int format = 0;
  object.Required("format", "the number 1").Read(format, 1, 1);
  object.Required("name", "a text").Read(machine.name);
  object.Optional("speed").Read(machine.speed, kSlowest, kFastest);
  object.Optional("adapters")
      .ForEach([&](const Node& each) { machine.adapters.push_back(ReadAdapter(each)); }, kMostAdapters);
  object.Optional("physicalDrives")
      .ForEach([&](const Node& each) { machine.physicalDrives.push_back(ReadPhysicalDrive(each)); },
               kMostPhysicalDrives);
  if (const Node storelib = object.Optional("storelib"); storelib.Present())
    machine.storelib = ReadStorelib(storelib);
  if (const Node desktop = object.Optional("desktop"); desktop.Present()) machine.desktop = ReadDesktop(desktop);
  object.Optional("registry").ForEach([&](const Node& each) { machine.registry.push_back(ReadRegistryValue(each)); });
  object.Optional("faults").ForEach([&](const Node& each) { machine.faults.push_back(ReadFault(each)); });
  object.End();
  return machine;
}

std::string LineAndColumn(const QByteArray& text, qsizetype offset) {
  const QByteArray before = text.left(std::max<qsizetype>(offset, 0));
  const qsizetype lineStart = before.lastIndexOf('\n') + 1;
  return std::to_string(before.count('\n') + 1) + ":" + std::to_string(before.size() - lineStart + 1);
}

// Finds keys that an object has twice: the parser keeps the last of them
// silently. For a text that is JSON.
class DuplicateKeys {
 public:
  DuplicateKeys(QByteArray text, Complaint& complaint) : text_(std::move(text)), complaint_(&complaint) {}

  void Find() {
    for (qsizetype i = 0; i < text_.size() && !complaint_->Made(); ++i) {
      switch (text_.at(i)) {
        case '{': levels_.push_back({.isObject = true, .expectsKey = true}); break;
        case '[': levels_.push_back({}); break;
        case '}':
        case ']': levels_.pop_back(); break;
        case ',': Next(levels_.back()); break;
        case '"': {
          const qsizetype start = i;
          for (++i; text_.at(i) != '"'; ++i) i += text_.at(i) == '\\' ? 1 : 0;
          if (levels_.back().expectsKey) Add(text_.mid(start, i - start + 1));
          break;
        }
        default: break;
      }
    }
  }

 private:
  // An object or list that is open at the current position.
  struct Level {
    bool isObject = false;
    bool expectsKey = false;
    std::set<std::string> keys{};
    std::string key{};
    std::size_t index = 0;
  };

  static void Next(Level& level) {
    level.expectsKey = level.isObject;
    ++level.index;
  }

  // `literal` has quotation marks and may have escapes.
  void Add(const QByteArray& literal) {
    Level& object = levels_.back();
    object.key = QJsonDocument::fromJson("[" + literal + "]").array().at(0).toString().toStdString();
    object.expectsKey = false;
    if (object.keys.insert(object.key).second) return;
    complaint_->Add(Place(), "each key once", "the key \"" + object.key + "\" again");
  }

  // The place of the innermost object.
  std::string Place() const {
    std::string place;
    for (std::size_t i = 0; i + 1 < levels_.size(); ++i) {
      const Level& level = levels_[i];
      if (!level.isObject) {
        place += "[" + std::to_string(level.index) + "]";
      } else {
        place += (place.empty() ? "" : ".") + level.key;
      }
    }
    return place.empty() ? "document" : place;
  }

  QByteArray text_;
  Complaint* complaint_;
  std::vector<Level> levels_;
};

std::optional<std::string> ReadFile(const std::string& path, Complaint& complaint) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) {
    complaint.Add("document", "a readable file", "\"" + file.errorString().toStdString() + "\"");
    return std::nullopt;
  }
  return file.read(kMostBytes + 1).toStdString();
}

}  // namespace

std::optional<MachineDescription> ParseMachine(std::string_view text, Complaint& complaint) {
  const auto bytes = QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
  if (bytes.size() > kMostBytes) {
    complaint.Add("document", "at most " + std::to_string(kMostBytes) + " bytes", "more");
    return std::nullopt;
  }
  if (bytes.trimmed().isEmpty()) {
    complaint.Add("document", "an object", "an empty file");
    return std::nullopt;
  }
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
  if (error.error != QJsonParseError::NoError) {
    complaint.Add(LineAndColumn(bytes, error.offset), "JSON", "\"" + error.errorString().toStdString() + "\"");
    return std::nullopt;
  }
  DuplicateKeys(bytes, complaint).Find();
  const QJsonValue root = document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
  MachineDescription machine = ReadMachine(Node(root, "", complaint));
  if (complaint.Made()) return std::nullopt;
  return machine;
}

std::variant<std::shared_ptr<Machine>, std::string> LoadMachine(const std::string& path) {
  Complaint complaint(path);
  const auto text = ReadFile(path, complaint);
  const auto description = text ? ParseMachine(*text, complaint) : std::nullopt;
  if (!description) return path + ": " + complaint.Text();
  return std::make_shared<Machine>(*description);
}

}  // namespace orvik::simulation
